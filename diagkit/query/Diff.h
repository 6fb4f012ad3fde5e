// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/model/Layers.h>

/// The changes between two databases, as seen from each layer.

namespace NQuery {

/// What a comparison includes and ignores. IDs count only on request; OIDs, places in files and the order of views
/// never do.
struct VDiffOptions {
    bool comparesIds = false;         ///< whether different IDs are a difference
    bool ignoresLongNames = false;    ///< LONG-NAMEs
    bool ignoresDescriptions = false; ///< DESCs
    bool ignoresAdminData = false;    ///< ADMIN-DATA
    bool ignoresOrder = false;        ///< the order of elements without short names inside an entry

    /// The layers to compare, of either database; empty for all. All layers are matched nevertheless.
    std::vector<NODX201::VDiagLayer const*> layers{};

    /// Called at intervals with the layers done and in total; may be empty.
    std::function<void(std::uint64_t done, std::uint64_t all)> progress{};
};

/// What happened to an entry or a layer. Moved: of the same content, owned by another layer.
enum class VChangeKind { Added, Removed, Renamed, Changed, Moved };

/// Where the content of an entry differs. The path leads from the entry down, by tags and short names:
/// REQUEST/PARAM[num_flips]/DOP/COMPU-METHOD/COMPU-SCALE[2]/UPPER-LIMIT. Wrappers and -REF are left out, items without
/// a short name are counted from 1, an attribute is @NAME. "" is the entry itself, when its kind changed.
struct VDetail {
    std::wstring path;
    std::optional<std::wstring> oldText; ///< of an element its short name, or else its text; nothing where absent
    std::optional<std::wstring> newText; ///< the same

    /// The target of the last reference on the path, or the entry itself: several entries that lead to the same data
    /// report the same differences in it. Null for a difference that is not examined any further.
    NODX201::VOdxElement* oldPlace = nullptr;
    NODX201::VOdxElement* newPlace = nullptr;
    std::size_t placeLength = 0; ///< of the part of the path that leads to it
};

/// A changed entry of a view.
struct VChange {
    VChangeKind kind;
    NODX201::VOdxElement* oldElement; ///< null when added
    NODX201::VOdxElement* newElement; ///< null when removed
    wchar_t const* shortName;         ///< the new one; of a COMPARAM-REF that of the COMPARAM
    wchar_t const* was;               ///< the old one when renamed; null otherwise
    /// Only for `Changed`; null otherwise. Changes that many layers inherit share one list.
    std::shared_ptr<std::vector<VDetail> const> details;
};

/// The compared parts of a layer: its views, and the COMPARAM-REFs that apply to it.
enum class VDiffView { DiagComms, DiagVariables, GlobalNegResponses, Dops, Protocols, Comparams };
char const* NameOf(VDiffView view); ///< "diag-comms" and so on

/// The changes of one view.
struct VViewChanges {
    VDiffView view;
    std::vector<VChange> changes; ///< in view order of the new database, then removed entries in that of the old one
};

/// A changed layer.
struct VLayerChange {
    VChangeKind kind;                ///< never `Moved`
    NODX201::VDiagLayer* oldLayer;   ///< null when added
    NODX201::VDiagLayer* newLayer;   ///< null when removed
    std::vector<VViewChanges> views; ///< those with changes, only for `Changed`
};

/// The result. It points into the databases, and is valid as long as nothing is removed from them.
struct VDiff {
    std::vector<VLayerChange> layers; ///< in document order of the new database, then the removed ones

    // Parts that could not be compared.
    std::size_t unresolvedOld = 0; ///< references of the old database without a target
    std::size_t unresolvedNew = 0; ///< the same of the new one
    std::size_t tooDeep = 0;       ///< elements inside more than `kMostNested` others, which are left out
    std::size_t cutDetails = 0;    ///< entries with details left out: beyond the first `kMostDetails`, or too deep

    bool IsEqual() const { return layers.empty(); }
};

inline constexpr std::size_t kMostNested = 200;
inline constexpr std::size_t kMostDetails = 1000;
/// On one path; differences further down are reported at the last reference, with its name on both sides.
inline constexpr std::size_t kMostReferences = 100;

/// Compares the views of all layers. Layers are matched by short name and kind, the n-th of several with the n-th;
/// entries of a view by short name likewise. Contents are compared as the layer sees them: references are followed to
/// data, and short names are resolved in the layer. See the guide for the rules.
///
/// Data shared by layers are compared once, so time is linear in the views of all layers. Both may be the same
/// database. Neither is changed. Throws std::bad_alloc when memory runs out, and what `progress` throws.
VDiff DiffDatabases(NMemory::VDatabase& oldDatabase, NMemory::VDatabase& newDatabase, VDiffOptions const& options = {});

/// Compares two layers, usually of one database. Each is treated as the same owner as the other. The result has one
/// layer, `Changed`, or none.
VDiff DiffLayers(NODX201::VDiagLayer& oldLayer, NODX201::VDiagLayer& newLayer, VDiffOptions const& options = {});

} // namespace NQuery
