// SPDX-License-Identifier: Apache-2.0
#include <iostream>
#include <set>
#include <sstream>

#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/tools/DiagLayerTraverser.h>
#include <diagkit/tools/OpBuildDopView.h>

#include "reader/LayersInPrint.h"
#include "reader/ReaderTest.h"
#include "support/VerifyModel.h"

/// The project's own database: the documents and the package made from them; and what it shows of the memory model.

namespace NTest {
namespace {

class VSamplesTest : public VReaderTest {
protected:
    static std::string Sample(std::string const& name) { return std::string(DIAGKIT_SAMPLES) + '/' + name; }

    void ReadDocuments() {
        // In the order of the package's members, which is that of their names.
        ReadFiles({Sample("BodyCommunication.odx-c"), Sample("BodyProtocols.odx-d"), Sample("SharedLibraries.odx-d"),
                   Sample("WiperFamily.odx-d"), Sample("WiperFlash.odx-f"), Sample("WiperJobs.odx-m")});
    }

    std::string PrintCounts() const {
        std::string text;
        for (int tag = 0; tag < 400; ++tag) {
            text += std::to_string(Database().Count(static_cast<NODX201::VOdxTagEnum>(tag))) + ' ';
        }
        return text;
    }
};

TEST_F(VSamplesTest, NothingIsReportedAndNothingLeftOut) {
    ReadDocuments();
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_TRUE(m_result.unknownElements.empty());
    EXPECT_EQ(m_result.documents.size(), 6U);
    VerifyModel(Database());
}

TEST_F(VSamplesTest, PackageAndDocumentsGiveTheSameDatabase) {
    ReadDocuments();
    std::string const counts = PrintCounts();
    std::wstring const layers = PrintLayers(Database());
    std::wstring const diagComms = PrintDiagCommViews(Database());
    std::wstring const variables = PrintDiagVariableViews(Database());
    ReadFiles({Sample("WiperDatabase.pdx")});
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_TRUE(m_result.unknownElements.empty());
    EXPECT_EQ(m_result.documents.size(), 6U);
    EXPECT_EQ(PrintCounts(), counts);
    EXPECT_EQ(PrintLayers(Database()), layers);
    EXPECT_EQ(PrintDiagCommViews(Database()), diagComms);
    EXPECT_EQ(PrintDiagVariableViews(Database()), variables);
}

TEST_F(VSamplesTest, EveryDopMayBeRemovedThroughAViewAndTheRestIsReadOn) {
    ReadDocuments();
    std::vector<NODX201::VDiagLayer*> layers;
    for (NODX201::VDiagLayerContainer& container : Database().GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            layers.push_back(&layer);
        }
    }
    auto const walkAll = [&layers] {
        for (NODX201::VDiagLayer* const layer : layers) {
            NDIAGKIT::VDiagLayerTraverser(*layer).TraverseDiagLayer();
        }
    };
    walkAll(); // every link has an answer to forget
    std::size_t removed = 0;
    for (NODX201::VDiagLayer* const layer : layers) {
        NDIAGKIT::VOpBuildDopView builder;
        NDIAGKIT::VDopView* const view = builder.CreateDopView(*layer);
        ASSERT_NE(view, nullptr);
        while (!view->IsEmpty()) {
            view->Remove(view->Begin());
            ++removed;
        }
        builder.DestroyDopView(*view);
        VerifyModel(Database());
        walkAll();
        if (layer->HasDiagDataDictionarySpec()) {
            EXPECT_EQ(layer->GetDiagDataDictionarySpec().DopBaseCollection().Count(), 0U);
        }
    }
    EXPECT_GT(removed, 40U);
    EXPECT_EQ(Database().Count(NODX201::VOdxTagEnum::EndOfPduField), 0U);
}

TEST_F(VSamplesTest, LayersHaveTheParentsThatTheirReadmeNames) {
    ReadDocuments();
    EXPECT_EQ(
        PrintLayers(Database()),
        L"PROTOCOL UdsOnCan < SessionLibrary\n"
        L"PROTOCOL Kwp2000OnKLine < SessionLibrary -RequestSeed -SendKey\n"
        L"ECU-SHARED-DATA SessionLibrary\n"
        L"ECU-SHARED-DATA BodyLibrary\n"
        L"ECU-SHARED-DATA TroubleCodeLibrary\n"
        L"ECU-SHARED-DATA RainLightLibrary\n"
        L"FUNCTIONAL-GROUP BodyElectronics < BodyLibrary -DefineDynamicRecord -ReadDynamicRecord -ClearDynamicRecord "
        L"UdsOnCan -HardReset -RequestSeed -SendKey\n"
        L"BASE-VARIANT FrontWiper < BodyElectronics -DisableNormalCommunication -EnableNormalCommunication UdsOnCan "
        L"Kwp2000OnKLine BodyLibrary\n"
        L"ECU-VARIANT FrontWiperBasic < FrontWiper -ReprogramControlUnit -HardReset -RequestSeed -SendKey\n"
        L"ECU-VARIANT FrontWiperRainSensor < FrontWiper -StartCommunication -StopCommunication\n"
        L"ECU-VARIANT FrontWiperRainLight < RainLightLibrary FrontWiper -StartCommunication -StopCommunication\n");
}

// Which parts of the memory model the samples reach

struct VTag {
    NODX201::VOdxTagEnum tag;
    char const* name;
};

constexpr VTag kTags[] = {
#define ODX_TAG(name, value, element, type) {NODX201::VOdxTagEnum::name, #name},
#include <diagkit/model/OdxTags.def>
};

/// Tags that no element of a valid database counts under.
std::set<std::string> const kNeverCounted = {
    // Texts and values of their owners, no elements of the model.
    "AutMethod", "LongName",
    // Kinds that the model does not tell apart: they count as FILTER, FLASHDATA, PHYS-SEGMENT, TARGET-ADDR-OFFSET.
    "AddrdefFilter", "SizedefFilter", "ExternFlashdata", "InternFlashdata", "AddrdefPhysSegment", "SizedefPhysSegment",
    "NegOffset", "PosOffset",
    // Names of what always has a kind.
    "DiagCodedType", "Param", "ParentRef",
    // The form by short name, which only later versions or odd data have.
    "DopBaseSnref",
    // VEHICLE-INFO-SPEC has no place in the model.
    "PhysicalVehicleLink", "VehicleConnectorPin"};

TEST_F(VSamplesTest, EveryElementClassOfTheModelIsReached) {
    ReadDocuments();
    std::ostringstream table;
    for (VTag const& row : kTags) {
        std::size_t const count = Database().Count(row.tag);
        table << row.name << ", " << count << '\n';
        bool const isExpected = kNeverCounted.count(row.name) == 0;
        EXPECT_EQ(count > 0, isExpected) << row.name << " has " << count << " elements";
    }
    std::cout << table.str();
}

} // namespace
} // namespace NTest
