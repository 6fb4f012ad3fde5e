// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/InheritedView.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/ViewBuilder.h>

/// The bodies of the inherited views and of their builders, for the source that instantiates them.

namespace NDIAGKIT {

/// Appends what is visible in a layer to the list of a view.
template <class Inherited, class List>
void AppendInherited(List& list, VLayerOfKind const& layer) {
    for (auto* const entry : VInheritance<Inherited>().EntriesOf(layer)) {
        list.push_back(entry);
    }
}

// clang-format off
template <class Traits> VInheritedView<Traits>::VInheritedView(NODX201::VEcuSharedData& layer)   { AppendInherited<typename Traits::Inherited>(this->m_collection, layer); }
template <class Traits> VInheritedView<Traits>::VInheritedView(NODX201::VProtocol& layer)        { AppendInherited<typename Traits::Inherited>(this->m_collection, layer); }
template <class Traits> VInheritedView<Traits>::VInheritedView(NODX201::VFunctionalGroup& layer) { AppendInherited<typename Traits::Inherited>(this->m_collection, layer); }
template <class Traits> VInheritedView<Traits>::VInheritedView(NODX201::VBaseVariant& layer)     { AppendInherited<typename Traits::Inherited>(this->m_collection, layer); }
template <class Traits> VInheritedView<Traits>::VInheritedView(NODX201::VEcuVariant& layer)      { AppendInherited<typename Traits::Inherited>(this->m_collection, layer); }
template <class Traits> VInheritedView<Traits>::~VInheritedView() = default;

template <class View> VInheritedViewBuilder<View>::VInheritedViewBuilder() = default;
template <class View> VInheritedViewBuilder<View>::VInheritedViewBuilder(VInheritedViewBuilder const& other) = default;
template <class View> VInheritedViewBuilder<View>& VInheritedViewBuilder<View>::operator=(VInheritedViewBuilder const& other) = default;
template <class View> VInheritedViewBuilder<View>::~VInheritedViewBuilder() = default;

template <class View> void VInheritedViewBuilder<View>::VisitBaseVariant    (NODX201::VBaseVariant& layer)     { mpView = new View(layer); }
template <class View> void VInheritedViewBuilder<View>::VisitProtocol       (NODX201::VProtocol& layer)        { mpView = new View(layer); }
template <class View> void VInheritedViewBuilder<View>::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { mpView = new View(layer); }
template <class View> void VInheritedViewBuilder<View>::VisitEcuVariant     (NODX201::VEcuVariant& layer)      { mpView = new View(layer); }
template <class View> void VInheritedViewBuilder<View>::VisitEcuSharedData  (NODX201::VEcuSharedData& layer)   { mpView = new View(layer); }
// clang-format on

template <class View>
View* VInheritedViewBuilder<View>::Create(NODX201::VDiagLayer& layer, VBuilderSite const& site) {
    return CreateView(mpView, site, [&] { layer.Accept(*this); });
}

template <class View>
View* VInheritedViewBuilder<View>::CreateSilently(NODX201::VDiagLayer& layer) {
    return CreateViewSilently(mpView, [&] { layer.Accept(*this); });
}

template <class View>
void VInheritedViewBuilder<View>::Destroy(View& view) {
    DestroyIfThere(&view);
}

} // namespace NDIAGKIT
