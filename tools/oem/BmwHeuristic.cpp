// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/BmwHeuristic.h>

#include <diagkit/model/ParentRefs.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/LayerDops.h>
#include <diagkit/tools/oem/OwnDiagComms.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

namespace NDIAGKIT {
namespace {

template <class Element>
bool IsIdTheOid(Element& element) {
    return OidOf(element) == element.GetId();
}

bool AreIdsOfDopsTheOids(NODX201::VDiagLayer& layer) {
    NODX201::VDopBaseCollection* const dops = DopsOf(layer);
    return dops == nullptr || AllOf(*dops, &IsIdTheOid<NODX201::VDopBase>);
}

bool IsNameOfBmw(std::wstring_view longName) {
    return EqualsIgnoringCase(longName, L"BMW AG") || EqualsIgnoringCase(longName, L"BMW") ||
           EqualsIgnoringCase(longName, L"Bayerische Motorenwerke");
}

bool IsManufacturerAlone(NODX201::VStringCollection& roles) {
    return roles.Count() == 1 && EqualsIgnoringCase(*roles.Begin(), L"MANUFACTURER");
}

bool IsBmw(NODX201::VCompanyData& company) {
    return ContainsIgnoringCase(company.GetShortName(), L"BMW") && IsNameOfBmw(LongNameOf(company)) &&
           IsManufacturerAlone(company.RoleCollection());
}

bool IsBmwServiceLibrary(NODX201::VParentRef& parentRef) {
    auto* const reference = dynamic_cast<NODX201::VEcuSharedDataRef*>(&parentRef);
    if (reference == nullptr || !reference->HasEcuSharedData()) {
        return false;
    }
    std::wstring_view const name = reference->GetEcuSharedData().GetShortName();
    return EqualsIgnoringCase(name, L"ISO_14229_SERVICES_BMW") || EqualsIgnoringCase(name, L"ISO_14230_SERVICES_BMW");
}

bool HasBmwServiceLibrary(NODX201::VProtocol& protocol) {
    return protocol.HasParentRefCollection() && AnyOf(protocol.ParentRefCollection(), &IsBmwServiceLibrary);
}

} // namespace

void VBmwHeuristic::CreateRules() {
    Add<VBmwIdRule>();
    Add<VBmwEcuSharedDataRule>();
    Add<VBmwProtocolRule>();
    Add<VProcessingInstructionRule>(L"10");
}

void VBmwHeuristicNew::CreateRules() {
    Add<VBmwIdRule>();
    Add<VBmwEcuSharedDataRuleNew>();
    Add<VBmwFunctionalGroupRule>();
    Add<VProcessingInstructionRule>(L"10");
}

bool VBmwIdRule::Matches() {
    auto const isMadeOfOids = [](auto* layer) { return IsIdTheOid(*layer) && AreIdsOfDopsTheOids(*layer); };
    return AllOf(mpContext->m_baseVariants, isMadeOfOids) &&
           AllOf(mpContext->m_protocols, [](NODX201::VProtocol* protocol) { return IsIdTheOid(*protocol); }) &&
           AllOf(mpContext->m_ecuVariants, isMadeOfOids);
}

bool VBmwEcuSharedDataRule::Matches() {
    return AnyOf(mpContext->m_ecuSharedDatas,
                 [](NODX201::VEcuSharedData* layer) { return AnyOf(layer->CompanyDataCollection(), &IsBmw); });
}

bool VBmwProtocolRule::Matches() {
    bool isFound = false;
    for (NODX201::VProtocol* const protocol : mpContext->m_protocols) {
        isFound = HasBmwServiceLibrary(*protocol) || isFound;
        if (HasOwnDiagComms(*protocol)) {
            return false;
        }
    }
    return isFound;
}

bool VBmwEcuSharedDataRuleNew::Matches() {
    return AnyOf(mpContext->m_ecuSharedDatas,
                 [](NODX201::VEcuSharedData* layer) { return EqualsIgnoringCase(layer->GetShortName(), L"BMW_LIB"); });
}

bool VBmwFunctionalGroupRule::Matches() {
    bool isPrimaryFound = false;
    bool isSecondaryFound = false;
    for (NODX201::VFunctionalGroup* const group : mpContext->m_functionalGroups) {
        NODX201::VDopBaseCollection* const dops = DopsOf(*group);
        if (dops == nullptr) {
            continue;
        }
        for (NODX201::VDopBase& dop : *dops) {
            if (dynamic_cast<NODX201::VMux*>(&dop) == nullptr) {
                continue;
            }
            isPrimaryFound = isPrimaryFound || EqualsIgnoringCase(dop.GetShortName(), L"PRIM_DTC_MUX");
            isSecondaryFound = isSecondaryFound || EqualsIgnoringCase(dop.GetShortName(), L"SEC_DTC_MUX");
            if (isPrimaryFound && isSecondaryFound) {
                return true;
            }
        }
    }
    return false;
}

} // namespace NDIAGKIT
