// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Views.h>
#include <diagkit/model/Layers.h>

#include "check/CheckTest.h"

namespace NTest {
namespace {

/// IMPORT-REFS to these layers, each reference on a line of its own.
std::string ImportRefs(std::vector<std::string> const& ids) {
    std::string refs;
    for (std::string const& id : ids) {
        refs += "\n<IMPORT-REF ID-REF=\"" + id + "\"/>";
    }
    return "<IMPORT-REFS>" + refs + "</IMPORT-REFS>";
}

using VLayerReferencesTest = VCheckTest;

TEST_F(VLayerReferencesTest, SameParentTwice) {
    Check(LayerXml("BASE-VARIANT", "B") +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B"}, {"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Finding(),
              "7:1 warning repeated-parent: PARENT-REF names the BASE-VARIANT 'B', as the one at line 6 does; "
              "what one of them excludes, the other still brings");
}

TEST_F(VLayerReferencesTest, SameParentTwiceBringsWhatOneOfThemExcludes) {
    // The message describes what the view does.
    Check(LayerXml("BASE-VARIANT", "B", DiagComms(Service("S"))) +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B", Excluded("S")}, {"BASE-VARIANT", "B"}})) +
          LayerXml("ECU-VARIANT", "W", ParentRefs({{"BASE-VARIANT", "B", Excluded("S")}})));
    EXPECT_EQ(Diagnostics(), "test.odx:8:1 warning repeated-parent");
    EXPECT_EQ(NCheck::DiagCommsIn(dynamic_cast<NODX201::VDiagLayer&>(Element(L"V"))).size(), 1U);
    EXPECT_EQ(NCheck::DiagCommsIn(dynamic_cast<NODX201::VDiagLayer&>(Element(L"W"))).size(), 0U);
}

TEST_F(VLayerReferencesTest, SameParentOfTwoLayersIsNone) {
    Check(LayerXml("BASE-VARIANT", "B") + LayerXml("BASE-VARIANT", "D") + LayerXml("ECU-SHARED-DATA", "E") +
          LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B"}, {"ECU-SHARED-DATA", "E"}})) +
          LayerXml("ECU-VARIANT", "W", ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VLayerReferencesTest, LayerThatIsItsOwnParentTwiceIsReportedAsThat) {
    Check(LayerXml("BASE-VARIANT", "B", ParentRefs({{"BASE-VARIANT", "B"}, {"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error parent-itself\ntest.odx:5:1 error parent-itself");
}

TEST_F(VLayerReferencesTest, SameImportTwice) {
    Check(LayerXml("ECU-SHARED-DATA", "E") + LayerXml("BASE-VARIANT", "B", ImportRefs({"E", "E", "E"})));
    EXPECT_EQ(Diagnostics(), "test.odx:7:1 warning repeated-import\ntest.odx:8:1 warning repeated-import");
    EXPECT_EQ(Message(1), "IMPORT-REF names the ECU-SHARED-DATA 'E', as the one at line 6 does");
}

TEST_F(VLayerReferencesTest, ImportAndParentAreNotTheSameTwice) {
    Check(LayerXml("ECU-SHARED-DATA", "E") +
          LayerXml("BASE-VARIANT", "B", ImportRefs({"E"}) + ParentRefs({{"ECU-SHARED-DATA", "E"}})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VLayerReferencesTest, LayerThatImportsItself) {
    Check(LayerXml("BASE-VARIANT", "B", ImportRefs({"B"})));
    EXPECT_EQ(Finding(), "4:1 warning import-cycle: BASE-VARIANT 'B' imports itself by this reference; programs that "
                         "follow imports may not terminate");
}

TEST_F(VLayerReferencesTest, ImportsInARing) {
    Check(LayerXml("ECU-SHARED-DATA", "E", ImportRefs({"F"})) + LayerXml("ECU-SHARED-DATA", "F", ImportRefs({"G"})) +
          LayerXml("ECU-SHARED-DATA", "G", ImportRefs({"E"})));
    EXPECT_EQ(Finding(),
              "10:1 warning import-cycle: ECU-SHARED-DATA 'E' imports itself by this reference, in the cycle "
              "of ECU-SHARED-DATA 'E', ECU-SHARED-DATA 'F', ECU-SHARED-DATA 'G'; programs that follow "
              "imports may not terminate");
}

TEST_F(VLayerReferencesTest, ImportsThatMeetAreNoRing) {
    Check(LayerXml("ECU-SHARED-DATA", "E") + LayerXml("ECU-SHARED-DATA", "F", ImportRefs({"E"})) +
          LayerXml("BASE-VARIANT", "B", ImportRefs({"F", "E"})));
    EXPECT_EQ(Diagnostics(), "");
}

} // namespace
} // namespace NTest
