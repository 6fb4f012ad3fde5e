// SPDX-License-Identifier: Apache-2.0

// NOT-INHERITED-DIAG-COMMS of a parent reference.

#include <diagkit/tools/DiagCommView.h>

#include "support/GraphTest.h"

namespace NTest {
namespace {

class DiagCommViewExclusionsTest : public VGraphTest {};

TEST_F(DiagCommViewExclusionsTest, ExclusionsApplyToEveryKindOfReference) {
    Graph(LR"(
        esd  Lib   : X FromLib
        prot Uds   : X FromUds
        func Doors : X FromDoors
        base Bv    : X FromBv
        prot P   < Lib-X
        func F   < Uds-X Lib-X
        base B   < Doors-X Uds-X Lib-X
        ecu  E   < Bv-X Lib-X
    )");
    EXPECT_EQ(DiagComms(L"P"), L"FromLib@Lib");
    EXPECT_EQ(DiagComms(L"F"), L"FromUds@Uds FromLib@Lib");
    EXPECT_EQ(DiagComms(L"B"), L"FromDoors@Doors FromUds@Uds FromLib@Lib");
    EXPECT_EQ(DiagComms(L"E"), L"FromBv@Bv FromLib@Lib");
}

TEST_F(DiagCommViewExclusionsTest, OneReferenceExcludesSeveralNames) {
    Graph(LR"(
        prot Uds : Read Start Stop Reset!
        base Bv                             < Uds-Reset-Start-Reset
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds Stop@Uds");
}

TEST_F(DiagCommViewExclusionsTest, ExclusionsDoNotLeakToTheNextReference) {
    Graph(LR"(
        prot Uds : Read
        prot Kwp : Read Start
        base Bv                < Uds-Read-Start Kwp
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Kwp Start@Kwp");
}

TEST_F(DiagCommViewExclusionsTest, ExclusionsDoNotLeakToAReferenceWithEmptyExclusions) {
    Graph(LR"(
        prot Uds : Read
        prot Kwp : Read
        base Bv          < Uds-Read Kwp-
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Kwp");
}

TEST_F(DiagCommViewExclusionsTest, ExclusionsOfASkippedReferenceDoNotLeakToTheNext) {
    Graph(LR"(
        esd  Lib : Read
        prot Uds : Read
        base A          < prot:Gone-Read Uds
        base B          < any:Lib-Read Uds
        base C          < Lib-Read Uds
    )");
    EXPECT_EQ(DiagComms(L"A"), L"Read@Uds");
    EXPECT_EQ(DiagComms(L"B"), L"Read@Uds");
    EXPECT_EQ(DiagComms(L"C"), L"Read@Uds");
}

TEST_F(DiagCommViewExclusionsTest, ExclusionsOfTheLastReferenceOfAPassDoNotLeakToTheNextPass) {
    Graph(LR"(
        esd  Lib : Read
        prot Uds
        base Bv         < Lib Uds-Read
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Lib");
}

TEST_F(DiagCommViewExclusionsTest, AParentsOwnExclusionsHoldForItsChildren) {
    Graph(LR"(
        esd  Lib : Read Ident
        prot Uds              < Lib-Read
        base Bv               < Uds
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Ident@Lib");
}

TEST_F(DiagCommViewExclusionsTest, AnExcludedNameMayComeBackThroughAnotherWay) {
    Graph(LR"(
        esd  Lib : Read
        prot Uds        < Lib
        base Bv         < Uds-Read Lib
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Lib");
}

TEST_F(DiagCommViewExclusionsTest, AnExclusionByIdIsIgnored) {
    Graph(LR"(
        prot Uds : Read Start
        base Bv               < Uds-@Uds.Read-Start
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds");
}

TEST_F(DiagCommViewExclusionsTest, AnExclusionOfANameThatIsNotThereChangesNothing) {
    Graph(LR"(
        prot Uds : Read
        base Bv          < Uds-Gone
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds");
}

TEST_F(DiagCommViewExclusionsTest, AnExclusionIsAWholeName) {
    Graph(LR"(
        prot Uds : Read ReadAll All
        base Bv                     < Uds-Rea-ReadA-dAll
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds ReadAll@Uds All@Uds");
}

TEST_F(DiagCommViewExclusionsTest, AnExclusionReachesEveryEntryOfItsName) {
    Graph(LR"(
        prot Uds : Read Read! Start
        base Bv                     < Uds-Read
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Uds");
}

TEST_F(DiagCommViewExclusionsTest, ExclusionsOfVariablesExcludeNoDiagComm) {
    Graph(L"prot Uds : Read \n base Bv < Uds-Start");
    auto& base = LayerAs<NMemory::VMemBaseVariant>(L"Bv");
    dynamic_cast<NMemory::IMemParentRef&>(*base.ParentRefCollection().Begin()).ExcludeVariable(L"Read");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds");
}

} // namespace
} // namespace NTest
