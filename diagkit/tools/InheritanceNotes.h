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

/// What becomes of an element on its way from the layer that has it to another.
enum class VFate {
    Visible,
    Hidden,   ///< another element counts under its short name
    Excluded, ///< a PARENT-REF says so, in a NOT-INHERITED-DIAG-COMM
    NoPass,   ///< no pass takes from a parent of that kind
};

/// An own element of a layer on one way from there to the layer that was asked about.
struct VWay {
    NODX201::VOdxElement* element;
    std::vector<VParent> path;       ///< from the layer asked about to the one that has the element; empty for its own
    VFate fate;                      ///< what stops the element first, seen from the layer that has it
    NODX201::VDiagLayer* at;         ///< the layer where it is stopped; null for a visible one
    NODX201::VOdxElement* by;        ///< of a hidden one, what counts instead: the element itself where it came before
    NODX201::VOdxElement* decidedBy; ///< the NOT-INHERITED-DIAG-COMM, or the PARENT-REF without a pass; null otherwise
};

/// The ways of a short name to a layer.
struct VWays {
    std::vector<VWay> ways;
    /// How many more there are: exact up to 2^53 - 1, which stands for more as well. None where
    /// PARENT-REFs run in circles and there may be more: only going all ways would tell.
    std::optional<std::uint64_t> leftOut = 0;
};

/// How many ways are given where nobody asks for another number.
inline constexpr std::size_t kMostWays = 1000;

/// Tells how elements of one kind come to layers. Each layer's merge is noted when it is first asked for, and kept.
///
/// With a `VInheritance` of one short name, only that one can be asked for.
///
/// An object serves any number of layers, for as long as nothing in the model changes and the `VInheritance` lives that
/// it was made with. It owns no element. What it hands out by reference lives as long as it does.
template <class Kind>
class DIAGKIT_EXPORT VInheritanceNotes {
public:
    explicit VInheritanceNotes(VInheritance<Kind>& inheritance); ///< of its layers, none looked at yet
    ~VInheritanceNotes();
    VInheritanceNotes(VInheritanceNotes const&) = delete;
    VInheritanceNotes& operator=(VInheritanceNotes const&) = delete;

    /// What the merge of a layer looked at, in this order; see `VInheritance::CandidatesOf`. The visible ones are the
    /// view, in its order (`VDopView` has an order of its own).
    std::deque<VCandidate> const& CandidatesOf(VLayerOfKind layer);

    /// The way of a candidate; see `VInheritance::WayOf`.
    std::vector<VParent> PathOf(VCandidate const& candidate) const;

    /// All own elements of this short name, of the layer and of every layer that PARENT-REFs lead to, each on every way
    /// on which it could come; no way enters a layer twice. First the ways that the passes take, depth first, in the
    /// order in which they look; then those with a PARENT-REF that no pass takes, each layer before its parents, these
    /// as their PARENT-REFs stand. PARENT-REFs without a target, and of no known kind, lead nowhere. An element that a
    /// layer lists twice counts once; of several own ones of the name the first counts and hides the others.
    ///
    /// In odd data there are many more ways than layers. They are counted, and the first `most` are given: fewer when
    /// they have more than a hundred PARENT-REFs each, or where many PARENT-REFs run in circles and lead to dead ends.
    /// So it takes time in proportion to the layers, their PARENT-REFs and what is given.
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
