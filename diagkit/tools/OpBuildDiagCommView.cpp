// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildDiagCommView.h>

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
namespace {

constexpr VBuilderSite kSite{L"mpDiagCommView != NULL", {L"(mpDiagCommView != 0)", L"OpBuildDiagCommView", 83}};

} // namespace

VOpBuildDiagCommView::VOpBuildDiagCommView() = default;
VOpBuildDiagCommView::VOpBuildDiagCommView(VOpBuildDiagCommView const& other) = default;
VOpBuildDiagCommView& VOpBuildDiagCommView::operator=(VOpBuildDiagCommView const& other) = default;
VOpBuildDiagCommView::~VOpBuildDiagCommView() = default;

// clang-format off
void VOpBuildDiagCommView::VisitBaseVariant    (NODX201::VBaseVariant& layer)     { mpDiagCommView = new VDiagCommView(layer); }
void VOpBuildDiagCommView::VisitProtocol       (NODX201::VProtocol& layer)        { mpDiagCommView = new VDiagCommView(layer); }
void VOpBuildDiagCommView::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { mpDiagCommView = new VDiagCommView(layer); }
void VOpBuildDiagCommView::VisitEcuVariant     (NODX201::VEcuVariant& layer)      { mpDiagCommView = new VDiagCommView(layer); }
void VOpBuildDiagCommView::VisitEcuSharedData  (NODX201::VEcuSharedData& layer)   { mpDiagCommView = new VDiagCommView(layer); }
// clang-format on

VDiagCommView* VOpBuildDiagCommView::CreateDiagCommView(NODX201::VDiagLayer& layer) {
    return CreateView(mpDiagCommView, kSite, [&] { layer.Accept(*this); });
}

void VOpBuildDiagCommView::DestroyDiagCommView(VDiagCommView& view) { DestroyIfThere(&view); }

} // namespace NDIAGKIT
