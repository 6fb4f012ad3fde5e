// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildProtocolView.h>

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
namespace {

constexpr VBuilderSite kSite{L"mpProtocolView != NULL", {L"(mpProtocolView != 0)", L"OpBuildProtocolView", 50}};

} // namespace

VOpBuildProtocolView::VOpBuildProtocolView() = default;
VOpBuildProtocolView::VOpBuildProtocolView(VOpBuildProtocolView const& other) = default;
VOpBuildProtocolView& VOpBuildProtocolView::operator=(VOpBuildProtocolView const& other) = default;
VOpBuildProtocolView::~VOpBuildProtocolView() = default;

VProtocolView* VOpBuildProtocolView::CreateProtocolView(NODX201::VDiagLayerContainer& container) {
    return CreateView(mpProtocolView, kSite, [&] { mpProtocolView = new VProtocolView(container); });
}

void VOpBuildProtocolView::DestroyProtocolView(VProtocolView& view) { DestroyIfThere(&view); }

} // namespace NDIAGKIT
