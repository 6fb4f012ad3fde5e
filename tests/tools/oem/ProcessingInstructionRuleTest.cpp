// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

#include <map>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VProcessingInstructionRule;

constexpr wchar_t const* kName = L"PavonaTemplateManufacturer";

using ProcessingInstructionRuleTest = VOemTest;

TEST_F(ProcessingInstructionRuleTest, ADatabaseWithoutInstructionsMatches) {
    EXPECT_TRUE(Matches<VProcessingInstructionRule>(L"8"));
}

TEST_F(ProcessingInstructionRuleTest, InstructionsOfOtherNamesAreNotHeldAgainstAnybody) {
    for (wchar_t const* const name : {L"pavonatemplatemanufacturer", L"PavonaTemplateManufacturer2",
                                      L"PavonaTemplateManufacture", L"PavonaTemplateManufacturer ", L""}) {
        m_database.AddProcessingInstruction(name, L"1");
        EXPECT_TRUE(Matches<VProcessingInstructionRule>(L"8")) << testing::PrintToString(name);
    }
}

TEST_F(ProcessingInstructionRuleTest, TheContentIsTheExpectedText) {
    m_database.AddProcessingInstruction(L"Other", L"1");
    m_database.AddProcessingInstruction(kName, L"8");
    EXPECT_TRUE(Matches<VProcessingInstructionRule>(L"8"));
    EXPECT_FALSE(Matches<VProcessingInstructionRule>(L"1"));
    EXPECT_FALSE(Matches<VProcessingInstructionRule>(L"88"));
    EXPECT_FALSE(Matches<VProcessingInstructionRule>(L""));
}

TEST_F(ProcessingInstructionRuleTest, TheContentComparesWhole) {
    for (wchar_t const* const content : {L"", L" 8", L"8 ", L"08", L"81", L"x"}) {
        NMemory::VDatabase database;
        database.AddProcessingInstruction(kName, content);
        NDIAGKIT::VOemCheckContext context(database.GetOdx());
        EXPECT_FALSE(VProcessingInstructionRule(&context, L"8").Matches()) << testing::PrintToString(content);
    }
}

TEST_F(ProcessingInstructionRuleTest, OneOfSeveralWithTheExpectedTextIsEnough) {
    m_database.AddProcessingInstruction(kName, L"1");
    m_database.AddProcessingInstruction(kName, L"12");
    EXPECT_TRUE(Matches<VProcessingInstructionRule>(L"1"));
    EXPECT_TRUE(Matches<VProcessingInstructionRule>(L"12"));
    EXPECT_FALSE(Matches<VProcessingInstructionRule>(L"2"));
}

TEST_F(ProcessingInstructionRuleTest, EveryHeuristicExpectsItsNumber) {
    std::map<std::wstring, std::wstring> const expected = {
        {L"VDaimlerHeuristic", L"1"}, {L"VClaasHeuristic", L"3"}, {L"VPagHeuristic", L"4"},
        {L"VAudiVwHeuristic", L"8"},  {L"VBmwHeuristic", L"10"},  {L"VBmwHeuristicNew", L"10"},
        {L"VFiatHeuristic", L"12"},   {L"VGmHeuristic", L"2"},    {L"VPSAHeuristic", L"19"}};
    for (wchar_t const* const content : {L"1", L"2", L"3", L"4", L"8", L"10", L"12", L"15", L"19", L"36"}) {
        NMemory::VDatabase database;
        database.AddProcessingInstruction(kName, content);
        int rules = 0;
        for (auto const& heuristic : NDIAGKIT::VOemChecker().Report(database.GetOdx()).heuristics) {
            for (auto const& rule : heuristic.rules) {
                if (std::wstring(rule.name) == L"VProcessingInstructionRule") {
                    ++rules;
                    EXPECT_EQ(rule.matches, expected.at(heuristic.name) == content)
                        << testing::PrintToString(heuristic.name) << testing::PrintToString(content);
                }
            }
        }
        EXPECT_EQ(rules, 10) << "one for each heuristic and list";
    }
}

} // namespace
} // namespace NTest
