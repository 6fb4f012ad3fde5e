// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/VisibleNames.h>

#include <algorithm>

#include <diagkit/check/Parents.h>

namespace NCheck {
namespace {

std::wstring_view NameIn(NODX201::VLink& reference) {
    return dynamic_cast<NODX201::VSnref const&>(reference.GetLink()).GetShortName();
}

template <class Element>
Element* Find(std::unordered_map<std::wstring_view, Element*> const& byName, std::wstring_view shortName) {
    auto const found = byName.find(shortName);
    return found != byName.end() ? found->second : nullptr;
}

void AddProtocols(NODX201::VDiagLayer& layer, std::vector<NODX201::VProtocol*>& protocols) {
    if (auto* const protocol = dynamic_cast<NODX201::VProtocol*>(&layer)) {
        protocols.push_back(protocol);
    }
    for (std::vector<VParent> const& rank : ParentsByRank(layer)) {
        for (VParent const& parent : rank) {
            AddProtocols(*parent.layer, protocols);
        }
    }
}

void AddTables(NODX201::VDiagLayer& layer, VNames& tables) {
    if (layer.HasDiagDataDictionarySpec()) {
        for (NODX201::VTable const& table : layer.GetDiagDataDictionarySpec().TableCollection()) {
            tables.insert(table.GetShortName());
        }
    }
    for (std::vector<VParent> const& rank : ParentsByRank(layer)) {
        for (VParent const& parent : rank) {
            AddTables(*parent.layer, tables);
        }
    }
}

/// Looks for a VALUE parameter through everything that parameters contain, each element once; without a name it sees
/// everything.
class VParamSearch {
public:
    VParamSearch(std::wstring_view shortName, NReader::VShortNameTargets shortNameTargets)
        : m_shortName(shortName), m_shortNameTargets(std::move(shortNameTargets)) {}

    /// The names seen are those of parameters that belong to the ENV-DATA-DESCs seen.
    void AddTo(VNamesByElement& params) const {
        for (NODX201::VReferencable const* const element : m_visited) {
            if (dynamic_cast<NODX201::VEnvDataDesc const*>(element) != nullptr) {
                params[element].insert(m_names.begin(), m_names.end());
            }
        }
    }

    void See(NODX201::VParamCollection& params) {
        NoteNames(params);
        NoteTargets(EdgesOf(params, m_shortNameTargets));
    }

    void See(NODX201::VDopBaseLink& link) {
        auto& dopLink = dynamic_cast<NMemory::VMemDopBaseLink&>(link);
        if (dopLink.ResolvesById()) {
            m_toVisit.push_back(&dopLink.GetDopBase());
        } else if (dynamic_cast<NODX201::VSnref const*>(&dopLink.GetLink()) != nullptr) {
            for (NODX201::VReferencable* const dop : m_shortNameTargets(dopLink)) {
                m_toVisit.push_back(dop);
            }
        }
    }

    void See(wchar_t const* shortName) {
        if (m_shortName.empty()) {
            m_names.insert(shortName);
        } else {
            m_isFound = m_isFound || m_shortName == shortName;
        }
    }

    bool Finish() {
        while (!m_isFound && !m_toVisit.empty()) {
            NODX201::VReferencable* const element = m_toVisit.back();
            m_toVisit.pop_back();
            if (!m_visited.insert(element).second) {
                continue;
            }
            if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(element)) {
                NoteNames(structure->ParamCollection());
            }
            NoteTargets(EdgesOf(*element, m_shortNameTargets));
        }
        return m_isFound;
    }

private:
    void NoteNames(NODX201::VParamCollection& params) {
        for (NODX201::VParam& param : params) {
            if (dynamic_cast<NODX201::VValue*>(&param) != nullptr) {
                See(param.GetShortName());
            }
        }
    }

    void NoteTargets(NReader::VEdges const& edges) {
        for (NReader::VEdge const& edge : edges) {
            m_toVisit.push_back(edge.target);
        }
    }

    std::wstring_view m_shortName;
    NReader::VShortNameTargets m_shortNameTargets;
    std::vector<NODX201::VReferencable*> m_toVisit;
    std::unordered_set<NODX201::VReferencable*> m_visited;
    VNames m_names;
    bool m_isFound = false;
};

void SeeService(VParamSearch& search, NODX201::VDiagService& service, bool isInput) {
    if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
        search.See(service.GetRequestRef().GetRequest().ParamCollection());
    }
    if (isInput) {
        return;
    }
    for (NODX201::VPosResponseLink& link : service.PosResponseLinkCollection()) {
        if (link.HasPosResponse()) {
            search.See(link.GetPosResponse().ParamCollection());
        }
    }
    for (NODX201::VNegResponseLink& link : service.NegResponseLinkCollection()) {
        if (link.HasNegResponse()) {
            search.See(link.GetNegResponse().ParamCollection());
        }
    }
}

template <class Params>
void SeeJobParams(VParamSearch& search, Params& params) {
    for (auto& param : params) {
        search.See(param.GetShortName());
        if (param.HasDopBaseRef()) {
            search.See(param.GetDopBaseRef());
        }
    }
}

} // namespace

VVisibleNames::VVisibleNames(NODX201::VDiagLayer& layer)
    : m_layer(layer), m_diagComms(DiagCommsIn(layer)), m_dops(DopsIn(layer)),
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
        return HasParamFor(*envDataDesc, name);
    }
    NODX201::VDiagComm* const diagComm = DiagCommBeside(reference);
    if (diagComm == nullptr) {
        return std::nullopt;
    }
    return HasParam(*diagComm, name, dynamic_cast<NMemory::VMemInParamIfLink*>(&reference) != nullptr);
}

NODX201::VDopBase* VVisibleNames::FindDop(std::wstring_view shortName) const { return Find(m_dopsByName, shortName); }

NODX201::VDiagComm* VVisibleNames::FindDiagComm(std::wstring_view shortName) const {
    return Find(m_diagCommsByName, shortName);
}

bool VVisibleNames::HasProtocol(std::wstring_view shortName) {
    if (m_protocols.empty()) {
        AddProtocols(m_layer, m_protocols);
        for (NODX201::VDiagLayer& layer : dynamic_cast<NODX201::VDiagLayerCollection&>(*m_layer.GetOwner())) {
            if (auto* const protocol = dynamic_cast<NODX201::VProtocol*>(&layer)) {
                m_protocols.push_back(protocol);
            }
        }
    }
    return std::any_of(m_protocols.begin(), m_protocols.end(), [shortName](NODX201::VProtocol const* protocol) {
        return shortName == protocol->GetShortName();
    });
}

bool VVisibleNames::HasTable(std::wstring_view shortName) {
    if (!m_tables.has_value()) {
        AddTables(m_layer, m_tables.emplace());
    }
    return m_tables->count(shortName) != 0;
}

std::optional<bool> VVisibleNames::HasParamFor(NODX201::VEnvDataDesc& envDataDesc, std::wstring_view shortName) {
    if (!m_params.has_value()) {
        m_params.emplace();
        for (NODX201::VDiagComm* const diagComm : m_diagComms) {
            if (auto* const service = dynamic_cast<NODX201::VDiagService*>(diagComm)) {
                VParamSearch search({}, Targets());
                SeeService(search, *service, false);
                search.Finish();
                search.AddTo(*m_params);
            }
        }
    }
    auto const found = m_params->find(&envDataDesc);
    return found != m_params->end() ? std::optional<bool>(found->second.count(shortName) != 0) : std::nullopt;
}

NReader::VShortNameTargets VVisibleNames::Targets() const {
    return [this](NMemory::VMemDopBaseLink& link) {
        NODX201::VDopBase* const dop = FindDop(NameIn(link));
        return dop != nullptr ? NReader::VReferencables{dop} : NReader::VReferencables{};
    };
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

bool VVisibleNames::HasParam(NODX201::VDiagComm& diagComm, std::wstring_view shortName, bool isInput) const {
    VParamSearch search(shortName, Targets());
    if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&diagComm)) {
        SeeService(search, *service, isInput);
    } else if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm)) {
        if (isInput) {
            SeeJobParams(search, job->InputParamCollection());
        } else {
            SeeJobParams(search, job->OutputParamCollection());
        }
    }
    return search.Finish();
}

bool ResolvesInSpec(NODX201::VLink& reference, NMemory::VMemMultipleEcuJobSpec& spec) {
    std::vector<NODX201::VDopBase*> dops;
    if (spec.HasDiagDataDictionarySpec()) {
        for (NODX201::VDopBase& dop : spec.GetDiagDataDictionarySpec().DopBaseCollection()) {
            dops.push_back(&dop);
        }
    }
    auto const byName = ByShortName(dops);
    NODX201::VDopBase* const dop = Find(byName, NameIn(reference));
    bool const isDataObjectProp = dynamic_cast<NODX201::VDataObjectPropLink*>(&reference) != nullptr;
    return dop != nullptr && (!isDataObjectProp || dynamic_cast<NODX201::VDataObjectProp*>(dop) != nullptr);
}

} // namespace NCheck
