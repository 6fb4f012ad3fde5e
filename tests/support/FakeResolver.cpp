// SPDX-License-Identifier: Apache-2.0
#include "support/FakeResolver.h"

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/SearchRange.h>

namespace NTest {
namespace {

class VFakeResolver : public NODX201::VAbstractSnrefResolver {
public:
    explicit VFakeResolver(VFakeNames& names) : m_names(names) {
        ++m_names.started;
        ++m_names.alive;
    }
    ~VFakeResolver() override { --m_names.alive; }

    NODX201::VDopBase* ResolveDopBaseSnref(wchar_t const* name, NODX201::VDiagLayer& layer) override {
        return Answer(L"DopBase", m_names.dops, name, layer);
    }
    NODX201::VDataObjectProp* ResolveDataObjectPropSnref(wchar_t const* name, NODX201::VDiagLayer& layer) override {
        return Answer(L"DataObjectProp", m_names.dataObjectProps, name, layer);
    }
    NODX201::VDiagComm* ResolveDiagCommSnref(wchar_t const* name, NODX201::VDiagLayer& layer) override {
        return Answer(L"DiagComm", m_names.diagComms, name, layer);
    }
    NODX201::VDiagVariable* ResolveDiagVariableSnref(wchar_t const* name, NODX201::VDiagLayer& layer) override {
        return Answer(L"DiagVariable", m_names.diagVariables, name, layer);
    }
    NODX201::IIdentIf* ResolveIdentIfSnref(wchar_t const* name, NODX201::VFlash& flash) override {
        return Answer(L"IdentIf", m_names.idents, name, flash);
    }
    NODX201::VProtocol* ResolveProtocolSnref(wchar_t const* name, NODX201::VDiagLayerContainer& container) override {
        return Answer(L"Protocol", m_names.protocols, name, container);
    }
    NODX201::VSession* ResolveSessionSnref(wchar_t const* name, NODX201::VFlash& flash) override {
        return Answer(L"Session", m_names.sessions, name, flash);
    }
    NODX201::IInParamIf* ResolveInParamIfSnref(wchar_t const* name, NODX201::VMultipleEcuJob& job) override {
        return Answer(L"InParamIf(job)", m_names.inParams, name, job);
    }
    NODX201::IInParamIf* ResolveInParamIfSnref(wchar_t const* name, NODX201::VDiagComm& diagComm) override {
        return Answer(L"InParamIf", m_names.inParams, name, diagComm);
    }
    NODX201::IOutParamIf* ResolveOutParamIfSnref(wchar_t const* name, NODX201::VMultipleEcuJob& job,
                                                 NODX201::VDiagLayer& layer) override {
        return Answer(std::wstring(L"OutParamIf(job) ") + layer.GetShortName(), m_names.outParams, name, job);
    }
    NODX201::IOutParamIf* ResolveOutParamIfSnref(wchar_t const* name, NODX201::VDiagComm& diagComm,
                                                 NODX201::VDiagLayer& layer, NODX201::VSearchRange range) override {
        return Answer(L"OutParamIf " + std::to_wstring(static_cast<int>(range)) + L" " + layer.GetShortName(),
                      m_names.outParams, name, diagComm);
    }

private:
    template <class Answers>
    typename Answers::mapped_type Answer(std::wstring const& operation, Answers const& answers, wchar_t const* name,
                                         NODX201::VOdxElement const& context) {
        m_names.asked.push_back(operation + L" " + name + L" " + context.GetShortName());
        auto const found = answers.find({name, &context});
        return found != answers.end() ? found->second : nullptr;
    }

    VFakeNames& m_names;
};

} // namespace

NMemory::VDatabase::VResolverFactory VFakeNames::Factory() {
    return [this] { return std::make_unique<VFakeResolver>(*this); };
}

} // namespace NTest
