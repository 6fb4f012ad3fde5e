// SPDX-License-Identifier: Apache-2.0
#include "query/DiffTest.h"

/// Which layers and entries are matched with which, and what changed.

namespace NTest {
namespace {

class VDiffLayersTest : public VDiffTest {};

std::string Base(std::string const& content) { return LayerXml("BASE-VARIANT", "B", content); }
std::string Variant(std::string const& name, std::string const& content = "", std::string const& parentRef = "") {
    return LayerXml("ECU-VARIANT", name, content + ParentRefs({{"BASE-VARIANT", "B", parentRef}}));
}
std::string Semantic(std::string const& name, std::string const& semantic) {
    return "<DIAG-SERVICE ID=\"" + name + "\" SEMANTIC=\"" + semantic + "\"><SHORT-NAME>" + name +
           "</SHORT-NAME></DIAG-SERVICE>";
}

TEST_F(VDiffLayersTest, ADatabaseIsEqualToItself) {
    std::string const database = ContainerOfLayers(Base(DiagComms(Service("S"))) + Variant("V"));
    EXPECT_EQ("", Diff(database, database));
}

TEST_F(VDiffLayersTest, LayersComeInTheOrderOfTheNewDatabaseThenTheRemovedOnes) {
    EXPECT_EQ("N added\nB changed\n  diag-comms\n    S added\nO removed\n",
              Diff(ContainerOfLayers(LayerXml("PROTOCOL", "O") + Base("")),
                   ContainerOfLayers(LayerXml("FUNCTIONAL-GROUP", "N") + Base(DiagComms(Service("S"))))));
}

TEST_F(VDiffLayersTest, ALayerWhoseKindChangedIsRemovedAndAdded) {
    EXPECT_EQ("X added\nX removed\n", Diff(ContainerOfLayers(LayerXml("PROTOCOL", "X", DiagComms(Service("S")))),
                                           ContainerOfLayers(LayerXml("FUNCTIONAL-GROUP", "X"))));
}

TEST_F(VDiffLayersTest, AnAddedAndARemovedLayerOfOneKindWithTheSameViewsIsRenamed) {
    EXPECT_EQ("New renamed from Old\n", Diff(ContainerOfLayers(LayerXml("PROTOCOL", "Old", DiagComms(Service("S")))),
                                             ContainerOfLayers(LayerXml("PROTOCOL", "New", DiagComms(Service("S"))))));
}

TEST_F(VDiffLayersTest, ARenamedLayerCountsAsTheSameOwner) {
    auto const database = [](std::string const& name) {
        return ContainerOfLayers(LayerXml("PROTOCOL", name, DiagComms(Service("S"))) +
                                 LayerXml("FUNCTIONAL-GROUP", "G", ParentRefs({{"PROTOCOL", name}})));
    };
    EXPECT_EQ("New renamed from Old\n", Diff(database("Old"), database("New")));
}

TEST_F(VDiffLayersTest, WhatALayerInheritsIsToldInEveryLayer) {
    auto const database = [](std::string const& semantic) {
        return ContainerOfLayers(Base(DiagComms(Semantic("S", semantic))) + Variant("V"));
    };
    EXPECT_EQ("B changed\n  diag-comms\n    S changed\n      @SEMANTIC: X -> Y\n"
              "V changed\n  diag-comms\n    S changed\n      @SEMANTIC: X -> Y\n",
              Diff(database("X"), database("Y")));
}

TEST_F(VDiffLayersTest, AnExclusionTakesAnEntryAway) {
    std::string const base = Base(DiagComms(Service("S")));
    EXPECT_EQ("V changed\n  diag-comms\n    S removed\n",
              Diff(ContainerOfLayers(base + Variant("V")), ContainerOfLayers(base + Variant("V", "", Excluded("S")))));
}

TEST_F(VDiffLayersTest, TheSameContentOwnedByAnotherLayerIsMoved) {
    std::string const own = DiagComms("<DIAG-SERVICE ID=\"Other\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>");
    std::string const base = Base(DiagComms(Service("S")));
    EXPECT_EQ("V changed\n  diag-comms\n    S moved\n",
              Diff(ContainerOfLayers(base + Variant("V")), ContainerOfLayers(base + Variant("V", own))));
}

TEST_F(VDiffLayersTest, ChangedAndMovedIsChanged) {
    std::string const base = Base(DiagComms(Semantic("S", "X")));
    std::string const own =
        DiagComms("<DIAG-SERVICE ID=\"Other\" SEMANTIC=\"Y\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>");
    EXPECT_EQ("V changed\n  diag-comms\n    S changed\n      @SEMANTIC: X -> Y\n",
              Diff(ContainerOfLayers(base + Variant("V")), ContainerOfLayers(base + Variant("V", own))));
}

TEST_F(VDiffLayersTest, AnAddedAndARemovedEntryOfEqualContentIsRenamed) {
    EXPECT_EQ("B changed\n  diag-comms\n    T renamed from S\n",
              Diff(ContainerOfLayers(Base(DiagComms(Semantic("S", "X")))),
                   ContainerOfLayers(Base(DiagComms(Semantic("T", "X"))))));
}

TEST_F(VDiffLayersTest, OfSeveralPairsOfEqualContentTheFirstIsRenamed) {
    EXPECT_EQ("B changed\n  diag-comms\n    T renamed from S\n    U added\n",
              Diff(ContainerOfLayers(Base(DiagComms(Semantic("S", "X")))),
                   ContainerOfLayers(Base(DiagComms(Semantic("T", "X") + Semantic("U", "X"))))));
}

TEST_F(VDiffLayersTest, ChangesComeInTheOrderOfTheNewViewThenWhatIsGone) {
    EXPECT_EQ("B changed\n  diag-comms\n    Z added\n    M changed\n      @SEMANTIC: 2 -> 3\n    A removed\n",
              Diff(ContainerOfLayers(Base(DiagComms(Semantic("A", "1") + Semantic("M", "2")))),
                   ContainerOfLayers(Base(DiagComms(Semantic("Z", "4") + Semantic("M", "3"))))));
}

TEST_F(VDiffLayersTest, TheOrderOfAViewIsNoDifference) {
    EXPECT_EQ("", Diff(ContainerOfLayers(Base(DiagComms(Service("S") + Service("T")))),
                       ContainerOfLayers(Base(DiagComms(Service("T") + Service("S"))))));
}

TEST_F(VDiffLayersTest, OfSeveralEntriesOfOneNameTheNthIsMatchedWithTheNth) {
    auto const twice = [](std::string const& first, std::string const& second) {
        return ContainerOfLayers(Base(
            DiagComms("<DIAG-SERVICE ID=\"1\" SEMANTIC=\"" + first + "\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>" +
                      "<DIAG-SERVICE ID=\"2\" SEMANTIC=\"" + second + "\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>")));
    };
    EXPECT_EQ("B changed\n  diag-comms\n    S changed\n      @SEMANTIC: Y -> Z\n",
              Diff(twice("X", "Y"), twice("X", "Z")));
}

TEST_F(VDiffLayersTest, OfSeveralLayersOfOneNameTheNthIsMatchedWithTheNth) {
    auto const twice = [](std::string const& second) {
        return ContainerOfLayers(Base(DiagComms(Semantic("S", "X"))) + Base(DiagComms(Semantic("S", second))));
    };
    EXPECT_EQ("B changed\n  diag-comms\n    S changed\n      @SEMANTIC: X -> Y\n", Diff(twice("X"), twice("Y")));
}

TEST_F(VDiffLayersTest, ProtocolsAreComparedByNameAndNumber) {
    auto const database = [](std::string const& references, std::string const& semantic) {
        return ContainerOfLayers(LayerXml("PROTOCOL", "P", DiagComms(Semantic("S", semantic))) + Base(references));
    };
    std::string const once = ParentRefs({{"PROTOCOL", "P"}});
    EXPECT_EQ("B changed\n  protocols\n    P added\n",
              Diff(database(once, "X"), database(ParentRefs({{"PROTOCOL", "P"}, {"PROTOCOL", "P"}}), "X")));
    EXPECT_EQ("P changed\n  diag-comms\n    S changed\n      @SEMANTIC: X -> Y\n"
              "B changed\n  diag-comms\n    S changed\n      @SEMANTIC: X -> Y\n",
              Diff(database(once, "X"), database(once, "Y")));
}

class VDiffComparamsTest : public VDiffTest {
protected:
    static std::string Reference(std::string const& value, std::string const& protocol = "") {
        return "<COMPARAM-REFS><COMPARAM-REF ID-REF=\"CP\"><VALUE>" + value + "</VALUE>" +
               (protocol.empty() ? "" : "<PROTOCOL-SNREF SHORT-NAME=\"" + protocol + "\"/>") +
               "</COMPARAM-REF></COMPARAM-REFS>";
    }
    static std::string Database(std::string const& inBase, std::string const& inVariant) {
        std::string const spec = "<COMPARAM-SPEC ID=\"Spec\"><SHORT-NAME>Spec</SHORT-NAME><COMPARAMS>" +
                                 Xml("COMPARAM", "CP") + "</COMPARAMS></COMPARAM-SPEC>";
        std::string document = ContainerOfLayers(Base(inBase) + Variant("V", inVariant));
        return document.insert(document.find("<DIAG-LAYER-CONTAINER"), spec);
    }
};

TEST_F(VDiffComparamsTest, TheValueOfAComparamIsSeenInEveryLayerThatItCountsIn) {
    EXPECT_EQ("B changed\n  comparams\n    CP changed\n      VALUE: 1 -> 2\n"
              "V changed\n  comparams\n    CP changed\n      VALUE: 1 -> 2\n",
              Diff(Database(Reference("1"), ""), Database(Reference("2"), "")));
}

TEST_F(VDiffComparamsTest, TheFirstOfAComparamAndProtocolCounts) {
    EXPECT_EQ("B changed\n  comparams\n    CP changed\n      VALUE: 1 -> 2\n",
              Diff(Database(Reference("1"), Reference("9")), Database(Reference("2"), Reference("9"))));
    EXPECT_EQ("V changed\n  comparams\n    CP added\n",
              Diff(Database(Reference("1"), ""), Database(Reference("1"), Reference("9", "P"))));
}

class VDiffTwoLayersTest : public VDiffTest {
protected:
    std::string DiffIn(std::string const& database, wchar_t const* old, wchar_t const* now) {
        Read(database);
        auto& oldLayer = Get<NODX201::VDiagLayer>(old);
        auto& newLayer = Get<NODX201::VDiagLayer>(now);
        NQuery::VDiff const diff = NQuery::DiffLayers(oldLayer, newLayer);
        EXPECT_EQ(Sorted(diff), Mirrored(NQuery::DiffLayers(newLayer, oldLayer)));
        return InPrint(diff);
    }
};

TEST_F(VDiffTwoLayersTest, TheAnswerHasTheOneLayer) {
    std::string const database = ContainerOfLayers(
        Base(DiagComms(Service("S"))) + Variant("V", DiagComms(Service("T"))) + Variant("W", "", Excluded("S")));
    EXPECT_EQ("W changed\n  diag-comms\n    T removed\n    S removed\n", DiffIn(database, L"V", L"W"));
    EXPECT_EQ("", DiffIn(database, L"W", L"W"));
}

TEST_F(VDiffTwoLayersTest, WhatTheyOwnIsNotMoved) {
    auto const own = [](std::string const& id) {
        return DiagComms("<DIAG-SERVICE ID=\"" + id + "\"><SHORT-NAME>T</SHORT-NAME></DIAG-SERVICE>");
    };
    EXPECT_EQ("", DiffIn(ContainerOfLayers(Base("") + Variant("V", own("1")) + Variant("W", own("2"))), L"V", L"W"));
    EXPECT_EQ("", DiffIn(ContainerOfLayers(Base(own("1")) + Variant("V")), L"B", L"V"));
}

} // namespace
} // namespace NTest
