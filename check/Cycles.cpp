// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Cycles.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include <diagkit/check/Containment.h>
#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>

namespace NCheck {
namespace {

using NReader::VEdge;
using NReader::VEdges;
using NReader::VEdgesOf;
using NReader::VReferencables;

bool IsOfTable(NODX201::VReferencable const* element) {
    return dynamic_cast<NODX201::VTable const*>(element) != nullptr ||
           dynamic_cast<NODX201::VTableRow const*>(element) != nullptr;
}

VReferencables ContainersOf(NMemory::VDatabase& database) {
    VReferencables containers = NReader::DopsOf(database);
    NReader::ForEachDictionary(database, [&containers](NODX201::VDiagDataDictionarySpec& dictionary) {
        for (NODX201::VTable& table : dictionary.TableCollection()) {
            containers.push_back(&table);
        }
    });
    return containers;
}

VReferencables DiagCommsOf(NMemory::VDatabase& database) {
    VReferencables diagComms;
    for (NODX201::VDiagLayer* const layer : LayersOf(database)) {
        for (NODX201::VDiagComm* const diagComm : OwnDiagComms(*layer)) {
            diagComms.push_back(diagComm);
        }
    }
    return diagComms;
}

VEdges RelatedEdges(NODX201::VReferencable& element) {
    VEdges edges;
    for (NODX201::VRelatedDiagCommRef& link :
         dynamic_cast<NODX201::VDiagComm&>(element).RelatedDiagCommRefCollection()) {
        if (link.HasDiagComm()) {
            edges.push_back({&link.GetDiagComm(), &link});
        }
    }
    return edges;
}

class VCycleFinder {
public:
    explicit VCycleFinder(NMemory::VDatabase& database) : m_database(database) {}

    std::vector<VCycle> Find() {
        VReferencables const suspects = Suspects(ContainersOf(m_database));
        SearchById(suspects, Containing(&NReader::NoTargets));
        SearchById(DiagCommsOf(m_database), &RelatedEdges);
        FindInLayers(suspects);
        return std::move(m_cycles);
    }

private:
    void SearchById(VReferencables const& roots, VEdgesOf const& edgesOf) {
        NReader::VCycleSearch search(edgesOf, &NReader::IsReference,
                                     [this](VEdge const& closing, VReferencables const& chain) {
                                         m_inEveryLayer.insert(closing.link);
                                         m_cycles.push_back({KindOf(chain), chain, closing.link, nullptr});
                                     });
        for (NODX201::VReferencable* const root : roots) {
            search.From(*root);
        }
    }

    void SearchInLayer(VReferencables const& roots, NODX201::VDiagLayer& layer) {
        m_inLayer.clear();
        NReader::VCycleSearch search(Containing(NReader::TargetsIn(layer)), &NReader::IsByShortName,
                                     [this, &layer](VEdge const& closing, VReferencables const& chain) {
                                         m_inLayer.insert(closing.link);
                                         m_cycles.push_back({KindOf(chain), chain, closing.link, &layer});
                                     });
        for (NODX201::VReferencable* const root : roots) {
            search.From(*root);
        }
    }

    /// Those that lead into a cycle other than those that are known, short names being followed to whatever bears them:
    /// nearly always none, and then nothing else is looked at.
    VReferencables Suspects(VReferencables const& containers) const {
        return NReader::LeadingIntoCycles(containers, Containing(NReader::VDopsByName(containers)));
    }

    void FindInLayers(VReferencables const& containers) {
        VReferencables const suspects = containers.empty() ? containers : Suspects(containers);
        if (suspects.empty()) {
            return; // no layer needs to be asked
        }
        for (NODX201::VDiagLayer* const layer : LayersOf(m_database)) {
            SearchInLayer(suspects, *layer);
            m_database.StartNewResolver(); // drops the views of this layer
        }
    }

    /// The ways that contain, without those that are known to close a cycle.
    VEdgesOf Containing(NReader::VShortNameTargets shortNameTargets) const {
        return [this, shortNameTargets = std::move(shortNameTargets)](NODX201::VReferencable& element) {
            VEdges edges = EdgesOf(element, shortNameTargets);
            edges.erase(std::remove_if(edges.begin(), edges.end(),
                                       [this](VEdge const& edge) {
                                           return m_inEveryLayer.count(edge.link) + m_inLayer.count(edge.link) != 0;
                                       }),
                        edges.end());
            return edges;
        };
    }

    static VCycleKind KindOf(VReferencables const& chain) {
        if (dynamic_cast<NODX201::VDiagComm*>(chain.front()) != nullptr) {
            return VCycleKind::RelatedDiagComms;
        }
        return std::any_of(chain.begin(), chain.end(), &IsOfTable) ? VCycleKind::TableRows : VCycleKind::Containment;
    }

    NMemory::VDatabase& m_database;
    std::unordered_set<NODX201::VLink const*> m_inEveryLayer;
    std::unordered_set<NODX201::VLink const*> m_inLayer; ///< that is looked at
    std::vector<VCycle> m_cycles;
};

struct VCycleText {
    VCycleKind kind;
    char const* code;
    char const* leads;
};

constexpr VCycleText kCycleTexts[] = {
    {VCycleKind::Containment, "containment-cycle", "contains itself"},
    {VCycleKind::TableRows, "table-row-cycle", "contains itself through a table"},
    {VCycleKind::RelatedDiagComms, "related-diag-comm-cycle", "is related to itself"},
};

std::string ChainText(VCycle const& cycle) {
    std::vector<std::string> names;
    for (NODX201::VReferencable const* const element : cycle.elements) {
        names.push_back(Titled(*element));
    }
    return "; walks that follow references do not end there: " + Listed(names);
}

void Report(VCycle const& cycle, std::vector<NODX201::VDiagLayer*> const& layers, VFindings& findings) {
    auto const* const text = std::find_if(std::begin(kCycleTexts), std::end(kCycleTexts),
                                          [&cycle](VCycleText const& row) { return row.kind == cycle.kind; });
    std::string const where = layers.empty() ? "" : ' ' + InLayers(layers, layers.size());
    findings.Add(
        {text->code, PositionOf(*cycle.reference),
         Titled(*cycle.elements.front()) + ' ' + text->leads + " by this reference" + where + ChainText(cycle)});
}

} // namespace

std::vector<VCycle> FindCycles(NMemory::VDatabase& database) { return VCycleFinder(database).Find(); }

void CheckCycles(VChecked const& checked, VFindings& findings) {
    std::vector<VCycle> const cycles = FindCycles(checked.database);
    std::unordered_map<NODX201::VLink const*, std::vector<NODX201::VDiagLayer*>> layers;
    for (VCycle const& cycle : cycles) {
        auto& of = layers[cycle.reference];
        if (cycle.layer != nullptr && (of.empty() || of.back() != cycle.layer)) {
            of.push_back(cycle.layer);
        }
    }
    std::unordered_set<NODX201::VLink const*> reported;
    for (VCycle const& cycle : cycles) {
        if (reported.insert(cycle.reference).second) {
            Report(cycle, layers[cycle.reference], findings);
        }
    }
}

} // namespace NCheck
