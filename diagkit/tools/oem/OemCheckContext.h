// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/tools/oem/OemReport.h>

namespace NDIAGKIT {

/// The input of the rules during one call: the database, and its layers by kind, in the order of containers and of
/// layers in them. The lists point into the model.
class VOemCheckContext {
public:
    explicit VOemCheckContext(NODX201::VOdx& odx);
    VOemCheckContext(VOemCheckContext const&) = delete;
    VOemCheckContext& operator=(VOemCheckContext const&) = delete;

    NODX201::VOdx& m_odx;
    std::list<NODX201::VProtocol*> m_protocols;
    std::list<NODX201::VFunctionalGroup*> m_functionalGroups;
    std::list<NODX201::VBaseVariant*> m_baseVariants;
    std::list<NODX201::VEcuVariant*> m_ecuVariants;
    std::list<NODX201::VEcuSharedData*> m_ecuSharedDatas;
    std::list<NODX201::VTeamMember*> m_teamMembers; ///< of all layers' COMPANY-DATAs
    VOemRuleReport* m_report = nullptr; ///< of the rule that is being evaluated; null when no report is being made
};

} // namespace NDIAGKIT
