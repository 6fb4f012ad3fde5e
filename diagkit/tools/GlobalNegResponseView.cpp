// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/GlobalNegResponseView.h>

#include <diagkit/model/Responses.h>
#include <diagkit/tools/InheritedViewImpl.h>

namespace NDIAGKIT {

VGlobalNegResponseView::VGlobalNegResponseView() = default;

VGlobalNegResponseView::VGlobalNegResponseView(NODX201::VDiagLayer& layer) : VGlobalNegResponseView() {
    DispatchDiagLayer(layer);
}

VGlobalNegResponseView::~VGlobalNegResponseView() = default;

// clang-format off
void VGlobalNegResponseView::VisitBaseVariant    (NODX201::VBaseVariant& layer)     { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitProtocol       (NODX201::VProtocol& layer)        { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitEcuVariant     (NODX201::VEcuVariant& layer)      { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitEcuSharedData  (NODX201::VEcuSharedData& layer)   { BuildViewFor(layer); }
// clang-format on

// clang-format off
void VGlobalNegResponseView::BuildViewFor(NODX201::VBaseVariant& layer)     { Inherit(layer); }
void VGlobalNegResponseView::BuildViewFor(NODX201::VProtocol& layer)        { Inherit(layer); }
void VGlobalNegResponseView::BuildViewFor(NODX201::VFunctionalGroup& layer) { Inherit(layer); }
void VGlobalNegResponseView::BuildViewFor(NODX201::VEcuVariant& layer)      { Inherit(layer); }
void VGlobalNegResponseView::BuildViewFor(NODX201::VEcuSharedData& layer)   { Inherit(layer); }
// clang-format on

void VGlobalNegResponseView::Inherit(VLayerOfKind const& layer) {
    AppendInherited<VInheritedGlobalNegResponses>(m_collection, layer);
}

} // namespace NDIAGKIT
