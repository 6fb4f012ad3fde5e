// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ClaasHeuristic.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VClaasHeuristic;
using NDIAGKIT::VClaasProcessingInstructionRule;

class ClaasHeuristicTest : public VOemTest {
protected:
    NMemory::VMemBaseVariant& AddVariant() { return m_container.AddBaseVariant(L"Variant"); }

    template <class Response>
    static void AddInstruction(Response& response, wchar_t const* name = L"ClaasParamInformation") {
        response.AddValue(L"First");
        response.AddCodedConst(L"Second").AddProcessingInstruction(name, L"of any content");
    }
};

TEST_F(ClaasHeuristicTest, WithoutBaseVariantTheRuleFails) {
    AddInstruction(m_container.AddEcuVariant(L"Variant").AddPosResponse(L"Response"));
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, AParameterOfAPosResponseHasTheInstruction) {
    NMemory::VMemBaseVariant& variant = AddVariant();
    NMemory::VMemPosResponse& response = variant.AddPosResponse(L"First");
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>()) << "no parameters";
    response.AddValue(L"Parameter").AddProcessingInstruction(L"Other", L"");
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
    AddInstruction(variant.AddPosResponse(L"Second"));
    EXPECT_TRUE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, TheNameOfTheInstructionComparesWholeInAnyCase) {
    AddInstruction(AddVariant().AddPosResponse(L"Response"), L"CLAASPARAMINFORMATION");
    EXPECT_TRUE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, AnotherInstructionIsNone) {
    AddInstruction(AddVariant().AddPosResponse(L"Response"), L"ClaasParamInformation2");
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, NegativeResponsesDoNotCount) {
    NMemory::VMemBaseVariant& variant = AddVariant();
    AddInstruction(variant.AddNegResponse(L"Negative"));
    AddInstruction(variant.AddGlobalNegResponse(L"GlobalNegative"));
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, RequestsDoNotCount) {
    NMemory::VMemBaseVariant& variant = AddVariant();
    variant.AddPosResponse(L"Response");
    AddInstruction(variant.AddRequest(L"Request"));
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, ABaseVariantWithoutResponsesEndsTheSearch) {
    NMemory::VMemBaseVariant& first = AddVariant();
    AddInstruction(AddVariant().AddPosResponse(L"Response"));
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
    first.AddNegResponse(L"Response");
    EXPECT_TRUE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, ABaseVariantBehindTheInstructionNeedsNoResponses) {
    AddInstruction(AddVariant().AddPosResponse(L"Response"));
    AddVariant();
    EXPECT_TRUE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, InstructionsOfTheDatabaseDoNotCount) {
    AddVariant().AddPosResponse(L"Response").AddValue(L"Parameter");
    m_database.AddProcessingInstruction(L"ClaasParamInformation", L"");
    EXPECT_FALSE(Matches<VClaasProcessingInstructionRule>());
}

TEST_F(ClaasHeuristicTest, ADatabaseOfClaasIsRecognised) {
    AddInstruction(AddVariant().AddPosResponse(L"Response"));
    EXPECT_TRUE(HeuristicMatches<VClaasHeuristic>());
    EXPECT_EQ(Code(), 3);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"3");
    EXPECT_EQ(Code(), 3);
    EXPECT_EQ(AskedBy<VClaasHeuristic>(), "instructions ");
}

TEST_F(ClaasHeuristicTest, WithoutItsInstructionNothingElseIsAsked) {
    AddVariant();
    EXPECT_EQ(AskedBy<VClaasHeuristic>(), "");
}

} // namespace
} // namespace NTest
