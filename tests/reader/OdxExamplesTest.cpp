// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Layers.h>

#include "reader/LayersInPrint.h"
#include "reader/ReaderTest.h"

/// A database that uses each construct of ODX 2.0.1 except VEHICLE-INFO-SPEC, with known views. It is not part of the
/// project; this test is built where it is found.

namespace NTest {
namespace {

class VOdxExamplesTest : public VReaderTest {};

TEST_F(VOdxExamplesTest, EveryElementHasAPlaceAndNothingIsReported) {
    std::string const folder = std::string(DIAGKIT_ODX_EXAMPLES) + '/';
    ReadFiles(
        {folder + "Demo.odx-d", folder + "DemoComparams.odx-c", folder + "DemoFlash.odx-f", folder + "DemoJobs.odx-m"});
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_TRUE(m_result.unknownElements.empty());
    EXPECT_EQ(m_result.documents.size(), 4U);
    EXPECT_EQ(PrintDiagCommViews(Database()),
              L"UDS: Start@UDS ReadIdent@Lib DefDyn@Lib ReadDyn@Lib\n"
              L"All: ReadIdent@Lib DefDyn@Lib ReadDyn@Lib ClearDyn@Lib\n"
              L"Lib: ReadIdent@Lib DefDyn@Lib ReadDyn@Lib ClearDyn@Lib\n"
              L"Door: Job@Door ReadIdent@Lib ReadDyn@Lib ClearDyn@Lib Start@UDS DefDyn@Lib\n"
              L"DoorLeft: ReadIdent@Lib ReadDyn@Lib ClearDyn@Lib Start@UDS DefDyn@Lib\n"
              L"DoorRight: Job@Door ReadIdent@Lib ReadDyn@Lib ClearDyn@Lib Start@UDS DefDyn@Lib\n");
    EXPECT_EQ(PrintDiagVariableViews(Database()), L"UDS:\n"
                                                  L"All: Range@All Speed@Lib\n"
                                                  L"Lib: Speed@Lib\n"
                                                  L"Door: Speed@Lib Temp@Door Range@All\n"
                                                  L"DoorLeft: Speed@Lib Temp@Door Range@All\n"
                                                  L"DoorRight: Speed@Lib Temp@Door Range@All\n");
}

} // namespace
} // namespace NTest
