// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/BmwHeuristic.h>

#include <diagkit/model/ParentRefs.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/LayerDops.h>
#include <diagkit/tools/oem/OwnDiagComms.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

template <class Element>
bool IsIdTheOid(VOemCheckContext const& context, Element& element) {
    std::wstring_view const oid = OidOf(element);
    if (oid == element.GetId()) {
        return true;
    }
    return No(context, [&element, oid] {
        return VOemReason{L"an ID that is the OID", Stated(L"ID", element.GetId()) + L" and " + Stated(L"OID", oid),
                          &element};
    });
}

bool AreIdsOfDopsTheOids(VOemCheckContext const& context, NODX201::VDiagLayer& layer) {
    NODX201::VDopBaseCollection* const dops = DopsOf(layer);
    return dops == nullptr || AllOf(*dops, [&context](NODX201::VDopBase& dop) { return IsIdTheOid(context, dop); });
}

bool IsNameOfBmw(std::wstring_view longName) {
    return EqualsIgnoringCase(longName, L"BMW AG") || EqualsIgnoringCase(longName, L"BMW") ||
           EqualsIgnoringCase(longName, L"Bayerische Motorenwerke");
}

bool IsManufacturerAlone(NODX201::VStringCollection& roles) {
    return roles.Count() == 1 && EqualsIgnoringCase(*roles.Begin(), L"MANUFACTURER");
}

bool IsCalledBmw(NODX201::VCompanyData& company) { return ContainsIgnoringCase(company.GetShortName(), L"BMW"); }

bool IsManufacturerBmw(NODX201::VCompanyData& company) {
    return IsNameOfBmw(LongNameOf(company)) && IsManufacturerAlone(company.RoleCollection());
}

/// Why a COMPANY-DATA with the name BMW does not match.
std::wstring NameAndRolesOf(NODX201::VCompanyData& company) {
    VListing roles;
    for (std::wstring const& role : company.RoleCollection()) {
        roles.Add(Quoted(role));
    }
    return Stated(L"long name", LongNameOf(company)) + L" and " + roles.As(L"role");
}

constexpr wchar_t const* kCompanyOfBmw = L"a COMPANY-DATA called BMW with the long name 'BMW', 'BMW AG' or "
                                         L"'Bayerische Motorenwerke' and the one role 'MANUFACTURER'";

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

constexpr std::wstring_view kPrimaryMux = L"PRIM_DTC_MUX";
constexpr std::wstring_view kSecondaryMux = L"SEC_DTC_MUX";

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
    VOemCheckContext const& context = *mpContext;
    auto const isMadeOfOid = [&context](auto* layer) { return IsIdTheOid(context, *layer); };
    auto const isMadeOfOids = [&context](auto* layer) {
        return IsIdTheOid(context, *layer) && AreIdsOfDopsTheOids(context, *layer);
    };
    return AllOf(context.m_baseVariants, isMadeOfOids) && AllOf(context.m_protocols, isMadeOfOid) &&
           AllOf(context.m_ecuVariants, isMadeOfOids) &&
           Yes(context,
               !context.m_baseVariants.empty() || !context.m_protocols.empty() || !context.m_ecuVariants.empty());
}

bool VBmwEcuSharedDataRule::Matches() {
    NODX201::VCompanyData* called = nullptr; // the first with the name BMW
    auto const isBmw = [&called](NODX201::VCompanyData& company) {
        if (!IsCalledBmw(company)) {
            return false;
        }
        called = called == nullptr ? &company : called;
        return IsManufacturerBmw(company);
    };
    auto const& layers = mpContext->m_ecuSharedDatas;
    bool const isThere = AnyOf(layers, [&isBmw](auto* layer) { return AnyOf(layer->CompanyDataCollection(), isBmw); });
    if (isThere) {
        return true;
    }
    return No(*mpContext, [&] {
        return called != nullptr ? VOemReason{kCompanyOfBmw, NameAndRolesOf(*called), called}
                                 : VOemReason{kCompanyOfBmw, LookedAt(L"none", layers.size(), L"ECU-SHARED-DATA")};
    });
}

bool VBmwProtocolRule::Matches() {
    bool isFound = false;
    auto const& protocols = mpContext->m_protocols;
    for (NODX201::VProtocol* const protocol : protocols) {
        isFound = HasBmwServiceLibrary(*protocol) || isFound;
        if (!HasNoOwnDiagComms(*mpContext, *protocol)) {
            return false;
        }
    }
    if (isFound) {
        return true;
    }
    return No(*mpContext, [&protocols] {
        return VOemReason{L"a PROTOCOL that inherits from the ECU-SHARED-DATA 'ISO_14229_SERVICES_BMW' or "
                          L"'ISO_14230_SERVICES_BMW'",
                          LookedAt(L"none", protocols.size(), L"PROTOCOL")};
    });
}

bool VBmwEcuSharedDataRuleNew::Matches() {
    auto const& layers = mpContext->m_ecuSharedDatas;
    bool const isThere =
        AnyOf(layers, [](auto* layer) { return EqualsIgnoringCase(layer->GetShortName(), L"BMW_LIB"); });
    if (isThere) {
        return true;
    }
    return No(*mpContext, [&layers] {
        return VOemReason{L"the ECU-SHARED-DATA 'BMW_LIB'", Named(layers, L"ECU-SHARED-DATA")};
    });
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
            isPrimaryFound = isPrimaryFound || EqualsIgnoringCase(dop.GetShortName(), kPrimaryMux);
            isSecondaryFound = isSecondaryFound || EqualsIgnoringCase(dop.GetShortName(), kSecondaryMux);
            if (isPrimaryFound && isSecondaryFound) {
                return true;
            }
        }
    }
    return No(*mpContext, [&] {
        return VOemReason{L"the MUXes " + Quoted(kPrimaryMux) + L" and " + Quoted(kSecondaryMux),
                          LookedAt(OneOfTwo(kPrimaryMux, isPrimaryFound, kSecondaryMux, isSecondaryFound),
                                   mpContext->m_functionalGroups.size(), L"FUNCTIONAL-GROUP")};
    });
}

} // namespace NDIAGKIT
