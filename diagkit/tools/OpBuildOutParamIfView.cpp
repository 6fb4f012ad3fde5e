// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildOutParamIfView.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
namespace {

constexpr VBuilderSite kDiagCommSite{L"mpOutParamIfView != NULL",
                                     {L"(mpOutParamIfView != 0)", L"OpBuildOutParamIfView", 62}};
constexpr VBuilderSite kJobSite{L"mpOutParamIfView != NULL",
                                {L"(mpOutParamIfView != 0)", L"OpBuildOutParamIfView", 74}};

} // namespace

VOpBuildOutParamIfView::VOpBuildOutParamIfView() = default;
VOpBuildOutParamIfView::VOpBuildOutParamIfView(VOpBuildOutParamIfView const& other) = default;
VOpBuildOutParamIfView& VOpBuildOutParamIfView::operator=(VOpBuildOutParamIfView const& other) = default;
VOpBuildOutParamIfView::~VOpBuildOutParamIfView() = default;

VOutParamIfView* VOpBuildOutParamIfView::CreateOutParamIfView(NODX201::VDiagComm& diagComm,
                                                              NODX201::VSearchRange range) {
    return CreateView(mpOutParamIfView, kDiagCommSite, [&] {
        mpOutParamIfView = nullptr;
        if (diagComm.GetOdxTag() == NODX201::VOdxTagEnum::DiagService) {
            if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&diagComm)) {
                mpOutParamIfView = new VOutParamIfView(*service, range);
            }
        } else if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm)) {
            mpOutParamIfView = new VOutParamIfView(*job);
        }
    });
}

VOutParamIfView* VOpBuildOutParamIfView::CreateOutParamIfView(NODX201::VMultipleEcuJob& job) {
    return CreateView(mpOutParamIfView, kJobSite, [&] { mpOutParamIfView = new VOutParamIfView(job); });
}

} // namespace NDIAGKIT
