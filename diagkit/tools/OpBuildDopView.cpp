// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildDopView.h>

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
namespace {

constexpr VBuilderSite kSite{L"mpDopView != NULL", {L"(mpDopView != 0)", L"OpBuildDopView", 85}};

} // namespace

VOpBuildDopView::VOpBuildDopView() = default;
VOpBuildDopView::VOpBuildDopView(VOpBuildDopView const& other) = default;
VOpBuildDopView& VOpBuildDopView::operator=(VOpBuildDopView const& other) = default;
VOpBuildDopView::~VOpBuildDopView() = default;

// clang-format off
void VOpBuildDopView::VisitBaseVariant(NODX201::VBaseVariant& layer) { mpDopView = new VDopView(layer); }
void VOpBuildDopView::VisitProtocol(NODX201::VProtocol& layer) { mpDopView = new VDopView(layer); }
void VOpBuildDopView::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { mpDopView = new VDopView(layer); }
void VOpBuildDopView::VisitEcuVariant(NODX201::VEcuVariant& layer) { mpDopView = new VDopView(layer); }
void VOpBuildDopView::VisitEcuSharedData(NODX201::VEcuSharedData& layer) { mpDopView = new VDopView(layer); }
// clang-format on

VDopView* VOpBuildDopView::CreateDopView(NODX201::VDiagLayer& layer) {
    return CreateView(mpDopView, kSite, [&] { layer.Accept(*this); });
}

void VOpBuildDopView::DestroyDopView(VDopView& view) { DestroyIfThere(&view); }

} // namespace NDIAGKIT
