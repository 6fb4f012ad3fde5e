// SPDX-License-Identifier: Apache-2.0

// The passes over PARENT-REFS, one test per row of their table: which kinds of reference a kind of layer follows, and
// in which order.

#include <diagkit/tools/DiagCommView.h>

#include "support/GraphTest.h"
#include "support/MockElements.h"

namespace NTest {
namespace {

class DiagCommViewPassesTest : public VGraphTest {
protected:
    /// Two layers of each kind, each with its own name and without parents; a test adds the layer under test, which
    /// references all of them.
    void GraphOverAllKinds(std::wstring const& layerUnderTest) {
        Graph((std::wstring(LR"(
            esd  Lib1   : FromLib1
            esd  Lib2   : FromLib2
            prot Uds1   : FromUds1
            prot Uds2   : FromUds2
            func Doors1 : FromDoors1
            func Doors2 : FromDoors2
            base Bv1    : FromBv1
            base Bv2    : FromBv2
            ecu  Ecu1   : FromEcu1
        )") + layerUnderTest +
               L" < Lib2 any:Ecu1 Uds1 Doors1 Bv2 any:Lib1 Bv1 Doors2 Uds2 Lib1")
                  .c_str());
    }
};

TEST_F(DiagCommViewPassesTest, EcuSharedDataShowsItsOwnOnly) {
    Graph(L"esd Other : Read \n esd Lib : Start Reset!");
    EXPECT_EQ(DiagComms(L"Lib"), L"Start@Lib Reset@Lib");
}

TEST_F(DiagCommViewPassesTest, ProtocolInheritsFromEcuSharedDataOnly) {
    GraphOverAllKinds(L"prot P : Own");
    EXPECT_EQ(DiagComms(L"P"), L"Own@P FromLib2@Lib2 FromLib1@Lib1");
}

TEST_F(DiagCommViewPassesTest, FunctionalGroupInheritsFromProtocolsThenFromEcuSharedData) {
    GraphOverAllKinds(L"func F : Own");
    EXPECT_EQ(DiagComms(L"F"), L"Own@F FromUds1@Uds1 FromUds2@Uds2 FromLib2@Lib2 FromLib1@Lib1");
}

TEST_F(DiagCommViewPassesTest, BaseVariantInheritsFromProtocolsAndFunctionalGroupsAsTheyStandThenFromEcuSharedData) {
    GraphOverAllKinds(L"base B : Own");
    EXPECT_EQ(DiagComms(L"B"), L"Own@B FromUds1@Uds1 FromDoors1@Doors1 FromDoors2@Doors2 FromUds2@Uds2 "
                               L"FromLib2@Lib2 FromLib1@Lib1");
}

TEST_F(DiagCommViewPassesTest, EcuVariantInheritsFromBaseVariantsThenFromEcuSharedData) {
    GraphOverAllKinds(L"ecu E : Own");
    EXPECT_EQ(DiagComms(L"E"), L"Own@E FromBv2@Bv2 FromBv1@Bv1 FromLib2@Lib2 FromLib1@Lib1");
}

TEST_F(DiagCommViewPassesTest, AParentBringsItsFullView) {
    Graph(LR"(
        esd  Lib1  : L1
        esd  Lib2  : L2
        esd  Lib3  : L3
        esd  Lib4  : L4
        prot Uds   : P     < Lib1
        func Doors : F     < Lib2 Uds
        base Bv    : B     < Lib3 Doors
        ecu  Ecu   : E     < Lib4 Bv
    )");
    EXPECT_EQ(DiagComms(L"Doors"), L"F@Doors P@Uds L1@Lib1 L2@Lib2");
    EXPECT_EQ(DiagComms(L"Bv"), L"B@Bv F@Doors P@Uds L1@Lib1 L2@Lib2 L3@Lib3");
    EXPECT_EQ(DiagComms(L"Ecu"), L"E@Ecu B@Bv F@Doors P@Uds L1@Lib1 L2@Lib2 L3@Lib3 L4@Lib4");
}

TEST_F(DiagCommViewPassesTest, AnEcuSharedDataInheritedThroughAParentBeatsAParentMergedLater) {
    Graph(LR"(
        esd  Lib : Read
        prot Uds        < Lib
        prot Kwp : Read
        base Bv         < Uds Kwp
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Lib");
}

TEST_F(DiagCommViewPassesTest, AReferenceWithoutATargetIsSkipped) {
    Graph(LR"(
        esd  Lib   : FromLib
        prot Uds   : FromUds    < esd:Gone Lib
        func Doors : FromDoors  < prot:Gone Uds esd:Gone
        base Bv    : FromBv     < func:Gone Doors prot:Gone esd:Gone
        ecu  Ecu                < base:Gone Bv esd:Gone
    )");
    EXPECT_EQ(DiagComms(L"Ecu"), L"FromBv@Bv FromDoors@Doors FromUds@Uds FromLib@Lib");
}

TEST_F(DiagCommViewPassesTest, AReferenceToALayerOfAnotherKindIsSkipped) {
    Graph(LR"(
        esd  Lib : FromLib
        prot Uds : FromUds
        base Bv             < prot:Lib esd:Uds func:Uds Lib
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"FromLib@Lib");
}

TEST_F(DiagCommViewPassesTest, ReferencesInACircleAreHarmless) {
    Graph(LR"(
        prot Uds : Read   < Uds Bv
        base Bv  : Start  < Bv Ecu Uds
        ecu  Ecu          < Bv Ecu
    )");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Bv Read@Uds");
}

/// References of every kind, none of which has a target, and what a layer with them in this order asks them.
class DiagCommViewPassesOrderTest : public testing::Test {
protected:
    template <class Layer>
    std::vector<std::wstring> Asked() {
        Layer layer;
        layer.AddParent(m_toLib);
        layer.AddParent(m_toUnknown);
        layer.AddParent(m_toBv);
        layer.AddParent(m_toUds);
        layer.AddParent(m_toDoors);
        NDIAGKIT::VDiagCommView view(layer);
        EXPECT_TRUE(view.IsEmpty());
        return m_transcript;
    }

    std::vector<std::wstring> m_transcript;
    VMockEcuSharedDataRef m_toLib{L"Lib", m_transcript};
    VMockParentRef<NODX201::VParentRef> m_toUnknown{L"Unknown", m_transcript};
    VMockBaseVariantRef m_toBv{L"Bv", m_transcript};
    VMockProtocolRef m_toUds{L"Uds", m_transcript};
    VMockFunctionalGroupRef m_toDoors{L"Doors", m_transcript};
};

// clang-format off
TEST_F(DiagCommViewPassesOrderTest, EveryPassReadsTheExclusionsOfEveryReferenceFirst) {
    EXPECT_EQ(Asked<VMockEcuVariant>(), (std::vector<std::wstring>{
        // BASE-VARIANT
        L"Lib: exclusions", L"Unknown: exclusions", L"Bv: exclusions", L"Bv: target", L"Uds: exclusions", L"Doors: exclusions",
        // ECU-SHARED-DATA
        L"Lib: exclusions", L"Lib: target", L"Unknown: exclusions", L"Bv: exclusions", L"Uds: exclusions", L"Doors: exclusions"}));
}

TEST_F(DiagCommViewPassesOrderTest, ProtocolsAndFunctionalGroupsShareAPass) {
    EXPECT_EQ(Asked<VMockBaseVariant>(), (std::vector<std::wstring>{
        // PROTOCOL and FUNCTIONAL-GROUP
        L"Lib: exclusions", L"Unknown: exclusions", L"Bv: exclusions", L"Uds: exclusions", L"Uds: target", L"Doors: exclusions", L"Doors: target",
        // ECU-SHARED-DATA
        L"Lib: exclusions", L"Lib: target", L"Unknown: exclusions", L"Bv: exclusions", L"Uds: exclusions", L"Doors: exclusions"}));
}
// clang-format on

TEST_F(DiagCommViewPassesOrderTest, AbsentPartsAreNotAskedFor) {
    VMockEcuVariant layer; // throws when its absent DIAG-COMMS or PARENT-REFS are requested
    EXPECT_NO_THROW(NDIAGKIT::VDiagCommView{layer});
    EXPECT_THROW(layer.DiagCommProxyCollection(), std::logic_error);
    EXPECT_THROW(layer.ParentRefCollection(), std::logic_error);
}

} // namespace
} // namespace NTest
