// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/FiatHeuristic.h>

#include <vector>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VFiatAdditionalComparamsRule;
using NDIAGKIT::VFiatHeuristic;
using NDIAGKIT::VFiatStateSdgRule;

std::vector<std::wstring> const kKwpOnCan = {L"CANFrame",   L"CanIdType", L"EDlyTxFast",
                                             L"EDlyTxSlow", L"ETmoRx",    L"Max_Waiting_Time_for_External_Tool"};
std::vector<std::wstring> const kUds = {L"MaxDeltaP2Can",
                                        L"S3_Tester",
                                        L"S3_ECU",
                                        L"NL_buffer_NormalCommunication",
                                        L"NL_buffer_FlashProgramming",
                                        L"Max_Waiting_Time_for_External_Tool"};

class FiatHeuristicTest : public VOemTest {
protected:
    /// SDGs of these captions; "" for one without.
    static void AddSdgs(NMemory::VMemDiagService& service, std::vector<std::wstring> const& captions) {
        for (std::wstring const& caption : captions) {
            NMemory::VMemSdg& sdg = service.AddSdg();
            if (!caption.empty()) {
                sdg.MakeSdgCaption(caption.c_str());
            }
        }
    }

    /// The answer about a BASE-VARIANT with one service; about an ECU-VARIANT it is the same.
    bool MatchesServiceWith(std::vector<std::wstring> const& captions) {
        NMemory::VMemBaseVariant& base = m_container.AddBaseVariant(L"Variant");
        AddSdgs(base.AddDiagService(L"Service"), captions);
        bool const answer = Matches<VFiatStateSdgRule>();
        delete &base;
        NMemory::VMemEcuVariant& ecu = m_container.AddEcuVariant(L"Variant");
        AddSdgs(ecu.AddDiagService(L"Service"), captions);
        EXPECT_EQ(Matches<VFiatStateSdgRule>(), answer);
        delete &ecu;
        return answer;
    }

    NMemory::VMemComparamSpec& AddSpec() { return m_database.AddComparamSpec(L"Spec"); }

    static void AddComparam(NMemory::VMemComparamSpec& spec, std::wstring const& path, std::wstring const& name) {
        spec.AddComparam(name.c_str()).SetId((L"COMPARAM-SPEC." + path + L".COMPARAM." + name).c_str());
    }

    static void AddAllBut(NMemory::VMemComparamSpec& spec, std::wstring const& path,
                          std::vector<std::wstring> const& names, std::size_t left) {
        for (std::size_t index = 0; index < names.size(); ++index) {
            if (index != left) {
                AddComparam(spec, path, names[index]);
            }
        }
    }

    static constexpr std::size_t kNone = 99;
};

// VFiatStateSdgRule

TEST_F(FiatHeuristicTest, WithoutVariantsTheStateRuleHolds) {
    EXPECT_TRUE(Matches<VFiatStateSdgRule>());
    m_container.AddProtocol(L"Protocol").AddDiagService(L"Service");
    m_container.AddFunctionalGroup(L"Group").AddDiagService(L"Service");
    m_container.AddEcuSharedData(L"Shared").AddDiagService(L"Service");
    EXPECT_TRUE(Matches<VFiatStateSdgRule>()) << "services of other layers are not looked at";
}

TEST_F(FiatHeuristicTest, AVariantWithoutDiagCommsPasses) {
    m_container.AddBaseVariant(L"Variant");
    m_container.AddEcuVariant(L"Variant");
    EXPECT_TRUE(Matches<VFiatStateSdgRule>());
}

TEST_F(FiatHeuristicTest, AVariantOfJobsAloneAndReferencesPasses) {
    NMemory::VMemDiagService& foreign = m_container.AddEcuSharedData(L"Shared").AddDiagService(L"Foreign");
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Variant");
    variant.AddSingleEcuJob(L"Job");
    EXPECT_TRUE(Matches<VFiatStateSdgRule>());
    variant.AddDiagCommRef(foreign);
    EXPECT_TRUE(Matches<VFiatStateSdgRule>());
}

TEST_F(FiatHeuristicTest, AServiceHasAnSdgCaptionedStateModel) {
    EXPECT_TRUE(MatchesServiceWith({L"State_Model"}));
    EXPECT_TRUE(MatchesServiceWith({L"Other", L"State_Model"}));
    EXPECT_FALSE(MatchesServiceWith({})) << "without SDGs";
    EXPECT_FALSE(MatchesServiceWith({L"Other"}));
    EXPECT_FALSE(MatchesServiceWith({L"state_model"}));
    EXPECT_FALSE(MatchesServiceWith({L"State_Model_2"}));
}

TEST_F(FiatHeuristicTest, AnSdgWithoutCaptionIsFatalOnlyBeforeTheStateModel) {
    EXPECT_TRUE(MatchesServiceWith({L"State_Model", L""}));
    EXPECT_FALSE(MatchesServiceWith({L"", L"State_Model"}));
    EXPECT_FALSE(MatchesServiceWith({L"Other", L"", L"State_Model"}));
}

TEST_F(FiatHeuristicTest, AnSdgInsideAnotherDoesNotCount) {
    NMemory::VMemSdg& outer = m_container.AddBaseVariant(L"Variant").AddDiagService(L"Service").AddSdg();
    outer.MakeSdgCaption(L"Other");
    outer.AddSdg().MakeSdgCaption(L"State_Model");
    EXPECT_FALSE(Matches<VFiatStateSdgRule>());
}

TEST_F(FiatHeuristicTest, EveryServiceOfEveryVariantHasIt) {
    NMemory::VMemBaseVariant& base = m_container.AddBaseVariant(L"Variant");
    AddSdgs(base.AddDiagService(L"First"), {L"State_Model"});
    AddSdgs(m_container.AddEcuVariant(L"Variant").AddDiagService(L"Service"), {L"State_Model"});
    EXPECT_TRUE(Matches<VFiatStateSdgRule>());
    NMemory::VMemDiagService& second = base.AddDiagService(L"Second");
    EXPECT_FALSE(Matches<VFiatStateSdgRule>());
    AddSdgs(second, {L"State_Model"});
    EXPECT_TRUE(Matches<VFiatStateSdgRule>());
    m_container.AddEcuVariant(L"Other").AddDiagService(L"Service");
    EXPECT_FALSE(Matches<VFiatStateSdgRule>());
}

// VFiatAdditionalComparamsRule

TEST_F(FiatHeuristicTest, WithoutComparamSpecsTheirRuleFails) {
    EXPECT_FALSE(Matches<VFiatAdditionalComparamsRule>());
    AddSpec();
    EXPECT_FALSE(Matches<VFiatAdditionalComparamsRule>());
}

TEST_F(FiatHeuristicTest, TheSixOfKwpOnCanAreEnough) {
    AddAllBut(AddSpec(), L"KWP_on_CAN_CPS", kKwpOnCan, kNone);
    EXPECT_TRUE(Matches<VFiatAdditionalComparamsRule>());
}

TEST_F(FiatHeuristicTest, TheSixOfUdsAreEnough) {
    AddAllBut(AddSpec(), L"UDS_CPS", kUds, kNone);
    EXPECT_TRUE(Matches<VFiatAdditionalComparamsRule>());
}

TEST_F(FiatHeuristicTest, FiveOfSixInEachGroupAreNot) {
    for (std::size_t left = 0; left < 6; ++left) {
        NMemory::VMemComparamSpec& spec = AddSpec();
        AddAllBut(spec, L"KWP_on_CAN_CPS", kKwpOnCan, left);
        AddAllBut(spec, L"UDS_CPS", kUds, left);
        EXPECT_FALSE(Matches<VFiatAdditionalComparamsRule>()) << left;
        AddComparam(spec, L"UDS_CPS", kUds[left]);
        EXPECT_TRUE(Matches<VFiatAdditionalComparamsRule>()) << left;
        delete &spec;
    }
}

TEST_F(FiatHeuristicTest, TheSixMayStandInSeveralSpecs) {
    for (std::wstring const& name : kKwpOnCan) {
        EXPECT_FALSE(Matches<VFiatAdditionalComparamsRule>());
        AddComparam(AddSpec(), L"KWP_on_CAN_CPS", name);
    }
    EXPECT_TRUE(Matches<VFiatAdditionalComparamsRule>());
    AddSpec();
    EXPECT_TRUE(Matches<VFiatAdditionalComparamsRule>());
}

TEST_F(FiatHeuristicTest, IdsCompareExactly) {
    NMemory::VMemComparamSpec& spec = AddSpec();
    AddAllBut(spec, L"UDS_CPS", kUds, 2);
    AddComparam(spec, L"UDS_CPS", L"S3_Ecu");
    AddComparam(spec, L"UDS_CPS", L"S3_ECU_2");
    AddComparam(spec, L"uds_cps", L"S3_ECU");
    spec.AddComparam(L"S3_ECU").SetId(L"S3_ECU");
    EXPECT_FALSE(Matches<VFiatAdditionalComparamsRule>());
}

// The heuristic

TEST_F(FiatHeuristicTest, ADatabaseOfFiatIsRecognised) {
    AddAllBut(AddSpec(), L"UDS_CPS", kUds, kNone);
    EXPECT_TRUE(HeuristicMatches<VFiatHeuristic>());
    EXPECT_EQ(Code(), 12);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"12");
    EXPECT_EQ(Code(), 12);
    EXPECT_EQ(AskedBy<VFiatHeuristic>(), "specs instructions ");
    m_container.AddBaseVariant(L"Variant").AddDiagService(L"Service");
    EXPECT_EQ(AskedBy<VFiatHeuristic>(), "");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
