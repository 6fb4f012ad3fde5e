// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/GmHeuristic.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VGmComparamSpecRule;
using NDIAGKIT::VGmFunctionalGroupRule;
using NDIAGKIT::VGmHeuristic;
using NDIAGKIT::VGmProtocolRule;

class GmHeuristicTest : public VOemTest {
protected:
    NMemory::VMemComparamSpec& AddSpec(wchar_t const* id, wchar_t const* oid) {
        return Identify(m_database.AddComparamSpec(L"Spec"), id, oid);
    }

    static void AddComparams(NMemory::VMemComparamSpec& spec, int count) {
        for (int number = 0; number < count; ++number) {
            std::wstring const oid = std::to_wstring(number);
            Identify(spec.AddComparam(L"Parameter"), (L"ID" + oid).c_str(), oid.c_str());
        }
    }

    void MakeGm() {
        m_container.AddProtocol(L"Protocol");
        AddComparams(AddSpec(L"ID7", L"7"), 6);
    }
};

TEST_F(GmHeuristicTest, WithoutProtocolsTheProtocolRuleFails) {
    m_container.AddBaseVariant(L"Variant");
    EXPECT_FALSE(Matches<VGmProtocolRule>());
}

TEST_F(GmHeuristicTest, ProtocolsHaveNoDiagCommsOfTheirOwn) {
    m_container.AddProtocol(L"One");
    m_container.AddBaseVariant(L"Variant").AddDiagService(L"Service");
    EXPECT_TRUE(Matches<VGmProtocolRule>());
    NMemory::VMemProtocol& other = m_container.AddProtocol(L"Other");
    EXPECT_TRUE(Matches<VGmProtocolRule>());
    other.MakeDiagCommProxyCollection();
    EXPECT_TRUE(Matches<VGmProtocolRule>()) << "an empty DIAG-COMMS holds none";
    other.AddSingleEcuJob(L"Job");
    EXPECT_FALSE(Matches<VGmProtocolRule>()) << "one is enough to fail, of whatever kind";
}

TEST_F(GmHeuristicTest, ThereIsNoFunctionalGroup) {
    EXPECT_TRUE(Matches<VGmFunctionalGroupRule>());
    m_container.AddProtocol(L"Protocol");
    EXPECT_TRUE(Matches<VGmFunctionalGroupRule>());
    m_container.AddFunctionalGroup(L"Group");
    EXPECT_FALSE(Matches<VGmFunctionalGroupRule>());
}

TEST_F(GmHeuristicTest, WithoutComparamSpecsTheirRuleFails) { EXPECT_FALSE(Matches<VGmComparamSpecRule>()); }

TEST_F(GmHeuristicTest, TheIdOfAComparamSpecIsItsOidWithIdBefore) {
    NMemory::VMemComparamSpec& spec = AddSpec(L"ID7", L"7");
    EXPECT_TRUE(Matches<VGmComparamSpecRule>());
    for (wchar_t const* const id : {L"", L"7", L"id7", L"ID_7", L"ID", L"ID77", L"ID8"}) {
        spec.SetId(id);
        EXPECT_FALSE(Matches<VGmComparamSpecRule>()) << testing::PrintToString(id);
    }
}

TEST_F(GmHeuristicTest, WithoutOidTheIdIsIdAlone) {
    AddSpec(L"ID", L"");
    EXPECT_TRUE(Matches<VGmComparamSpecRule>());
}

TEST_F(GmHeuristicTest, EveryComparamSpecIsChecked) {
    AddSpec(L"ID7", L"7");
    AddSpec(L"ID8", L"8");
    EXPECT_TRUE(Matches<VGmComparamSpecRule>());
    AddSpec(L"Other", L"9");
    EXPECT_FALSE(Matches<VGmComparamSpecRule>());
}

TEST_F(GmHeuristicTest, TheFirstSixComparamsAreChecked) {
    for (int broken = 0; broken < 6; ++broken) {
        NMemory::VMemComparamSpec& spec = AddSpec(L"ID7", L"7");
        AddComparams(spec, broken);
        EXPECT_TRUE(Matches<VGmComparamSpecRule>()) << "fewer than six are enough";
        Identify(spec.AddComparam(L"Parameter"), L"Broken", L"5");
        EXPECT_FALSE(Matches<VGmComparamSpecRule>()) << broken;
        delete &spec;
    }
}

TEST_F(GmHeuristicTest, ASeventhComparamIsNotLookedAt) {
    NMemory::VMemComparamSpec& spec = AddSpec(L"ID7", L"7");
    AddComparams(spec, 6);
    Identify(spec.AddComparam(L"Parameter"), L"Broken", L"5");
    EXPECT_TRUE(Matches<VGmComparamSpecRule>());
}

TEST_F(GmHeuristicTest, TheCountOfComparamsStartsAnewWithEachSpec) {
    AddComparams(AddSpec(L"ID7", L"7"), 6);
    Identify(AddSpec(L"ID8", L"8").AddComparam(L"Parameter"), L"Broken", L"5");
    EXPECT_FALSE(Matches<VGmComparamSpecRule>());
}

TEST_F(GmHeuristicTest, ADatabaseOfGmIsRecognised) {
    MakeGm();
    EXPECT_TRUE(HeuristicMatches<VGmHeuristic>());
    EXPECT_EQ(Code(), 15);
}

TEST_F(GmHeuristicTest, TheProcessingInstructionIsTheToolsNumber) {
    MakeGm();
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"2");
    EXPECT_EQ(Code(), 15);
}

TEST_F(GmHeuristicTest, TheManufacturersOwnCodeIsNoMarkOfGm) {
    MakeGm();
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"15");
    EXPECT_FALSE(HeuristicMatches<VGmHeuristic>());
    EXPECT_EQ(Code(), 36) << "nobody expects 15";
}

TEST_F(GmHeuristicTest, RulesAreAskedInOrderUpToTheFirstThatFails) {
    MakeGm();
    EXPECT_EQ(AskedBy<VGmHeuristic>(), "instructions specs ");
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"15");
    EXPECT_EQ(AskedBy<VGmHeuristic>(), "instructions ");
    m_container.AddFunctionalGroup(L"Group");
    EXPECT_EQ(AskedBy<VGmHeuristic>(), "");
}

} // namespace
} // namespace NTest
