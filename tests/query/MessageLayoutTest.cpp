// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/MessageLayout.h>

#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Odx.h>

#include "query/LayoutTest.h"

namespace NTest {
namespace {

class VMessageLayoutTest : public VLayoutTest {};

std::string CodedConst(std::string const& name, std::string const& value, std::string const& bits,
                       std::string const& position = "") {
    return Param("CODED-CONST", name, position + "<CODED-VALUE>" + value + "</CODED-VALUE>" + Fixed(bits));
}

std::string Val(std::string const& name, std::string const& dop, std::string const& position = "") {
    return Param("VALUE", name, position + DopRefTo(dop));
}

std::string Field(std::string const& tag, std::string const& id, std::string const& structure,
                  std::string const& content) {
    return "<" + tag + "S>" + Xml(tag, id, "<BASIC-STRUCTURE-REF ID-REF=\"" + structure + "\"/>" + content) + "</" +
           tag + "S>";
}

TEST_F(VMessageLayoutTest, AParameterWithoutPositionFollowsTheOneBeforeAtTheNextByte) {
    ReadLayer(DopOf("D", Fixed("16")), CodedConst("sid", "16", "8", At("0")) + CodedConst("nibble", "1", "4") +
                                           Val("value", "D") + CodedConst("fixed", "2", "4", At("9", "4")) +
                                           CodedConst("last", "3", "8"));
    EXPECT_EQ("sid @0 8 =16\nnibble @1 4 =1\nvalue @2 16\nfixed @9.4 4 =2\nlast @10 8 =3\nall 88", Rows());
}

TEST_F(VMessageLayoutTest, ItFollowsTheOneBeforeItInTheDocumentNotTheLastByte) {
    ReadLayer("", CodedConst("late", "1", "8", At("5")) + CodedConst("early", "1", "8", At("1")) +
                      CodedConst("next", "1", "8"));
    EXPECT_EQ("late @5 8 =1\nearly @1 8 =1\nnext @2 8 =1\nall 48", Rows());
}

TEST_F(VMessageLayoutTest, LengthsAreThoseOfTheCodedType) {
    ReadLayer(DopOf("Some", MinMax("<MAX-LENGTH>4</MAX-LENGTH><MIN-LENGTH>1</MIN-LENGTH>")) +
                  DopOf("Any", MinMax("<MIN-LENGTH>2</MIN-LENGTH>")) +
                  DopOf("Led", "<DIAG-CODED-TYPE xsi:type=\"LEADING-LENGTH-INFO-TYPE\" BASE-DATA-TYPE=\"A_BYTEFIELD\">"
                               "<BIT-LENGTH>8</BIT-LENGTH></DIAG-CODED-TYPE>") +
                  DopOf("None", ""),
              Val("some", "Some") + Val("led", "Led") + Val("any", "Any") + Val("none", "None"));
    EXPECT_EQ("some @0 8..32\nled @1..4 8..2048\nany @2..260 16..\nnone @4.. 0..\nall 32..", Rows());
}

TEST_F(VMessageLayoutTest, KindsWithoutDopSayTheirLengthThemselves) {
    ReadLayer("", Param("MATCHING-REQUEST-PARAM", "echo",
                        "<REQUEST-BYTE-POS>0</REQUEST-BYTE-POS><BYTE-LENGTH>2</BYTE-LENGTH>") +
                      Param("RESERVED", "gap", "<BIT-LENGTH>12</BIT-LENGTH>") + Param("DYNAMIC", "rest", ""));
    EXPECT_EQ("echo @0 16\ngap @2 12\nrest @4 0..\nall 32..", Rows());
}

TEST_F(VMessageLayoutTest, WhatAStructureHoldsStandsInsideWithPositionsInTheMessage) {
    ReadLayer(DopOf("D", Fixed("8")) + Structure("S", Val("a", "D") + Val("b", "D", At("3"))),
              Val("first", "D") + Val("whole", "S") + Val("after", "D"));
    EXPECT_EQ("first @0 8\nwhole @1 32\n  a @1 8\n  b @4 8\nafter @5 8\nall 48", Rows());
}

TEST_F(VMessageLayoutTest, ByteSizeIsTheLengthOfAStructure) {
    ReadLayer("<STRUCTURES>" +
                  Xml("STRUCTURE", "S", "<BYTE-SIZE>4</BYTE-SIZE><PARAMS>" + CodedConst("a", "1", "8") + "</PARAMS>") +
                  "</STRUCTURES>",
              Val("whole", "S") + CodedConst("after", "1", "8"));
    EXPECT_EQ("whole @0 32\n  a @0 8 =1\nafter @4 8 =1\nall 40", Rows());
}

TEST_F(VMessageLayoutTest, AStaticFieldHasItsItemsOneAfterAnother) {
    ReadLayer(Structure("S", CodedConst("a", "1", "8")) +
                  Field("STATIC-FIELD", "F", "S",
                        "<FIXED-NUMBER-OF-ITEMS>3</FIXED-NUMBER-OF-ITEMS><ITEM-BYTE-SIZE>2</ITEM-BYTE-SIZE>"),
              Val("list", "F") + CodedConst("after", "1", "8"));
    EXPECT_EQ("list @0 48\n  items F @0 8\n    a @0 8 =1\nafter @6 8 =1\nall 56", Rows());
    EXPECT_EQ("3", Printed(Layout(L"R").rows[1].count));
}

TEST_F(VMessageLayoutTest, AnEndOfPduFieldIsAsLongAsItsItemsMayBeMany) {
    ReadLayer(Structure("S", CodedConst("a", "1", "16")) +
                  Field("END-OF-PDU-FIELD", "F", "S",
                        "<MAX-NUMBER-OF-ITEMS>5</MAX-NUMBER-OF-ITEMS><MIN-NUMBER-OF-ITEMS>1</MIN-NUMBER-OF-ITEMS>"),
              Val("list", "F"));
    EXPECT_EQ("list @0 16..80\n  items F @0 16\n    a @0 16 =1\nall 16..80", Rows());
}

TEST_F(VMessageLayoutTest, ADynamicLengthFieldHasItsNumberOfItemsAtItsOwnPlace) {
    ReadLayer(DopOf("D", Fixed("8")) + Structure("S", CodedConst("a", "1", "8")) +
                  Field("DYNAMIC-LENGTH-FIELD", "F", "S",
                        "<OFFSET>2</OFFSET><DETERMINE-NUMBER-OF-ITEMS><BYTE-POSITION>1</BYTE-POSITION>"
                        "<DATA-OBJECT-PROP-REF ID-REF=\"D\"/></DETERMINE-NUMBER-OF-ITEMS>"),
              CodedConst("sid", "1", "8") + Val("list", "F"));
    EXPECT_EQ("sid @0 8 =1\nlist @1 16..\n  count  @2 8\n  items F @3 8\n    a @3 8 =1\nall 24..", Rows());
}

TEST_F(VMessageLayoutTest, ADynamicEndmarkerFieldEndsWithItsMarker) {
    ReadLayer(DopOf("D", Fixed("8")) + Structure("S", CodedConst("a", "1", "8")) +
                  Field("DYNAMIC-ENDMARKER-FIELD", "F", "S",
                        "<DATA-OBJECT-PROP-REF ID-REF=\"D\"><TERMINATION-VALUE>255</TERMINATION-VALUE>"
                        "</DATA-OBJECT-PROP-REF>"),
              Val("list", "F"));
    EXPECT_EQ("list @0 0..\n  items F @0 8\n    a @0 8 =1\n  marker  @0.. 8 =255\nall 0..", Rows());
}

TEST_F(VMessageLayoutTest, AMuxIsAsLongAsItsCases) {
    ReadLayer(DopOf("D", Fixed("8")) + "<STRUCTURES>" +
                  Xml("STRUCTURE", "S", "<PARAMS>" + CodedConst("a", "1", "8") + "</PARAMS>") +
                  Xml("STRUCTURE", "T", "<PARAMS>" + CodedConst("b", "1", "24") + "</PARAMS>") + "</STRUCTURES><MUXS>" +
                  Xml("MUX", "M",
                      "<BYTE-POSITION>1</BYTE-POSITION><SWITCH-KEY><BYTE-POSITION>0</BYTE-POSITION>"
                      "<DATA-OBJECT-PROP-REF ID-REF=\"D\"/></SWITCH-KEY>"
                      "<CASES><CASE><SHORT-NAME>one</SHORT-NAME><STRUCTURE-REF ID-REF=\"S\"/></CASE>"
                      "<CASE><SHORT-NAME>other</SHORT-NAME><STRUCTURE-REF ID-REF=\"T\"/></CASE>"
                      "<CASE><SHORT-NAME>empty</SHORT-NAME></CASE></CASES>") +
                  "</MUXS>",
              CodedConst("sid", "1", "8") + Val("choice", "M"));
    EXPECT_EQ("sid @0 8 =1\nchoice @1 8..32\n  key  @1 8\n  case one @2 8\n    a @2 8 =1\n  case other @2 24\n"
              "    b @2 24 =1\n  case empty @2 0\nall 16..40",
              Rows());
}

TEST_F(VMessageLayoutTest, ATableKeyIsAsLongAsItsDopAndATableStructHoldsEveryRow) {
    ReadLayer(
        DopOf("D", Fixed("16")) + "<STRUCTURES>" +
            Xml("STRUCTURE", "S", "<PARAMS>" + CodedConst("a", "1", "8") + "</PARAMS>") +
            Xml("STRUCTURE", "T", "<PARAMS>" + CodedConst("b", "1", "16") + "</PARAMS>") + "</STRUCTURES><TABLES>" +
            Xml("TABLE", "B",
                "<KEY-DOP-REF ID-REF=\"D\"/>" + Xml("TABLE-ROW", "B1", "<KEY>7</KEY><STRUCTURE-REF ID-REF=\"S\"/>") +
                    Xml("TABLE-ROW", "B2", "<KEY>8</KEY><STRUCTURE-REF ID-REF=\"T\"/>")) +
            "</TABLES>",
        Param("TABLE-KEY", "key", "<TABLE-REF ID-REF=\"B\"/>") +
            Param("TABLE-STRUCT", "data", "<TABLE-KEY-REF ID-REF=\"P.key\"/>") +
            Param("TABLE-KEY", "one", At("0") + "<TABLE-ROW-REF ID-REF=\"B2\"/>") +
            Param("TABLE-ENTRY", "both", "<TARGET>KEY-AND-STRUCT</TARGET><TABLE-ROW-REF ID-REF=\"B1\"/>"));
    EXPECT_EQ("key @0 16\ndata @2 8..16\n  row B1 @2 8 =7\n    a @2 8 =1\n  row B2 @2 16 =8\n    b @2 16 =1\n"
              "one @0 16 =8\nboth @2 24 =7\n  row B1 @4 8 =7\n    a @4 8 =1\nall 40",
              Rows());
}

TEST_F(VMessageLayoutTest, EnvironmentDataForAllTroubleCodesComesBeforeTheOthers) {
    ReadLayer("<ENV-DATA-DESCS>" +
                  Xml("ENV-DATA-DESC", "E",
                      "<PARAM-SNREF SHORT-NAME=\"dtc\"/><ENV-DATAS>" +
                          Xml("ENV-DATA", "Some",
                              "<PARAMS>" + CodedConst("a", "1", "8") +
                                  "</PARAMS><DTC-VALUES><DTC-VALUE>5</DTC-VALUE></DTC-VALUES>") +
                          Xml("ENV-DATA", "All", "<PARAMS>" + CodedConst("b", "1", "16") + "</PARAMS><ALL-VALUE/>") +
                          "</ENV-DATAS>") +
                  "</ENV-DATA-DESCS>",
              Val("data", "E"));
    EXPECT_EQ("data @0 16..24\n  env All @0 16\n    b @0 16 =1\n  env Some @2 8\n    a @2 8 =1\nall 16..24", Rows());
}

TEST_F(VMessageLayoutTest, AShortNameMeansWhatTheLayerMeans) {
    Read(ContainerOfLayers(
        LayerXml("BASE-VARIANT", "L",
                 InDictionary(DopOf("L.D", Fixed("8"))) + Request("R", Param("VALUE", "v", DopSnrefTo("D")))) +
        LayerXml("ECU-VARIANT", "E",
                 InDictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"E.D\"><SHORT-NAME>D</SHORT-NAME>" +
                              Fixed("32") + "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>") +
                     ParentRefs({{"BASE-VARIANT", "L"}})) +
        LayerXml("ECU-VARIANT", "F",
                 InDictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"F.D\"><SHORT-NAME>D</SHORT-NAME>" +
                              Fixed("16") + "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>") +
                     ParentRefs({{"BASE-VARIANT", "L"}}))));
    EXPECT_EQ("v @0 0.. broken\nall 0..", Rows(L"R", L"L")); // the DOP of L is called L.D
    EXPECT_EQ("v @0 32\nall 32", Rows(L"R", L"E"));
    EXPECT_EQ("v @0 16\nall 16", Rows(L"R", L"F"));
    EXPECT_EQ("v @0 0.. broken\nall 0..", Rows(L"R", nullptr));
}

TEST_F(VMessageLayoutTest, AReferenceThatLeadsNowhereSaysSo) {
    ReadLayer(Structure("S", Val("inner", "Nobody")),
              Val("outer", "S") + Val("other", "Nobody") + Param("TABLE-KEY", "key", "<TABLE-REF ID-REF=\"Nobody\"/>"));
    EXPECT_EQ("outer @0 0..\n  inner @0 0.. broken\nother @0.. 0.. broken\nkey @0.. 0.. broken\nall 0..", Rows());
}

TEST_F(VMessageLayoutTest, AStructureInsideItselfEnds) {
    NMemory::VDatabase database; // the reader cuts circles
    auto& layer = database.AddDiagLayerContainer(L"C").AddBaseVariant(L"L");
    auto& dictionary = layer.MakeDiagDataDictionarySpec();
    auto& structure = dictionary.AddStructure(L"S");
    structure.AddValue(L"again").SetDopBaseLink(NMemory::VReference::ByShortName(L"S"));
    EXPECT_EQ("again @0 0.. cycle\nall 0..", Printed(NQuery::LayoutOf(structure, &layer)));
}

TEST_F(VMessageLayoutTest, StructuresTooDeepInsideOthersAreLeftOut) {
    std::string structures;
    for (int i = 0; i < 5; ++i) {
        std::string const next = std::to_string(i + 1);
        structures += Xml("STRUCTURE", "S" + std::to_string(i), "<PARAMS>" + Val("p" + next, "S" + next) + "</PARAMS>");
    }
    ReadLayer("<STRUCTURES>" + structures + Xml("STRUCTURE", "S5", "<PARAMS></PARAMS>") + "</STRUCTURES>",
              Val("p0", "S0"));
    m_layoutOptions.maxDepth = 2;
    EXPECT_EQ("p0 @0 0..\n  p1 @0 0..\n    p2 @0 0.. too deep\nall 0..", Rows());
}

TEST_F(VMessageLayoutTest, StructuresThatHoldEachOtherTwiceAreCut) {
    std::string structures;
    for (int i = 0; i < 40; ++i) { // a row for each way: two to the power of 40
        std::string const next = "S" + std::to_string(i + 1);
        structures += Xml("STRUCTURE", "S" + std::to_string(i),
                          "<PARAMS>" + Value("a", DopRefTo(next)) + Value("b", DopRefTo(next)) + "</PARAMS>");
    }
    ReadLayer("<STRUCTURES>" + structures + Xml("STRUCTURE", "S40", "<PARAMS></PARAMS>") + "</STRUCTURES>",
              Val("p", "S0"));
    m_layoutOptions.maxRows = 1000;
    NQuery::VMessageLayout const layout = Layout(L"R");
    EXPECT_TRUE(layout.isCut);
    EXPECT_EQ(1000U, layout.rows.size());
    EXPECT_EQ(std::nullopt, layout.bitLength.most);
}

TEST_F(VMessageLayoutTest, NumbersThatAreNoneOrTooLargeDoNoHarm) {
    ReadLayer(DopOf("D", Fixed("18446744073709551616")) + DopOf("Odd", Fixed("-8")),
              Val("large", "D", At("18446744073709551615")) + Val("odd", "Odd", At("x")));
    EXPECT_EQ("large @9007199254740992 9007199254740992\nodd @9007199254740992 0..\nall 9007199254740992..", Rows());
}

TEST_F(VMessageLayoutTest, ADopATableAndARowHaveALayoutOfTheirOwn) {
    ReadLayer(DopOf("D", Fixed("12")) + Structure("S", Val("a", "D")) + "<TABLES>" +
                  Xml("TABLE", "B", Xml("TABLE-ROW", "B1", "<KEY>7</KEY><STRUCTURE-REF ID-REF=\"S\"/>")) + "</TABLES>",
              "");
    EXPECT_EQ("all 12", Rows(L"D"));
    EXPECT_EQ("a @0 12\nall 16", Rows(L"S"));
    EXPECT_EQ("row B1 @0 16 =7\n  a @0 12\nall 16", Rows(L"B"));
    EXPECT_EQ("row B1 @0 16 =7\n  a @0 12\nall 16", Rows(L"B1"));
    EXPECT_TRUE(NQuery::HasLayout(Element(L"B1")));
    EXPECT_FALSE(NQuery::HasLayout(Element(L"L")));
    EXPECT_EQ("all 0", Rows(L"L"));
}

TEST_F(VMessageLayoutTest, AServiceNamesItsRequestThenPositiveThenNegativeResponses) {
    Read(ContainerOfLayers(
        LayerXml("BASE-VARIANT", "L",
                 DiagComms(Service("S", "<REQUEST-REF ID-REF=\"R\"/><POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF=\"P\"/>"
                                        "</POS-RESPONSE-REFS><NEG-RESPONSE-REFS><NEG-RESPONSE-REF ID-REF=\"Nobody\"/>"
                                        "</NEG-RESPONSE-REFS>")) +
                     Request("R", "") + "<POS-RESPONSES>" + Xml("POS-RESPONSE", "P") + "</POS-RESPONSES>")));
    std::string text;
    for (NQuery::VServiceMessage const& message : NQuery::MessagesOf(Get<NODX201::VDiagService>(L"S"))) {
        text += std::to_string(static_cast<int>(message.role)) + (message.message == &Element(L"R")   ? "R "
                                                                  : message.message == &Element(L"P") ? "P "
                                                                  : message.message == nullptr        ? "- "
                                                                                                      : "? ");
    }
    EXPECT_EQ("0R 1P 2- ", text);
}

/// A line for each box: its bytes, then the bits of each run with the rows that have them.
std::string Boxes(NQuery::VMessageLayout const& layout, std::uint64_t maxBytes = 16) {
    auto const number = [](std::optional<std::uint64_t> byte) {
        return byte.has_value() ? std::to_string(*byte) : "?";
    };
    std::string text;
    for (NQuery::VByteBox const& box : NQuery::BoxesOf(layout, maxBytes)) {
        text += number(box.first) + "-" + number(box.last) + ":";
        for (NQuery::VBitRun const& run : box.runs) {
            text += " " + std::to_string(run.highest) + ".." + std::to_string(run.lowest) + "=";
            for (std::size_t const row : run.rows) {
                text += std::to_string(row);
            }
        }
        text += "\n";
    }
    return text;
}

TEST_F(VMessageLayoutTest, BytesOfOneParameterAreOneBoxAndBitsAreRuns) {
    ReadLayer("", CodedConst("word", "1", "16") + CodedConst("flag", "1", "1", At("2", "7")) +
                      CodedConst("low", "1", "3", At("2")) + CodedConst("far", "1", "8", At("4")));
    EXPECT_EQ("0-1: 7..0=0\n2-2: 7..7=1 6..3= 2..0=2\n3-3: 7..0=\n4-4: 7..0=3\n", Boxes(Layout(L"R")));
}

TEST_F(VMessageLayoutTest, TwelveBitsHaveTheirHighBitsInTheFirstByteUnlessTheLowByteComesFirst) {
    std::string lowFirst = Fixed("12");
    lowFirst.replace(lowFirst.find(" BASE"), 0, " IS-HIGHLOW-BYTE-ORDER=\"false\"");
    ReadLayer(DopOf("High", Fixed("12")) + DopOf("Low", lowFirst), Val("high", "High") + Val("low", "Low"));
    EXPECT_EQ("0-0: 7..4= 3..0=0\n1-1: 7..0=0\n2-2: 7..0=1\n3-3: 7..4= 3..0=1\n", Boxes(Layout(L"R")));
}

TEST_F(VMessageLayoutTest, WhatOverlapsSharesItsBits) {
    ReadLayer("", CodedConst("a", "1", "8", At("0")) + CodedConst("b", "1", "4", At("0", "2")));
    EXPECT_EQ("0-0: 7..6=0 5..2=01 1..0=0\n", Boxes(Layout(L"R")));
}

TEST_F(VMessageLayoutTest, WhatHasNoFixedPlaceComesLast) {
    ReadLayer(DopOf("Some", MinMax("<MIN-LENGTH>0</MIN-LENGTH>")),
              CodedConst("sid", "1", "8") + Val("some", "Some") + CodedConst("after", "1", "8"));
    EXPECT_EQ("0-0: 7..0=0\n1-?: 7..0=1\n?-?: 7..0=2\n", Boxes(Layout(L"R")));
}

TEST_F(VMessageLayoutTest, WhatMayStandSomewhereIsOneBox) {
    ReadLayer(Structure("S", CodedConst("a", "1", "8")) +
                  Field("STATIC-FIELD", "F", "S",
                        "<FIXED-NUMBER-OF-ITEMS>3</FIXED-NUMBER-OF-ITEMS><ITEM-BYTE-SIZE>2</ITEM-BYTE-SIZE>"),
              Val("list", "F"));
    EXPECT_EQ("0-5: 7..0=0\n", Boxes(Layout(L"R")));
    EXPECT_EQ("", Boxes(Layout(L"F")));
}

TEST_F(VMessageLayoutTest, LongMessagesHaveNoBoxes) {
    ReadLayer("", CodedConst("a", "1", "8", At("16")));
    EXPECT_EQ("", Boxes(Layout(L"R")));
    EXPECT_NE("", Boxes(Layout(L"R"), 17));
}

} // namespace
} // namespace NTest
