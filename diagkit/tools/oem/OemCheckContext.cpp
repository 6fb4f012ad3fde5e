// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/OemCheckContext.h>

namespace NDIAGKIT {
namespace {

template <class Visit>
void ForEachLayer(NODX201::VOdx& odx, Visit visit) {
    for (NODX201::VDiagLayerContainer& container : odx.DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            visit(layer);
        }
    }
}

template <class Layer>
void Collect(NODX201::VOdx& odx, std::list<Layer*>& list) {
    ForEachLayer(odx, [&list](NODX201::VDiagLayer& layer) {
        if (auto* const found = dynamic_cast<Layer*>(&layer)) {
            list.push_back(found);
        }
    });
}

void CollectTeamMembers(NODX201::VDiagLayer& layer, std::list<NODX201::VTeamMember*>& list) {
    for (NODX201::VCompanyData& company : layer.CompanyDataCollection()) {
        for (NODX201::VTeamMember& member : company.TeamMemberCollection()) {
            list.push_back(&member);
        }
    }
}

} // namespace

VOemCheckContext::VOemCheckContext(NODX201::VOdx& odx) : m_odx(odx) {
    Collect(odx, m_protocols);
    Collect(odx, m_functionalGroups);
    Collect(odx, m_baseVariants);
    Collect(odx, m_ecuVariants);
    Collect(odx, m_ecuSharedDatas);
    ForEachLayer(odx, [this](NODX201::VDiagLayer& layer) { CollectTeamMembers(layer, m_teamMembers); });
}

} // namespace NDIAGKIT
