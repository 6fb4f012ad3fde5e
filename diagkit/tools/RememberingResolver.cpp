// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/RememberingResolver.h>

#include <memory>
#include <utility>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Params.h>
#include <diagkit/tools/DiagCommKinds.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ParamWalk.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/ResponseParams.h>
#include <diagkit/tools/SessionView.h>

namespace NDIAGKIT {
namespace {

template <class Element>
using VByName = std::unordered_map<std::wstring_view, Element*>;

/// The entries of a view by short name; of several of one name the first.
template <class Traits, class View, class Element>
void AddEntries(VByName<Element>& elements, View& view) {
    for (Element& element : view) {
        if (wchar_t const* const shortName = Traits::ShortNameOf(element)) {
            elements.try_emplace(shortName, &element);
        }
    }
}

/// The same for a view that a builder may not have made.
template <class Traits, class View, class Element>
void AddEntries(VByName<Element>& elements, std::unique_ptr<View> view) {
    if (view != nullptr) {
        AddEntries<Traits>(elements, *view);
    }
}

/// Adds what a search below parameters finds first of each short name.
class VNestedParams : public VParamWalk {
public:
    VNestedParams(VByName<NODX201::IOutParamIf>& elements, IDopFinder& dops) : VParamWalk(dops), m_elements(elements) {}

protected:
    void VisitValue(NODX201::VValue& param) override {
        m_elements.try_emplace(param.GetShortName(), &param);
        WalkBelow(param);
    }

private:
    VByName<NODX201::IOutParamIf>& m_elements;
};

void AddOutParams(VByName<NODX201::IOutParamIf>& elements, NODX201::VDiagService& service, NODX201::VDiagLayer& layer,
                  NODX201::VSearchRange range) {
    VOutParamIfView view(service, range);
    AddEntries<VOutParamIfViewTraits>(elements, view); // these go before everything nested
    VDopsOfLayer dops(layer);
    VNestedParams nested(elements, dops);
    auto const take = [&nested](NODX201::VParam& param) { nested.Walk(param); };
    ForEachSelectedParam(service, range, take);
}

/// Used in place of a search range: the same multiple-ECU job, at the same address, may also be asked about as a
/// DIAG-COMM, which is neither a service nor a single-ECU job.
constexpr int kOfMultipleEcuJob = -1;

} // namespace

VRememberingResolver::VRememberingResolver(VGeneration generation) : m_generation(std::move(generation)) {}

VRememberingResolver::~VRememberingResolver() = default;

void VRememberingResolver::ForgetOld() {
    std::uint64_t const now = m_generation ? m_generation() : 0;
    if (now == m_latest) {
        return;
    }
    m_latest = now;
    m_diagComms = {};
    m_diagVariables = {};
    m_idents = {};
    m_protocols = {};
    m_sessions = {};
    m_inParams = {};
    m_outParams = {};
}

template <class Element, class Resolve, class Fill>
Element* VRememberingResolver::Find(VMeaning<Element>& meaning, VContext const& context, wchar_t const* shortName,
                                    Resolve resolve, Fill fill) {
    ForgetOld();
    if (shortName == nullptr || !(meaning.context == context)) {
        Element* const found = resolve();
        meaning = {context};
        return found;
    }
    if (!meaning.isFilled) {
        VMeaning<Element> filled{context, true};
        fill(filled.elements); // may ask for other names, also of this kind
        meaning = std::move(filled);
    }
    auto const found = meaning.elements.find(shortName);
    return found != meaning.elements.end() ? found->second : nullptr;
}

NODX201::VDiagComm* VRememberingResolver::ResolveDiagCommSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) {
    return Find(
        m_diagComms, {&layer, nullptr, 0}, shortName,
        [&] { return VOpResolveSnref::ResolveDiagCommSnref(shortName, layer); },
        [&layer](auto& elements) {
            VOpBuildDiagCommView builder;
            AddEntries<VDiagCommViewTraits>(elements,
                                            std::unique_ptr<VDiagCommView>(builder.CreateDiagCommView(layer)));
        });
}

NODX201::VDiagVariable* VRememberingResolver::ResolveDiagVariableSnref(wchar_t const* shortName,
                                                                       NODX201::VDiagLayer& layer) {
    return Find(
        m_diagVariables, {&layer, nullptr, 0}, shortName,
        [&] { return VOpResolveSnref::ResolveDiagVariableSnref(shortName, layer); },
        [&layer](auto& elements) {
            VOpBuildDiagVariableView builder;
            AddEntries<VDiagVariableViewTraits>(
                elements, std::unique_ptr<VDiagVariableView>(builder.CreateDiagVariableView(layer)));
        });
}

NODX201::IIdentIf* VRememberingResolver::ResolveIdentIfSnref(wchar_t const* shortName, NODX201::VFlash& flash) {
    return Find(
        m_idents, {&flash, nullptr, 0}, shortName,
        [&] { return VOpResolveSnref::ResolveIdentIfSnref(shortName, flash); },
        [&flash](auto& elements) { AddEntries<VIdentIfViewTraits>(elements, std::make_unique<VIdentIfView>(flash)); });
}

NODX201::VProtocol* VRememberingResolver::ResolveProtocolSnref(wchar_t const* shortName,
                                                               NODX201::VDiagLayerContainer& container) {
    return Find(
        m_protocols, {&container, nullptr, 0}, shortName,
        [&] { return VOpResolveSnref::ResolveProtocolSnref(shortName, container); },
        [&container](auto& elements) {
            AddEntries<VProtocolViewTraits>(elements, std::make_unique<VProtocolView>(container));
        });
}

NODX201::VSession* VRememberingResolver::ResolveSessionSnref(wchar_t const* shortName, NODX201::VFlash& flash) {
    return Find(
        m_sessions, {&flash, nullptr, 0}, shortName,
        [&] { return VOpResolveSnref::ResolveSessionSnref(shortName, flash); },
        [&flash](auto& elements) { AddEntries<VSessionViewTraits>(elements, std::make_unique<VSessionView>(flash)); });
}

NODX201::IInParamIf* VRememberingResolver::ResolveInParamIfSnref(wchar_t const* shortName,
                                                                 NODX201::VMultipleEcuJob& job) {
    return Find(
        m_inParams, {&job, nullptr, kOfMultipleEcuJob}, shortName,
        [&] { return VOpResolveSnref::ResolveInParamIfSnref(shortName, job); },
        [&job](auto& elements) { AddEntries<VInParamIfViewTraits>(elements, std::make_unique<VInParamIfView>(job)); });
}

NODX201::IInParamIf* VRememberingResolver::ResolveInParamIfSnref(wchar_t const* shortName,
                                                                 NODX201::VDiagComm& diagComm) {
    return Find(
        m_inParams, {&diagComm, nullptr, 0}, shortName,
        [&] { return VOpResolveSnref::ResolveInParamIfSnref(shortName, diagComm); },
        [&diagComm](auto& elements) {
            if (auto* const service = ServiceOf(diagComm)) {
                AddEntries<VInParamIfViewTraits>(elements, std::make_unique<VInParamIfView>(*service));
            } else if (auto* const job = JobOf(diagComm)) {
                AddEntries<VInParamIfViewTraits>(elements, std::make_unique<VInParamIfView>(*job));
            }
        });
}

NODX201::IOutParamIf* VRememberingResolver::ResolveOutParamIfSnref(wchar_t const* shortName,
                                                                   NODX201::VMultipleEcuJob& job,
                                                                   NODX201::VDiagLayer& layer) {
    return Find(
        m_outParams, {&job, &layer, kOfMultipleEcuJob}, shortName,
        [&] { return VOpResolveSnref::ResolveOutParamIfSnref(shortName, job, layer); },
        [&job](auto& elements) {
            AddEntries<VOutParamIfViewTraits>(elements, std::make_unique<VOutParamIfView>(job));
        });
}

NODX201::IOutParamIf* VRememberingResolver::ResolveOutParamIfSnref(wchar_t const* shortName,
                                                                   NODX201::VDiagComm& diagComm,
                                                                   NODX201::VDiagLayer& layer,
                                                                   NODX201::VSearchRange range) {
    return Find(
        m_outParams, {&diagComm, &layer, static_cast<int>(range)}, shortName,
        [&] { return VOpResolveSnref::ResolveOutParamIfSnref(shortName, diagComm, layer, range); },
        [&](auto& elements) {
            if (auto* const service = ServiceOf(diagComm)) {
                AddOutParams(elements, *service, layer, range);
            } else if (auto* const job = JobOf(diagComm)) {
                AddEntries<VOutParamIfViewTraits>(elements, std::make_unique<VOutParamIfView>(*job));
            }
        });
}

} // namespace NDIAGKIT
