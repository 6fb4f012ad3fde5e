// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <diagkit/model/OdxElement.h>
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

    /// The layer that has the element: the layer of the view, one above it, or one that either refers to.
    NODX201::VDiagLayer& From() const;

    /// The element as one of this class; null when it is of another.
    template <class Element>
    Element* As() const {
        return dynamic_cast<Element*>(element);
    }
};

/// A view and what is left out of it. A range-for walks what is visible.
struct VLayerView {
    using const_iterator = std::vector<VViewEntry>::const_iterator; ///< of `begin()`

    std::vector<VViewEntry> entries; ///< what is visible, in view order
    /// What the layer's own elements and its parents offer besides, in the order in which the passes look. What is
    /// visible after all is in neither list; what is offered several times is in one, once, as it was offered first.
    std::vector<VViewEntry> hidden;
    std::vector<VViewEntry> excluded;

    /// The ways on which all of these came, each once, the empty way of own elements first.
    std::vector<std::vector<NDIAGKIT::VParent>> ways;

    /// The way of an entry, PARENT-REF by PARENT-REF: from the layer to the one that has the element.
    std::vector<NDIAGKIT::VParent> const& PathOf(VViewEntry const& entry) const { return ways[entry.way]; }

    const_iterator begin() const { return entries.begin(); }
    const_iterator end() const { return entries.end(); }

    // The first entry of exactly this short name; null when there is none. Linear.

    VViewEntry const* Find(std::wstring_view shortName) const;         ///< among what is visible
    VViewEntry const* FindHidden(std::wstring_view shortName) const;   ///< among what is hidden
    VViewEntry const* FindExcluded(std::wstring_view shortName) const; ///< among what is excluded
};

/// The view of a layer, with reasons. It points into the model.
VLayerView ViewOf(NODX201::VDiagLayer& layer, VInheritedKind kind);

/// The elements visible in a layer, in view order.
std::vector<NODX201::VOdxElement*> EntriesOf(NODX201::VDiagLayer& layer, VInheritedKind kind);

} // namespace NQuery
