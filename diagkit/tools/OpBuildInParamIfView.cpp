// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildInParamIfView.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/ViewBuilder.h>

namespace NDIAGKIT {
namespace {

constexpr VBuilderSite kDiagCommSite{L"mpInParamIfView != NULL",
                                     {L"(mpInParamIfView != 0)", L"OpBuildInParamIfView", 62}};
constexpr VBuilderSite kJobSite{L"mpInParamIfView != NULL", {L"(mpInParamIfView != 0)", L"OpBuildInParamIfView", 74}};

} // namespace

VOpBuildInParamIfView::VOpBuildInParamIfView() = default;
VOpBuildInParamIfView::VOpBuildInParamIfView(VOpBuildInParamIfView const& other) = default;
VOpBuildInParamIfView& VOpBuildInParamIfView::operator=(VOpBuildInParamIfView const& other) = default;
VOpBuildInParamIfView::~VOpBuildInParamIfView() = default;

VInParamIfView* VOpBuildInParamIfView::CreateInParamIfView(NODX201::VDiagComm& diagComm) {
    return CreateView(mpInParamIfView, kDiagCommSite, [&] {
        mpInParamIfView = nullptr;
        if (diagComm.GetOdxTag() == NODX201::VOdxTagEnum::DiagService) {
            if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&diagComm)) {
                mpInParamIfView = new VInParamIfView(*service);
            }
        } else if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm)) {
            mpInParamIfView = new VInParamIfView(*job);
        }
    });
}

VInParamIfView* VOpBuildInParamIfView::CreateInParamIfView(NODX201::VMultipleEcuJob& job) {
    return CreateView(mpInParamIfView, kJobSite, [&] { mpInParamIfView = new VInParamIfView(job); });
}

} // namespace NDIAGKIT
