// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {
namespace {

class VExclusionsTest : public VCheckTest {
protected:
    /// A BASE-VARIANT "B" with the service "Own", which inherits "Inherited" from a PROTOCOL, and an ECU-VARIANT of it.
    void CheckExclusions(std::string const& exclusions, std::string const& ownOfVariant = "") {
        Check(LayerXml("PROTOCOL", "P", DiagComms(Service("Inherited"))) +
              LayerXml("BASE-VARIANT", "B",
                       DiagComms(Service("Own")) + "<DIAG-VARIABLES>" + Xml("DIAG-VARIABLE", "Speed") +
                           "</DIAG-VARIABLES>" + ParentRefs({{"PROTOCOL", "P"}})) +
              LayerXml("ECU-VARIANT", "V", ownOfVariant + ParentRefs({{"BASE-VARIANT", "B", exclusions}})));
    }

    static std::string ExcludedVariable(std::string const& name) {
        return "<NOT-INHERITED-VARIABLES><NOT-INHERITED-VARIABLE>\n<DIAG-VARIABLE-SNREF SHORT-NAME=\"" + name +
               "\"/></NOT-INHERITED-VARIABLE></NOT-INHERITED-VARIABLES>";
    }
};

TEST_F(VExclusionsTest, OfADiagCommThatTheParentDoesNotHave) {
    CheckExclusions(Excluded("own"));
    EXPECT_EQ(Finding(),
              "10:1 warning excludes-nothing: NOT-INHERITED-DIAG-COMM names 'own', which the BASE-VARIANT 'B' does not "
              "have");
}

TEST_F(VExclusionsTest, OfAVariableThatTheParentDoesNotHave) {
    CheckExclusions(ExcludedVariable("Own"));
    EXPECT_EQ(Finding(),
              "10:1 warning excludes-nothing: NOT-INHERITED-VARIABLE names 'Own', which the BASE-VARIANT 'B' "
              "does not have");
}

TEST_F(VExclusionsTest, ById) {
    CheckExclusions("<NOT-INHERITED-DIAG-COMMS><NOT-INHERITED-DIAG-COMM>\n<DIAG-COMM-REF "
                    "ID-REF=\"Own\"/></NOT-INHERITED-DIAG-COMM></NOT-INHERITED-DIAG-COMMS>");
    EXPECT_EQ(Finding(),
              "10:1 warning excludes-nothing: NOT-INHERITED-DIAG-COMM names its target by ID, which excludes "
              "nothing; name it by short name");
}

TEST_F(VExclusionsTest, OfWhatTheParentHasOrInheritsAreNoFindings) {
    for (std::string const& exclusions : {Excluded("Own"), Excluded("Inherited"), ExcludedVariable("Speed")}) {
        CheckExclusions(exclusions);
        EXPECT_EQ(Diagnostics(), "") << exclusions;
    }
}

TEST_F(VExclusionsTest, OfWhatTheLayerHasItselfAreNoFindings) {
    CheckExclusions(Excluded("Own"), DiagComms("<DIAG-SERVICE ID=\"X\"><SHORT-NAME>Own</SHORT-NAME></DIAG-SERVICE>"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VExclusionsTest, OfWhatTheParentItselfExcludes) {
    Check(LayerXml("PROTOCOL", "P", DiagComms(Service("X"))) +
          LayerXml("BASE-VARIANT", "B", ParentRefs({{"PROTOCOL", "P", Excluded("X")}})) +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B", Excluded("X")}})));
    EXPECT_EQ(Diagnostics(), "test.odx:11:1 warning excludes-nothing");
}

TEST_F(VExclusionsTest, OfAParentThatIsNotThereAreNoFindingsOfTheirOwn) {
    Check(LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B", Excluded("X")}})));
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "unresolved-reference");
}

TEST_F(VExclusionsTest, OfAParentWhoseKindShowsFromItsTarget) {
    Check(LayerXml("BASE-VARIANT", "B") +
          LayerXml("ECU-VARIANT", "V",
                   "<PARENT-REFS><PARENT-REF ID-REF=\"B\">" + Excluded("X") + "</PARENT-REF></PARENT-REFS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:6:1 warning excludes-nothing");
}

} // namespace
} // namespace NTest
