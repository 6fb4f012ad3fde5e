// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Views.h>

#include <memory>

#include <diagkit/model/Layers.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>

namespace NCheck {
namespace {

template <class Element, class View>
std::vector<Element*> EntriesOf(View& view) {
    std::vector<Element*> entries;
    for (Element& element : view) {
        entries.push_back(&element);
    }
    return entries;
}

/// Finds the DIAG-VARIABLES of a layer: null for a PROTOCOL, which has none.
struct VDiagVariablesFinder : NODX201::VDiagLayerVisitor {
    NODX201::VDiagVariableProxyCollection* proxies = nullptr;

    void VisitProtocol(NODX201::VProtocol&) override {}
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override {
        proxies = &layer.DiagVariableProxyCollection();
    }
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override { proxies = &layer.DiagVariableProxyCollection(); }
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override { proxies = &layer.DiagVariableProxyCollection(); }
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override { proxies = &layer.DiagVariableProxyCollection(); }
};

} // namespace

std::vector<NODX201::VDiagComm*> DiagCommsIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagCommView builder;
    std::unique_ptr<NDIAGKIT::VDiagCommView> const view(builder.CreateDiagCommView(layer));
    return EntriesOf<NODX201::VDiagComm>(*view);
}

std::vector<NODX201::VDopBase*> DopsIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDopView builder;
    std::unique_ptr<NDIAGKIT::VDopView> const view(builder.CreateDopView(layer));
    return EntriesOf<NODX201::VDopBase>(*view);
}

std::vector<NODX201::VDiagVariable*> DiagVariablesIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagVariableView builder;
    std::unique_ptr<NDIAGKIT::VDiagVariableView> const view(builder.CreateDiagVariableView(layer));
    return EntriesOf<NODX201::VDiagVariable>(*view);
}

std::vector<NODX201::VGlobalNegResponse*> GlobalNegResponsesIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VGlobalNegResponseView view(layer);
    return EntriesOf<NODX201::VGlobalNegResponse>(view);
}

std::vector<NODX201::VDiagComm*> OwnDiagComms(NODX201::VDiagLayer& layer) {
    std::vector<NODX201::VDiagComm*> own;
    for (NODX201::IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
        auto* const link = dynamic_cast<NODX201::VDiagCommLink*>(&proxy);
        if (auto* const diagComm = dynamic_cast<NODX201::VDiagComm*>(&proxy)) {
            own.push_back(diagComm);
        } else if (link != nullptr && link->HasDiagComm(layer)) {
            own.push_back(&link->GetDiagComm());
        }
    }
    return own;
}

std::vector<NODX201::VDopBase*> OwnDops(NODX201::VDiagLayer& layer) {
    if (!layer.HasDiagDataDictionarySpec()) {
        return {};
    }
    return EntriesOf<NODX201::VDopBase>(layer.GetDiagDataDictionarySpec().DopBaseCollection());
}

std::vector<NODX201::VDiagVariable*> OwnDiagVariables(NODX201::VDiagLayer& layer) {
    VDiagVariablesFinder finder;
    layer.Accept(finder);
    std::vector<NODX201::VDiagVariable*> own;
    if (finder.proxies == nullptr) {
        return own;
    }
    for (NODX201::IDiagVariableProxy& proxy : *finder.proxies) {
        auto* const link = dynamic_cast<NODX201::VDiagVariableLink*>(&proxy);
        if (auto* const variable = dynamic_cast<NODX201::VDiagVariable*>(&proxy)) {
            own.push_back(variable);
        } else if (link != nullptr && link->HasDiagVariable(layer)) {
            own.push_back(&link->GetDiagVariable());
        }
    }
    return own;
}

std::vector<NODX201::VGlobalNegResponse*> OwnGlobalNegResponses(NODX201::VDiagLayer& layer) {
    std::vector<NODX201::VGlobalNegResponse*> own;
    for (NODX201::VResponse& response : layer.ResponseCollection()) {
        if (auto* const global = dynamic_cast<NODX201::VGlobalNegResponse*>(&response)) {
            own.push_back(global);
        }
    }
    return own;
}

} // namespace NCheck
