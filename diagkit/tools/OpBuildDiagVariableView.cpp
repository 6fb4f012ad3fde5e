// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildDiagVariableView.h>

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
namespace {

constexpr VBuilderSite kSite{L"mpDiagVariableView != NULL",
                             {L"(mpDiagVariableView != 0)", L"OpBuildDiagVariableView", 83}};

} // namespace

VOpBuildDiagVariableView::VOpBuildDiagVariableView() = default;
VOpBuildDiagVariableView::VOpBuildDiagVariableView(VOpBuildDiagVariableView const& other) = default;
VOpBuildDiagVariableView& VOpBuildDiagVariableView::operator=(VOpBuildDiagVariableView const& other) = default;
VOpBuildDiagVariableView::~VOpBuildDiagVariableView() = default;

// clang-format off
void VOpBuildDiagVariableView::VisitBaseVariant(NODX201::VBaseVariant& layer) { mpDiagVariableView = new VDiagVariableView(layer); }
void VOpBuildDiagVariableView::VisitProtocol(NODX201::VProtocol& layer) { mpDiagVariableView = new VDiagVariableView(layer); }
void VOpBuildDiagVariableView::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { mpDiagVariableView = new VDiagVariableView(layer); }
void VOpBuildDiagVariableView::VisitEcuVariant(NODX201::VEcuVariant& layer) { mpDiagVariableView = new VDiagVariableView(layer); }
void VOpBuildDiagVariableView::VisitEcuSharedData(NODX201::VEcuSharedData& layer) { mpDiagVariableView = new VDiagVariableView(layer); }
// clang-format on

VDiagVariableView* VOpBuildDiagVariableView::CreateDiagVariableView(NODX201::VDiagLayer& layer) {
    return CreateView(mpDiagVariableView, kSite, [&] { layer.Accept(*this); });
}

void VOpBuildDiagVariableView::DestroyDiagVariableView(VDiagVariableView& view) { DestroyIfThere(&view); }

} // namespace NDIAGKIT
