// SPDX-License-Identifier: Apache-2.0
#include "reader/ReaderTest.h"

#include <random>
#include <set>

#include <diagkit/memory/Odx.h>
#include <diagkit/tools/DiagLayerTraverser.h>

namespace NTest {
namespace {

// Data without required parts, as documents of later versions may be: only cycles are reported.
constexpr char kVersion[] = "2.2.0";

std::string Xml(std::string const& tag, std::string const& id, std::string const& content) {
    return "<" + tag + " ID=\"" + id + "\"><SHORT-NAME>" + id + "</SHORT-NAME>" + content + "</" + tag + ">";
}

std::string Value(std::string const& reference) {
    return "<PARAM xsi:type=\"VALUE\"><SHORT-NAME>P</SHORT-NAME>\n" + reference + "</PARAM>";
}

std::string Ref(std::string const& tag, std::string const& id) { return "<" + tag + " ID-REF=\"" + id + "\"/>"; }
std::string Dop(std::string const& id) { return Value(Ref("DOP-REF", id)); }
std::string DopSnref(std::string const& name) { return Value("<DOP-SNREF SHORT-NAME=\"" + name + "\"/>"); }

std::string ParamsOf(std::vector<std::string> const& params) {
    std::string all;
    for (std::string const& param : params) {
        all += param;
    }
    return "<PARAMS>" + all + "</PARAMS>";
}

std::string StructureOf(std::string const& id, std::vector<std::string> const& params) {
    return Xml("STRUCTURE", id, ParamsOf(params));
}

std::string Structures(std::string const& structures) { return "<STRUCTURES>" + structures + "</STRUCTURES>"; }

std::string Field(std::string const& tag, std::string const& id, std::string const& content) {
    return "<" + tag + "S>" + Xml(tag, id, content) + "</" + tag + "S>";
}

std::string Mux(std::string const& id, std::string const& content) {
    return "<MUXS>" + Xml("MUX", id, content) + "</MUXS>";
}

class VCyclesTest : public VReaderTest {
protected:
    void ReadDictionary(std::string const& content) { Read(Dictionary(content, kVersion)); }

    /// The document has one cycle, closed by the reference at this place, and a walk over it terminates.
    void ExpectSevered(std::string const& position, std::string const& element) {
        EXPECT_EQ(Diagnostics(), "test.odx:" + position + " error containment-cycle");
        ASSERT_EQ(m_result.diagnostics.size(), 1U);
        EXPECT_EQ(Message(0), element + " contains itself through this reference, which is left unresolved");
        Walk();
    }

    void Walk() {
        for (NODX201::VDiagLayerContainer& container : Database().GetOdx().DiagLayerContainerCollection()) {
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                NDIAGKIT::VDiagLayerTraverser(layer).TraverseDiagLayer();
            }
        }
    }
};

TEST_F(VCyclesTest, StructureOfItself) {
    ReadDictionary(Structures(StructureOf("S", {Dop("S")})));
    ExpectSevered("3:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, StructureThroughAnother) {
    ReadDictionary(Structures(StructureOf("S", {Dop("T")}) + StructureOf("T", {Dop("S")})));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, OnlyTheReferenceThatClosesTheCycleIsLeftUnresolved) {
    ReadDictionary(
        Structures(StructureOf("S", {Dop("T")}) + StructureOf("T", {Dop("U"), Dop("S")}) + StructureOf("U", {})));
    ExpectSevered("5:1", "STRUCTURE 'S'");
    auto& layer = Get<NODX201::VDiagLayer>(L"L");
    auto const resolves = [&](wchar_t const* id, std::size_t index) {
        return As<NODX201::VValue>(At(Get<NODX201::VStructure>(id).ParamCollection(), index))
            .GetDopBaseLink()
            .HasDopBase(layer);
    };
    EXPECT_TRUE(resolves(L"S", 0));
    EXPECT_TRUE(resolves(L"T", 0));
    EXPECT_FALSE(resolves(L"T", 1));
}

TEST_F(VCyclesTest, StaticField) {
    ReadDictionary(Structures(StructureOf("S", {Dop("F")})) +
                   Field("STATIC-FIELD", "F", "\n" + Ref("BASIC-STRUCTURE-REF", "S")));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, DynamicLengthField) {
    ReadDictionary(Structures(StructureOf("S", {Dop("F")})) +
                   Field("DYNAMIC-LENGTH-FIELD", "F", "\n" + Ref("BASIC-STRUCTURE-REF", "S")));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, DynamicEndmarkerField) {
    ReadDictionary(Structures(StructureOf("S", {Dop("F")})) +
                   Field("DYNAMIC-ENDMARKER-FIELD", "F", "\n" + Ref("BASIC-STRUCTURE-REF", "S")));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, EndmarkerThatIsTheFieldItself) {
    ReadDictionary(Field("DYNAMIC-ENDMARKER-FIELD", "F", "\n" + Ref("DATA-OBJECT-PROP-REF", "F")));
    ExpectSevered("3:1", "DYNAMIC-ENDMARKER-FIELD 'F'");
}

TEST_F(VCyclesTest, EndOfPduField) {
    ReadDictionary(Structures(StructureOf("S", {Dop("F")})) +
                   Field("END-OF-PDU-FIELD", "F", "\n" + Ref("BASIC-STRUCTURE-REF", "S")));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, CaseOfAMux) {
    ReadDictionary(
        Structures(StructureOf("S", {Dop("M")})) +
        Mux("M", "<CASES><CASE><SHORT-NAME>C</SHORT-NAME>\n" + Ref("STRUCTURE-REF", "S") + "</CASE></CASES>"));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, DefaultCaseOfAMux) {
    ReadDictionary(
        Structures(StructureOf("S", {Dop("M")})) +
        Mux("M", "<DEFAULT-CASE><SHORT-NAME>C</SHORT-NAME>\n" + Ref("STRUCTURE-REF", "S") + "</DEFAULT-CASE>"));
    ExpectSevered("4:1", "STRUCTURE 'S'");
}

TEST_F(VCyclesTest, EnvDataInsideItsDescription) {
    ReadDictionary(
        "<ENV-DATA-DESCS>" +
        Xml("ENV-DATA-DESC", "N", "<ENV-DATAS>" + Xml("ENV-DATA", "E", ParamsOf({Dop("N")})) + "</ENV-DATAS>") +
        "</ENV-DATA-DESCS>");
    ExpectSevered("3:1", "ENV-DATA-DESC 'N'");
}

TEST_F(VCyclesTest, EnvDataByReference) {
    ReadDictionary("<ENV-DATA-DESCS>" +
                   Xml("ENV-DATA-DESC", "N", "<ENV-DATAS>\n" + Ref("ENV-DATA-REF", "E") + "</ENV-DATAS>") +
                   "</ENV-DATA-DESCS><ENV-DATAS>" + Xml("ENV-DATA", "E", ParamsOf({Dop("N")})) + "</ENV-DATAS>");
    ExpectSevered("4:1", "ENV-DATA-DESC 'N'");
}

TEST_F(VCyclesTest, EnvDataDescriptionOfAField) {
    ReadDictionary(
        "<ENV-DATA-DESCS>" +
        Xml("ENV-DATA-DESC", "N", "<ENV-DATAS>" + Xml("ENV-DATA", "E", ParamsOf({Dop("F")})) + "</ENV-DATAS>") +
        "</ENV-DATA-DESCS>" + Field("END-OF-PDU-FIELD", "F", "\n" + Ref("ENV-DATA-DESC-REF", "N")));
    ExpectSevered("4:1", "ENV-DATA-DESC 'N'");
}

TEST_F(VCyclesTest, EveryCycleOfADocumentIsReported) {
    ReadDictionary(
        Structures(StructureOf("S", {Dop("S"), Dop("S"), Dop("T")}) + StructureOf("T", {Dop("S"), Dop("T")})));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error containment-cycle\ntest.odx:4:1 error containment-cycle\n"
                             "test.odx:6:1 error containment-cycle\ntest.odx:7:1 error containment-cycle");
    Walk();
}

TEST_F(VCyclesTest, DiamondsAreNoCycles) {
    ReadDictionary(Structures(StructureOf("S", {Dop("T"), Dop("U")}) + StructureOf("T", {Dop("V")}) +
                              StructureOf("U", {Dop("V")}) + StructureOf("V", {})));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VCyclesTest, LongChainsAreFollowedToTheirEnd) {
    constexpr int kLength = 20000;
    std::string content;
    for (int index = 0; index < kLength; ++index) {
        content +=
            Xml("STRUCTURE", "S" + std::to_string(index), ParamsOf({Dop("S" + std::to_string((index + 1) % kLength))}));
    }
    ReadDictionary("<STRUCTURES>" + content + "</STRUCTURES>");
    EXPECT_EQ(Diagnostics(), "test.odx:20002:1 error containment-cycle");
}

TEST_F(VCyclesTest, ShortNameOfTheStructureItself) {
    ReadDictionary(Structures(StructureOf("S", {DopSnref("S")})));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error containment-cycle");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(Message(0),
              "STRUCTURE 'S' contains itself through this reference in the layer 'L', which is left unresolved there");
    Walk();
}

TEST_F(VCyclesTest, ShortNameThatMeansAnotherDopInEveryLayerIsNone) {
    // "S" is a STRUCTURE in a layer that the ECU-SHARED-DATA with "T" does not see.
    Read(Container("<ECU-SHARED-DATAS>" +
                       Xml("ECU-SHARED-DATA", "A",
                           "<DIAG-DATA-DICTIONARY-SPEC>" + Structures(StructureOf("T", {DopSnref("S")})) +
                               "</DIAG-DATA-DICTIONARY-SPEC>") +
                       Xml("ECU-SHARED-DATA", "B",
                           "<DIAG-DATA-DICTIONARY-SPEC>" + Structures(StructureOf("S", {DopSnref("T")})) +
                               "</DIAG-DATA-DICTIONARY-SPEC>") +
                       "</ECU-SHARED-DATAS>",
                   kVersion));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VCyclesTest, ShortNameThatClosesACycleInOneVariantStaysResolvedInOthers) {
    // In the first variant "Payload" is a DOP, in the second a STRUCTURE that contains the frame that contains it.
    std::string const shared =
        "<ECU-SHARED-DATAS>" +
        Xml("ECU-SHARED-DATA", "A",
            "<DIAG-DATA-DICTIONARY-SPEC>" + Structures(StructureOf("Frame", {DopSnref("Payload")})) +
                "</DIAG-DATA-DICTIONARY-SPEC>") +
        "</ECU-SHARED-DATAS>";
    auto const variant = [](std::string const& name, std::string const& dictionary) {
        return "<ECU-VARIANTS>" +
               Xml("ECU-VARIANT", name,
                   "<DIAG-DATA-DICTIONARY-SPEC>" + dictionary +
                       "</DIAG-DATA-DICTIONARY-SPEC><PARENT-REFS><PARENT-REF xsi:type=\"ECU-SHARED-DATA-REF\" "
                       "ID-REF=\"A\"/></PARENT-REFS>") +
               "</ECU-VARIANTS>";
    };
    std::string const simple = variant(
        "V1", "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"><SHORT-NAME>Payload</SHORT-NAME></DATA-OBJECT-PROP>"
              "</DATA-OBJECT-PROPS>");
    std::string const nested = variant("V2", "<STRUCTURES><STRUCTURE ID=\"N\"><SHORT-NAME>Payload</SHORT-NAME>" +
                                                 ParamsOf({Dop("Frame")}) + "</STRUCTURE></STRUCTURES>");
    auto const document = [](std::string const& content, char const* name) {
        return Container(content, kVersion, name);
    };
    std::string const first = document(shared, "C1");
    std::string const second = document(simple, "C2");
    std::string const third = document(nested, "C3");

    Read({first, second});
    EXPECT_EQ(Diagnostics(), "");
    for (auto const& documents : {std::vector{first, second, third}, std::vector{third, second, first}}) {
        Read(documents);
        ASSERT_EQ(m_result.diagnostics.size(), 1U);
        EXPECT_EQ(m_result.diagnostics[0].code, "containment-cycle");
        EXPECT_NE(Message(0).find("in the layer 'V2'"), std::string::npos) << Message(0);
        auto& link = As<NODX201::VValue>(At(Get<NODX201::VStructure>(L"Frame").ParamCollection(), 0)).GetDopBaseLink();
        EXPECT_TRUE(link.HasDopBase(Get<NODX201::VDiagLayer>(L"V1")));
        EXPECT_FALSE(link.HasDopBase(Get<NODX201::VDiagLayer>(L"V2")));
        auto& inner = As<NODX201::VValue>(At(Get<NODX201::VStructure>(L"N").ParamCollection(), 0)).GetDopBaseLink();
        EXPECT_TRUE(inner.HasDopBase(Get<NODX201::VDiagLayer>(L"V2"))); // an ID has the same target in all layers
        Walk();
    }
}

TEST_F(VCyclesTest, ShortNameThatClosesACycleInSeveralLayersIsReportedOnceWithAllOfThem) {
    // The target of the name is the base variant's structure there and in two variants; a third has another one.
    std::string const parentRef = "<PARENT-REFS><PARENT-REF xsi:type=\"BASE-VARIANT-REF\" ID-REF=\"B\"/></PARENT-REFS>";
    auto const dictionary = [](std::string const& content) {
        return "<DIAG-DATA-DICTIONARY-SPEC>" + Structures(content) + "</DIAG-DATA-DICTIONARY-SPEC>";
    };
    Read(Container(
        "<BASE-VARIANTS>" + Xml("BASE-VARIANT", "B", dictionary(StructureOf("S", {DopSnref("S"), DopSnref("T")}))) +
            "</BASE-VARIANTS><ECU-VARIANTS>" +
            Xml("ECU-VARIANT", "V1", dictionary(StructureOf("T", {Dop("S")})) + parentRef) +
            Xml("ECU-VARIANT", "V2",
                dictionary("<STRUCTURE ID=\"S2\"><SHORT-NAME>S</SHORT-NAME></STRUCTURE>") + parentRef) +
            Xml("ECU-VARIANT", "V3",
                dictionary("<STRUCTURE ID=\"T3\"><SHORT-NAME>T</SHORT-NAME>" + ParamsOf({Dop("S")}) + "</STRUCTURE>") +
                    parentRef) +
            "</ECU-VARIANTS>",
        kVersion));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error containment-cycle\ntest.odx:4:1 error containment-cycle\n"
                             "test.odx:4:1 error containment-cycle");
    EXPECT_EQ(Message(0), "STRUCTURE 'S' contains itself through this reference in the layers 'B', 'V1', 'V3', which "
                          "is left unresolved there");
    EXPECT_EQ(Message(1), "STRUCTURE 'T' contains itself through this reference in the layer 'V1', which is left "
                          "unresolved there");
    EXPECT_EQ(Message(2), "STRUCTURE 'T' contains itself through this reference in the layer 'V3', which is left "
                          "unresolved there");
    Walk();
}

TEST_F(VCyclesTest, EveryEnvDataInsideADescriptionIsSearched) {
    // The fields lead into the description from inside, before it is visited itself.
    std::string fields;
    std::string envDatas;
    for (char const* const number : {"1", "2", "3", "4"}) {
        fields += Xml("STATIC-FIELD", std::string("F") + number, Ref("BASIC-STRUCTURE-REF", std::string("E") + number));
        envDatas += Xml("ENV-DATA", std::string("E") + number, ParamsOf({Dop("N")}));
    }
    ReadDictionary("<STATIC-FIELDS>" + fields + "</STATIC-FIELDS><ENV-DATA-DESCS>" +
                   Xml("ENV-DATA-DESC", "N", "<ENV-DATAS>" + envDatas + "</ENV-DATAS>") + "</ENV-DATA-DESCS>");
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error containment-cycle\ntest.odx:4:1 error containment-cycle\n"
                             "test.odx:5:1 error containment-cycle\ntest.odx:6:1 error containment-cycle");
    Walk();
}

// Random references

/// Whether a DOP can be reached from itself, determined only through the contract.
bool IsInCycle(NODX201::VDopBase& dop, NODX201::VDiagLayer& layer, std::set<NODX201::VDopBase*>& above) {
    if (!above.insert(&dop).second) {
        return true;
    }
    bool isInCycle = false;
    auto const enter = [&](NODX201::VDopBase& inner) { isInCycle = isInCycle || IsInCycle(inner, layer, above); };
    if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&dop)) {
        for (NODX201::VParam& param : structure->ParamCollection()) {
            auto* const value = dynamic_cast<NODX201::VValue*>(&param);
            if (value != nullptr && value->GetDopBaseLink().HasDopBase(layer)) {
                enter(value->GetDopBaseLink().GetDopBase());
            }
        }
    } else if (auto* const field = dynamic_cast<NODX201::VField*>(&dop)) {
        auto& choice = field->GetBasicStructureEnvDataDescChoice();
        auto* const structureLink = dynamic_cast<NODX201::VBasicStructureLink*>(&choice);
        if (structureLink != nullptr && structureLink->HasBasicStructure()) {
            enter(structureLink->GetBasicStructure());
        }
        auto* const descLink = dynamic_cast<NODX201::VEnvDataDescLink*>(&choice);
        if (descLink != nullptr && descLink->HasEnvDataDesc()) {
            enter(descLink->GetEnvDataDesc());
        }
    } else if (auto* const desc = dynamic_cast<NODX201::VEnvDataDesc*>(&dop)) {
        for (NODX201::IEnvDataProxy& proxy : desc->EnvDataProxyCollection()) {
            enter(dynamic_cast<NODX201::VEnvData&>(proxy));
        }
    } else if (auto* const mux = dynamic_cast<NODX201::VMux*>(&dop)) {
        for (NODX201::VCase& muxCase : mux->CaseCollection()) {
            if (muxCase.GetStructureRef().HasStructure()) {
                enter(muxCase.GetStructureRef().GetStructure());
            }
        }
    }
    above.erase(&dop);
    return isInCycle;
}

TEST_F(VCyclesTest, NoRandomDictionaryHoldsACycleAfterReading) {
    std::mt19937 random(20110);
    std::size_t severed = 0;
    for (int round = 0; round < 300; ++round) {
        auto const pick = [&random](int below) { return std::to_string(static_cast<int>(random() % below)); };
        std::string structures;
        std::string fields;
        std::string muxes;
        std::string descriptions;
        for (int index = 0; index < 4; ++index) {
            std::string const number = std::to_string(index);
            std::string const kinds[] = {"S", "F", "M", "N", "G"};
            auto const params = [&] {
                std::vector<std::string> all;
                for (std::size_t count = random() % 3; count > 0; --count) {
                    std::string const target = kinds[random() % 5] + pick(4);
                    all.push_back(random() % 2 == 0 ? Dop(target) : DopSnref(target));
                }
                return ParamsOf(all);
            };
            structures += Xml("STRUCTURE", "S" + number, params());
            fields += Xml("STATIC-FIELD", "F" + number,
                          Ref("BASIC-STRUCTURE-REF", (random() % 2 == 0 ? "S" : "E") + pick(4)));
            fields += Xml("STATIC-FIELD", "G" + number, Ref("ENV-DATA-DESC-REF", "N" + pick(4)));
            muxes += Xml("MUX", "M" + number,
                         "<CASES><CASE><SHORT-NAME>C</SHORT-NAME>" + Ref("STRUCTURE-REF", "S" + pick(4)) +
                             "</CASE></CASES>");
            descriptions += Xml("ENV-DATA-DESC", "N" + number,
                                "<ENV-DATAS>" + Xml("ENV-DATA", "E" + number, params()) +
                                    Xml("ENV-DATA", "E'" + number, params()) + "</ENV-DATAS>");
        }
        std::string const lists[] = {"<STRUCTURES>" + structures + "</STRUCTURES>",
                                     "<STATIC-FIELDS>" + fields + "</STATIC-FIELDS>", "<MUXS>" + muxes + "</MUXS>",
                                     "<ENV-DATA-DESCS>" + descriptions + "</ENV-DATA-DESCS>"};
        std::string content;
        for (std::size_t first = random() % 4, index = first; index < first + 4; ++index) {
            content += lists[index % 4];
        }
        ReadDictionary(content);
        severed += m_result.diagnostics.size();
        auto& layer = Get<NODX201::VDiagLayer>(L"L");
        for (NODX201::VDopBase& dop : layer.GetDiagDataDictionarySpec().DopBaseCollection()) {
            std::set<NODX201::VDopBase*> above;
            ASSERT_FALSE(IsInCycle(dop, layer, above)) << "round " << round << "\n" << Diagnostics();
        }
    }
    EXPECT_GT(severed, 300U);
}

} // namespace
} // namespace NTest
