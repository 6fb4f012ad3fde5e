// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/Inheritance.h>

/// Why something is visible in a layer, or why not.

namespace NDIAGKIT {

/// What happens to an element on its way from the layer that has it to another.
enum class VFate {
    Visible,
    Hidden,   ///< another element with its short name takes precedence
    Excluded, ///< by a NOT-INHERITED-DIAG-COMM of a PARENT-REF
    NoPass,   ///< no pass takes from a parent of that kind
};

/// An own element of a layer on one way from there to the layer that was asked about.
struct VWay {
    NODX201::VOdxElement* element;
    std::vector<VParent> path;       ///< from the layer asked about to the one that has the element; empty for its own
    VFate fate;                      ///< what stops the element first, seen from the layer that has it
    NODX201::VDiagLayer* at;         ///< the layer where it is stopped; null for a visible one
    NODX201::VOdxElement* by;        ///< what hides it, for a hidden one: the element itself where it came before
    NODX201::VOdxElement* decidedBy; ///< the NOT-INHERITED-DIAG-COMM, or the PARENT-REF without a pass; null otherwise
};

/// The ways of a short name to a layer.
struct VWays {
    std::vector<VWay> ways;
    /// How many more there are: exact up to 2^53 - 1, which also stands for larger numbers. None where PARENT-REFs form
    /// cycles and there may be more: only following all ways could count them.
    std::optional<std::uint64_t> leftOut = 0;
};

/// The default limit for the number of ways returned.
inline constexpr std::size_t kMostWays = 1000;

/// Explains how elements of one kind reach layers. The merge of each layer is recorded on first use, and kept.
///
/// With a `VInheritance` of one short name, only that name can be asked for.
///
/// An object can be used for any number of layers, as long as nothing in the model changes and the `VInheritance` that
/// it was constructed with exists. It owns no element. References that it returns are valid as long as it exists.
template <class Kind>
class DIAGKIT_EXPORT VInheritanceNotes {
public:
    explicit VInheritanceNotes(VInheritance<Kind>& inheritance); ///< for its layers; nothing is recorded yet
    ~VInheritanceNotes();
    VInheritanceNotes(VInheritanceNotes const&) = delete;
    VInheritanceNotes& operator=(VInheritanceNotes const&) = delete;

    /// The elements that the merge of a layer considered, in this order; see `VInheritance::CandidatesOf`. The visible
    /// ones are the view, in its order (`VDopView` has an order of its own).
    std::deque<VCandidate> const& CandidatesOf(VLayerOfKind layer);

    /// The way of a candidate; see `VInheritance::WayOf`.
    std::vector<VParent> PathOf(VCandidate const& candidate) const;

    /// All own elements of this short name, of the layer and of every layer that PARENT-REFs lead to, each on every way
    /// on which it could come; no way enters a layer twice. First the ways that the passes take, depth first, in the
    /// order of the passes; then those with a PARENT-REF that no pass takes, each layer before its parents, these in
    /// the order of the PARENT-REFs. PARENT-REFs without a target or of unknown kind lead nowhere. An element that a
    /// layer lists twice counts once; of several own elements of the name the first counts and hides the others.
    ///
    /// There can be many more ways than layers. They are counted, and the first `most` are returned: fewer when they
    /// have more than a hundred PARENT-REFs each, or where many PARENT-REFs form cycles and lead to dead ends. So the
    /// time is proportional to the layers, their PARENT-REFs and the result.
    VWays WaysOf(VLayerOfKind layer, std::wstring_view shortName, std::size_t most = kMostWays);

private:
    struct VLayerNotes {
        std::deque<VCandidate> candidates;
        std::unordered_map<std::wstring_view, std::vector<VCandidate const*>> byName;
    };
    class VWayFinder;

    VLayerNotes const& NotesOf(VLayerOfKind layer);

    VInheritance<Kind>& m_inheritance;
    std::unordered_map<NODX201::VDiagLayer const*, VLayerNotes> m_notes;
};

} // namespace NDIAGKIT
