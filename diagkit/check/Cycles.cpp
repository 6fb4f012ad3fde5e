// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Cycles.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/DopMeanings.h>
#include <diagkit/reader/Suspects.h>

namespace NCheck {
namespace {

using NReader::VEdge;
using NReader::VEdges;
using NReader::VEdgesOf;
using NReader::VFollow;
using NReader::VMayLead;
using NReader::VReferencables;

bool IsOfTable(NODX201::VReferencable const& element) {
    return dynamic_cast<NODX201::VTable const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VTableRow const*>(&element) != nullptr;
}

/// DOPs and TABLEs.
VReferencables ContainersIn(NMemory::VDatabase& database) {
    VReferencables containers = NReader::ContainersOf(database);
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

using VChain = NReader::VCycleSearch::VChain;

/// Data about a cycle in addition to its chain, of which each user needs another part.
struct VFoundCycle {
    VCycleKind kind;
    NODX201::VLink* reference;
    NReader::VSharedLayers layers;
};

class VCycleFinder {
public:
    using VFound = std::function<void(VFoundCycle const& cycle, VChain const& chain)>;

    VCycleFinder(NMemory::VDatabase& database, VFound found) : m_database(database), m_found(std::move(found)) {}

    void Find() {
        VReferencables const suspects = Suspects(ContainersIn(m_database));
        NReader::VDopsById byId;
        SearchById(suspects, Containing(byId));
        SearchById(DiagCommsOf(m_database), &RelatedEdges);
        FindByShortNames(suspects);
    }

private:
    void SearchById(VReferencables const& roots, VEdgesOf const& edgesOf) {
        NReader::VCycleSearch search(
            edgesOf, &NReader::IsReference,
            [this](VEdge const& closing, VChain const& chain) {
                m_inEveryLayer.insert(closing.link);
                m_found({KindOf(chain), closing.link, nullptr}, chain);
            },
            &IsOfTable);
        for (NODX201::VReferencable* const root : roots) {
            search.From(*root);
        }
    }

    void FindByShortNames(VReferencables const& containers) {
        VReferencables const suspects = containers.empty() ? containers : Suspects(containers);
        if (suspects.empty()) {
            return; // no layer has to be examined
        }
        NReader::VSuspects const known(suspects, VFollow::Tables);
        NReader::VDopMeanings const meanings(m_database, known.RelevantNames());
        for (NReader::VDopMeanings::VClass const* const meaning : meanings.Classes()) {
            SearchIn(*meaning, known.RootsIn(*meaning));
        }
    }

    void SearchIn(NReader::VDopMeanings::VClass const& meaning, VReferencables const& roots) {
        auto const layers = std::make_shared<std::vector<NODX201::VDiagLayer*> const>(meaning.Layers());
        NReader::VDopsOfClass dops(meaning);
        NReader::VCycleSearch search(
            Containing(dops), &NReader::IsByShortName,
            [&](VEdge const& closing, VChain const& chain) {
                dops.LeaveOut(*closing.link);
                m_found({KindOf(chain), closing.link, layers}, chain);
            },
            &IsOfTable);
        for (NODX201::VReferencable* const root : roots) {
            search.From(*root);
        }
    }

    /// Those that lead into a cycle other than the known ones, where a short name leads to every element with that
    /// name: nearly always none, and then nothing else is examined.
    VReferencables Suspects(VReferencables const& containers) const {
        return NReader::LeadingIntoCycles(containers,
                                          [this](NODX201::VReferencable& container) { return MayLeadFrom(container); });
    }

    VMayLead MayLeadFrom(NODX201::VReferencable& container) const {
        return NReader::MayLeadFrom(container, VFollow::Tables, m_inEveryLayer);
    }

    /// The ways of containment, without those that are known to close a cycle.
    VEdgesOf Containing(NDIAGKIT::IDopFinder& dops) const {
        return [this, &dops](NODX201::VReferencable& container) {
            VEdges edges = NReader::EdgesOf(container, VFollow::Tables, dops);
            edges.erase(std::remove_if(edges.begin(), edges.end(),
                                       [this](VEdge const& edge) { return m_inEveryLayer.count(edge.link) != 0; }),
                        edges.end());
            return edges;
        };
    }

    static VCycleKind KindOf(VChain const& chain) {
        if (dynamic_cast<NODX201::VDiagComm*>(&chain[0]) != nullptr) {
            return VCycleKind::RelatedDiagComms;
        }
        return chain.HasMarked() ? VCycleKind::TableRows : VCycleKind::Containment;
    }

    NMemory::VDatabase& m_database;
    NReader::VLinks m_inEveryLayer; ///< the references that close a cycle by ID
    VFound m_found;
};

struct VCycleText {
    VCycleKind kind;
    VCode code;
    char const* leads;
};

constexpr VCycleText kCycleTexts[] = {
    {VCycleKind::Containment, NReader::NCode::ContainmentCycle, "contains itself"},
    {VCycleKind::TableRows, NCode::TableRowCycle, "contains itself through a table"},
    {VCycleKind::RelatedDiagComms, NCode::RelatedDiagCommCycle, "is related to itself"},
};

/// One finding for each reference, however many layers read it and in however many ways.
class VCycleReport {
public:
    explicit VCycleReport(NMemory::VDatabase& database) : m_database(database) {}

    void Add(VFoundCycle const& cycle, VChain const& chain) {
        auto const [place, isNew] = m_places.try_emplace(cycle.reference, m_entries.size());
        if (isNew) {
            auto const* const text = std::find_if(std::begin(kCycleTexts), std::end(kCycleTexts),
                                                  [&cycle](VCycleText const& row) { return row.kind == cycle.kind; });
            m_entries.push_back({text->code,
                                 cycle.reference,
                                 Titled(chain[0]) + ' ' + text->leads,
                                 "; programs that follow references may not terminate: " + ListedIn(chain),
                                 {}});
        }
        if (cycle.layers != nullptr) {
            m_entries[place->second].layers.push_back(cycle.layers);
        }
    }

    void Tell(VFindings& findings) const {
        std::vector<NODX201::VDiagLayer*> const all = LayersOf(m_database);
        for (VEntry const& entry : m_entries) {
            std::string const where = entry.layers.empty() ? "" : ' ' + InLayers(entry.layers, all);
            findings.Add(PositionOf(*entry.reference), entry.code,
                         entry.leads + " by this reference" + where + entry.chain);
        }
    }

private:
    struct VEntry {
        VCode code;
        NODX201::VLink* reference;
        std::string leads;
        std::string chain;
        std::vector<NReader::VSharedLayers> layers;
    };

    NMemory::VDatabase& m_database;
    std::vector<VEntry> m_entries;
    std::unordered_map<NODX201::VLink const*, std::size_t> m_places; // in `m_entries`
};

} // namespace

std::vector<VCycle> FindCycles(NMemory::VDatabase& database) {
    std::vector<VCycle> cycles;
    VCycleFinder finder(database, [&cycles](VFoundCycle const& found, VChain const& chain) {
        VCycle& cycle = cycles.emplace_back(VCycle{found.kind, {}, found.reference, found.layers});
        for (std::size_t index = 0; index < chain.Count(); ++index) {
            cycle.elements.push_back(&chain[index]);
        }
    });
    finder.Find();
    return cycles;
}

void CheckCycles(VChecked const& checked, VFindings& findings) {
    VCycleReport report(checked.database);
    VCycleFinder finder(checked.database,
                        [&report](VFoundCycle const& cycle, VChain const& chain) { report.Add(cycle, chain); });
    finder.Find();
    report.Tell(findings);
}

} // namespace NCheck
