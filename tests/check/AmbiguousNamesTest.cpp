// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {
namespace {

/// A service or the like of the short name "X" with an ID of its own.
std::string X(std::string const& tag, std::string const& id) {
    return "<" + tag + " ID=\"" + id + "\"><SHORT-NAME>X</SHORT-NAME></" + tag + ">";
}

std::string ServiceX(std::string const& id) { return DiagComms(X("DIAG-SERVICE", id)); }

class VAmbiguousNamesTest : public VCheckTest {
protected:
    /// Two BASE-VARIANTs with these contents, at the lines 2 to 5, and an ECU-VARIANT of both, whose references are at
    /// the lines 8 and 9.
    void CheckParents(std::string const& first, std::string const& second, std::string const& own = "",
                      std::string const& excluded = "") {
        Check(LayerXml("BASE-VARIANT", "A", first) + LayerXml("BASE-VARIANT", "B", second) +
              LayerXml("ECU-VARIANT", "V", own + ParentRefs({{"BASE-VARIANT", "A", excluded}, {"BASE-VARIANT", "B"}})));
    }

    static std::string Found(std::string const& kind) {
        return "9:1 warning ambiguous-name: " + kind +
               " 'X' comes to the ECU-VARIANT 'V' from the BASE-VARIANT 'A' and another one of that name from the "
               "BASE-VARIANT 'B', parents of equal rank; the first wins, because its PARENT-REF stands first";
    }
};

TEST_F(VAmbiguousNamesTest, DiagComms) {
    CheckParents(ServiceX("1"), ServiceX("2"));
    EXPECT_EQ(Finding(), Found("DIAG-COMM"));
}

TEST_F(VAmbiguousNamesTest, Dops) {
    CheckParents(InDictionary(Dops("X")), InDictionary(Dops("X")));
    EXPECT_EQ(Finding(), Found("DOP"));
}

TEST_F(VAmbiguousNamesTest, DiagVariables) {
    CheckParents("<DIAG-VARIABLES>" + X("DIAG-VARIABLE", "1") + "</DIAG-VARIABLES>",
                 "<DIAG-VARIABLES>" + X("DIAG-VARIABLE", "2") + "</DIAG-VARIABLES>");
    EXPECT_EQ(Finding(), Found("DIAG-VARIABLE"));
}

TEST_F(VAmbiguousNamesTest, GlobalNegResponses) {
    CheckParents("<GLOBAL-NEG-RESPONSES>" + X("GLOBAL-NEG-RESPONSE", "1") + "</GLOBAL-NEG-RESPONSES>",
                 "<GLOBAL-NEG-RESPONSES>" + X("GLOBAL-NEG-RESPONSE", "2") + "</GLOBAL-NEG-RESPONSES>");
    EXPECT_EQ(Finding(), Found("GLOBAL-NEG-RESPONSE"));
}

TEST_F(VAmbiguousNamesTest, OfTwoSharedDatas) {
    Check(LayerXml("PROTOCOL", "P", ParentRefs({{"ECU-SHARED-DATA", "A"}, {"ECU-SHARED-DATA", "B"}})) +
          LayerXml("ECU-SHARED-DATA", "A", ServiceX("1")) + LayerXml("ECU-SHARED-DATA", "B", ServiceX("2")));
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 warning ambiguous-name");
}

TEST_F(VAmbiguousNamesTest, OfAProtocolThatStandsBeforeAFunctionalGroup) {
    Check(LayerXml("PROTOCOL", "P", ServiceX("1")) + LayerXml("FUNCTIONAL-GROUP", "G", ServiceX("2")) +
          LayerXml("BASE-VARIANT", "B", ParentRefs({{"PROTOCOL", "P"}, {"FUNCTIONAL-GROUP", "G"}})));
    EXPECT_EQ(Diagnostics(), "test.odx:9:1 warning ambiguous-name");
}

TEST_F(VAmbiguousNamesTest, AFunctionalGroupThatStandsBeforeAProtocolWinsForEverybody) {
    Check(LayerXml("PROTOCOL", "P", ServiceX("1")) + LayerXml("FUNCTIONAL-GROUP", "G", ServiceX("2")) +
          LayerXml("BASE-VARIANT", "B", ParentRefs({{"FUNCTIONAL-GROUP", "G"}, {"PROTOCOL", "P"}})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, OwnOnesDecide) {
    CheckParents(ServiceX("1"), ServiceX("2"), ServiceX("3"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, OwnReferencesDecide) {
    CheckParents(ServiceX("1"), ServiceX("2"), DiagComms("<DIAG-COMM-REF ID-REF=\"2\"/>"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, ExclusionsDecide) {
    CheckParents(ServiceX("1"), ServiceX("2"), "", Excluded("X"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, ExclusionsDoNotReachDops) {
    CheckParents(InDictionary(Dops("X")) + ServiceX("1"), InDictionary(Dops("X")), "", Excluded("X"));
    EXPECT_EQ(Diagnostics(), "test.odx:10:1 warning ambiguous-name");
}

TEST_F(VAmbiguousNamesTest, OneElementThroughTwoParentsIsNone) {
    Check(LayerXml("PROTOCOL", "P", ServiceX("1")) + LayerXml("BASE-VARIANT", "A", ParentRefs({{"PROTOCOL", "P"}})) +
          LayerXml("BASE-VARIANT", "B", ParentRefs({{"PROTOCOL", "P"}})) +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "A"}, {"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, ParentNamedTwiceIsOneParent) {
    Check(LayerXml("BASE-VARIANT", "A", ServiceX("1")) + LayerXml("BASE-VARIANT", "B", ServiceX("2")) +
          LayerXml("ECU-VARIANT", "V",
                   ParentRefs({{"BASE-VARIANT", "A"}, {"BASE-VARIANT", "A"}, {"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Diagnostics(), "test.odx:9:1 warning repeated-parent\ntest.odx:10:1 warning ambiguous-name");
    Check(LayerXml("BASE-VARIANT", "A", ServiceX("1")) +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "A"}, {"BASE-VARIANT", "A"}})));
    EXPECT_EQ(Diagnostics(), "test.odx:7:1 warning repeated-parent");
}

TEST_F(VAmbiguousNamesTest, ParentsOfDifferentRankAreNone) {
    Check(LayerXml("ECU-SHARED-DATA", "S", ServiceX("1")) + LayerXml("BASE-VARIANT", "B", ServiceX("2")) +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"ECU-SHARED-DATA", "S"}, {"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, ParentsOfLowerRankThatLoseAnywayAreNone) {
    Check(LayerXml("ECU-SHARED-DATA", "S", ServiceX("1")) + LayerXml("ECU-SHARED-DATA", "T", ServiceX("2")) +
          LayerXml("BASE-VARIANT", "B", ServiceX("3")) +
          LayerXml("ECU-VARIANT", "V",
                   ParentRefs({{"ECU-SHARED-DATA", "S"}, {"ECU-SHARED-DATA", "T"}, {"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VAmbiguousNamesTest, VariablesDoNotComeThroughAProtocol) {
    auto const shared = [](std::string const& id, std::string const& variable) {
        return LayerXml("ECU-SHARED-DATA", id, "<DIAG-VARIABLES>" + X("DIAG-VARIABLE", variable) + "</DIAG-VARIABLES>");
    };
    Check(LayerXml("PROTOCOL", "P", ParentRefs({{"ECU-SHARED-DATA", "S"}, {"ECU-SHARED-DATA", "T"}})) +
          shared("S", "1") + shared("T", "2"));
    EXPECT_EQ(Diagnostics(), "");
}

} // namespace
} // namespace NTest
