// SPDX-License-Identifier: Apache-2.0
#include <cwchar>
#include <iostream>
#include <set>
#include <sstream>
#include <stdexcept>

#include <diagkit/memory/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/tools/DiagLayerTraverser.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "reader/LayersInPrint.h"
#include "reader/ReaderTest.h"
#include "support/PrintView.h"
#include "support/VerifyModel.h"

/// The project's own database: the documents and the package made from them; and the parts of the memory model that it
/// uses.

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
    walkAll(); // every link has a result to forget
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

TEST_F(VSamplesTest, DiagCommViewsAreThoseOfTheirReadme) {
    ReadDocuments();
    EXPECT_EQ(
        PrintDiagCommViews(Database()),
        L"UdsOnCan: ReadTroubleCodes@UdsOnCan ClearTroubleCodes@UdsOnCan HardReset@UdsOnCan "
        L"TesterPresent@SessionLibrary StartSession@SessionLibrary RequestSeed@SessionLibrary SendKey@SessionLibrary\n"
        L"Kwp2000OnKLine: StartCommunication@Kwp2000OnKLine StopCommunication@Kwp2000OnKLine "
        L"ReadTroubleCodes@Kwp2000OnKLine TesterPresent@SessionLibrary StartSession@SessionLibrary\n"
        L"SessionLibrary: TesterPresent@SessionLibrary StartSession@SessionLibrary RequestSeed@SessionLibrary "
        L"SendKey@SessionLibrary\n"
        L"BodyLibrary: ReadIdentification@BodyLibrary ReadDataRecord@BodyLibrary ClearTroubleCodes@BodyLibrary "
        L"DefineDynamicRecord@BodyLibrary ReadDynamicRecord@BodyLibrary ClearDynamicRecord@BodyLibrary\n"
        L"TroubleCodeLibrary:\n"
        L"RainLightLibrary: ReadRainIntensity@RainLightLibrary ReadAmbientLight@RainLightLibrary "
        L"CalibrateSensor@RainLightLibrary\n"
        L"BodyElectronics: DisableNormalCommunication@BodyElectronics EnableNormalCommunication@BodyElectronics "
        L"ReadTroubleCodes@UdsOnCan ClearTroubleCodes@UdsOnCan TesterPresent@SessionLibrary "
        L"StartSession@SessionLibrary ReadIdentification@BodyLibrary ReadDataRecord@BodyLibrary\n"
        L"FrontWiper: ReadWiperStatus@FrontWiper MoveWiper@FrontWiper ReadFaultEnvironment@FrontWiper "
        L"CalibrateParkPosition@FrontWiper ReprogramControlUnit@FrontWiper ReadTroubleCodes@UdsOnCan "
        L"ClearTroubleCodes@UdsOnCan TesterPresent@SessionLibrary StartSession@SessionLibrary "
        L"ReadIdentification@BodyLibrary ReadDataRecord@BodyLibrary HardReset@UdsOnCan RequestSeed@SessionLibrary "
        L"SendKey@SessionLibrary StartCommunication@Kwp2000OnKLine StopCommunication@Kwp2000OnKLine "
        L"DefineDynamicRecord@BodyLibrary ReadDynamicRecord@BodyLibrary ClearDynamicRecord@BodyLibrary\n"
        L"FrontWiperBasic: ReadTroubleCodes@Kwp2000OnKLine ReadWiperStatus@FrontWiper MoveWiper@FrontWiper "
        L"ReadFaultEnvironment@FrontWiper CalibrateParkPosition@FrontWiper ClearTroubleCodes@UdsOnCan "
        L"TesterPresent@SessionLibrary StartSession@SessionLibrary ReadIdentification@BodyLibrary "
        L"ReadDataRecord@BodyLibrary StartCommunication@Kwp2000OnKLine StopCommunication@Kwp2000OnKLine "
        L"DefineDynamicRecord@BodyLibrary ReadDynamicRecord@BodyLibrary ClearDynamicRecord@BodyLibrary\n"
        L"FrontWiperRainSensor: ReadWiperStatus@FrontWiperRainSensor ReadRainIntensity@RainLightLibrary "
        L"MoveWiper@FrontWiper ReadFaultEnvironment@FrontWiper CalibrateParkPosition@FrontWiper "
        L"ReprogramControlUnit@FrontWiper ReadTroubleCodes@UdsOnCan ClearTroubleCodes@UdsOnCan "
        L"TesterPresent@SessionLibrary StartSession@SessionLibrary ReadIdentification@BodyLibrary "
        L"ReadDataRecord@BodyLibrary HardReset@UdsOnCan RequestSeed@SessionLibrary SendKey@SessionLibrary "
        L"DefineDynamicRecord@BodyLibrary ReadDynamicRecord@BodyLibrary ClearDynamicRecord@BodyLibrary\n"
        L"FrontWiperRainLight: SwitchHeadlamps@FrontWiperRainLight ReadWiperStatus@FrontWiper MoveWiper@FrontWiper "
        L"ReadFaultEnvironment@FrontWiper CalibrateParkPosition@FrontWiper ReprogramControlUnit@FrontWiper "
        L"ReadTroubleCodes@UdsOnCan ClearTroubleCodes@UdsOnCan TesterPresent@SessionLibrary "
        L"StartSession@SessionLibrary ReadIdentification@BodyLibrary ReadDataRecord@BodyLibrary HardReset@UdsOnCan "
        L"RequestSeed@SessionLibrary SendKey@SessionLibrary DefineDynamicRecord@BodyLibrary "
        L"ReadDynamicRecord@BodyLibrary ClearDynamicRecord@BodyLibrary ReadRainIntensity@RainLightLibrary "
        L"ReadAmbientLight@RainLightLibrary CalibrateSensor@RainLightLibrary\n");
}

TEST_F(VSamplesTest, DiagVariableViewsAreThoseOfTheirReadme) {
    ReadDocuments();
    EXPECT_EQ(
        PrintDiagVariableViews(Database()),
        L"UdsOnCan:\n"
        L"Kwp2000OnKLine:\n"
        L"SessionLibrary:\n"
        L"BodyLibrary: SupplyVoltage@BodyLibrary OperatingTime@BodyLibrary\n"
        L"TroubleCodeLibrary:\n"
        L"RainLightLibrary: RainIntensity@RainLightLibrary AmbientLight@RainLightLibrary\n"
        L"BodyElectronics: NetworkState@BodyElectronics SupplyVoltage@BodyElectronics "
        L"OperatingTime@BodyLibrary\n"
        L"FrontWiper: WiperMode@FrontWiper OperatingTime@BodyLibrary CalibrationAttempts@FrontWiper "
        L"NetworkState@BodyElectronics SupplyVoltage@BodyElectronics\n"
        L"FrontWiperBasic: WiperMode@FrontWiper OperatingTime@BodyLibrary CalibrationAttempts@FrontWiper "
        L"NetworkState@BodyElectronics SupplyVoltage@BodyElectronics\n"
        L"FrontWiperRainSensor: RainIntensity@RainLightLibrary WiperMode@FrontWiper OperatingTime@BodyLibrary "
        L"CalibrationAttempts@FrontWiper NetworkState@BodyElectronics SupplyVoltage@BodyElectronics\n"
        L"FrontWiperRainLight: WiperMode@FrontWiperRainLight OperatingTime@BodyLibrary CalibrationAttempts@FrontWiper "
        L"NetworkState@BodyElectronics SupplyVoltage@BodyElectronics RainIntensity@RainLightLibrary "
        L"AmbientLight@RainLightLibrary\n");
}

std::wstring PrintGlobalNegResponses(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildGlobalNegResponseView builder;
    NDIAGKIT::VGlobalNegResponseView* const view = builder.CreateGlobalNegResponseView(layer);
    std::wstring text = std::wstring(layer.GetShortName()) + L':';
    for (NODX201::VGlobalNegResponse& response : *view) {
        text += std::wstring(L" ") + response.GetShortName() + L'@' + LayerNameOf(response);
    }
    builder.DestroyGlobalNegResponseView(*view);
    return text + L'\n';
}

TEST_F(VSamplesTest, GlobalNegResponseViewsAreThoseOfTheirReadme) {
    ReadDocuments();
    std::wstring views;
    for (NODX201::VDiagLayerContainer& container : Database().GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            views += PrintGlobalNegResponses(layer);
        }
    }
    EXPECT_EQ(views, L"UdsOnCan: ResponsePending@UdsOnCan GeneralReject@SessionLibrary\n"
                     L"Kwp2000OnKLine: RoutineNotComplete@Kwp2000OnKLine GeneralReject@SessionLibrary\n"
                     L"SessionLibrary: GeneralReject@SessionLibrary\n"
                     L"BodyLibrary: SupplyVoltageOutOfRange@BodyLibrary\n"
                     L"TroubleCodeLibrary:\n"
                     L"RainLightLibrary:\n"
                     L"BodyElectronics: ResponsePending@UdsOnCan GeneralReject@SessionLibrary "
                     L"SupplyVoltageOutOfRange@BodyLibrary\n"
                     L"FrontWiper: SupplyVoltageOutOfRange@FrontWiper ResponsePending@UdsOnCan "
                     L"GeneralReject@SessionLibrary RoutineNotComplete@Kwp2000OnKLine\n"
                     L"FrontWiperBasic: SupplyVoltageOutOfRange@FrontWiper ResponsePending@UdsOnCan "
                     L"GeneralReject@SessionLibrary RoutineNotComplete@Kwp2000OnKLine\n"
                     L"FrontWiperRainSensor: SupplyVoltageOutOfRange@FrontWiper ResponsePending@UdsOnCan "
                     L"GeneralReject@SessionLibrary RoutineNotComplete@Kwp2000OnKLine\n"
                     L"FrontWiperRainLight: SensorNotCoupled@FrontWiperRainLight SupplyVoltageOutOfRange@FrontWiper "
                     L"ResponsePending@UdsOnCan GeneralReject@SessionLibrary RoutineNotComplete@Kwp2000OnKLine\n");
}

// One DOP-SNREF, several targets

/// The VALUE parameter of this short name in an element with parameters.
template <class Owner>
NODX201::VValue& ValueNamed(Owner& owner, std::wstring_view shortName) {
    for (NODX201::VParam& param : owner.ParamCollection()) {
        if (shortName == param.GetShortName()) {
            return As<NODX201::VValue>(param);
        }
    }
    throw std::out_of_range("nothing holds such a parameter");
}

/// Kind and layer of the DOP to which the parameter refers, seen from a layer, and the texts of a DATA-OBJECT-PROP.
std::wstring DopSeenFrom(NODX201::VDiagLayer& layer, NODX201::VValue& value) {
    if (!value.GetDopBaseLink().HasDopBase(layer)) {
        return L"";
    }
    NODX201::VDopBase& dop = value.GetDopBaseLink().GetDopBase();
    std::wstring text = std::wstring(NODX201::OdxTagText(dop.GetOdxTag())) + L'@' + LayerNameOf(dop);
    auto* const simple = dynamic_cast<NODX201::VDataObjectProp*>(&dop);
    if (simple == nullptr || !simple->GetCompuMethod().HasCompuInternalToPhys()) {
        return text;
    }
    NODX201::VCompuInternalToPhys& toPhys = simple->GetCompuMethod().GetCompuInternalToPhys();
    for (auto& scale : As<NODX201::VCompuScaleCollection>(toPhys.GetCompuScalesProgCodeChoice())) {
        auto& constant = As<NODX201::VCompuConst>(scale.GetCompuConstCompuRationalCoeffsChoice());
        text += std::wstring(L" ") + As<NMemory::VMemVt>(constant.GetVt()).GetText();
    }
    return text;
}

TEST_F(VSamplesTest, OneDopSnrefHasTheAnswersThatItsReadmeNames) {
    ReadDocuments();
    auto const layer = [this](wchar_t const* id) -> NODX201::VDiagLayer& { return Get<NODX201::VDiagLayer>(id); };
    auto& wiperMode = ValueNamed(Get<NODX201::VPosResponse>(L"FrontWiper.Response.ReadWiperStatus"), L"WiperMode");
    EXPECT_EQ(DopSeenFrom(layer(L"FrontWiper"), wiperMode), L"DATA-OBJECT-PROP@FrontWiper off interval continuous");
    EXPECT_EQ(DopSeenFrom(layer(L"FrontWiperBasic"), wiperMode), L"DATA-OBJECT-PROP@FrontWiperBasic off on");
    EXPECT_EQ(DopSeenFrom(layer(L"FrontWiperRainSensor"), wiperMode),
              L"DATA-OBJECT-PROP@FrontWiper off interval continuous");
    EXPECT_EQ(DopSeenFrom(layer(L"FrontWiperRainLight"), wiperMode),
              L"DATA-OBJECT-PROP@FrontWiperRainLight off automatic");

    auto& record = Get<NODX201::VBasicStructure>(L"UdsOnCan.Structure.TroubleCodeRecord");
    auto& troubleCode = ValueNamed(record, L"TroubleCode");
    for (wchar_t const* const id : {L"UdsOnCan", L"BodyElectronics"}) {
        EXPECT_EQ(DopSeenFrom(layer(id), troubleCode), L"DATA-OBJECT-PROP@UdsOnCan");
    }
    for (wchar_t const* const id :
         {L"FrontWiper", L"FrontWiperBasic", L"FrontWiperRainSensor", L"FrontWiperRainLight"}) {
        EXPECT_EQ(DopSeenFrom(layer(id), troubleCode), L"DTC-DOP@FrontWiper");
    }
}

// Parameters inside parameters

struct VNestedParam {
    wchar_t const* layer;
    wchar_t const* diagComm; // ID
    wchar_t const* name;
    wchar_t const* owner; // of the parameter found, with its kind; "" for none found
};

constexpr VNestedParam kNestedParams[] = {
    {L"UdsOnCan", L"UdsOnCan.Service.ReadTroubleCodes", L"TroubleCode", L"STRUCTURE TroubleCodeRecord"},
    {L"UdsOnCan", L"UdsOnCan.Service.ReadTroubleCodes", L"Confirmed", L"STRUCTURE TroubleCodeRecord"},
    {L"Kwp2000OnKLine", L"Kwp2000OnKLine.Service.ReadTroubleCodes", L"ShortTroubleCode",
     L"STRUCTURE ShortTroubleCodeRecord"},
    {L"Kwp2000OnKLine", L"Kwp2000OnKLine.Service.ReadTroubleCodes", L"Stored", L"STRUCTURE ShortTroubleCodeRecord"},
    {L"FrontWiper", L"FrontWiper.Service.ReadWiperStatus", L"MotorCurrent", L"STRUCTURE Motor"},
    {L"FrontWiper", L"FrontWiper.Service.ReadWiperStatus", L"ParkedForHours", L"STRUCTURE Parked"},
    {L"FrontWiper", L"FrontWiper.Service.ReadWiperStatus", L"WipingSpeed", L"STRUCTURE Wiping"},
    {L"FrontWiper", L"FrontWiper.Service.ReadFaultEnvironment", L"TimeOfFault", L"ENV-DATA GeneralEnvironment"},
    {L"FrontWiper", L"FrontWiper.Service.ReadFaultEnvironment", L"MotorTemperature", L"ENV-DATA MotorEnvironment"},
    {L"BodyLibrary", L"BodyLibrary.Service.ReadDataRecord", L"SupplyVoltage", L"STRUCTURE SupplyVoltageRecord"},
    {L"BodyLibrary", L"BodyLibrary.Service.ReadDataRecord", L"OperatingTime", L"STRUCTURE OperatingRecord"},
    {L"BodyLibrary", L"BodyLibrary.Service.ReadDataRecord", L"WakeUpSource", L"STRUCTURE WakeUp"},
    {L"RainLightLibrary", L"RainLightLibrary.Service.ReadRainIntensity", L"RainIntensity", L"STRUCTURE RainRecord"},
    {L"FrontWiper", L"FrontWiper.Job.CalibrateParkPosition", L"MotorCurrent", L""},
};

TEST_F(VSamplesTest, ParametersInsideOfParametersAreFoundWhereTheirReadmeSays) {
    ReadDocuments();
    NDIAGKIT::VOpResolveSnref resolver;
    for (VNestedParam const& row : kNestedParams) {
        NODX201::IOutParamIf* const found = resolver.ResolveOutParamIfSnref(
            row.name, Get<NODX201::VDiagComm>(row.diagComm), Get<NODX201::VDiagLayer>(row.layer),
            NODX201::VSearchRange::RequestAndResponses);
        std::wstring owner;
        if (found != nullptr) {
            auto& param = As<NODX201::VOdxElement>(*found);
            EXPECT_STREQ(param.GetShortName(), row.name);
            auto& place = As<NODX201::VOdxElement>(*param.GetOwner());
            owner = std::wstring(NODX201::OdxTagText(place.GetOdxTag())) + L' ' + place.GetShortName();
        }
        EXPECT_EQ(owner, row.owner) << std::string(row.name, row.name + std::wcslen(row.name));
    }
}

// The parts of the memory model that the samples use

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
    // Texts and values of their owners, not elements of the model.
    "AutMethod", "LongName",
    // Kinds that the model does not distinguish: they count as FILTER, FLASHDATA, PHYS-SEGMENT, TARGET-ADDR-OFFSET.
    "AddrdefFilter", "SizedefFilter", "ExternFlashdata", "InternFlashdata", "AddrdefPhysSegment", "SizedefPhysSegment",
    "NegOffset", "PosOffset",
    // Names of elements that always have a kind.
    "DiagCodedType", "Param", "ParentRef",
    // The form by short name, which occurs only in later versions or unusual data.
    "DopBaseSnref"};

/// The samples have no VEHICLE-INFO-SPEC.
std::set<std::string> const kOfVehicleInfo = {
#define ODX_EXTRA(name, contract, names, value, element, type) #name,
#define ODX_EXTRA_LINK(name, target, targetClass, tag, value, element) #tag,
#define ODX_TAG(name, value, element, type) #name,
#include <diagkit/model/facts/Vocabulary.def>

#include <diagkit/model/facts/VehicleInfo.def>

#include <diagkit/model/facts/Clear.def>
};

TEST_F(VSamplesTest, EveryElementClassOfTheModelIsReached) {
    ReadDocuments();
    std::ostringstream table;
    for (VTag const& row : kTags) {
        std::size_t const count = Database().Count(row.tag);
        table << row.name << ", " << count << '\n';
        bool const isExpected = kNeverCounted.count(row.name) == 0 && kOfVehicleInfo.count(row.name) == 0;
        EXPECT_EQ(count > 0, isExpected) << row.name << " has " << count << " elements";
    }
    std::cout << table.str();
}

} // namespace
} // namespace NTest
