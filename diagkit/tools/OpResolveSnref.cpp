// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpResolveSnref.h>

#include <memory>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/tools/DiagCommKinds.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

namespace NDIAGKIT {
namespace {

/// The element of that name in a temporary view; null when the view has none, or when there is no view.
template <class View>
typename View::Element* FindIn(std::unique_ptr<View> view, wchar_t const* shortName) {
    if (view == nullptr) {
        return nullptr;
    }
    auto iter = view->Find(shortName);
    return iter != view->End() ? &*iter : nullptr;
}

} // namespace

VOpResolveSnref::VOpResolveSnref() = default;

VOpResolveSnref::~VOpResolveSnref() {
    for (auto const& [layer, view] : m_dopViews) {
        delete view;
    }
}

VDopView* VOpResolveSnref::DopViewOf(NODX201::VDiagLayer& layer) {
    if (auto const known = m_dopViews.find(&layer); known != m_dopViews.end() && known->second != nullptr) {
        return known->second;
    }
    VOpBuildDopView builder;
    std::unique_ptr<VDopView> view(builder.CreateDopView(layer));
    m_dopViews[&layer] = view.get();
    return view.release();
}

NODX201::VDopBase* VOpResolveSnref::ResolveDopBaseSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) {
    VDopView* const view = DopViewOf(layer);
    if (view == nullptr) {
        return nullptr; // logged and asserted by the builder
    }
    auto iter = view->Find(shortName);
    return iter != view->End() ? &*iter : nullptr;
}

NODX201::VDataObjectProp* VOpResolveSnref::ResolveDataObjectPropSnref(wchar_t const* shortName,
                                                                      NODX201::VDiagLayer& layer) {
    return dynamic_cast<NODX201::VDataObjectProp*>(ResolveDopBaseSnref(shortName, layer));
}

NODX201::VDiagComm* VOpResolveSnref::ResolveDiagCommSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) {
    VOpBuildDiagCommView builder;
    return FindIn(std::unique_ptr<VDiagCommView>(builder.CreateDiagCommView(layer)), shortName);
}

NODX201::VDiagVariable* VOpResolveSnref::ResolveDiagVariableSnref(wchar_t const* shortName,
                                                                  NODX201::VDiagLayer& layer) {
    VOpBuildDiagVariableView builder;
    return FindIn(std::unique_ptr<VDiagVariableView>(builder.CreateDiagVariableView(layer)), shortName);
}

NODX201::IIdentIf* VOpResolveSnref::ResolveIdentIfSnref(wchar_t const* shortName, NODX201::VFlash& flash) {
    return FindIn(std::make_unique<VIdentIfView>(flash), shortName);
}

NODX201::VProtocol* VOpResolveSnref::ResolveProtocolSnref(wchar_t const* shortName,
                                                          NODX201::VDiagLayerContainer& container) {
    return FindIn(std::make_unique<VProtocolView>(container), shortName);
}

NODX201::VSession* VOpResolveSnref::ResolveSessionSnref(wchar_t const* shortName, NODX201::VFlash& flash) {
    return FindIn(std::make_unique<VSessionView>(flash), shortName);
}

NODX201::IInParamIf* VOpResolveSnref::ResolveInParamIfSnref(wchar_t const* shortName, NODX201::VMultipleEcuJob& job) {
    return FindIn(std::make_unique<VInParamIfView>(job), shortName);
}

NODX201::IInParamIf* VOpResolveSnref::ResolveInParamIfSnref(wchar_t const* shortName, NODX201::VDiagComm& diagComm) {
    if (NODX201::VDiagService* const service = ServiceOf(diagComm)) {
        return FindIn(std::make_unique<VInParamIfView>(*service), shortName);
    }
    NODX201::VSingleEcuJob* const job = JobOf(diagComm);
    return job != nullptr ? FindIn(std::make_unique<VInParamIfView>(*job), shortName) : nullptr;
}

NODX201::IOutParamIf* VOpResolveSnref::ResolveOutParamIfSnref(wchar_t const* shortName, NODX201::VMultipleEcuJob& job,
                                                              NODX201::VDiagLayer& layer) {
    return std::make_unique<VOutParamIfView>(job)->FindParam(shortName, layer);
}

NODX201::IOutParamIf* VOpResolveSnref::ResolveOutParamIfSnref(wchar_t const* shortName, NODX201::VDiagComm& diagComm,
                                                              NODX201::VDiagLayer& layer, NODX201::VSearchRange range) {
    if (NODX201::VDiagService* const service = ServiceOf(diagComm)) {
        return std::make_unique<VOutParamIfView>(*service, range)->FindParam(shortName, layer);
    }
    NODX201::VSingleEcuJob* const job = JobOf(diagComm);
    return job != nullptr ? std::make_unique<VOutParamIfView>(*job)->FindParam(shortName, layer) : nullptr;
}

} // namespace NDIAGKIT
