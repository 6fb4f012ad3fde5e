// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ViewHandle.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildProtocolView.h>
#include <diagkit/tools/ParamViewBuilders.h>

namespace NDIAGKIT {

// clang-format off
void VViewDestroyer::operator()(VDiagCommView* view) const          { VOpBuildDiagCommView().DestroyDiagCommView(*view); }
void VViewDestroyer::operator()(VDiagVariableView* view) const      { VOpBuildDiagVariableView().DestroyDiagVariableView(*view); }
void VViewDestroyer::operator()(VGlobalNegResponseView* view) const { VOpBuildGlobalNegResponseView().DestroyGlobalNegResponseView(*view); }
void VViewDestroyer::operator()(VDopView* view) const               { VOpBuildDopView().DestroyDopView(*view); }
void VViewDestroyer::operator()(VProtocolView* view) const          { VOpBuildProtocolView().DestroyProtocolView(*view); }
void VViewDestroyer::operator()(VInParamIfView* view) const         { delete view; }
void VViewDestroyer::operator()(VOutParamIfView* view) const        { delete view; }
void VViewDestroyer::operator()(VSessionView* view) const           { delete view; }
void VViewDestroyer::operator()(VIdentIfView* view) const           { delete view; }
// clang-format on

VViewHandle<VDiagCommView> MakeDiagCommView(NODX201::VDiagLayer& layer) {
    return VViewHandle<VDiagCommView>(VOpBuildDiagCommView().CreateDiagCommView(layer));
}

VViewHandle<VDiagVariableView> MakeDiagVariableView(NODX201::VDiagLayer& layer) {
    return VViewHandle<VDiagVariableView>(VOpBuildDiagVariableView().CreateDiagVariableView(layer));
}

VViewHandle<VDopView> MakeDopView(NODX201::VDiagLayer& layer) {
    return VViewHandle<VDopView>(VOpBuildDopView().CreateDopView(layer));
}

VViewHandle<VGlobalNegResponseView> MakeGlobalNegResponseView(NODX201::VDiagLayer& layer) {
    return VViewHandle<VGlobalNegResponseView>(new VGlobalNegResponseView(layer));
}

VViewHandle<VProtocolView> MakeProtocolView(NODX201::VDiagLayerContainer& container) {
    return VViewHandle<VProtocolView>(VOpBuildProtocolView().CreateProtocolView(container));
}

VViewHandle<VProtocolView> MakeProtocolView(NODX201::VBaseVariant& baseVariant) {
    return VViewHandle<VProtocolView>(new VProtocolView(baseVariant));
}

VViewHandle<VInParamIfView> MakeInParamIfView(NODX201::VDiagComm& diagComm) {
    VInParamIfViewBuilder builder;
    auto* const job = dynamic_cast<NODX201::VMultipleEcuJob*>(&diagComm);
    return VViewHandle<VInParamIfView>(job != nullptr ? builder.CreateInParamIfView(*job)
                                                      : builder.CreateInParamIfView(diagComm));
}

VViewHandle<VOutParamIfView> MakeOutParamIfView(NODX201::VDiagComm& diagComm, NODX201::VSearchRange range) {
    VOutParamIfViewBuilder builder;
    auto* const job = dynamic_cast<NODX201::VMultipleEcuJob*>(&diagComm);
    return VViewHandle<VOutParamIfView>(job != nullptr ? builder.CreateOutParamIfView(*job)
                                                       : builder.CreateOutParamIfView(diagComm, range));
}

VViewHandle<VSessionView> MakeSessionView(NODX201::VFlash& flash) {
    return VViewHandle<VSessionView>(new VSessionView(flash));
}

VViewHandle<VIdentIfView> MakeIdentIfView(NODX201::VFlash& flash) {
    return VViewHandle<VIdentIfView>(new VIdentIfView(flash));
}

} // namespace NDIAGKIT
