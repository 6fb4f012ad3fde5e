// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"
#include "check/DataRulesXml.h"

/// Rules of where the parameters of messages lie, and of requests that cannot be told apart.

namespace NTest {
namespace {

std::string InDops(std::string const& dops) { return InDictionary(DopList(dops)); }

class VPlacementTest : public VCheckTest {
protected:
    std::string Of(std::string const& content) {
        Check(LayerXml("BASE-VARIANT", "L", content));
        return Diagnostics();
    }
    std::string OfRequest(std::string const& params, std::string const& dops = "") {
        return Of(InDictionary(dops) + "<REQUESTS>" + MessageXml("REQUEST", "RQ", params) + "</REQUESTS>");
    }
    /// A service whose response repeats these bytes of a request with these parameters.
    std::string OfRepeated(std::string const& position, std::string const& length, std::string const& params,
                           std::string const& dops = "") {
        return Of(InDictionary(dops) +
                  DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/><POS-RESPONSE-REFS><POS-RESPONSE-REF "
                                         "ID-REF=\"PR\"/></POS-RESPONSE-REFS>")) +
                  "<REQUESTS>" + MessageXml("REQUEST", "RQ", params) + "</REQUESTS><POS-RESPONSES>" +
                  MessageXml("POS-RESPONSE", "PR",
                             Param("MATCHING-REQUEST-PARAM", "M", "0",
                                   "<REQUEST-BYTE-POS>" + position + "</REQUEST-BYTE-POS><BYTE-LENGTH>" + length +
                                       "</BYTE-LENGTH>")) +
                  "</POS-RESPONSES>");
    }
    std::string Codes() const {
        std::string codes;
        for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
            codes += (codes.empty() ? "" : " ") + diagnostic.code;
        }
        return codes;
    }
};

// What a response repeats of the request

TEST_F(VPlacementTest, BytesBehindTheRequest) {
    OfRepeated("1", "2", Const("A", "0", "1") + Const("B", "1", "2"));
    ASSERT_EQ(Codes(), "request-bytes-outside");
    EXPECT_EQ(Message(0), "PARAM 'M' repeats bytes of the request up to the one at position 2, but the REQUEST 'RQ' of "
                          "the DIAG-SERVICE 'S' has 2 bytes");
}

TEST_F(VPlacementTest, BytesInsideTheRequestAreNone) {
    EXPECT_EQ(OfRepeated("1", "1", Const("A", "0", "1") + Const("B", "1", "2")), "");
    EXPECT_EQ(OfRepeated("-2", "2", Const("A", "0", "1") + Const("B", "1", "2")), "");
}

TEST_F(VPlacementTest, BytesBeforeTheRequest) {
    OfRepeated("-3", "1", Const("A", "0", "1") + Const("B", "1", "2"));
    EXPECT_EQ(Codes(), "request-bytes-outside");
}

TEST_F(VPlacementTest, ARequestOfUnknownLengthHasAllBytes) {
    EXPECT_EQ(OfRepeated("9", "1", Const("A", "0", "1") + Param("DYNAMIC", "B", "", "")), "");
    EXPECT_EQ(OfRepeated("9", "1", ValueAt("A", "0", "V"),
                         DopList(Dop("V", kIdentical, ToTheEnd("<MIN-LENGTH>1</MIN-LENGTH>"), "A_BYTEFIELD"))),
              "");
}

TEST_F(VPlacementTest, LengthsOfStructuresAndFieldsCount) {
    std::string const pair = MessageXml("STRUCTURE", "Pair", Const("P1", "", "1") + Const("P2", "", "2"));
    std::string const dops = "<STRUCTURES>" + MessageXml("STRUCTURE", "Outer", ValueAt("O", "1", "Pair")) + pair +
                             "</STRUCTURES><STATIC-FIELDS>" +
                             Xml("STATIC-FIELD", "Twice",
                                 "<BASIC-STRUCTURE-REF ID-REF=\"Pair\"/><FIXED-NUMBER-OF-ITEMS>2"
                                 "</FIXED-NUMBER-OF-ITEMS><ITEM-BYTE-SIZE>2</ITEM-BYTE-SIZE>") +
                             "</STATIC-FIELDS>";
    EXPECT_EQ(OfRepeated("0", "3", ValueAt("A", "0", "Outer"), dops), "");
    OfRepeated("0", "4", ValueAt("A", "0", "Outer"), dops);
    EXPECT_EQ(Codes(), "request-bytes-outside");
    EXPECT_EQ(OfRepeated("0", "4", ValueAt("A", "0", "Twice"), dops), "");
    OfRepeated("0", "5", ValueAt("A", "0", "Twice"), dops);
    EXPECT_EQ(Codes(), "request-bytes-outside");
}

TEST_F(VPlacementTest, WhatAShortNameMeansInALayerDecidesThere) {
    auto const layer = [](std::string const& kind, std::string const& name, std::string const& bits,
                          std::string const& rest) {
        return LayerXml(kind, name,
                        InDops("<DATA-OBJECT-PROP ID=\"" + name + ".V\"><SHORT-NAME>V</SHORT-NAME>" +
                               Coded("A_UINT32", bits) + "</DATA-OBJECT-PROP>") +
                            rest);
    };
    std::string const service =
        DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/><POS-RESPONSE-REFS><POS-RESPONSE-REF "
                               "ID-REF=\"PR\"/></POS-RESPONSE-REFS>")) +
        "<REQUESTS>" + MessageXml("REQUEST", "RQ", Param("VALUE", "A", "0", "<DOP-SNREF SHORT-NAME=\"V\"/>")) +
        "</REQUESTS><POS-RESPONSES>" +
        MessageXml("POS-RESPONSE", "PR",
                   Param("MATCHING-REQUEST-PARAM", "M", "0",
                         "<REQUEST-BYTE-POS>0</REQUEST-BYTE-POS><BYTE-LENGTH>2</BYTE-LENGTH>")) +
        "</POS-RESPONSES>";
    auto const parent = ParentRefs({{"BASE-VARIANT", "B"}});
    Check(layer("BASE-VARIANT", "B", "16", service) + layer("ECU-VARIANT", "V1", "16", parent));
    EXPECT_EQ(Codes(), "");
    Check(layer("BASE-VARIANT", "B", "16", service) + layer("ECU-VARIANT", "V1", "8", parent) +
          layer("ECU-VARIANT", "V2", "8", parent));
    EXPECT_EQ(Codes(), "request-bytes-outside"); // once
}

// Parameters on one another

TEST_F(VPlacementTest, ParametersThatShareBits) {
    OfRequest(Const("A", "0", "1") + Const("B", "0", "1"));
    ASSERT_EQ(Codes(), "overlapping-params");
    EXPECT_EQ(m_result.diagnostics[0].severity, NReader::VSeverity::Note);
    EXPECT_EQ(Message(0), "PARAM 'B' shares bits of the byte at position 0 with 'A'");
}

TEST_F(VPlacementTest, ParametersBesideOneAnotherShareNone) {
    auto const at = [](std::string const& name, std::string const& byte, std::string const& bit,
                       std::string const& length, std::string const& attributes = "") {
        return Param("CODED-CONST", name, byte,
                     "<BIT-POSITION>" + bit + "</BIT-POSITION><CODED-VALUE>1</CODED-VALUE>" +
                         Coded("A_UINT32", length, attributes));
    };
    EXPECT_EQ(OfRequest(at("A", "0", "0", "4") + at("B", "0", "4", "4")), "");
    OfRequest(at("A", "0", "0", "5") + at("B", "0", "4", "4"));
    EXPECT_EQ(Codes(), "overlapping-params");
    // Twelve bits from bit 0: with the most significant byte first, the upper half of byte 0 is free.
    EXPECT_EQ(OfRequest(at("A", "0", "0", "12") + at("B", "0", "4", "4")), "");
    OfRequest(at("A", "0", "0", "12") + at("B", "1", "4", "4"));
    EXPECT_EQ(Codes(), "overlapping-params");
    std::string const lowFirst = "IS-HIGHLOW-BYTE-ORDER=\"false\"";
    EXPECT_EQ(OfRequest(at("A", "0", "0", "12", lowFirst) + at("B", "1", "4", "4")), "");
    OfRequest(at("A", "0", "0", "12", lowFirst) + at("B", "0", "4", "4"));
    EXPECT_EQ(Codes(), "overlapping-params");
}

TEST_F(VPlacementTest, WithoutAPositionAParameterFollows) {
    EXPECT_EQ(OfRequest(Const("A", "", "1") + Const("B", "", "1") + Const("E", "2", "1")), "");
    OfRequest(Const("A", "", "1") + Const("B", "", "1") + Const("E", "1", "1"));
    EXPECT_EQ(Codes(), "overlapping-params");
}

TEST_F(VPlacementTest, MaskedBitsAreNotLookedInto) {
    std::string const masked = "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_UINT32\">"
                               "<BIT-LENGTH>8</BIT-LENGTH><BIT-MASK>0F</BIT-MASK></DIAG-CODED-TYPE>";
    EXPECT_EQ(OfRequest(Const("A", "0", "1", masked) + Const("B", "0", "1", masked)), "");
}

// Sizes

TEST_F(VPlacementTest, AStructureTooSmallForItsParameters) {
    auto const of = [this](std::string const& size) {
        Of(InDictionary("<STRUCTURES>" +
                        MessageXml("STRUCTURE", "S", Const("A", "", "1") + Const("B", "", "2"),
                                   "<BYTE-SIZE>" + size + "</BYTE-SIZE>") +
                        "</STRUCTURES>"));
        return Codes();
    };
    EXPECT_EQ(of("1"), "byte-size");
    EXPECT_EQ(Message(0), "STRUCTURE 'S' has the BYTE-SIZE 1, but 'B' in it takes the byte at position 1");
    EXPECT_EQ(of("2"), "");
    EXPECT_EQ(of("3"), "");
}

TEST_F(VPlacementTest, AnItemTooSmallForItsStructure) {
    auto const of = [this](std::string const& size) {
        Of(InDictionary("<STRUCTURES>" + MessageXml("STRUCTURE", "S", Const("A", "", "1") + Const("B", "", "2")) +
                        "</STRUCTURES><STATIC-FIELDS>" +
                        Xml("STATIC-FIELD", "F",
                            "<BASIC-STRUCTURE-REF ID-REF=\"S\"/><FIXED-NUMBER-OF-ITEMS>3</FIXED-NUMBER-OF-ITEMS>"
                            "<ITEM-BYTE-SIZE>" +
                                size + "</ITEM-BYTE-SIZE>") +
                        "</STATIC-FIELDS>"));
        return Codes();
    };
    EXPECT_EQ(of("1"), "byte-size");
    EXPECT_EQ(of("2"), "");
}

// Lengths that the message says

TEST_F(VPlacementTest, ALengthKeyBehindItsUse) {
    std::string const dops = DopList(
        Plain("Byte", "8") + Dop("Bytes", kIdentical,
                                 "<DIAG-CODED-TYPE xsi:type=\"PARAM-LENGTH-INFO-TYPE\" "
                                 "BASE-DATA-TYPE=\"A_BYTEFIELD\"><LENGTH-KEY-REF ID-REF=\"K\"/></DIAG-CODED-TYPE>",
                                 "A_BYTEFIELD"));
    auto const key = [](std::string const& position) {
        return Param("LENGTH-KEY", "K", position, "<DOP-REF ID-REF=\"Byte\"/>");
    };
    OfRequest(ValueAt("D", "", "Bytes") + key(""), dops);
    ASSERT_EQ(Codes(), "length-key-after-use");
    EXPECT_EQ(Message(0), "PARAM 'D' has the length that PARAM 'K' says, which comes after it; a length must be known "
                          "before the value is read");
    EXPECT_EQ(OfRequest(key("") + ValueAt("D", "", "Bytes"), dops), "");
    EXPECT_EQ(OfRequest(ValueAt("D", "1", "Bytes") + key("0"), dops), ""); // it stands before

    auto const inTwo = [&](std::string const& first, std::string const& second) {
        Of(InDictionary(dops) + "<REQUESTS>" + first + "</REQUESTS><POS-RESPONSES>" + second + "</POS-RESPONSES>");
        return Codes();
    };
    EXPECT_EQ(inTwo(MessageXml("REQUEST", "RQ", ValueAt("D", "", "Bytes")), MessageXml("POS-RESPONSE", "PR", key(""))),
              "length-key-after-use");
    // The answer to a request for so many bytes.
    EXPECT_EQ(inTwo(MessageXml("REQUEST", "RQ", key("")), MessageXml("POS-RESPONSE", "PR", ValueAt("D", "", "Bytes"))),
              "");
}

TEST_F(VPlacementTest, AParameterBehindOneThatTakesTheRest) {
    auto const of = [this](std::string const& limits, std::string const& position) {
        OfRequest(ValueAt("A", "0", "V") + Const("B", position, "1"),
                  DopList(Dop("V", kIdentical, ToTheEnd(limits), "A_BYTEFIELD")));
        return Codes();
    };
    EXPECT_EQ(of("<MIN-LENGTH>0</MIN-LENGTH>", ""), "after-end-of-pdu");
    EXPECT_EQ(of("<MAX-LENGTH>4</MAX-LENGTH><MIN-LENGTH>0</MIN-LENGTH>", ""), "");
    EXPECT_EQ(of("<MIN-LENGTH>0</MIN-LENGTH>", "9"), "");
}

// Requests that no byte tells apart

class VRequestsAlikeTest : public VPlacementTest {
protected:
    static std::string Own(std::string const& name, std::string const& params, std::string const& attributes = "") {
        return "<DIAG-SERVICE ID=\"" + name + "\" " + attributes + "><SHORT-NAME>" + name +
               "</SHORT-NAME><REQUEST-REF ID-REF=\"RQ_" + name + "\"/></DIAG-SERVICE>" + "|" +
               MessageXml("REQUEST", "RQ_" + name, params);
    }
    /// A layer with these services.
    static std::string With(std::string const& kind, std::string const& name, std::vector<std::string> const& services,
                            std::string const& rest = "") {
        std::string diagComms;
        std::string requests;
        for (std::string const& service : services) {
            diagComms += service.substr(0, service.find('|'));
            requests += service.substr(service.find('|') + 1);
        }
        return LayerXml(kind, name,
                        InDops(Plain(name + "_Byte", "8") + Plain(name + "_Word", "16")) + DiagComms(diagComms) +
                            "<REQUESTS>" + requests + "</REQUESTS>" + rest);
    }
    std::string Two(std::string const& first, std::string const& second, std::string const& attributes = "") {
        Check(With("BASE-VARIANT", "L", {Own("A", first), Own("B", second, attributes)}));
        return Codes();
    }
};

TEST_F(VRequestsAlikeTest, EqualConstantsAndEqualLengths) {
    EXPECT_EQ(Two(Const("A1", "0", "34"), Const("B1", "0", "34")), "requests-alike");
    EXPECT_EQ(Message(0),
              "in the layer 'L' have the same constants and the same length: REQUEST 'RQ_A' of DIAG-SERVICE "
              "'A', REQUEST 'RQ_B' of DIAG-SERVICE 'B'; what is sent does not tell which of them it is");
}

TEST_F(VRequestsAlikeTest, OtherConstantsOrLengthsTellThemApart) {
    EXPECT_EQ(Two(Const("A1", "0", "34"), Const("B1", "0", "35")), "");
    EXPECT_EQ(Two(Const("A1", "0", "34"), Const("B1", "0", "34") + ValueAt("B2", "1", "L_Byte")), "");
    EXPECT_EQ(Two(Const("A1", "0", "34") + ValueAt("A2", "1", "L_Byte"),
                  Const("B1", "0", "34") + ValueAt("B2", "1", "L_Word")),
              "");
    EXPECT_EQ(Two(ValueAt("A1", "0", "L_Byte"), ValueAt("B1", "0", "L_Byte")), ""); // no constant at all
}

TEST_F(VRequestsAlikeTest, FreeBytesTellNothingApart) {
    EXPECT_EQ(Two(Const("A1", "0", "34") + ValueAt("A2", "1", "L_Byte"),
                  Const("B1", "0", "34") + Param("RESERVED", "B2", "1", "<BIT-LENGTH>8</BIT-LENGTH>")),
              "requests-alike");
}

TEST_F(VRequestsAlikeTest, HowConstantsAreCutDoesNotMatter) {
    EXPECT_EQ(Two(Const("A1", "0", "8706", Coded("A_UINT32", "16")), Const("B1", "0", "34") + Const("B2", "1", "2")),
              "requests-alike");
    EXPECT_EQ(Two(Const("A1", "0", "8706", Coded("A_UINT32", "16", "IS-HIGHLOW-BYTE-ORDER=\"false\"")),
                  Const("B1", "0", "34") + Const("B2", "1", "2")),
              "");
}

TEST_F(VRequestsAlikeTest, TheAddressTellsThemApart) {
    EXPECT_EQ(Two(Const("A1", "0", "34"), Const("B1", "0", "34"), "ADDRESSING=\"FUNCTIONAL\""), "");
}

TEST_F(VRequestsAlikeTest, ValuesThatAreLimitedMayTellThemApart) {
    auto const limited = [](std::string const& name, std::string const& low, std::string const& high) {
        return Dop(name, kIdentical, Coded("A_UINT32", "8"), "A_UINT32",
                   "<INTERNAL-CONSTR>" + Limits(low, high) + "</INTERNAL-CONSTR>");
    };
    Check(LayerXml(
        "BASE-VARIANT", "L",
        InDops(limited("Low", "0", "9") + limited("High", "10", "20")) +
            DiagComms(Service("A", "<REQUEST-REF ID-REF=\"RA\"/>") + Service("B", "<REQUEST-REF ID-REF=\"RB\"/>")) +
            "<REQUESTS>" + MessageXml("REQUEST", "RA", Const("A1", "0", "34") + ValueAt("A2", "1", "Low")) +
            MessageXml("REQUEST", "RB", Const("B1", "0", "34") + ValueAt("B2", "1", "High")) + "</REQUESTS>"));
    EXPECT_EQ(Codes(), "");
}

TEST_F(VRequestsAlikeTest, ServicesMayShareARequest) {
    Check(LayerXml(
        "BASE-VARIANT", "L",
        DiagComms(Service("A", "<REQUEST-REF ID-REF=\"RQ\"/>") + Service("B", "<REQUEST-REF ID-REF=\"RQ\"/>")) +
            "<REQUESTS>" + MessageXml("REQUEST", "RQ", Const("A1", "0", "34")) + "</REQUESTS>"));
    EXPECT_EQ(Codes(), "");
}

TEST_F(VRequestsAlikeTest, WhatIsInheritedCountsAndIsToldOnce) {
    std::string const base = With("BASE-VARIANT", "L", {Own("A", Const("A1", "0", "34"))});
    std::string const parent = ParentRefs({{"BASE-VARIANT", "L"}});
    Check(base + With("ECU-VARIANT", "V", {Own("B", Const("B1", "0", "34"))}, parent));
    EXPECT_EQ(Codes(), "requests-alike");
    // Two variants that are never seen together.
    Check(With("ECU-VARIANT", "V", {Own("A", Const("A1", "0", "34"))}) +
          With("ECU-VARIANT", "W", {Own("B", Const("B1", "0", "34"))}));
    EXPECT_EQ(Codes(), "");
    Check(With("BASE-VARIANT", "L", {Own("A", Const("A1", "0", "34")), Own("B", Const("B1", "0", "34"))}) +
          With("ECU-VARIANT", "V", {Own("D", Const("D1", "0", "35"))}, parent));
    EXPECT_EQ(Codes(), "requests-alike");
}

} // namespace
} // namespace NTest
