// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Odx.h>

#include "reader/ReaderTest.h"

namespace NTest {
namespace {

using NODX201::VOdxTagEnum;

class VToleranceTest : public VReaderTest {
protected:
    NODX201::VParam& Param(std::size_t index) { return At(Get<NODX201::VRequest>(L"RQ").ParamCollection(), index); }

    /// The kind of a PARAM that has no usable xsi:type.
    std::wstring KindOf(std::string const& attributes, std::string const& content) {
        Read(Params("<PARAM " + attributes + "><SHORT-NAME>P</SHORT-NAME>" + content + "</PARAM>", "2.2.0"));
        return NODX201::OdxTypeText(Param(0).GetOdxTag());
    }

    std::wstring CodedTypeOf(std::string const& attributes, std::string const& content) {
        Read(Params("<PARAM xsi:type=\"CODED-CONST\"><SHORT-NAME>P</SHORT-NAME><DIAG-CODED-TYPE " + attributes + ">" +
                        content + "</DIAG-CODED-TYPE></PARAM>",
                    "2.2.0"));
        return NODX201::OdxTypeText(As<NODX201::VCodedConst>(Param(0)).GetDiagCodedType().GetOdxTag());
    }

    std::wstring ShortNames() {
        std::wstring names;
        for (NODX201::VDiagLayerContainer& container : Database().GetOdx().DiagLayerContainerCollection()) {
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                names += (names.empty() ? L"" : L" ") + std::wstring(layer.GetShortName());
            }
        }
        return names;
    }
};

// Texts

TEST_F(VToleranceTest, LineEndsAreNormalised) {
    Read(Layer("<LONG-NAME>a\r\nb\rc\nd</LONG-NAME>"));
    EXPECT_STREQ(Get<NMemory::VMemBaseVariant>(L"L").GetLongName().GetBaseMember(), L"a\nb\nc\nd");
}

TEST_F(VToleranceTest, NamesAndNumbersAreTrimmedAndTextsAreNot) {
    Read("<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>\n\tName \r\n</SHORT-NAME>"
         "<LONG-NAME> long </LONG-NAME><COMPANY-DATAS><COMPANY-DATA ID=\"CD\"><SHORT-NAME>CD</SHORT-NAME><ROLES>"
         "<ROLE> role </ROLE></ROLES></COMPANY-DATA></COMPANY-DATAS></DIAG-LAYER-CONTAINER></ODX>");
    auto& container = Get<NMemory::VMemDiagLayerContainer>(L"C");
    EXPECT_STREQ(container.GetShortName(), L"Name");
    EXPECT_STREQ(container.GetLongName().GetBaseMember(), L" long ");
    EXPECT_EQ(*Get<NODX201::VCompanyData>(L"CD").RoleCollection().Begin(), L" role ");
    Read(Params("<PARAM xsi:type=\"VALUE\"><SHORT-NAME>P</SHORT-NAME><BYTE-POSITION>\n 3 </BYTE-POSITION>"
                "<PHYSICAL-DEFAULT-VALUE> 1 </PHYSICAL-DEFAULT-VALUE><DOP-SNREF SHORT-NAME=\"D\"/></PARAM>"));
    EXPECT_STREQ(As<NMemory::VMemValue>(Param(0)).GetBytePosition(), L"3");
    EXPECT_STREQ(As<NMemory::VMemValue>(Param(0)).GetPhysicalDefaultValue(), L" 1 ");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, TextThatCommentsInstructionsAndCdataSplitIsJoined) {
    Read(Layer("<LONG-NAME>a<!-- b -->c<?d e?><![CDATA[<f>&]]>&amp;&#x67;</LONG-NAME>"));
    EXPECT_STREQ(Get<NMemory::VMemBaseVariant>(L"L").GetLongName().GetBaseMember(), L"ac<f>&&g");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, LongTextsAreKeptWhole) {
    std::string const text = Repeated("0123456789ABCDE\n", 65536);
    Read(Layer("<LONG-NAME>" + text + "</LONG-NAME>"));
    std::wstring const read = Get<NMemory::VMemBaseVariant>(L"L").GetLongName().GetBaseMember();
    EXPECT_EQ(read, std::wstring(text.begin(), text.end()));
}

TEST_F(VToleranceTest, StrayTextIsReportedOnceAndLeftOut) {
    Read(Layer("<DIAG-COMMS>\nstray <!-- --> more</DIAG-COMMS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 warning stray-text");
}

TEST_F(VToleranceTest, ValuesThatAreNoneAreReportedAndKept) {
    Read(Params("<PARAM xsi:type=\"VALUE\"><SHORT-NAME>P</SHORT-NAME><BYTE-POSITION>0x1F</BYTE-POSITION>"
                "<DOP-SNREF SHORT-NAME=\"D\"/></PARAM>"));
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "not-a-value");
    EXPECT_EQ(Message(0), "'BYTE-POSITION' is '0x1F', which is no unsigned integer");
    EXPECT_STREQ(As<NMemory::VMemValue>(Param(0)).GetBytePosition(), L"0x1F");
}

TEST_F(VToleranceTest, NumbersAreThoseOfXml) {
    auto const isValue = [this](std::string const& text) {
        Read(Dictionary("<UNIT-SPEC><UNITS><UNIT ID=\"U\"><SHORT-NAME>U</SHORT-NAME><DISPLAY-NAME>V</DISPLAY-NAME>"
                        "<FACTOR-SI-TO-UNIT>" +
                        text + "</FACTOR-SI-TO-UNIT></UNIT></UNITS></UNIT-SPEC>"));
        return Diagnostics().find("not-a-value") == std::string::npos;
    };
    for (char const* const text : {"1", "-1.5", "+.5", "1.", "1e3", "1E-3", "INF", "-INF", "NaN"}) {
        EXPECT_TRUE(isValue(text)) << text;
    }
    for (char const* const text : {"inf", "1,5", ".", "1e", "e3", "0x1F", "1.5.1", "one"}) {
        EXPECT_FALSE(isValue(text)) << text;
    }
}

TEST_F(VToleranceTest, DatesHaveATimeAndMayHaveAZone) {
    auto const isValue = [this](std::string const& text) {
        Read(Dictionary("<ADMIN-DATA><DOC-REVISIONS><DOC-REVISION><DATE>" + text +
                        "</DATE></DOC-REVISION></DOC-REVISIONS></ADMIN-DATA>"));
        return Diagnostics().find("not-a-value") == std::string::npos;
    };
    std::string const date = "2005-06-01T12:00:00";
    for (char const* const rest : {"", "Z", ".5", ".123Z", "+01:00", "-01:30", ".5+01:00"}) {
        EXPECT_TRUE(isValue(date + rest)) << rest;
    }
    for (char const* const rest : {".", "+1", "+0100", "z", " Z"}) {
        EXPECT_FALSE(isValue(date + rest)) << rest;
    }
    for (char const* const text : {"2005-06-01", "2005-06-01T12:00", "2005-06-01 12:00:00", "01.06.2005"}) {
        EXPECT_FALSE(isValue(text)) << text;
    }
}

TEST_F(VToleranceTest, LiteralsThatAreNoneAreReportedAndKeptFor20Only) {
    std::string const type = "<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_UINT32\"\nDISPLAY-RADIX=\"hex\"/>";
    std::string const dop = "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"><SHORT-NAME>D</SHORT-NAME>"
                            "<COMPU-METHOD><CATEGORY> IDENTICAL </CATEGORY></COMPU-METHOD>" +
                            std::string(kStandardType) + "\n" + type + "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>";
    Read(Dictionary(dop));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error unknown-literal");
    EXPECT_EQ(Message(0), "DISPLAY-RADIX of 'PHYSICAL-TYPE' is 'hex', which is not one of HEX, DEC, BIN, OCT");
    EXPECT_STREQ(Get<NMemory::VMemDataObjectProp>(L"D").GetPhysicalType().GetDisplayRadix(), L"hex");
    Read(Dictionary(dop, "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, DoctypesThatAreNoneAreReportedAndForgiven) {
    Read(Layer("<REQUESTS><REQUEST ID=\"RQ\"><SHORT-NAME>RQ</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>"
               "<IMPORT-REFS>\n<IMPORT-REF ID-REF=\"L\" DOCREF=\"L\" DOCTYPE=\"Layer\"/></IMPORT-REFS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 warning unknown-literal");
    EXPECT_EQ(Message(0),
              "DOCTYPE of 'IMPORT-REF' is 'Layer', which is not one of FLASH, CONTAINER, LAYER, MULTIPLE-ECU-JOB-SPEC, "
              "COMPARAM-SPEC; the target is looked for without it");
}

// Booleans

TEST_F(VToleranceTest, BooleansAreReadInAnyCaseAndDefaultsStayForOthers) {
    constexpr struct {
        char const* text;
        bool isSupplier;
        char const* diagnostics;
    } kRows[] = {{"false", false, ""}, {"FALSE", false, ""},
                 {"False", false, ""}, {"0", false, ""},
                 {" 0 ", false, ""},   {"true", true, ""},
                 {"TRUE", true, ""},   {"1", true, ""},
                 {"", true, ""},       {"no", true, "test.odx:2:60 error not-a-value"}};
    for (auto const& row : kRows) {
        Read(Layer("<DIAG-COMMS><DIAG-SERVICE ID=\"S\"><SHORT-NAME>S</SHORT-NAME><AUDIENCE IS-SUPPLIER=\"" +
                   std::string(row.text) + "\"/></DIAG-SERVICE></DIAG-COMMS>"));
        EXPECT_EQ(Get<NMemory::VMemDiagService>(L"S").GetAudience().IsSupplier(), row.isSupplier) << row.text;
        EXPECT_EQ(Diagnostics(), row.diagnostics) << row.text;
    }
    // Where the default is false.
    for (char const* const text : {"true", "TRUE", "1"}) {
        Read(Layer("<DIAG-COMMS><DIAG-SERVICE ID=\"S\" IS-CYCLIC=\"" + std::string(text) +
                   "\"><SHORT-NAME>S</SHORT-NAME><AUDIENCE/></DIAG-SERVICE></DIAG-COMMS>"));
        EXPECT_TRUE(Get<NMemory::VMemDiagService>(L"S").IsCyclic()) << text;
    }
}

// Namespaces

TEST_F(VToleranceTest, DefaultNamespaceAndPrefixesAreLookedThrough) {
    Read("<ODX xmlns=\"urn:odx\" MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME>"
         "</DIAG-LAYER-CONTAINER></ODX>");
    EXPECT_EQ(Count(L"DIAG-LAYER-CONTAINER"), 1U);
    EXPECT_EQ(Diagnostics(), "");
    Read("<o:ODX xmlns:o=\"urn:odx\" MODEL-VERSION=\"2.0.1\"><o:DIAG-LAYER-CONTAINER "
         "ID=\"C\"><o:SHORT-NAME>C</o:SHORT-NAME>"
         "</o:DIAG-LAYER-CONTAINER></o:ODX>");
    EXPECT_STREQ(Element(L"C").GetShortName(), L"C");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, TypesAreReadWithAnyPrefix) {
    for (char const* const attribute :
         {"xsi:type=\"DYNAMIC\"", "other:type=\"DYNAMIC\"", "xsi:type=\"odx:DYNAMIC\"", "xsi:type=\" DYNAMIC \""}) {
        std::string document = Params("<PARAM " + std::string(attribute) + "><SHORT-NAME>P</SHORT-NAME></PARAM>");
        document.erase(document.find(" xmlns:xsi"),
                       std::string(" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"").size());
        Read(document);
        EXPECT_EQ(Param(0).GetOdxTag(), VOdxTagEnum::Dynamic) << attribute;
        EXPECT_EQ(Diagnostics(), "") << attribute;
    }
}

TEST_F(VToleranceTest, TypeWithoutPrefixIsReadAndReported) {
    Read(Params("<PARAM type=\"DYNAMIC\"><SHORT-NAME>P</SHORT-NAME></PARAM>"));
    EXPECT_EQ(Param(0).GetOdxTag(), VOdxTagEnum::Dynamic);
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning unprefixed-type");
}

// Inference

TEST_F(VToleranceTest, ParamWithoutTypeTakesTheKindOfItsContents) {
    EXPECT_EQ(KindOf("", "<REQUEST-BYTE-POS>0</REQUEST-BYTE-POS><BYTE-LENGTH>1</BYTE-LENGTH>"),
              L"MATCHING-REQUEST-PARAM");
    EXPECT_EQ(KindOf("", "<TARGET>KEY</TARGET><TABLE-ROW-REF ID-REF=\"x\"/>"), L"TABLE-ENTRY");
    EXPECT_EQ(KindOf("", "<TABLE-KEY-REF ID-REF=\"x\"/>"), L"TABLE-STRUCT");
    EXPECT_EQ(KindOf("ID=\"K\"", "<TABLE-REF ID-REF=\"x\"/>"), L"TABLE-KEY");
    EXPECT_EQ(KindOf("ID=\"K\"", "<TABLE-ROW-REF ID-REF=\"x\"/>"), L"TABLE-KEY");
    EXPECT_EQ(KindOf("", "<BIT-LENGTH>8</BIT-LENGTH><CODED-VALUE>0</CODED-VALUE>"), L"RESERVED");
    EXPECT_EQ(KindOf("", std::string("<CODED-VALUE>1</CODED-VALUE>") + kStandardType), L"CODED-CONST");
    EXPECT_EQ(KindOf("", "<PHYS-CONSTANT-VALUE>1</PHYS-CONSTANT-VALUE><DOP-SNREF SHORT-NAME=\"x\"/>"), L"PHYS-CONST");
    EXPECT_EQ(KindOf("SYSPARAM=\"YEAR\"", "<DOP-SNREF SHORT-NAME=\"x\"/>"), L"SYSTEM");
    EXPECT_EQ(KindOf("ID=\"K\"", "<DOP-SNREF SHORT-NAME=\"x\"/>"), L"LENGTH-KEY");
    EXPECT_EQ(KindOf("", "<DOP-SNREF SHORT-NAME=\"x\"/>"), L"VALUE");
    EXPECT_EQ(KindOf("", "<DOP-REF ID-REF=\"x\"/>"), L"VALUE");
    EXPECT_EQ(KindOf("", ""), L"DYNAMIC");
}

TEST_F(VToleranceTest, BitLengthOfACodedTypeIsNoneOfTheParam) {
    EXPECT_EQ(KindOf("", std::string(kStandardType) + "<CODED-VALUE>1</CODED-VALUE>"), L"CODED-CONST");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, InferredParamIsReadLikeATypedOne) {
    Read(Params("<PARAM SEMANTIC=\"DATA\" OID=\"o\"><?Note kept ?>\n<SHORT-NAME>P</SHORT-NAME><LONG-NAME "
                "TI=\"t\">a<![CDATA[<]]>b</LONG-NAME>"
                "<DESC><p>x<br/></p></DESC><BYTE-POSITION>1</BYTE-POSITION>\n"
                "<CODED-VALUE>7</CODED-VALUE><DIAG-CODED-TYPE "
                "BASE-DATA-TYPE=\"A_UINT32\">\n<BIT-LENGTH>16</BIT-LENGTH></DIAG-CODED-TYPE></PARAM>"
                "<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>Next</SHORT-NAME></PARAM>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& param = As<NMemory::VMemCodedConst>(Param(0));
    EXPECT_STREQ(param.GetShortName(), L"P");
    EXPECT_STREQ(param.GetSemantic(), L"DATA");
    EXPECT_STREQ(param.GetOid(), L"o");
    EXPECT_STREQ(param.GetLongName().GetBaseMember(), L"a<b");
    EXPECT_STREQ(param.GetDesc(), L"<p>x<br/></p>");
    EXPECT_STREQ(param.GetBytePosition(), L"1");
    EXPECT_STREQ(param.GetCodedValue(), L"7");
    EXPECT_EQ(PositionOf(param), "2:1");
    auto& type = As<NMemory::VMemStandardLengthType>(param.GetDiagCodedType());
    EXPECT_STREQ(type.GetBitLength(), L"16");
    EXPECT_EQ(PositionOf(type), "4:29");
    ASSERT_EQ(param.ProcessingInstructionCollection().Count(), 1U);
    EXPECT_STREQ(At(param.ProcessingInstructionCollection(), 0).GetContent(), L"kept ");
    EXPECT_STREQ(Param(1).GetShortName(), L"Next");
}

TEST_F(VToleranceTest, ReferencesOfInferredParamsAreReportedWhereTheyStand) {
    Read(Params("<PARAM><SHORT-NAME>P</SHORT-NAME>\n  <DOP-REF ID-REF=\"gone\"/></PARAM>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:3 error unresolved-reference");
}

TEST_F(VToleranceTest, UnknownTypeIsReportedOnceAndTheContentsDecide) {
    Read(Params("<PARAM xsi:type=\"CONST\"><SHORT-NAME>P</SHORT-NAME><CODED-VALUE>1</CODED-VALUE>" +
                std::string(kStandardType) + "</PARAM>"));
    EXPECT_EQ(Param(0).GetOdxTag(), VOdxTagEnum::CodedConst);
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 error unknown-type");
    Read(Params("<PARAM type=\"CONST\"><SHORT-NAME>P</SHORT-NAME></PARAM>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning unprefixed-type\ntest.odx:2:1 error unknown-type");
}

TEST_F(VToleranceTest, CodedTypeWithoutTypeTakesTheKindOfItsContents) {
    EXPECT_EQ(CodedTypeOf("", "<LENGTH-KEY-REF ID-REF=\"x\"/>"), L"PARAM-LENGTH-INFO-TYPE");
    EXPECT_EQ(CodedTypeOf("TERMINATION=\"ZERO\"", ""), L"MIN-MAX-LENGTH-TYPE");
    EXPECT_EQ(CodedTypeOf("", "<MIN-LENGTH>1</MIN-LENGTH>"), L"MIN-MAX-LENGTH-TYPE");
    EXPECT_EQ(CodedTypeOf("", "<MAX-LENGTH>1</MAX-LENGTH>"), L"MIN-MAX-LENGTH-TYPE");
    EXPECT_EQ(CodedTypeOf("", "<BIT-LENGTH>8</BIT-LENGTH>"), L"STANDARD-LENGTH-TYPE");
    EXPECT_EQ(CodedTypeOf("", ""), L"STANDARD-LENGTH-TYPE");
    EXPECT_EQ(CodedTypeOf("xsi:type=\"LEADING-LENGTH-INFO-TYPE\"", "<BIT-LENGTH>8</BIT-LENGTH>"),
              L"LEADING-LENGTH-INFO-TYPE");
}

// Structure

TEST_F(VToleranceTest, ReferenceAndShortNameReferenceTogetherTheFirstCounts) {
    Read(Params("<PARAM xsi:type=\"VALUE\"><SHORT-NAME>P</SHORT-NAME>\n<DOP-SNREF SHORT-NAME=\"D\"/><DOP-REF "
                "ID-REF=\"gone\"/></PARAM>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:28 error second-alternative");
    auto& link = As<NODX201::VValue>(Param(0)).GetDopBaseLink();
    EXPECT_STREQ(As<NODX201::VSnref>(link.GetLink()).GetShortName(), L"D");
}

TEST_F(VToleranceTest, SecondOfWhatMayStandOnceTheFirstCounts) {
    Read(Params(
        "<PARAM "
        "xsi:type=\"CODED-CONST\"><SHORT-NAME>P</SHORT-NAME>\n<SHORT-NAME>Q</SHORT-NAME><CODED-VALUE>1</CODED-VALUE>\n"
        "<DIAG-CODED-TYPE xsi:type=\"PARAM-LENGTH-INFO-TYPE\" BASE-DATA-TYPE=\"A_UINT32\"><LENGTH-KEY-REF "
        "ID-REF=\"gone\"/></DIAG-CODED-TYPE>\n" +
        std::string(kStandardType) + "</PARAM>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error repeated-child\ntest.odx:4:78 error "
                             "unresolved-reference\ntest.odx:5:1 error repeated-child");
    EXPECT_STREQ(Param(0).GetShortName(), L"P");
    EXPECT_EQ(As<NODX201::VCodedConst>(Param(0)).GetDiagCodedType().GetOdxTag(), VOdxTagEnum::ParamLengthInfoType);
}

TEST_F(VToleranceTest, EmptyWrappersArePresent) {
    Read(Layer("<DIAG-COMMS/><PARENT-REFS></PARENT-REFS>"));
    auto& layer = Get<NODX201::VBaseVariant>(L"L");
    EXPECT_TRUE(layer.HasDiagCommProxyCollection());
    EXPECT_TRUE(layer.HasParentRefCollection());
    EXPECT_EQ(layer.DiagCommProxyCollection().Count(), 0U);
    EXPECT_EQ(layer.ParentRefCollection().Count(), 0U);
    Read(Layer(""));
    EXPECT_FALSE(Get<NODX201::VBaseVariant>(L"L").HasDiagCommProxyCollection());
    EXPECT_FALSE(Get<NODX201::VBaseVariant>(L"L").HasParentRefCollection());
    EXPECT_EQ(Get<NODX201::VBaseVariant>(L"L").DiagCommProxyCollection().Count(), 0U);
}

TEST_F(VToleranceTest, OtherOrderIsReadAndReportedFor20Only) {
    std::string const swapped =
        "<REQUESTS>\n<REQUEST ID=\"R\"><PARAMS/><SHORT-NAME>R</SHORT-NAME></REQUEST></REQUESTS><DIAG-COMMS/>";
    Read(Layer(swapped));
    EXPECT_EQ(Diagnostics(), "test.odx:3:26 warning misplaced-child\ntest.odx:3:73 warning misplaced-child");
    EXPECT_STREQ(Element(L"R").GetShortName(), L"R");
    EXPECT_TRUE(Get<NODX201::VBaseVariant>(L"L").HasDiagCommProxyCollection());
    Read(Layer(swapped, "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, DopsStandInTheOrderOfTheDocument) {
    Read(Dictionary("<STRUCTURES><STRUCTURE ID=\"A\"><SHORT-NAME>A</SHORT-NAME><PARAMS/></STRUCTURE></STRUCTURES>"
                    "<MUXS><MUX ID=\"B\"><SHORT-NAME>B</SHORT-NAME></MUX></MUXS>"
                    "<DTC-DOPS><DTC-DOP ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DTC-DOP></DTC-DOPS>"
                    "<STRUCTURES><STRUCTURE ID=\"E\"><SHORT-NAME>E</SHORT-NAME><PARAMS/></STRUCTURE></STRUCTURES>",
                    "2.2.0"));
    std::wstring names;
    for (NODX201::VDopBase& dop : Get<NODX201::VBaseVariant>(L"L").GetDiagDataDictionarySpec().DopBaseCollection()) {
        names += dop.GetShortName();
    }
    EXPECT_EQ(names, L"ABDE");
}

TEST_F(VToleranceTest, WrapperTwiceIsAppendedAndReported) {
    Read(Layer("<REQUESTS><REQUEST ID=\"A\"><SHORT-NAME>A</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>\n"
               "<REQUESTS><REQUEST ID=\"B\"><SHORT-NAME>B</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error repeated-child");
    EXPECT_EQ(Get<NODX201::VBaseVariant>(L"L").RequestCollection().Count(), 2U);
}

TEST_F(VToleranceTest, ItemsBesideTheirWrapperAreReadWithANote) {
    Read(Layer(
        "<DIAG-SERVICE ID=\"S\"><SHORT-NAME>S</SHORT-NAME><AUDIENCE/></DIAG-SERVICE>\n"
        "<REQUEST ID=\"R\"><SHORT-NAME>R</SHORT-NAME>\n<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>P</SHORT-NAME></PARAM>\n"
        "<PARAM><SHORT-NAME>Q</SHORT-NAME><DOP-SNREF SHORT-NAME=\"D\"/></PARAM></REQUEST>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning missing-wrapper\ntest.odx:3:1 warning missing-wrapper\n"
                             "test.odx:4:1 warning missing-wrapper\ntest.odx:5:1 warning missing-wrapper");
    EXPECT_EQ(Message(0), "'DIAG-SERVICE' stands outside of 'DIAG-COMMS', where it belongs");
    EXPECT_TRUE(Get<NODX201::VBaseVariant>(L"L").HasDiagCommProxyCollection());
    auto& params = Get<NODX201::VRequest>(L"R").ParamCollection();
    ASSERT_EQ(params.Count(), 2U);
    EXPECT_EQ(At(params, 0).GetOdxTag(), VOdxTagEnum::Dynamic);
    EXPECT_EQ(At(params, 1).GetOdxTag(), VOdxTagEnum::Value);
    Read(Container("<ECU-VARIANT ID=\"V\"><SHORT-NAME>V</SHORT-NAME></ECU-VARIANT>"));
    EXPECT_EQ(ShortNames(), L"V");
}

TEST_F(VToleranceTest, MissingPartsAreReportedFor20AndNeverKeepFromReading) {
    std::string const bare = "<PROTOCOLS><PROTOCOL ID=\"P\"><SHORT-NAME>P</SHORT-NAME>\n<DIAG-COMMS><DIAG-SERVICE "
                             "ID=\"S\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE></DIAG-COMMS>\n"
                             "<ACCESS-LEVELS><ACCESS-LEVEL><VALUE>1</VALUE><DIAG-COMM-SNREF "
                             "SHORT-NAME=\"S\"/></ACCESS-LEVEL></ACCESS-LEVELS></PROTOCOL></PROTOCOLS>";
    Read(Container(bare));
    EXPECT_EQ(Diagnostics(), "test.odx:2:12 error missing-attribute\ntest.odx:2:12 error missing-child\n"
                             "test.odx:3:13 error missing-child\ntest.odx:4:16 error missing-child");
    EXPECT_EQ(Message(1), "'PROTOCOL' has no 'COMPARAM-SPEC-REF'");
    EXPECT_FALSE(Get<NODX201::VProtocol>(L"P").HasComparamSpecRef());
    EXPECT_FALSE(Get<NMemory::VMemDiagService>(L"S").HasAudience());
    Read(Container(bare, "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, EmptyIdsAndShortNamesAreReportedForEveryVersion) {
    for (char const* const version : {"2.0.1", "2.2.0"}) {
        Read(Container("<BASE-VARIANTS>\n<BASE-VARIANT ID=\" \">\n<SHORT-NAME> </SHORT-NAME></BASE-VARIANT>"
                       "</BASE-VARIANTS>",
                       version));
        EXPECT_EQ(Diagnostics(), "test.odx:3:1 error missing-attribute\ntest.odx:4:1 error missing-child") << version;
        EXPECT_EQ(Message(0), "'BASE-VARIANT' has an empty ID");
        EXPECT_EQ(Message(1), "'BASE-VARIANT' has an empty 'SHORT-NAME'");
        Read(Container("<BASE-VARIANTS>\n<BASE-VARIANT ID=\"\">\n<SHORT-NAME/></BASE-VARIANT></BASE-VARIANTS>",
                       version));
        EXPECT_EQ(Diagnostics(), "test.odx:3:1 error missing-attribute\ntest.odx:4:1 error missing-child") << version;
        EXPECT_EQ(Count(L"BASE-VARIANT"), 1U);
    }
}

TEST_F(VToleranceTest, MissingShortNamesAreReportedForEveryVersion) {
    for (char const* const version : {"2.0.1", "2.1.0", "2.2.0"}) {
        Read(Container("<BASE-VARIANTS>\n<BASE-VARIANT ID=\"B\"/></BASE-VARIANTS>", version));
        EXPECT_EQ(Diagnostics(), "test.odx:3:1 error missing-child") << version;
        EXPECT_EQ(Message(0), "'BASE-VARIANT' has no 'SHORT-NAME'");
    }
    Read("<ODX>\n<FLASH ID=\"F\"/></ODX>");
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning missing-model-version\ntest.odx:2:1 error missing-child");
}

TEST_F(VToleranceTest, DataWithoutTheirRequiredPartsAnswerNo) {
    Read(Dictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"/></DATA-OBJECT-PROPS><MUXS><MUX "
                    "ID=\"M\"><CASES><CASE/></CASES></MUX></MUXS>"
                    "<ENV-DATA-DESCS><ENV-DATA-DESC ID=\"N\"/></ENV-DATA-DESCS><STATIC-FIELDS><STATIC-FIELD "
                    "ID=\"F\"/></STATIC-FIELDS>"
                    "<TABLES><TABLE ID=\"T\"><TABLE-ROW ID=\"R\"/></TABLE></TABLES>",
                    "2.2.0"));
    auto& dop = Get<NODX201::VDataObjectProp>(L"D");
    EXPECT_STREQ(dop.GetShortName(), L"");
    EXPECT_FALSE(dop.HasCompuMethod() || dop.HasDiagCodedType() || dop.HasPhysicalType() || dop.HasUnitRef());
    EXPECT_FALSE(Get<NODX201::VMux>(L"M").HasSwitchKey());
    auto& muxCase = At(Get<NODX201::VMux>(L"M").CaseCollection(), 0);
    EXPECT_FALSE(muxCase.HasLowerLimit() || muxCase.HasUpperLimit() || muxCase.HasStructureRef());
    EXPECT_FALSE(Get<NODX201::VEnvDataDesc>(L"N").HasParamSnref());
    EXPECT_FALSE(Get<NODX201::VStaticField>(L"F").HasBasicStructureEnvDataDescChoice());
    EXPECT_FALSE(Get<NODX201::VTableRow>(L"R").HasStructureRef());
    Read(Document("<FLASH ID=\"F\"><ECU-MEMS><ECU-MEM ID=\"E\"/></ECU-MEMS></FLASH>", "2.2.0"));
    EXPECT_EQ(Get<NODX201::VEcuMem>(L"E").GetMem().SessionCollection().Count(), 0U);
}

TEST_F(VToleranceTest, EmptyOidIsNone) {
    Read(Container(
        "<ECU-VARIANTS><ECU-VARIANT ID=\"V\" OID=\"\"><SHORT-NAME>V</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS>"));
    EXPECT_FALSE(Get<NMemory::VMemEcuVariant>(L"V").HasOid());
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VToleranceTest, DoubledAndOddShortNamesAreAllKept) {
    std::string const name(300, 'x');
    Read(Container("<ECU-VARIANTS><ECU-VARIANT ID=\"1\"><SHORT-NAME>V</SHORT-NAME></ECU-VARIANT><ECU-VARIANT "
                   "ID=\"2\"><SHORT-NAME>V</SHORT-NAME></ECU-VARIANT>"
                   "<ECU-VARIANT ID=\"3\"><SHORT-NAME/></ECU-VARIANT><ECU-VARIANT ID=\"4\"><SHORT-NAME>a "
                   "b{}</SHORT-NAME></ECU-VARIANT>"
                   "<ECU-VARIANT ID=\"5\"><SHORT-NAME>" +
                   name + "</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:155 error missing-child"); // the empty one
    EXPECT_EQ(ShortNames(), L"V V  a b{} " + std::wstring(300, L'x'));
}

TEST_F(VToleranceTest, ElementsOfTheGeneralKindLackNothing) {
    Read(
        Document("<FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS><ECU-MEM ID=\"E\"><SHORT-NAME>E</SHORT-NAME><MEM>"
                 "<SESSIONS/><DATABLOCKS/><FLASHDATAS><FLASHDATA ID=\"D\"><SHORT-NAME>D</SHORT-NAME><DATAFORMAT "
                 "SELECTION=\"BINARY\"/></FLASHDATA></FLASHDATAS></MEM></ECU-MEM></ECU-MEMS></FLASH>"));
    EXPECT_EQ(Diagnostics(), "");
    Read(Params("<PARAM xsi:type=\"CODED-CONST\"><SHORT-NAME>P</SHORT-NAME><CODED-VALUE>1</CODED-VALUE>"
                "<DIAG-CODED-TYPE BASE-DATA-TYPE=\"A_UINT32\"/></PARAM>"));
    EXPECT_EQ(Diagnostics(), "");
    Read(Params("<PARAM><DOP-SNREF SHORT-NAME=\"D\"/></PARAM>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 error missing-child"); // its name, which all kinds have
}

TEST_F(VToleranceTest, ItemsBesideAListOfItsOwnClassAreReadWithANote) {
    Read(Dictionary(
        "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"><SHORT-NAME>D</SHORT-NAME><COMPU-METHOD><CATEGORY>LINEAR"
        "</CATEGORY><COMPU-INTERNAL-TO-PHYS>\n<COMPU-SCALE><COMPU-CONST><V>1</V></COMPU-CONST></COMPU-SCALE>\n"
        "<COMPU-SCALE><COMPU-CONST><V>2</V></COMPU-CONST></COMPU-SCALE></COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>" +
        std::string(kStandardType) +
        "<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_UINT32\"/></DATA-OBJECT-PROP></DATA-OBJECT-PROPS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 warning missing-wrapper\ntest.odx:4:1 warning missing-wrapper");
    EXPECT_EQ(Count(L"COMPU-SCALE"), 2U);
    Read(Dictionary(
        "<ENV-DATAS><ENV-DATA ID=\"E\"><SHORT-NAME>E</SHORT-NAME><PARAMS/>\n<DTC-VALUE>7</DTC-VALUE></ENV-DATA>"
        "</ENV-DATAS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 warning missing-wrapper");
    EXPECT_EQ(Count(L"DTC-VALUES"), 1U);
}

TEST_F(VToleranceTest, ItemsBesideAWrapperThatIsThereTooAreNoSecondWrapper) {
    std::string const request = "<REQUEST ID=\"R\"><SHORT-NAME>R</SHORT-NAME><PARAMS/></REQUEST>";
    Read(
        Layer(request + "\n<REQUESTS>" + "<REQUEST ID=\"Q\"><SHORT-NAME>Q</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning missing-wrapper");
    EXPECT_EQ(Count(L"REQUEST"), 2U);
}

TEST_F(VToleranceTest, EmptyReferencesNameNothing) {
    Read(Layer("<IMPORT-REFS>\n<IMPORT-REF ID-REF=\" \"/></IMPORT-REFS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error missing-attribute");
}

// Cycles

TEST_F(VToleranceTest, ReadingEndsWhereReferencesGoInCircles) {
    Read(Container("<ECU-VARIANTS><ECU-VARIANT ID=\"A\"><SHORT-NAME>A</SHORT-NAME><DIAG-COMMS><DIAG-SERVICE "
                   "ID=\"S\"><SHORT-NAME>S</SHORT-NAME><RELATED-DIAG-COMM-REFS>"
                   "<RELATED-DIAG-COMM-REF "
                   "ID-REF=\"S\"><RELATION-TYPE>x</RELATION-TYPE></RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS></"
                   "DIAG-SERVICE></DIAG-COMMS>"
                   "<PARENT-REFS><PARENT-REF ID-REF=\"B\"/></PARENT-REFS></ECU-VARIANT><ECU-VARIANT "
                   "ID=\"B\"><SHORT-NAME>B</SHORT-NAME>"
                   "<PARENT-REFS><PARENT-REF ID-REF=\"A\"/></PARENT-REFS></ECU-VARIANT></ECU-VARIANTS>",
                   "2.2.0"));
    EXPECT_EQ(ShortNames(), L"A B");
    ASSERT_EQ(m_result.diagnostics.size(), 2U);
    EXPECT_EQ(m_result.diagnostics[0].code, "parent-kind");
    EXPECT_EQ(m_result.diagnostics[1].code, "parent-kind");
}

} // namespace
} // namespace NTest
