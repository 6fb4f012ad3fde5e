// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Cycles.h>

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

using namespace NMemory;

/// A way from one DOP into another: by a reference, or by standing inside it.
struct VEdge {
    NODX201::VDopBase* target;
    VMemNode* node = nullptr; ///< the reference; null where the target stands inside
    std::function<void()> sever{};
};

using VEdges = std::vector<VEdge>;

template <class Link, class Get>
void AddLink(VEdges& edges, Link& link, Get get) {
    if (link.ResolvesById()) {
        edges.push_back({&get(link), &link, [&link] { link.Sever(); }});
    }
}

void AddStructure(VEdges& edges, VMemStructureLink& link) {
    AddLink(edges, link, [](VMemStructureLink& self) -> NODX201::VDopBase& { return self.GetStructure(); });
}

void AddParams(VEdges& edges, NODX201::VParamCollection& params) {
    for (NODX201::VParam& param : params) {
        auto* const value = dynamic_cast<VMemValue*>(&param);
        if (value != nullptr && value->HasDopBaseLink()) {
            AddLink(edges, value->GetDopBaseLink(),
                    [](VMemDopBaseLink& self) -> NODX201::VDopBase& { return self.GetDopBase(); });
        }
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

VEdges EdgesOf(NODX201::VDopBase& dop) {
    VEdges edges;
    if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&dop)) {
        AddParams(edges, structure->ParamCollection());
    } else if (auto* const field = dynamic_cast<NODX201::VField*>(&dop)) {
        AddField(edges, *field);
    } else if (auto* const desc = dynamic_cast<NODX201::VEnvDataDesc*>(&dop)) {
        AddEnvDatas(edges, *desc);
    } else if (auto* const mux = dynamic_cast<VMemMux*>(&dop)) {
        AddMux(edges, *mux);
    }
    return edges;
}

/// A depth-first search with a stack of its own: chains may be longer than the machine's stack is deep.
class VSearch {
public:
    explicit VSearch(VReading& reading) : m_reading(reading) {}

    void From(NODX201::VDopBase& root) {
        Enter(root, nullptr);
        while (!m_path.empty()) {
            VStep& step = m_path.back();
            if (step.next == step.edges.size()) {
                m_states[step.dop] = VState::Done;
                m_path.pop_back();
                continue;
            }
            VEdge& edge = step.edges[step.next++];
            switch (m_states[edge.target]) {
            case VState::New:
                Enter(*edge.target, &edge);
                break;
            case VState::Open:
                Close(edge);
                break;
            case VState::Done:
                break;
            }
        }
    }

private:
    enum class VState { New, Open, Done };

    struct VStep {
        NODX201::VDopBase* dop;
        VEdges edges;
        std::size_t next = 0;
        VEdge entered{nullptr}; ///< the edge by which the search came here
    };

    void Enter(NODX201::VDopBase& dop, VEdge const* edge) {
        if (m_states[&dop] != VState::New) {
            return;
        }
        m_states[&dop] = VState::Open;
        VEdge const entered = edge != nullptr ? *edge : VEdge{nullptr};
        m_path.push_back({&dop, EdgesOf(dop), 0, entered});
    }

    void Close(VEdge const& edge) {
        // What stands inside its own container closes a cycle without a reference; the reference that led in does.
        VEdge const& closing = edge.node != nullptr ? edge : m_path.back().entered;
        if (closing.node == nullptr) {
            return;
        }
        closing.sever();
        m_reading.findings.Add(closing.node->GetPosition(), VSeverity::Error, "containment-cycle",
                               ToUtf8(NODX201::OdxTagText(edge.target->GetOdxTag())) + " '" +
                                   ToUtf8(edge.target->GetShortName()) +
                                   "' contains itself through this reference, which is left unresolved");
        if (edge.node == nullptr) {
            m_path.back().next = m_path.back().edges.size(); // no longer reached from here
        }
    }

    VReading& m_reading;
    std::unordered_map<NODX201::VDopBase*, VState> m_states;
    std::vector<VStep> m_path;
};

void SearchDictionary(VSearch& search, NODX201::VDiagDataDictionarySpec& dictionary) {
    for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
        search.From(dop);
    }
    for (NODX201::IEnvDataProxy& proxy : dictionary.EnvDataProxyCollection()) {
        if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
            search.From(*envData);
        }
    }
}

} // namespace

void SeverContainmentCycles(VReading& reading) {
    VSearch search(reading);
    for (NODX201::VDiagLayerContainer& container : reading.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            if (layer.HasDiagDataDictionarySpec()) {
                SearchDictionary(search, layer.GetDiagDataDictionarySpec());
            }
        }
    }
    for (VMemMultipleEcuJobSpec& spec : reading.database->MultipleEcuJobSpecCollection()) {
        if (spec.HasDiagDataDictionarySpec()) {
            SearchDictionary(search, spec.GetDiagDataDictionarySpec());
        }
    }
}

} // namespace NReader
