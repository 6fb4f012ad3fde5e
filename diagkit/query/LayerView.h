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
    NODX201::VOdxElement* hiddenBy;  ///< of a hidden one, what the layer has under its short name; null otherwise
    NODX201::VOdxElement* exclusion; ///< of an excluded one, the NOT-INHERITED-DIAG-COMM; null otherwise
};

/// A view and what is left out of it.
struct VLayerView {
    std::vector<VViewEntry> entries; ///< what is visible, in view order
    /// What the layer's own elements and its parents offer besides, in the order in which the passes look. What is
    /// visible after all is in neither list; what is offered several times is in one, once, as it was offered first.
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
