// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/PagHeuristic.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VPagComparamSpecRule;
using NDIAGKIT::VPagDopRule;
using NDIAGKIT::VPagFunctionalGroupRule;
using NDIAGKIT::VPagHeuristic;
using NDIAGKIT::VPagModelRule;
using NDIAGKIT::VPagOidRule;

class PagHeuristicTest : public VOemTest {
protected:
    void MakeFirstList() {
        m_container.AddProtocol(L"Protocol").SetOid(L"1");
        m_container.AddBaseVariant(L"Variant").SetOid(L"2");
        m_container.AddFunctionalGroup(L"FunctionalGroupUDS");
    }

    NMemory::VMemDiagDataDictionarySpec& AddDictionary() {
        return m_container.AddBaseVariant(L"Variant").MakeDiagDataDictionarySpec();
    }

    void MakeSecondList() {
        m_database.AddComparamSpec(L"VW2000_on_TP20");
        NMemory::VMemDiagDataDictionarySpec& dictionary = AddDictionary();
        dictionary.AddDataObjectProp(L"_26_Temperatur_C");
        dictionary.AddDataObjectProp(L"_21_Spannung_V");
    }
};

// First list

TEST_F(PagHeuristicTest, WithoutLayersTheOidRuleHolds) { EXPECT_TRUE(Matches<VPagOidRule>()); }

TEST_F(PagHeuristicTest, EveryProtocolAndBaseVariantHasAnOid) {
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Protocol");
    EXPECT_FALSE(Matches<VPagOidRule>());
    protocol.SetOid(L"1");
    EXPECT_TRUE(Matches<VPagOidRule>());
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Variant");
    EXPECT_FALSE(Matches<VPagOidRule>());
    variant.SetOid(L"2");
    EXPECT_TRUE(Matches<VPagOidRule>());
    m_container.AddEcuVariant(L"Variant");
    m_container.AddFunctionalGroup(L"Group");
    m_container.AddEcuSharedData(L"Shared");
    EXPECT_TRUE(Matches<VPagOidRule>()) << "others need none";
}

TEST_F(PagHeuristicTest, ThereAreProtocolsFunctionalGroupsAndBaseVariants) {
    EXPECT_FALSE(Matches<VPagModelRule>());
    m_container.AddProtocol(L"Protocol");
    m_container.AddFunctionalGroup(L"Group");
    m_container.AddEcuVariant(L"Variant");
    EXPECT_FALSE(Matches<VPagModelRule>()) << "without BASE-VARIANT";
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Variant");
    EXPECT_TRUE(Matches<VPagModelRule>());
    delete &variant;
    EXPECT_FALSE(Matches<VPagModelRule>());
}

TEST_F(PagHeuristicTest, TheModelNeedsAProtocol) {
    m_container.AddFunctionalGroup(L"Group");
    m_container.AddBaseVariant(L"Variant");
    EXPECT_FALSE(Matches<VPagModelRule>());
}

TEST_F(PagHeuristicTest, TheModelNeedsAFunctionalGroup) {
    m_container.AddProtocol(L"Protocol");
    m_container.AddBaseVariant(L"Variant");
    EXPECT_FALSE(Matches<VPagModelRule>());
}

TEST_F(PagHeuristicTest, WithoutFunctionalGroupTheirRuleFails) { EXPECT_FALSE(Matches<VPagFunctionalGroupRule>()); }

TEST_F(PagHeuristicTest, TheNameOfTheFunctionalGroupBeginsInThePorscheWayInAnyCase) {
    NMemory::VMemFunctionalGroup& group = m_container.AddFunctionalGroup(L"");
    for (wchar_t const* const name : {L"FunctionalGroupUDS", L"FunctionalGroupKWP", L"functionalgroupuds",
                                      L"FUNCTIONALGROUPKWP2000", L"FunctionalGroupUDS_2"}) {
        group.SetShortName(name);
        EXPECT_TRUE(Matches<VPagFunctionalGroupRule>()) << testing::PrintToString(name);
    }
    for (wchar_t const* const name : {L"", L"FunctionalGroupUD", L"FunctionalGroup", L"FunctionalGroupOBD"}) {
        group.SetShortName(name);
        EXPECT_FALSE(Matches<VPagFunctionalGroupRule>()) << testing::PrintToString(name);
    }
}

TEST_F(PagHeuristicTest, TwoFunctionalGroupsFailWhateverTheirNames) {
    m_container.AddFunctionalGroup(L"FunctionalGroupUDS");
    m_container.AddFunctionalGroup(L"FunctionalGroupUDS");
    EXPECT_FALSE(Matches<VPagFunctionalGroupRule>());
}

// Second list

TEST_F(PagHeuristicTest, AComparamSpecIsNamedVw2000OnTp20InAnyCase) {
    EXPECT_FALSE(Matches<VPagComparamSpecRule>()) << "there is none";
    NMemory::VMemComparamSpec& spec = m_database.AddComparamSpec(L"VW2000_on_TP20_2");
    EXPECT_FALSE(Matches<VPagComparamSpecRule>());
    m_database.AddComparamSpec(L"Other");
    EXPECT_FALSE(Matches<VPagComparamSpecRule>());
    spec.SetShortName(L"vw2000_on_tp20");
    EXPECT_TRUE(Matches<VPagComparamSpecRule>());
}

TEST_F(PagHeuristicTest, WithoutBaseVariantTheDopRuleFails) {
    m_container.AddEcuVariant(L"Variant").MakeDiagDataDictionarySpec().AddDataObjectProp(L"_21_Spannung_V");
    EXPECT_FALSE(Matches<VPagDopRule>());
}

TEST_F(PagHeuristicTest, BothDopsInOneBaseVariant) {
    NMemory::VMemDiagDataDictionarySpec& dictionary = AddDictionary();
    dictionary.AddDataObjectProp(L"_21_Spannung_V");
    EXPECT_FALSE(Matches<VPagDopRule>());
    dictionary.AddDataObjectProp(L"_26_Temperatur_C");
    EXPECT_TRUE(Matches<VPagDopRule>());
}

TEST_F(PagHeuristicTest, TheDopsInTwoBaseVariants) {
    AddDictionary().AddDataObjectProp(L"_26_Temperatur_C");
    AddDictionary().AddDataObjectProp(L"_21_Spannung_V");
    EXPECT_TRUE(Matches<VPagDopRule>());
}

TEST_F(PagHeuristicTest, EveryBaseVariantHasADictionary) {
    AddDictionary().AddDataObjectProp(L"_26_Temperatur_C");
    AddDictionary().AddDataObjectProp(L"_21_Spannung_V");
    m_container.AddBaseVariant(L"Without");
    EXPECT_FALSE(Matches<VPagDopRule>());
}

TEST_F(PagHeuristicTest, NamesOfDopsCompareExactly) {
    NMemory::VMemDiagDataDictionarySpec& dictionary = AddDictionary();
    dictionary.AddDataObjectProp(L"_21_Spannung_V");
    dictionary.AddDataObjectProp(L"_26_temperatur_c");
    dictionary.AddDataObjectProp(L"_26_Temperatur_C_2");
    EXPECT_FALSE(Matches<VPagDopRule>());
}

TEST_F(PagHeuristicTest, DopsOfOtherKindsDoNotCount) {
    NMemory::VMemDiagDataDictionarySpec& dictionary = AddDictionary();
    dictionary.AddDataObjectProp(L"_21_Spannung_V");
    dictionary.AddStructure(L"_26_Temperatur_C");
    EXPECT_FALSE(Matches<VPagDopRule>());
}

// The heuristic

TEST_F(PagHeuristicTest, TheFirstListIsEnough) {
    MakeFirstList();
    EXPECT_TRUE(HeuristicMatches<VPagHeuristic>());
    EXPECT_EQ(Code(), 4);
}

TEST_F(PagHeuristicTest, TheSecondListIsEnough) {
    MakeSecondList();
    EXPECT_TRUE(HeuristicMatches<VPagHeuristic>());
    EXPECT_EQ(Code(), 4);
}

TEST_F(PagHeuristicTest, BothListsAtOnceAreOneMatch) {
    MakeSecondList();
    MakeFirstList();
    m_container.AddBaseVariant(L"Variant").SetOid(L"3");
    EXPECT_FALSE(Matches<VPagDopRule>()) << "the variants of the first list have no dictionaries";
    for (NODX201::VDiagLayer& layer : m_container.DiagLayerCollection()) {
        if (auto* const variant = dynamic_cast<NMemory::VMemBaseVariant*>(&layer)) {
            variant->MakeDiagDataDictionarySpec();
            variant->SetOid(L"4");
        }
    }
    EXPECT_EQ(AskedBy<VPagHeuristic>(), "instructions specs instructions ");
    EXPECT_EQ(Code(), 4);
}

TEST_F(PagHeuristicTest, BothListsHearTheProcessingInstruction) {
    MakeFirstList();
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"8");
    EXPECT_EQ(Code(), 36);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"4");
    EXPECT_EQ(Code(), 4);
}

TEST_F(PagHeuristicTest, NeitherListInFullIsNoMatch) {
    MakeSecondList();
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"8");
    EXPECT_FALSE(HeuristicMatches<VPagHeuristic>());
}

TEST_F(PagHeuristicTest, BothListsAreAsked) {
    MakeFirstList();
    EXPECT_EQ(AskedBy<VPagHeuristic>(), "instructions specs ") << "the second up to its first failure";
    m_container.AddFunctionalGroup(L"Second");
    EXPECT_EQ(AskedBy<VPagHeuristic>(), "specs ") << "the first up to its first failure, then the second";
}

} // namespace
} // namespace NTest
