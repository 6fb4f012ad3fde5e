// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Cycles.h>

#include <map>
#include <memory>
#include <string>

#include <diagkit/reader/Containment.h>
#include <diagkit/reader/DopMeanings.h>
#include <diagkit/reader/Naming.h>
#include <diagkit/reader/Suspects.h>

namespace NReader {
namespace {

VReferencables Suspects(VReferencables const& containers) {
    return LeadingIntoCycles(
        containers, [](NODX201::VReferencable& container) { return MayLeadFrom(container, VFollow::Dops, {}); });
}

void Report(VReading& reading, VEdge const& severed, std::string const& where) {
    reading.findings.Add(PositionOf(*severed.link), NCode::ContainmentCycle,
                         Titled(*severed.target) + " contains itself through this reference" + where +
                             ", which is left unresolved" + (where.empty() ? "" : " there"));
}

template <class... Links>
void SeverAnyOf(NODX201::VLink& link) {
    auto const sever = [](auto* known) {
        if (known != nullptr) {
            known->Sever();
        }
    };
    (sever(dynamic_cast<Links*>(&link)), ...);
}

/// Follows references by ID only.
void SearchByIds(VReading& reading, VReferencables const& containers) {
    VDopsById dops;
    auto const edgesOf = [&dops](NODX201::VReferencable& container) { return EdgesOf(container, VFollow::Dops, dops); };
    VCycleSearch search(edgesOf, &IsReference, [&reading](VEdge const& closing, VCycleSearch::VChain const&) {
        SeverAnyOf<NMemory::VMemDopBaseLink, NMemory::VMemStructureLink, NMemory::VMemBasicStructureLink,
                   NMemory::VMemEnvDataDescLink, NMemory::VMemEnvDataLink, NMemory::VMemDynEndDopRef>(*closing.link);
        Report(reading, closing, "");
    });
    for (NODX201::VReferencable* const container : containers) {
        search.From(*container);
    }
}

/// Follows short names as well, to their targets in each class of layers, and severs only these.
class VSearchByShortNames {
public:
    VSearchByShortNames(VReading& reading, VReferencables const& suspects)
        : m_reading(reading), m_suspects(suspects, VFollow::Dops) {}

    void Search() {
        VDopMeanings const meanings(*m_reading.database, m_suspects.RelevantNames());
        for (VDopMeanings::VClass const* const meaning : meanings.Classes()) {
            SearchIn(*meaning);
        }
        std::vector<NODX201::VDiagLayer*> const all = LayersOf(*m_reading.database);
        for (VSevered const& severed : m_severed) {
            Report(m_reading, severed.edge, ' ' + InLayers(severed.layers, all));
        }
    }

private:
    struct VSevered {
        VEdge edge;
        std::vector<VSharedLayers> layers;
    };

    void SearchIn(VDopMeanings::VClass const& meaning) {
        NMemory::VSeveredLayers layers;
        for (NODX201::VDiagLayer* const layer : meaning.Layers()) {
            layers.Add(*layer);
        }
        auto const shared = std::make_shared<std::vector<NODX201::VDiagLayer*> const>(meaning.Layers());
        VDopsOfClass dops(meaning);
        auto const edgesOf = [&dops](NODX201::VReferencable& container) {
            return EdgesOf(container, VFollow::Dops, dops);
        };
        VCycleSearch search(edgesOf, &IsByShortName, [&](VEdge const& closing, VCycleSearch::VChain const&) {
            dynamic_cast<NMemory::VMemDopBaseLink&>(*closing.link).SeverIn(layers);
            Note(closing, shared);
        });
        for (NODX201::VReferencable* const root : m_suspects.RootsIn(meaning)) {
            search.From(*root);
        }
    }

    void Note(VEdge const& closing, VSharedLayers const& layers) {
        auto const [place, isNew] = m_places.try_emplace({closing.link, closing.target}, m_severed.size());
        if (isNew) {
            m_severed.push_back({closing, {}});
        }
        m_severed[place->second].layers.push_back(layers);
    }

    VReading& m_reading;
    VSuspects m_suspects;
    std::vector<VSevered> m_severed;
    std::map<std::pair<NODX201::VLink*, NODX201::VReferencable*>, std::size_t> m_places; // in `m_severed`
};

} // namespace

void SeverContainmentCycles(VReading& reading) {
    VReferencables const leading = Suspects(ContainersOf(*reading.database));
    if (leading.empty()) {
        return;
    }
    SearchByIds(reading, leading);
    VReferencables const suspects = Suspects(leading);
    if (!suspects.empty()) {
        VSearchByShortNames(reading, suspects).Search();
    }
}

} // namespace NReader
