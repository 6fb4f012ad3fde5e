// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Containment.h>

namespace NReader {

using namespace NMemory;

namespace {

template <class Link, class Get>
void AddLink(VEdges& edges, Link& link, Get get) {
    if (link.ResolvesById()) {
        edges.push_back({&get(link), &link, [&link] { link.Sever(); }});
    }
}

void AddStructure(VEdges& edges, VMemStructureLink& link) {
    AddLink(edges, link, [](VMemStructureLink& self) -> NODX201::VDopBase& { return self.GetStructure(); });
}

void AddValue(VEdges& edges, VMemDopBaseLink& link, VShortNameTargets const& shortNameTargets) {
    AddLink(edges, link, [](VMemDopBaseLink& self) -> NODX201::VDopBase& { return self.GetDopBase(); });
    if (dynamic_cast<NODX201::VSnref const*>(&link.GetLink()) == nullptr) {
        return;
    }
    for (NODX201::VReferencable* const target : shortNameTargets(link)) {
        edges.push_back({target, &link, {}, &link});
    }
}

void AddField(VEdges& edges, NODX201::VField& field) {
    if (field.HasBasicStructureEnvDataDescChoice()) {
        NODX201::IBasicStructureEnvDataDescChoice& choice = field.GetBasicStructureEnvDataDescChoice();
        if (auto* const structure = dynamic_cast<VMemBasicStructureLink*>(&choice)) {
            AddLink(edges, *structure,
                    [](VMemBasicStructureLink& self) -> NODX201::VDopBase& { return self.GetBasicStructure(); });
        } else if (auto* const desc = dynamic_cast<VMemEnvDataDescLink*>(&choice)) {
            AddLink(edges, *desc,
                    [](VMemEnvDataDescLink& self) -> NODX201::VDopBase& { return self.GetEnvDataDesc(); });
        }
    }
    auto* const marked = dynamic_cast<VMemDynamicEndmarkerField*>(&field);
    if (marked != nullptr && marked->HasDataObjectPropRef()) {
        AddLink(edges, marked->GetDataObjectPropRef(),
                [](VMemDynEndDopRef& self) -> NODX201::VDopBase& { return self.GetDopBase(); });
    }
}

void AddEnvDatas(VEdges& edges, NODX201::VEnvDataDesc& desc) {
    for (NODX201::IEnvDataProxy& proxy : desc.EnvDataProxyCollection()) {
        if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
            edges.push_back({envData});
        } else if (auto* const link = dynamic_cast<VMemEnvDataLink*>(&proxy)) {
            AddLink(edges, *link, [](VMemEnvDataLink& self) -> NODX201::VDopBase& { return self.GetEnvData(); });
        }
    }
}

void AddMux(VEdges& edges, VMemMux& mux) {
    if (mux.HasDefaultCase() && mux.GetDefaultCase().HasStructureRef()) {
        AddStructure(edges, mux.GetDefaultCase().GetStructureRef());
    }
    for (NODX201::VCase& muxCase : mux.CaseCollection()) {
        if (muxCase.HasStructureRef()) {
            AddStructure(edges, static_cast<VMemCase&>(muxCase).GetStructureRef());
        }
    }
}

} // namespace

void AddParams(VEdges& edges, NODX201::VParamCollection& params, VShortNameTargets const& shortNameTargets) {
    for (NODX201::VParam& param : params) {
        auto* const value = dynamic_cast<VMemValue*>(&param);
        if (value != nullptr && value->HasDopBaseLink()) {
            AddValue(edges, value->GetDopBaseLink(), shortNameTargets);
        }
    }
}

VEdges EdgesOf(NODX201::VDopBase& dop, VShortNameTargets const& shortNameTargets) {
    VEdges edges;
    if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&dop)) {
        AddParams(edges, structure->ParamCollection(), shortNameTargets);
    } else if (auto* const field = dynamic_cast<NODX201::VField*>(&dop)) {
        AddField(edges, *field);
    } else if (auto* const desc = dynamic_cast<NODX201::VEnvDataDesc*>(&dop)) {
        AddEnvDatas(edges, *desc);
    } else if (auto* const mux = dynamic_cast<VMemMux*>(&dop)) {
        AddMux(edges, *mux);
    }
    return edges;
}

VReferencables NoTargets(VMemDopBaseLink&) { return {}; }

VShortNameTargets TargetsIn(NODX201::VDiagLayer& layer) {
    return [&layer](VMemDopBaseLink& link) {
        return link.HasDopBase(layer) ? VReferencables{&link.GetDopBase()} : VReferencables{};
    };
}

VDopsByName::VDopsByName(VReferencables const& dops) {
    for (NODX201::VReferencable* const dop : dops) {
        m_dops[dop->GetShortName()].push_back(dop);
    }
}

VReferencables VDopsByName::operator()(VMemDopBaseLink& link) const {
    auto const found = m_dops.find(dynamic_cast<NODX201::VSnref const&>(link.GetLink()).GetShortName());
    return found != m_dops.end() ? found->second : VReferencables{};
}

VReferencables DopsOf(VDatabase& database) {
    VReferencables dops;
    ForEachDictionary(database, [&dops](NODX201::VDiagDataDictionarySpec& dictionary) {
        for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
            dops.push_back(&dop);
        }
        for (NODX201::IEnvDataProxy& proxy : dictionary.EnvDataProxyCollection()) {
            if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
                dops.push_back(envData);
            }
        }
    });
    return dops;
}

} // namespace NReader
