// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/BmwHeuristic.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VBmwEcuSharedDataRule;
using NDIAGKIT::VBmwEcuSharedDataRuleNew;
using NDIAGKIT::VBmwFunctionalGroupRule;
using NDIAGKIT::VBmwIdRule;
using NDIAGKIT::VBmwProtocolRule;

class BmwHeuristicTest : public VOemTest {
protected:
    /// A layer with a DOP, its ID or the DOP's other than the OID.
    template <class Layer>
    void ExpectChecked(Layer& layer, bool areDopsChecked) {
        Identify(layer, L"Layer", L"Layer");
        NMemory::VMemDtcDop& dop = layer.MakeDiagDataDictionarySpec().AddDtcDop(L"Dop");
        Identify(dop, L"Dop", L"Dop");
        EXPECT_TRUE(Matches<VBmwIdRule>());
        dop.SetOid(L"dop");
        EXPECT_EQ(Matches<VBmwIdRule>(), !areDopsChecked) << "exact in its case";
        dop.SetOid(L"");
        EXPECT_EQ(Matches<VBmwIdRule>(), !areDopsChecked);
        dop.SetOid(L"Dop");
        layer.SetOid(L"layer");
        EXPECT_FALSE(Matches<VBmwIdRule>());
        layer.SetOid(L"");
        EXPECT_FALSE(Matches<VBmwIdRule>());
        layer.SetOid(L"Layer");
        EXPECT_TRUE(Matches<VBmwIdRule>());
    }

    NMemory::VMemCompanyData& AddBmw(wchar_t const* longName = L"BMW AG") {
        NMemory::VMemCompanyData& company = m_container.AddEcuSharedData(L"Shared").AddCompanyData(L"BMW_Group");
        company.SetLongName(longName);
        company.AddRole(L"Manufacturer");
        return company;
    }

    NMemory::VMemProtocol& AddProtocolOver(wchar_t const* library) {
        NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Protocol");
        protocol.AddParentRef(m_container.AddEcuSharedData(library));
        return protocol;
    }

    NMemory::VMemMux& AddMux(NMemory::VMemFunctionalGroup& group, wchar_t const* name) {
        return group.MakeDiagDataDictionarySpec().AddMux(name);
    }
};

// VBmwIdRule

TEST_F(BmwHeuristicTest, WithoutLayersTheIdRuleHolds) { EXPECT_TRUE(Matches<VBmwIdRule>()); }

TEST_F(BmwHeuristicTest, TheIdOfABaseVariantAndOfItsDopsIsTheOid) {
    ExpectChecked(m_container.AddBaseVariant(L"Variant"), true);
}

TEST_F(BmwHeuristicTest, TheIdOfAnEcuVariantAndOfItsDopsIsTheOid) {
    ExpectChecked(m_container.AddEcuVariant(L"Variant"), true);
}

TEST_F(BmwHeuristicTest, TheIdOfAProtocolIsTheOidAndItsDopsAreNotLookedAt) {
    ExpectChecked(m_container.AddProtocol(L"Protocol"), false);
}

TEST_F(BmwHeuristicTest, TheIdsOfOtherLayersAreNotLookedAt) {
    Identify(m_container.AddFunctionalGroup(L"Group"), L"Group", L"1");
    Identify(m_container.AddEcuSharedData(L"Shared"), L"Shared", L"2");
    EXPECT_TRUE(Matches<VBmwIdRule>());
}

TEST_F(BmwHeuristicTest, WithoutIdAndOidTheyAreEqual) {
    m_container.AddBaseVariant(L"Variant");
    EXPECT_TRUE(Matches<VBmwIdRule>());
}

TEST_F(BmwHeuristicTest, OneOfManyDopsMakesTheIdRuleFail) {
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Variant");
    for (int number = 0; number < 5; ++number) {
        Identify(variant.MakeDiagDataDictionarySpec().AddStructure(L"Dop"), L"Dop", L"Dop");
    }
    EXPECT_TRUE(Matches<VBmwIdRule>());
    Identify(variant.MakeDiagDataDictionarySpec().AddMux(L"Last"), L"Last", L"Other");
    EXPECT_FALSE(Matches<VBmwIdRule>());
}

// VBmwEcuSharedDataRule

TEST_F(BmwHeuristicTest, WithoutEcuSharedDataTheirRuleFails) {
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>());
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRuleNew>());
}

TEST_F(BmwHeuristicTest, ACompanyDataNamesBmwAsManufacturer) {
    NMemory::VMemCompanyData& company = AddBmw();
    EXPECT_TRUE(Matches<VBmwEcuSharedDataRule>());
    company.AddRole(L"Supplier");
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>()) << "a second role";
}

TEST_F(BmwHeuristicTest, TheCompanyDataHasARole) {
    NMemory::VMemCompanyData& company = m_container.AddEcuSharedData(L"Shared").AddCompanyData(L"BMW");
    company.SetLongName(L"BMW");
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>());
    company.AddRole(L"MANUFACTURER");
    EXPECT_TRUE(Matches<VBmwEcuSharedDataRule>());
}

TEST_F(BmwHeuristicTest, TheRoleIsThatOfTheManufacturerInAnyCase) {
    for (auto const& [role, answer] : std::initializer_list<std::pair<wchar_t const*, bool>>{
             {L"mAnUfAcTuReR", true}, {L"MANUFACTURERS", false}, {L"OEM", false}, {L"", false}}) {
        NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"Shared");
        NMemory::VMemCompanyData& company = layer.AddCompanyData(L"BMW");
        company.SetLongName(L"BMW");
        company.AddRole(role);
        EXPECT_EQ(Matches<VBmwEcuSharedDataRule>(), answer) << testing::PrintToString(role);
        delete &layer;
    }
}

TEST_F(BmwHeuristicTest, TheShortNameOfTheCompanyDataContainsBmwInAnyCase) {
    NMemory::VMemCompanyData& company = AddBmw();
    for (wchar_t const* const name : {L"BMW", L"The_bmw_Group", L"xBmW"}) {
        company.SetShortName(name);
        EXPECT_TRUE(Matches<VBmwEcuSharedDataRule>()) << testing::PrintToString(name);
    }
    for (wchar_t const* const name : {L"", L"BM", L"B_M_W", L"BBMMWW"}) {
        company.SetShortName(name);
        EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>()) << testing::PrintToString(name);
    }
}

TEST_F(BmwHeuristicTest, TheLongNameOfTheCompanyDataIsOneOfThree) {
    NMemory::VMemCompanyData& company = AddBmw();
    for (wchar_t const* const name : {L"BMW AG", L"bmw ag", L"BMW", L"Bayerische Motorenwerke"}) {
        company.SetLongName(name);
        EXPECT_TRUE(Matches<VBmwEcuSharedDataRule>()) << testing::PrintToString(name);
    }
    for (wchar_t const* const name : {L"", L"BMW AG ", L"BMW  AG", L"BMW Group", L"Bayerische Motorenwerke AG"}) {
        company.SetLongName(name);
        EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>()) << testing::PrintToString(name);
    }
}

TEST_F(BmwHeuristicTest, WithoutLongNameACompanyDataDoesNotQualify) {
    m_container.AddEcuSharedData(L"Shared").AddCompanyData(L"BMW").AddRole(L"MANUFACTURER");
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>());
}

TEST_F(BmwHeuristicTest, OneCompanyDataOfOneEcuSharedDataIsEnough) {
    m_container.AddEcuSharedData(L"First").AddCompanyData(L"Supplier");
    AddBmw();
    EXPECT_TRUE(Matches<VBmwEcuSharedDataRule>());
}

TEST_F(BmwHeuristicTest, CompanyDatasOfOtherLayersDoNotCount) {
    m_container.AddEcuSharedData(L"Shared");
    NMemory::VMemCompanyData& company = m_container.AddBaseVariant(L"Variant").AddCompanyData(L"BMW");
    company.SetLongName(L"BMW");
    company.AddRole(L"MANUFACTURER");
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRule>());
}

// VBmwProtocolRule

TEST_F(BmwHeuristicTest, WithoutProtocolsTheProtocolRuleFails) {
    m_container.AddEcuSharedData(L"ISO_14229_SERVICES_BMW");
    EXPECT_FALSE(Matches<VBmwProtocolRule>());
}

TEST_F(BmwHeuristicTest, AProtocolInheritsFromALibraryOfBmwServices) {
    AddProtocolOver(L"ISO_14229_SERVICES_BMW");
    EXPECT_TRUE(Matches<VBmwProtocolRule>());
}

TEST_F(BmwHeuristicTest, TheLibraryMayBeTheOtherOneInAnyCase) {
    AddProtocolOver(L"iso_14230_Services_BMW");
    EXPECT_TRUE(Matches<VBmwProtocolRule>());
}

TEST_F(BmwHeuristicTest, AnotherLibraryIsNoneOfBmw) {
    AddProtocolOver(L"ISO_14229_SERVICES_BMW_2");
    m_container.AddEcuSharedData(L"ISO_14229_SERVICES_BMW");
    EXPECT_FALSE(Matches<VBmwProtocolRule>()) << "there is one, but nobody inherits from it";
}

TEST_F(BmwHeuristicTest, AReferenceThatDoesNotResolveIsNone) {
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Protocol");
    protocol.AddParentRef(NMemory::VParentRefKind::EcuSharedData, NMemory::VReference::ById(L"absent"));
    EXPECT_FALSE(Matches<VBmwProtocolRule>());
    protocol.AddParentRef(m_container.AddEcuSharedData(L"ISO_14229_SERVICES_BMW"));
    EXPECT_TRUE(Matches<VBmwProtocolRule>()) << "further references are looked at";
}

TEST_F(BmwHeuristicTest, AParentOfAnotherKindIsNoLibrary) {
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Protocol");
    protocol.AddParentRef(m_container.AddProtocol(L"ISO_14229_SERVICES_BMW"));
    EXPECT_FALSE(Matches<VBmwProtocolRule>());
}

TEST_F(BmwHeuristicTest, OneProtocolOfSeveralIsEnough) {
    m_container.AddProtocol(L"First");
    AddProtocolOver(L"ISO_14229_SERVICES_BMW");
    m_container.AddProtocol(L"Last");
    EXPECT_TRUE(Matches<VBmwProtocolRule>());
}

TEST_F(BmwHeuristicTest, EveryProtocolIsFreeOfDiagComms) {
    AddProtocolOver(L"ISO_14229_SERVICES_BMW");
    m_container.AddProtocol(L"Last").AddDiagService(L"Service");
    EXPECT_FALSE(Matches<VBmwProtocolRule>());
}

TEST_F(BmwHeuristicTest, TheProtocolOverTheLibraryIsFreeOfDiagCommsToo) {
    AddProtocolOver(L"ISO_14229_SERVICES_BMW").AddDiagService(L"Service");
    EXPECT_FALSE(Matches<VBmwProtocolRule>());
}

// VBmwEcuSharedDataRuleNew

TEST_F(BmwHeuristicTest, AnEcuSharedDataIsNamedBmwLibInAnyCase) {
    m_container.AddEcuSharedData(L"First");
    NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"BMW_LIB");
    EXPECT_TRUE(Matches<VBmwEcuSharedDataRuleNew>());
    layer.SetShortName(L"bmw_Lib");
    EXPECT_TRUE(Matches<VBmwEcuSharedDataRuleNew>());
    for (wchar_t const* const name : {L"BMW_LIB_2", L"BMW_LI", L"_BMW_LIB", L""}) {
        layer.SetShortName(name);
        EXPECT_FALSE(Matches<VBmwEcuSharedDataRuleNew>()) << testing::PrintToString(name);
    }
}

TEST_F(BmwHeuristicTest, ALayerOfAnotherKindIsNoBmwLib) {
    m_container.AddEcuSharedData(L"Shared");
    m_container.AddBaseVariant(L"BMW_LIB");
    EXPECT_FALSE(Matches<VBmwEcuSharedDataRuleNew>());
}

// VBmwFunctionalGroupRule

TEST_F(BmwHeuristicTest, WithoutFunctionalGroupsTheirRuleFails) { EXPECT_FALSE(Matches<VBmwFunctionalGroupRule>()); }

TEST_F(BmwHeuristicTest, WithoutDictionariesTheFunctionalGroupRuleFails) {
    m_container.AddFunctionalGroup(L"Group");
    EXPECT_FALSE(Matches<VBmwFunctionalGroupRule>());
}

TEST_F(BmwHeuristicTest, BothMuxesInOneFunctionalGroup) {
    NMemory::VMemFunctionalGroup& group = m_container.AddFunctionalGroup(L"Group");
    AddMux(group, L"sec_dtc_mux");
    EXPECT_FALSE(Matches<VBmwFunctionalGroupRule>());
    AddMux(group, L"Prim_Dtc_Mux");
    EXPECT_TRUE(Matches<VBmwFunctionalGroupRule>()) << "in any case and order";
}

TEST_F(BmwHeuristicTest, TheMuxesInTwoFunctionalGroups) {
    AddMux(m_container.AddFunctionalGroup(L"One"), L"PRIM_DTC_MUX");
    m_container.AddFunctionalGroup(L"Without");
    AddMux(m_container.AddFunctionalGroup(L"Other"), L"SEC_DTC_MUX");
    EXPECT_TRUE(Matches<VBmwFunctionalGroupRule>());
}

TEST_F(BmwHeuristicTest, OneMuxTwiceIsNotBoth) {
    NMemory::VMemFunctionalGroup& group = m_container.AddFunctionalGroup(L"Group");
    AddMux(group, L"PRIM_DTC_MUX");
    AddMux(group, L"PRIM_DTC_MUX");
    AddMux(group, L"SEC_DTC_MUX_2");
    EXPECT_FALSE(Matches<VBmwFunctionalGroupRule>());
}

TEST_F(BmwHeuristicTest, ADopOfAnotherKindIsNoMux) {
    NMemory::VMemFunctionalGroup& group = m_container.AddFunctionalGroup(L"Group");
    AddMux(group, L"PRIM_DTC_MUX");
    group.MakeDiagDataDictionarySpec().AddStructure(L"SEC_DTC_MUX");
    EXPECT_FALSE(Matches<VBmwFunctionalGroupRule>());
}

TEST_F(BmwHeuristicTest, MuxesOfOtherLayersDoNotCount) {
    AddMux(m_container.AddFunctionalGroup(L"Group"), L"PRIM_DTC_MUX");
    m_container.AddBaseVariant(L"Variant").MakeDiagDataDictionarySpec().AddMux(L"SEC_DTC_MUX");
    EXPECT_FALSE(Matches<VBmwFunctionalGroupRule>());
}

// The heuristics

TEST_F(BmwHeuristicTest, TheOlderLayoutAnswersBmw) {
    AddBmw();
    AddProtocolOver(L"ISO_14229_SERVICES_BMW");
    EXPECT_TRUE(HeuristicMatches<NDIAGKIT::VBmwHeuristic>());
    EXPECT_FALSE(HeuristicMatches<NDIAGKIT::VBmwHeuristicNew>());
    EXPECT_EQ(Code(), 10);
}

TEST_F(BmwHeuristicTest, TheNewerLayoutAnswersBmw) {
    m_container.AddEcuSharedData(L"BMW_LIB");
    NMemory::VMemFunctionalGroup& group = m_container.AddFunctionalGroup(L"Group");
    AddMux(group, L"PRIM_DTC_MUX");
    AddMux(group, L"SEC_DTC_MUX");
    EXPECT_TRUE(HeuristicMatches<NDIAGKIT::VBmwHeuristicNew>());
    EXPECT_FALSE(HeuristicMatches<NDIAGKIT::VBmwHeuristic>());
    EXPECT_EQ(Code(), 10);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"10");
    EXPECT_EQ(Code(), 10);
    EXPECT_EQ(AskedBy<NDIAGKIT::VBmwHeuristicNew>(), "instructions ");
    Identify(m_container.AddProtocol(L"Protocol"), L"ID", L"other");
    EXPECT_EQ(AskedBy<NDIAGKIT::VBmwHeuristicNew>(), "");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
