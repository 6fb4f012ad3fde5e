// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/VisibleNames.h>

#include <unordered_set>

#include <diagkit/check/Messages.h>
#include <diagkit/check/ReadingPlaces.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/tools/ParamWalk.h>

namespace NCheck {
namespace {

std::wstring_view NameIn(NODX201::VLink& reference) {
    return dynamic_cast<NODX201::VSnref const&>(reference.GetLink()).GetShortName();
}

template <class Element>
Element* FindIn(std::unordered_map<std::wstring_view, Element*> const& byName, std::wstring_view shortName) {
    auto const found = byName.find(shortName);
    return found != byName.end() ? found->second : nullptr;
}

/// A layer and all layers from which it inherits, each once.
std::vector<NDIAGKIT::VLayerOfKind> WithAncestors(NODX201::VDiagLayer& layer) {
    std::vector<NDIAGKIT::VLayerOfKind> layers{layer};
    std::unordered_set<NODX201::VDiagLayer*> seen{&layer};
    for (std::size_t next = 0; next < layers.size(); ++next) { // grows during the loop
        for (NDIAGKIT::VParent const& parent : NDIAGKIT::ParentsOf(layers[next])) {
            if (seen.insert(parent.layer.layer).second) {
                layers.push_back(parent.layer);
            }
        }
    }
    return layers;
}

using VElementsByName = std::unordered_map<std::wstring_view, NODX201::VOdxElement*>;

VElementsByName ProtocolsFor(NODX201::VDiagLayer& layer) {
    VElementsByName protocols;
    auto const see = [&protocols](NDIAGKIT::VLayerOfKind const& candidate) {
        if (candidate.kind == NDIAGKIT::VLayerKinds::Protocol) {
            protocols.emplace(candidate.layer->GetShortName(), candidate.layer);
        }
    };
    for (NDIAGKIT::VLayerOfKind const& ancestor : WithAncestors(layer)) {
        see(ancestor);
    }
    for (NODX201::VDiagLayer& beside : dynamic_cast<NODX201::VDiagLayerCollection&>(*layer.GetOwner())) {
        see(beside);
    }
    return protocols;
}

VElementsByName TablesFor(NODX201::VDiagLayer& layer) {
    VElementsByName tables;
    for (NDIAGKIT::VLayerOfKind const& ancestor : WithAncestors(layer)) {
        if (ancestor.layer->HasDiagDataDictionarySpec()) {
            for (NODX201::VTable& table : ancestor.layer->GetDiagDataDictionarySpec().TableCollection()) {
                tables.emplace(table.GetShortName(), &table);
            }
        }
    }
    return tables;
}

/// Collects all VALUE parameters below others; of one name the one found first.
class VParamCollector : public NDIAGKIT::VParamWalk {
public:
    VParamCollector(NDIAGKIT::IDopFinder& dops, VElementsByName& params) : VParamWalk(dops), m_params(params) {}

    /// The parameters of messages, and then those below them.
    void WalkAll(std::vector<NODX201::VParamCollection*> const& messages) {
        for (NODX201::VParamCollection* const params : messages) {
            for (NODX201::VParam& param : *params) {
                if (auto* const value = dynamic_cast<NODX201::VValue*>(&param)) {
                    m_params.emplace(value->GetShortName(), value);
                }
            }
        }
        for (NODX201::VParamCollection* const params : messages) {
            for (NODX201::VParam& param : *params) {
                Walk(param);
            }
        }
    }

protected:
    void VisitValue(NODX201::VValue& param) override {
        m_params.emplace(param.GetShortName(), &param);
        WalkBelow(param);
    }

private:
    VElementsByName& m_params;
};

void WalkService(VParamCollector& collector, NODX201::VDiagService& service, bool isInput) {
    if (!isInput) {
        std::vector<NODX201::VParamCollection*> responses;
        ForEachResponse(service, [&](auto& response) { responses.push_back(&response.ParamCollection()); });
        collector.WalkAll(responses);
    }
    if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
        collector.WalkAll({&service.GetRequestRef().GetRequest().ParamCollection()});
    }
}

template <class Params>
void WalkJobParams(VParamCollector& collector, VElementsByName& found, NDIAGKIT::IDopFinder& dops, Params& params) {
    for (auto& param : params) {
        found.emplace(param.GetShortName(), &param);
    }
    for (auto& param : params) {
        NODX201::VDopBase* const dop = param.HasDopBaseRef() ? dops.Find(param.GetDopBaseRef()) : nullptr;
        if (dop != nullptr) {
            collector.WalkIn(*dop);
        }
    }
}

} // namespace

VVisibleNames::VVisibleNames(NODX201::VDiagLayer& layer, VViews& views)
    : m_layer(layer), m_diagComms(views.diagComms.EntriesOf(layer)), m_dops(views.dops.EntriesOf(layer)),
      m_diagCommsByName(ByShortName(m_diagComms)), m_dopsByName(ByShortName(m_dops)) {}

std::optional<NODX201::VOdxElement*> VVisibleNames::FindOne(NODX201::VLink& reference) {
    std::wstring_view const name = NameIn(reference);
    if (dynamic_cast<NODX201::VDopBaseLink*>(&reference) != nullptr) {
        return FindDop(name);
    }
    if (dynamic_cast<NODX201::VDataObjectPropLink*>(&reference) != nullptr) {
        return dynamic_cast<NODX201::VDataObjectProp*>(FindDop(name));
    }
    if (dynamic_cast<NODX201::VDiagCommLink*>(&reference) != nullptr) {
        return FindDiagComm(name);
    }
    if (dynamic_cast<NMemory::VMemProtocolSnref*>(&reference) != nullptr) {
        return FindProtocol(name);
    }
    if (dynamic_cast<NODX201::VTableLink*>(&reference) != nullptr) {
        return FindTable(name);
    }
    NODX201::VDiagComm* const diagComm = DiagCommBeside(reference);
    if (diagComm == nullptr) {
        return std::nullopt;
    }
    return FindParam(*diagComm, name, dynamic_cast<NMemory::VMemInParamIfLink*>(&reference) != nullptr);
}

std::optional<bool> VVisibleNames::Resolves(NODX201::VLink& reference) {
    if (auto* const envDataDesc = dynamic_cast<NODX201::VEnvDataDesc*>(reference.GetOwner())) {
        return Services().HasParamFor(*envDataDesc, NameIn(reference));
    }
    std::optional<NODX201::VOdxElement*> const target = FindOne(reference);
    return target.has_value() ? std::optional<bool>(*target != nullptr) : std::nullopt;
}

std::vector<NODX201::VOdxElement*> const& VVisibleNames::TargetsOf(NODX201::VLink& reference) {
    if (auto* const envDataDesc = dynamic_cast<NODX201::VEnvDataDesc*>(reference.GetOwner())) {
        return Services().ParamsFor(*envDataDesc, NameIn(reference));
    }
    m_targets.clear();
    if (NODX201::VOdxElement* const target = FindOne(reference).value_or(nullptr)) {
        m_targets.push_back(target);
    }
    return m_targets;
}

VServiceGraph& VVisibleNames::Services() {
    if (!m_services.has_value()) {
        m_services.emplace(m_diagComms, static_cast<NDIAGKIT::IDopFinder&>(*this));
    }
    return *m_services;
}

NODX201::VDopBase* VVisibleNames::FindDop(std::wstring_view shortName) const { return FindIn(m_dopsByName, shortName); }

NODX201::VDiagComm* VVisibleNames::FindDiagComm(std::wstring_view shortName) const {
    return FindIn(m_diagCommsByName, shortName);
}

NODX201::VOdxElement* VVisibleNames::FindProtocol(std::wstring_view shortName) {
    if (!m_protocols.has_value()) {
        m_protocols = ProtocolsFor(m_layer);
    }
    return FindIn(*m_protocols, shortName);
}

NODX201::VOdxElement* VVisibleNames::FindTable(std::wstring_view shortName) {
    if (!m_tables.has_value()) {
        m_tables = TablesFor(m_layer);
    }
    return FindIn(*m_tables, shortName);
}

NODX201::VDopBase* VVisibleNames::Find(NODX201::VDopBaseLink& link) {
    std::wstring_view const shortName = NReader::ShortNameIn(link);
    return shortName.empty() ? NReader::VDopsById().Find(link) : FindDop(shortName);
}

NODX201::VDiagComm* VVisibleNames::DiagCommBeside(NODX201::VLink& reference) const {
    NODX201::VDiagCommLink* const link = DiagCommLinkBeside(reference);
    return link != nullptr ? TargetOf(*link) : nullptr;
}

NODX201::VDiagComm* VVisibleNames::TargetOf(NODX201::VDiagCommLink& link) const {
    if (auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link.GetLink())) {
        return FindDiagComm(snref->GetShortName());
    }
    return link.HasDiagComm(m_layer) ? &link.GetDiagComm() : nullptr;
}

NODX201::VOdxElement* VVisibleNames::FindParam(NODX201::VDiagComm& diagComm, std::wstring_view shortName,
                                               bool isInput) {
    auto known = m_params.find({&diagComm, isInput});
    if (known == m_params.end()) {
        known = m_params.emplace(std::make_pair(&diagComm, isInput), ParamsOf(diagComm, isInput)).first;
    }
    return FindIn(known->second, shortName);
}

VElementsByName VVisibleNames::ParamsOf(NODX201::VDiagComm& diagComm, bool isInput) {
    VElementsByName params;
    VParamCollector collector(*this, params);
    if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&diagComm)) {
        WalkService(collector, *service, isInput);
    } else if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm)) {
        if (isInput) {
            WalkJobParams(collector, params, *this, job->InputParamCollection());
        } else {
            WalkJobParams(collector, params, *this, job->OutputParamCollection());
        }
    }
    return params;
}

VNamesOfSpec::VNamesOfSpec(NMemory::VMemMultipleEcuJobSpec& spec) {
    if (spec.HasDiagDataDictionarySpec()) {
        for (NODX201::VDopBase& dop : spec.GetDiagDataDictionarySpec().DopBaseCollection()) {
            m_dops.emplace(dop.GetShortName(), &dop);
        }
    }
}

NODX201::VDopBase* VNamesOfSpec::Find(NODX201::VLink& reference) const {
    NODX201::VDopBase* const dop = FindIn(m_dops, NameIn(reference));
    if (dynamic_cast<NODX201::VDataObjectPropLink*>(&reference) != nullptr) {
        return dynamic_cast<NODX201::VDataObjectProp*>(dop);
    }
    return dynamic_cast<NODX201::VDopBaseLink*>(&reference) != nullptr ? dop : nullptr;
}

} // namespace NCheck
