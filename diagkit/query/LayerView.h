// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

#include <diagkit/model/Forward.h>
#include <diagkit/query/InheritedKind.h>
#include <diagkit/tools/InheritanceNotes.h>

/// The elements visible in a layer, with the reasons.

namespace NQuery {

/// An element that is visible in a layer, or left out.
struct VViewEntry {
    NODX201::VOdxElement* element;
    std::size_t way;                 ///< on which it came, by number; see `VLayerView::PathOf`
    NODX201::VOdxElement* hiddenBy;  ///< for a hidden one, the layer's element with its short name; null otherwise
    NODX201::VOdxElement* exclusion; ///< for an excluded one, the NOT-INHERITED-DIAG-COMM; null otherwise
};

/// A view and the elements left out of it.
struct VLayerView {
    std::vector<VViewEntry> entries; ///< the visible elements, in view order
    /// Further elements of the layer's own lists and of its parents, in the order of the passes. Elements that are
    /// visible after all are in neither list; an element that is offered several times is in one list, once, as it was
    /// offered first.
    std::vector<VViewEntry> hidden;
    std::vector<VViewEntry> excluded;

    /// The ways on which all of these came, each once, the empty way of own elements first.
    std::vector<std::vector<NDIAGKIT::VParent>> ways;

    /// The way of an entry, PARENT-REF by PARENT-REF: from the layer to the one that has the element.
    std::vector<NDIAGKIT::VParent> const& PathOf(VViewEntry const& entry) const { return ways[entry.way]; }
};

/// The view of a layer, with reasons. It points into the model.
VLayerView ViewOf(NODX201::VDiagLayer& layer, VInheritedKind kind);

/// The elements visible in a layer, in view order.
std::vector<NODX201::VOdxElement*> EntriesOf(NODX201::VDiagLayer& layer, VInheritedKind kind);

} // namespace NQuery
