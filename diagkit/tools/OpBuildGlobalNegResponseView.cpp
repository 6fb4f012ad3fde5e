// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
VOpBuildGlobalNegResponseView::VOpBuildGlobalNegResponseView() = default;
VOpBuildGlobalNegResponseView::VOpBuildGlobalNegResponseView(VOpBuildGlobalNegResponseView const& other) = default;
VOpBuildGlobalNegResponseView&
VOpBuildGlobalNegResponseView::operator=(VOpBuildGlobalNegResponseView const& other) = default;
VOpBuildGlobalNegResponseView::~VOpBuildGlobalNegResponseView() = default;

// clang-format off
void VOpBuildGlobalNegResponseView::VisitBaseVariant(NODX201::VBaseVariant& layer) { mpGlobalNegResponseView = new VGlobalNegResponseView(layer); }
void VOpBuildGlobalNegResponseView::VisitProtocol(NODX201::VProtocol& layer) { mpGlobalNegResponseView = new VGlobalNegResponseView(layer); }
void VOpBuildGlobalNegResponseView::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { mpGlobalNegResponseView = new VGlobalNegResponseView(layer); }
void VOpBuildGlobalNegResponseView::VisitEcuVariant(NODX201::VEcuVariant& layer) { mpGlobalNegResponseView = new VGlobalNegResponseView(layer); }
void VOpBuildGlobalNegResponseView::VisitEcuSharedData(NODX201::VEcuSharedData& layer) { mpGlobalNegResponseView = new VGlobalNegResponseView(layer); }
// clang-format on

VGlobalNegResponseView* VOpBuildGlobalNegResponseView::CreateGlobalNegResponseView(NODX201::VDiagLayer& layer) {
    // Deliberate: no message and no assertion where there is no view (BuilderWithoutViewIsSilent).
    return CreateViewSilently(mpGlobalNegResponseView, [&] { layer.Accept(*this); });
}

void VOpBuildGlobalNegResponseView::DestroyGlobalNegResponseView(VGlobalNegResponseView& view) {
    DestroyIfThere(&view);
}

} // namespace NDIAGKIT
