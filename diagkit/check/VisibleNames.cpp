// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/VisibleNames.h>

#include <unordered_set>

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

/// A layer and all that it inherits from, each once.
std::vector<NDIAGKIT::VLayerOfKind> WithAncestors(NODX201::VDiagLayer& layer) {
    std::vector<NDIAGKIT::VLayerOfKind> layers{layer};
    std::unordered_set<NODX201::VDiagLayer*> seen{&layer};
    for (std::size_t next = 0; next < layers.size(); ++next) { // grows on the way
        for (NDIAGKIT::VParent const& parent : NDIAGKIT::ParentsOf(layers[next])) {
            if (seen.insert(parent.layer.layer).second) {
                layers.push_back(parent.layer);
            }
        }
    }
    return layers;
}

VNames ProtocolsFor(NODX201::VDiagLayer& layer) {
    VNames names;
    auto const see = [&names](NDIAGKIT::VLayerOfKind const& candidate) {
        if (candidate.kind == NDIAGKIT::VLayerKinds::Protocol) {
            names.insert(candidate.layer->GetShortName());
        }
    };
    for (NDIAGKIT::VLayerOfKind const& ancestor : WithAncestors(layer)) {
        see(ancestor);
    }
    for (NODX201::VDiagLayer& beside : dynamic_cast<NODX201::VDiagLayerCollection&>(*layer.GetOwner())) {
        see(beside);
    }
    return names;
}

VNames TablesFor(NODX201::VDiagLayer& layer) {
    VNames names;
    for (NDIAGKIT::VLayerOfKind const& ancestor : WithAncestors(layer)) {
        if (ancestor.layer->HasDiagDataDictionarySpec()) {
            for (NODX201::VTable const& table : ancestor.layer->GetDiagDataDictionarySpec().TableCollection()) {
                names.insert(table.GetShortName());
            }
        }
    }
    return names;
}

/// Collects the names of all VALUE parameters below others.
class VNameCollector : public NDIAGKIT::VParamWalk {
public:
    VNameCollector(NDIAGKIT::IDopFinder& dops, VNames& names) : VParamWalk(dops), m_names(names) {}

    void WalkAll(NODX201::VParamCollection& params) {
        for (NODX201::VParam& param : params) {
            Walk(param);
        }
    }

protected:
    void VisitValue(NODX201::VValue& param) override {
        m_names.insert(param.GetShortName());
        WalkBelow(param);
    }

private:
    VNames& m_names;
};

void WalkService(VNameCollector& collector, NODX201::VDiagService& service, bool isInput) {
    if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
        collector.WalkAll(service.GetRequestRef().GetRequest().ParamCollection());
    }
    if (isInput) {
        return;
    }
    for (NODX201::VPosResponseLink& link : service.PosResponseLinkCollection()) {
        if (link.HasPosResponse()) {
            collector.WalkAll(link.GetPosResponse().ParamCollection());
        }
    }
    for (NODX201::VNegResponseLink& link : service.NegResponseLinkCollection()) {
        if (link.HasNegResponse()) {
            collector.WalkAll(link.GetNegResponse().ParamCollection());
        }
    }
}

template <class Params>
void WalkJobParams(VNameCollector& collector, VNames& names, NDIAGKIT::IDopFinder& dops, Params& params) {
    for (auto& param : params) {
        names.insert(param.GetShortName());
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

std::optional<bool> VVisibleNames::Resolves(NODX201::VLink& reference) {
    std::wstring_view const name = NameIn(reference);
    if (dynamic_cast<NODX201::VDopBaseLink*>(&reference) != nullptr) {
        return FindDop(name) != nullptr;
    }
    if (dynamic_cast<NODX201::VDataObjectPropLink*>(&reference) != nullptr) {
        return dynamic_cast<NODX201::VDataObjectProp*>(FindDop(name)) != nullptr;
    }
    if (dynamic_cast<NODX201::VDiagCommLink*>(&reference) != nullptr) {
        return FindDiagComm(name) != nullptr;
    }
    if (dynamic_cast<NMemory::VMemProtocolSnref*>(&reference) != nullptr) {
        return HasProtocol(name);
    }
    if (dynamic_cast<NODX201::VTableLink*>(&reference) != nullptr) {
        return HasTable(name);
    }
    if (auto* const envDataDesc = dynamic_cast<NODX201::VEnvDataDesc*>(reference.GetOwner())) {
        if (!m_services.has_value()) {
            m_services.emplace(m_diagComms, static_cast<NDIAGKIT::IDopFinder&>(*this));
        }
        return m_services->HasParamFor(*envDataDesc, name);
    }
    NODX201::VDiagComm* const diagComm = DiagCommBeside(reference);
    if (diagComm == nullptr) {
        return std::nullopt;
    }
    return HasParam(*diagComm, name, dynamic_cast<NMemory::VMemInParamIfLink*>(&reference) != nullptr);
}

NODX201::VDopBase* VVisibleNames::FindDop(std::wstring_view shortName) const { return FindIn(m_dopsByName, shortName); }

NODX201::VDiagComm* VVisibleNames::FindDiagComm(std::wstring_view shortName) const {
    return FindIn(m_diagCommsByName, shortName);
}

bool VVisibleNames::HasProtocol(std::wstring_view shortName) {
    if (!m_protocols.has_value()) {
        m_protocols = ProtocolsFor(m_layer);
    }
    return m_protocols->count(shortName) != 0;
}

bool VVisibleNames::HasTable(std::wstring_view shortName) {
    if (!m_tables.has_value()) {
        m_tables = TablesFor(m_layer);
    }
    return m_tables->count(shortName) != 0;
}

NODX201::VDopBase* VVisibleNames::Find(NODX201::VDopBaseLink& link) {
    std::wstring_view const shortName = NReader::ShortNameIn(link);
    return shortName.empty() ? NReader::VDopsById().Find(link) : FindDop(shortName);
}

NODX201::VDiagComm* VVisibleNames::DiagCommBeside(NODX201::VLink& reference) const {
    NODX201::VOdxObject* const owner = reference.GetOwner();
    if (auto* const relation = dynamic_cast<NODX201::VCommRelation*>(owner)) {
        return relation->HasDiagCommLink() ? TargetOf(relation->GetDiagCommLink()) : nullptr;
    }
    if (auto* const parameter = dynamic_cast<NODX201::VMatchingParameter*>(owner)) {
        return parameter->HasDiagCommSnref() ? TargetOf(parameter->GetDiagCommSnref()) : nullptr;
    }
    auto* const ident = dynamic_cast<NMemory::VMemIdentDesc*>(owner);
    return ident != nullptr && ident->HasDiagCommSnref() ? TargetOf(ident->GetDiagCommSnref()) : nullptr;
}

NODX201::VDiagComm* VVisibleNames::TargetOf(NODX201::VDiagCommLink& link) const {
    if (auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link.GetLink())) {
        return FindDiagComm(snref->GetShortName());
    }
    return link.HasDiagComm(m_layer) ? &link.GetDiagComm() : nullptr;
}

bool VVisibleNames::HasParam(NODX201::VDiagComm& diagComm, std::wstring_view shortName, bool isInput) {
    auto known = m_params.find({&diagComm, isInput});
    if (known == m_params.end()) {
        known = m_params.emplace(std::make_pair(&diagComm, isInput), ParamsOf(diagComm, isInput)).first;
    }
    return known->second.count(shortName) != 0;
}

VNames VVisibleNames::ParamsOf(NODX201::VDiagComm& diagComm, bool isInput) {
    VNames names;
    VNameCollector collector(*this, names);
    if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&diagComm)) {
        WalkService(collector, *service, isInput);
    } else if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm)) {
        if (isInput) {
            WalkJobParams(collector, names, *this, job->InputParamCollection());
        } else {
            WalkJobParams(collector, names, *this, job->OutputParamCollection());
        }
    }
    return names;
}

VNamesOfSpec::VNamesOfSpec(NMemory::VMemMultipleEcuJobSpec& spec) {
    if (spec.HasDiagDataDictionarySpec()) {
        for (NODX201::VDopBase& dop : spec.GetDiagDataDictionarySpec().DopBaseCollection()) {
            m_dops.emplace(dop.GetShortName(), &dop);
        }
    }
}

bool VNamesOfSpec::Resolves(NODX201::VLink& reference) const {
    NODX201::VDopBase* const dop = FindIn(m_dops, NameIn(reference));
    bool const isDataObjectProp = dynamic_cast<NODX201::VDataObjectPropLink*>(&reference) != nullptr;
    return dop != nullptr && (!isDataObjectProp || dynamic_cast<NODX201::VDataObjectProp*>(dop) != nullptr);
}

} // namespace NCheck
