// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Cycles.h>

#include <string>
#include <string_view>
#include <unordered_map>

#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

using VDops = std::vector<NODX201::VDopBase*>;

/// A depth-first search with a stack of its own: chains may be longer than the machine's stack is deep.
class VSearch {
public:
    /// Follows references by ID alone.
    explicit VSearch(VReading& reading)
        : m_reading(reading), m_shortNameTargets([](NMemory::VMemDopBaseLink&) { return VDops(); }) {}

    /// Follows short names as well, to what they mean in the layer, and severs only these.
    VSearch(VReading& reading, NODX201::VDiagLayer& layer)
        : m_reading(reading), m_layer(&layer), m_shortNameTargets([&layer](NMemory::VMemDopBaseLink& link) {
              return link.HasDopBase(layer) ? VDops{&link.GetDopBase()} : VDops();
          }) {}

    void From(NODX201::VDopBase& root) {
        Enter(root, {nullptr});
        while (!m_path.empty()) {
            VStep& step = m_path.back();
            if (step.next == step.edges.size()) {
                m_states[step.dop] = VState::Done;
                m_path.pop_back();
                continue;
            }
            VEdge const edge = step.edges[step.next++];
            switch (m_states[edge.target]) {
            case VState::New:
                Enter(*edge.target, edge);
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
        VEdge entered; ///< by which the search came here
        std::size_t next = 0;
    };

    void Enter(NODX201::VDopBase& dop, VEdge const& edge) {
        if (m_states[&dop] != VState::New) {
            return;
        }
        m_states[&dop] = VState::Open;
        m_path.push_back({&dop, EdgesOf(dop, m_shortNameTargets), edge});
    }

    bool CanSever(VEdge const& edge) const {
        return m_layer != nullptr ? edge.shortName != nullptr : edge.node != nullptr;
    }

    /// The edge leads back into the path. Severs it, or else the last one before it that can be: what stands inside its
    /// container closes a cycle without a reference, and an ID may close one that is none in other layers.
    void Close(VEdge const& edge) {
        if (CanSever(edge)) {
            Sever(edge);
            return;
        }
        while (m_path.back().dop != edge.target) {
            VEdge const entered = m_path.back().entered;
            m_states[m_path.back().dop] = VState::New; // not searched to its end
            m_path.pop_back();
            if (CanSever(entered)) {
                Sever(entered);
                return;
            }
        }
    }

    void Sever(VEdge const& edge) {
        std::string where;
        if (edge.shortName != nullptr) {
            edge.shortName->SeverIn(*m_layer);
            where = " in the layer '" + ToUtf8(m_layer->GetShortName()) + "'";
        } else {
            edge.sever();
        }
        m_reading.findings.Add(edge.node->GetPosition(), VSeverity::Error, "containment-cycle",
                               ToUtf8(NODX201::OdxTagText(edge.target->GetOdxTag())) + " '" +
                                   ToUtf8(edge.target->GetShortName()) + "' contains itself through this reference" +
                                   where + ", which is left unresolved" + (where.empty() ? "" : " there"));
    }

    VReading& m_reading;
    NODX201::VDiagLayer* m_layer = nullptr;
    VShortNameTargets m_shortNameTargets;
    std::unordered_map<NODX201::VDopBase*, VState> m_states;
    std::vector<VStep> m_path;
};

void AddDops(VDops& dops, NODX201::VDiagDataDictionarySpec& dictionary) {
    for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
        dops.push_back(&dop);
    }
    for (NODX201::IEnvDataProxy& proxy : dictionary.EnvDataProxyCollection()) {
        if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
            dops.push_back(envData);
        }
    }
}

template <class Run>
void ForEachLayer(VReading& reading, Run run) {
    for (NODX201::VDiagLayerContainer& container : reading.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            run(layer);
        }
    }
}

/// Every DOP of every dictionary, those inside of others left out.
VDops DopsOf(VReading& reading) {
    VDops dops;
    ForEachLayer(reading, [&dops](NODX201::VDiagLayer& layer) {
        if (layer.HasDiagDataDictionarySpec()) {
            AddDops(dops, layer.GetDiagDataDictionarySpec());
        }
    });
    for (NMemory::VMemMultipleEcuJobSpec& spec : reading.database->MultipleEcuJobSpecCollection()) {
        if (spec.HasDiagDataDictionarySpec()) {
            AddDops(dops, spec.GetDiagDataDictionarySpec());
        }
    }
    return dops;
}

wchar_t const* ShortNameWanted(NMemory::VMemDopBaseLink& link) {
    return dynamic_cast<NODX201::VSnref const&>(link.GetLink()).GetShortName();
}

/// The DOPs that would lead into a cycle if a short name meant every DOP that bears it. Where there are none, no layer
/// needs to be asked what it means by the names.
VDops Suspects(VDops const& dops) {
    std::unordered_map<std::wstring_view, VDops> byName;
    for (NODX201::VDopBase* const dop : dops) {
        byName[dop->GetShortName()].push_back(dop);
    }
    std::unordered_map<NODX201::VDopBase*, VDops> waysIn;
    std::unordered_map<NODX201::VDopBase*, std::size_t> waysOut; // that are not yet known to end
    VDops ended;
    VDops toVisit(dops.rbegin(), dops.rend());
    while (!toVisit.empty()) {
        NODX201::VDopBase* const dop = toVisit.back();
        toVisit.pop_back();
        if (waysOut.count(dop) != 0) {
            continue;
        }
        VEdges const edges = EdgesOf(*dop, [&byName](auto& link) { return byName[ShortNameWanted(link)]; });
        waysOut[dop] = edges.size();
        for (VEdge const& edge : edges) {
            waysIn[edge.target].push_back(dop);
            toVisit.push_back(edge.target);
        }
        if (edges.empty()) {
            ended.push_back(dop);
        }
    }
    while (!ended.empty()) {
        NODX201::VDopBase* const end = ended.back();
        ended.pop_back();
        for (NODX201::VDopBase* const dop : waysIn[end]) {
            if (--waysOut[dop] == 0) {
                ended.push_back(dop);
            }
        }
    }
    VDops suspects;
    for (NODX201::VDopBase* const dop : dops) {
        if (waysOut[dop] > 0) {
            suspects.push_back(dop);
        }
    }
    return suspects;
}

} // namespace

void SeverContainmentCycles(VReading& reading) {
    VDops const dops = DopsOf(reading);
    VSearch search(reading);
    for (NODX201::VDopBase* const dop : dops) {
        search.From(*dop);
    }
    VDops const suspects = Suspects(dops);
    if (suspects.empty()) {
        return;
    }
    ForEachLayer(reading, [&](NODX201::VDiagLayer& layer) {
        VSearch inLayer(reading, layer);
        for (NODX201::VDopBase* const dop : suspects) {
            inLayer.From(*dop);
        }
    });
    reading.database->StartNewResolver(); // the views of all layers are more than most programs want to hold
}

} // namespace NReader
