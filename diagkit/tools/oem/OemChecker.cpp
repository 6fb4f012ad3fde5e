// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/OemChecker.h>

#include <diagkit/tools/oem/AudiVwHeuristic.h>
#include <diagkit/tools/oem/BmwHeuristic.h>
#include <diagkit/tools/oem/ClaasHeuristic.h>
#include <diagkit/tools/oem/DaimlerHeuristic.h>
#include <diagkit/tools/oem/FiatHeuristic.h>
#include <diagkit/tools/oem/GmHeuristic.h>
#include <diagkit/tools/oem/PSAHeuristic.h>
#include <diagkit/tools/oem/PagHeuristic.h>

namespace NDIAGKIT {

/// One call: the context and its heuristics, which are in the registry for the duration of the call.
class VOemChecker::VRun {
public:
    VRun(VRegistry& registry, NODX201::VOdx& odx) : m_registry(registry), m_context(odx) {}

    ~VRun() {
        m_registry.clear();
        while (!m_heuristics.empty()) {
            m_heuristics.pop_back();
        }
    }

    VRun(VRun const&) = delete;
    VRun& operator=(VRun const&) = delete;

    /// Not in the constructor, so that after an exception here the destructor cleans up.
    void CreateHeuristics() {
        Create<VGmHeuristic>(VManufacturer::Gm);
        Create<VPagHeuristic>(VManufacturer::Pag);
        Create<VDaimlerHeuristic>(VManufacturer::Daimler);
        Create<VFiatHeuristic>(VManufacturer::Fiat);
        Create<VAudiVwHeuristic>(VManufacturer::AudiVw);
        Create<VBmwHeuristic>(VManufacturer::Bmw);
        Create<VBmwHeuristicNew>(VManufacturer::Bmw);
        Create<VClaasHeuristic>(VManufacturer::Claas);
        Create<VPSAHeuristic>(VManufacturer::Psa);
    }

private:
    template <class Heuristic>
    void Create(VManufacturer manufacturer) {
        VHeuristic& heuristic = *m_heuristics.emplace_back(std::make_unique<Heuristic>(&m_context));
        heuristic.CreateRules();
        m_registry.emplace(manufacturer, &heuristic); // after those of the same manufacturer
    }

    VRegistry& m_registry;
    VOemCheckContext m_context;
    std::list<std::unique_ptr<VHeuristic>> m_heuristics;
};

namespace {

/// The manufacturer that follows from the heuristics that match.
class VDecision {
public:
    void AddMatch(VManufacturer manufacturer) {
        m_manufacturer = m_matches == 0 ? manufacturer : VManufacturer::Unknown;
        ++m_matches;
    }

    bool IsAmbiguous() const { return m_matches > 1; }
    VManufacturer GetManufacturer() const { return m_manufacturer; }

private:
    VManufacturer m_manufacturer = VManufacturer::Unknown;
    int m_matches = 0;
};

} // namespace

VOemChecker::VOemChecker() : mpRegistry(std::make_unique<VRegistry>()) {}

VOemChecker::~VOemChecker() = default;

VManufacturer VOemChecker::GetManufacturer(NODX201::VOdx& odx) {
    VRun run(*mpRegistry, odx);
    run.CreateHeuristics();
    VDecision decision;
    for (auto const& [manufacturer, heuristic] : *mpRegistry) {
        if (heuristic->Matches()) {
            decision.AddMatch(manufacturer);
        }
        if (decision.IsAmbiguous()) {
            break;
        }
    }
    return decision.GetManufacturer();
}

VOemReport VOemChecker::Report(NODX201::VOdx& odx) {
    VRun run(*mpRegistry, odx);
    run.CreateHeuristics();
    VDecision decision;
    VOemReport report{VManufacturer::Unknown, {}};
    for (auto const& [manufacturer, heuristic] : *mpRegistry) {
        VOemHeuristicReport& entry = report.heuristics.emplace_back(heuristic->Report());
        entry.manufacturer = manufacturer;
        if (entry.matches) {
            decision.AddMatch(manufacturer);
        }
    }
    report.manufacturer = decision.GetManufacturer();
    return report;
}

} // namespace NDIAGKIT
