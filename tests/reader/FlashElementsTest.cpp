// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Flash.h>

#include "reader/ReaderTest.h"

/// The results for each element of flash data.

namespace NTest {
namespace {

using namespace NMemory;
using NODX201::VOdxTagEnum;

class VFlashElementsTest : public VReaderTest {
protected:
    ~VFlashElementsTest() override { EXPECT_TRUE(m_result.unknownElements.empty()); }

    void ReadMem(std::string const& content) {
        Read(Document(
            "<FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS><ECU-MEM ID=\"E\"><SHORT-NAME>E</SHORT-NAME><MEM>" +
                content + "</MEM></ECU-MEM></ECU-MEMS></FLASH>",
            "2.1.0"));
        EXPECT_EQ(Diagnostics(), "");
    }

    VMemMem& Mem() { return Get<VMemEcuMem>(L"E").GetMem(); }
};

std::wstring Snref(NODX201::VLink& link) { return As<NODX201::VSnref>(link.GetLink()).GetShortName(); }

TEST_F(VFlashElementsTest, FlashAndEcuMem) {
    Read(Document("<FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ADMIN-DATA/><COMPANY-DATAS><COMPANY-DATA "
                  "ID=\"CD\"><SHORT-NAME>CD</SHORT-NAME></COMPANY-DATA></COMPANY-DATAS><ECU-MEMS><ECU-MEM "
                  "ID=\"E\"><SHORT-NAME>E</SHORT-NAME><ADMIN-DATA/>"
                  "<PROJECT-INFOS><PROJECT-INFO><ECU-FAMILY-DESC>door</ECU-FAMILY-DESC><MODIFICATION-LETTER>A</"
                  "MODIFICATION-LETTER><COMPANY-DATA-REF ID-REF=\"CD\"/><PROJECT-IDENTS><PROJECT-IDENT "
                  "TYPE=\"PART-NO\"><NAME>n</NAME><VALUE>v</VALUE></PROJECT-IDENT></PROJECT-IDENTS></PROJECT-INFO></"
                  "PROJECT-INFOS>"
                  "<MEM/><PHYS-MEM ID=\"P\"><SHORT-NAME>P</SHORT-NAME><PHYS-SEGMENTS><PHYS-SEGMENT ID=\"P1\" "
                  "xsi:type=\"SIZEDEF-PHYS-SEGMENT\"><SHORT-NAME>P1</SHORT-NAME><FILLBYTE>FF</FILLBYTE><BLOCK-SIZE>8</"
                  "BLOCK-SIZE><START-ADDRESS>8000</START-ADDRESS><SIZE>4096</SIZE></PHYS-SEGMENT>"
                  "<PHYS-SEGMENT ID=\"P2\" "
                  "xsi:type=\"ADDRDEF-PHYS-SEGMENT\"><SHORT-NAME>P2</SHORT-NAME><START-ADDRESS>00</"
                  "START-ADDRESS><END-ADDRESS>0F</END-ADDRESS></PHYS-SEGMENT></PHYS-SEGMENTS></PHYS-MEM></ECU-MEM></"
                  "ECU-MEMS></FLASH>"
                  "<FLASH ID=\"G\"><SHORT-NAME>G</SHORT-NAME></FLASH>",
                  "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    ASSERT_EQ(Database().FlashCollection().Count(), 2U);
    auto& flash = Get<VMemFlash>(L"F");
    EXPECT_TRUE(flash.HasAdminData());
    ASSERT_TRUE(flash.HasEcuMemCollection());
    EXPECT_FALSE(Get<VMemFlash>(L"G").HasEcuMemCollection());
    auto& memory = Get<VMemEcuMem>(L"E");
    EXPECT_TRUE(memory.HasAdminData());
    auto& project = At(memory.ProjectInfoCollection(), 0);
    EXPECT_STREQ(project.GetEcuFamilyDesc(), L"door");
    EXPECT_STREQ(project.GetModificationLetter(), L"A");
    EXPECT_TRUE(project.GetCompanyDataRef().HasCompanyData());
    auto& ident = At(project.ProjectIdentCollection(), 0);
    EXPECT_STREQ(ident.GetType(), L"PART-NO");
    EXPECT_STREQ(ident.GetName(), L"n");
    EXPECT_STREQ(ident.GetValue(), L"v");
    auto& segments = memory.GetPhysMem().PhysSegmentCollection();
    EXPECT_STREQ(At(segments, 0).GetFillbyte(), L"FF");
    EXPECT_STREQ(At(segments, 0).GetBlockSize(), L"8");
    EXPECT_STREQ(At(segments, 0).GetStartAddress(), L"8000");
    EXPECT_STREQ(At(segments, 0).GetSize(), L"4096");
    EXPECT_STREQ(At(segments, 1).GetEndAddress(), L"0F");
    EXPECT_STREQ(At(segments, 1).GetFillbyte(), L"");
}

TEST_F(VFlashElementsTest, ASecondMemAddsToTheFirst) {
    auto const memWith = [](std::string const& session) {
        return "\n<MEM><SESSIONS><SESSION ID=\"" + session + "\"><SHORT-NAME>" + session +
               "</SHORT-NAME></SESSION></SESSIONS></MEM>";
    };
    Read(Document("<FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS><ECU-MEM ID=\"E\"><SHORT-NAME>E</SHORT-NAME>" +
                      memWith("First") + memWith("Second") + "</ECU-MEM></ECU-MEMS></FLASH>",
                  "2.1.0"));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error repeated-child");
    EXPECT_EQ(Mem().SessionCollection().Count(), 2U);
}

TEST_F(VFlashElementsTest, Sessions) {
    ReadMem(
        "<SESSIONS><SESSION ID=\"S\"><SHORT-NAME>S</SHORT-NAME><EXPECTED-IDENTS><EXPECTED-IDENT "
        "ID=\"X\"><SHORT-NAME>X</SHORT-NAME><IDENT-VALUES><IDENT-VALUE TYPE=\"A_UINT32\"> 1 </IDENT-VALUE><IDENT-VALUE "
        "TYPE=\"A_ASCIISTRING\">b</IDENT-VALUE></IDENT-VALUES></EXPECTED-IDENT></EXPECTED-IDENTS>"
        "<CHECKSUMS><CHECKSUM "
        "ID=\"K\"><SHORT-NAME>K</SHORT-NAME><FILLBYTE>FF</FILLBYTE><SOURCE-START-ADDRESS>00</"
        "SOURCE-START-ADDRESS><COMPRESSED-SIZE>3</COMPRESSED-SIZE><CHECKSUM-ALG>CRC</"
        "CHECKSUM-ALG><SOURCE-END-ADDRESS>03</SOURCE-END-ADDRESS><CHECKSUM-RESULT "
        "TYPE=\"A_BYTEFIELD\">7C</CHECKSUM-RESULT></CHECKSUM>"
        "<CHECKSUM "
        "ID=\"K2\"><SHORT-NAME>K2</SHORT-NAME><UNCOMPRESSED-SIZE>9</UNCOMPRESSED-SIZE></CHECKSUM></"
        "CHECKSUMS><SECURITYS><SECURITY><SECURITY-METHOD TYPE=\"A_ASCIISTRING\">m</SECURITY-METHOD><FW-SIGNATURE "
        "TYPE=\"A_BYTEFIELD\">01</FW-SIGNATURE><FW-CHECKSUM "
        "TYPE=\"A_UINT32\">2</FW-CHECKSUM><VALIDITY-FOR>v</VALIDITY-FOR></SECURITY><SECURITY/></SECURITYS>"
        "<DATABLOCK-REFS><DATABLOCK-REF "
        "ID-REF=\"B\"/></DATABLOCK-REFS><SDGS><SDG/></SDGS></SESSION></SESSIONS><DATABLOCKS><DATABLOCK "
        "ID=\"B\"><SHORT-NAME>B</SHORT-NAME></DATABLOCK></DATABLOCKS>");
    auto& session = As<VMemSession>(At(Mem().SessionCollection(), 0));
    auto& values = As<VMemExpectedIdent>(At(session.ExpectedIdentCollection(), 0)).IdentValueCollection();
    ASSERT_EQ(values.Count(), 2U);
    EXPECT_STREQ(At(values, 0).GetText(), L" 1 ");
    EXPECT_STREQ(At(values, 0).GetType(), L"A_UINT32");
    EXPECT_STREQ(At(values, 1).GetText(), L"b");
    auto& checksum = At(session.ChecksumCollection(), 0);
    EXPECT_STREQ(checksum.GetFillbyte(), L"FF");
    EXPECT_STREQ(checksum.GetSourceStartAddress(), L"00");
    EXPECT_STREQ(checksum.GetCompressedSize(), L"3");
    EXPECT_STREQ(checksum.GetChecksumAlg(), L"CRC");
    EXPECT_STREQ(checksum.GetSourceEndAddress(), L"03");
    EXPECT_STREQ(checksum.GetUncompressedSize(), L"");
    EXPECT_STREQ(checksum.GetChecksumResult().GetText(), L"7C");
    EXPECT_STREQ(checksum.GetChecksumResult().GetType(), L"A_BYTEFIELD");
    EXPECT_STREQ(At(session.ChecksumCollection(), 1).GetUncompressedSize(), L"9");
    auto& security = At(session.SecurityCollection(), 0);
    EXPECT_STREQ(security.GetSecurityMethod().GetText(), L"m");
    EXPECT_STREQ(security.GetSecurityMethod().GetType(), L"A_ASCIISTRING");
    EXPECT_STREQ(security.GetFwSignature().GetText(), L"01");
    EXPECT_STREQ(security.GetFwSignature().GetType(), L"A_BYTEFIELD");
    EXPECT_STREQ(security.GetFwChecksum().GetText(), L"2");
    EXPECT_STREQ(security.GetFwChecksum().GetType(), L"A_UINT32");
    EXPECT_STREQ(security.GetValidityFor().GetText(), L"v");
    EXPECT_STREQ(security.GetValidityFor().GetType(), L"");
    auto& none = At(session.SecurityCollection(), 1);
    EXPECT_FALSE(none.HasSecurityMethod() || none.HasFwSignature() || none.HasFwChecksum() || none.HasValidityFor());
    EXPECT_TRUE(At(session.DatablockLinkCollection(), 0).HasDatablock());
    EXPECT_EQ(session.SdgCollection().Count(), 1U);
}

TEST_F(VFlashElementsTest, DatablocksAndFlashdata) {
    ReadMem(
        "<DATABLOCKS><DATABLOCK ID=\"B\" TYPE=\"CODE\"><SHORT-NAME>B</SHORT-NAME><FLASHDATA-REF "
        "ID-REF=\"D1\"/><FILTERS><FILTER "
        "xsi:type=\"ADDRDEF-FILTER\"><FILTER-START>00</FILTER-START><FILTER-END>03</FILTER-END></FILTER>"
        "<FILTER "
        "xsi:type=\"SIZEDEF-FILTER\"><FILTER-START>04</FILTER-START><FILTER-SIZE>2</FILTER-SIZE></FILTER></"
        "FILTERS><SEGMENTS><SEGMENT "
        "ID=\"G\"><SHORT-NAME>G</SHORT-NAME><SOURCE-START-ADDRESS>00</SOURCE-START-ADDRESS><COMPRESSED-SIZE>1</"
        "COMPRESSED-SIZE><UNCOMPRESSED-SIZE>4</UNCOMPRESSED-SIZE></SEGMENT>"
        "<SEGMENT "
        "ID=\"G2\"><SHORT-NAME>G2</SHORT-NAME><SOURCE-END-ADDRESS>0F</SOURCE-END-ADDRESS></SEGMENT></"
        "SEGMENTS><TARGET-ADDR-OFFSET "
        "xsi:type=\"POS-OFFSET\"><POSITIVE-OFFSET>80</POSITIVE-OFFSET></TARGET-ADDR-OFFSET>"
        "<OWN-IDENTS><OWN-IDENT ID=\"O\"><SHORT-NAME>O</SHORT-NAME><IDENT-VALUE "
        "TYPE=\"A_ASCIISTRING\">x</IDENT-VALUE></OWN-IDENT></OWN-IDENTS><SECURITYS><SECURITY/></SECURITYS><SDGS><SDG/"
        "></SDGS></DATABLOCK>"
        "<DATABLOCK ID=\"C\" TYPE=\"DATA\"><SHORT-NAME>C</SHORT-NAME><TARGET-ADDR-OFFSET "
        "xsi:type=\"NEG-OFFSET\"><NEGATIVE-OFFSET>10</NEGATIVE-OFFSET></TARGET-ADDR-OFFSET></DATABLOCK></DATABLOCKS>"
        "<FLASHDATAS><FLASHDATA ID=\"D1\" xsi:type=\"INTERN-FLASHDATA\"><SHORT-NAME>D1</SHORT-NAME><DATAFORMAT "
        "SELECTION=\"BINARY\">raw</DATAFORMAT><ENCRYPT-COMPRESS-METHOD "
        "TYPE=\"A_BYTEFIELD\">00</ENCRYPT-COMPRESS-METHOD><DATA>DEADBEEF</DATA></FLASHDATA>"
        "<FLASHDATA ID=\"D2\" xsi:type=\"EXTERN-FLASHDATA\"><SHORT-NAME>D2</SHORT-NAME><DATAFORMAT "
        "SELECTION=\"INTEL-HEX\"/><DATAFILE "
        "LATEBOUND-DATAFILE=\"true\">d.hex</DATAFILE></FLASHDATA></FLASHDATAS>");
    auto& block = Get<VMemDatablock>(L"B");
    EXPECT_STREQ(block.GetType(), L"CODE");
    ASSERT_TRUE(block.GetFlashdataRef().HasFlashdata());
    EXPECT_STREQ(At(block.FilterCollection(), 0).GetFilterStart(), L"00");
    EXPECT_STREQ(At(block.FilterCollection(), 0).GetFilterEnd(), L"03");
    EXPECT_STREQ(At(block.FilterCollection(), 1).GetFilterSize(), L"2");
    EXPECT_STREQ(At(block.SegmentCollection(), 0).GetSourceStartAddress(), L"00");
    EXPECT_STREQ(At(block.SegmentCollection(), 0).GetCompressedSize(), L"1");
    EXPECT_STREQ(At(block.SegmentCollection(), 0).GetUncompressedSize(), L"4");
    EXPECT_STREQ(At(block.SegmentCollection(), 1).GetSourceEndAddress(), L"0F");
    EXPECT_STREQ(At(block.SegmentCollection(), 1).GetShortName(), L"G2");
    EXPECT_STREQ(block.GetTargetAddrOffset().GetPositiveOffset(), L"80");
    EXPECT_STREQ(Get<VMemDatablock>(L"C").GetTargetAddrOffset().GetNegativeOffset(), L"10");
    EXPECT_FALSE(Get<VMemDatablock>(L"C").HasFlashdataRef());
    auto& own = At(block.OwnIdentCollection(), 0);
    EXPECT_STREQ(own.GetIdentValue().GetText(), L"x");
    EXPECT_STREQ(own.GetIdentValue().GetType(), L"A_ASCIISTRING");
    EXPECT_EQ(block.SecurityCollection().Count(), 1U);
    EXPECT_EQ(block.SdgCollection().Count(), 1U);
    auto& intern = Get<VMemFlashdata>(L"D1");
    EXPECT_EQ(intern.GetOdxTag(), VOdxTagEnum::InternFlashdata);
    EXPECT_STREQ(intern.GetDataformat().GetSelection(), L"BINARY");
    EXPECT_STREQ(intern.GetDataformat().GetText(), L"raw");
    EXPECT_STREQ(intern.GetEncryptCompressMethod().GetText(), L"00");
    EXPECT_STREQ(intern.GetEncryptCompressMethod().GetType(), L"A_BYTEFIELD");
    EXPECT_STREQ(intern.GetData(), L"DEADBEEF");
    auto& external = Get<VMemFlashdata>(L"D2");
    EXPECT_EQ(external.GetOdxTag(), VOdxTagEnum::ExternFlashdata);
    EXPECT_STREQ(external.GetDatafile(), L"d.hex");
    EXPECT_TRUE(external.IsLatebound());
    EXPECT_FALSE(external.HasEncryptCompressMethod());
}

TEST_F(VFlashElementsTest, FlashdataWithoutTypeTakesTheKindOfItsContents) {
    ReadMem("<FLASHDATAS><FLASHDATA ID=\"D1\"><SHORT-NAME>D1</SHORT-NAME><DATA>00</DATA></FLASHDATA><FLASHDATA "
            "ID=\"D2\"><SHORT-NAME>D2</SHORT-NAME><DATAFILE>d.hex</DATAFILE></FLASHDATA></FLASHDATAS>");
    EXPECT_EQ(Get<VMemFlashdata>(L"D1").GetOdxTag(), VOdxTagEnum::InternFlashdata);
    EXPECT_EQ(Get<VMemFlashdata>(L"D2").GetOdxTag(), VOdxTagEnum::ExternFlashdata);
    EXPECT_FALSE(Get<VMemFlashdata>(L"D2").IsLatebound());
    ReadMem("<FLASHDATAS><FLASHDATA ID=\"D\"><SHORT-NAME>D</SHORT-NAME></FLASHDATA></FLASHDATAS>");
    EXPECT_EQ(Get<VMemFlashdata>(L"D").GetOdxTag(), VOdxTagEnum::InternFlashdata);
}

TEST_F(VFlashElementsTest, EcuMemConnector) {
    Read(Document(
        "<FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS><ECU-MEM "
        "ID=\"E\"><SHORT-NAME>E</SHORT-NAME><MEM/></ECU-MEM></ECU-MEMS><ECU-MEM-CONNECTORS><ECU-MEM-CONNECTOR "
        "ID=\"C\"><SHORT-NAME>C</SHORT-NAME><ADMIN-DATA/>"
        "<FLASH-CLASSS><FLASH-CLASS "
        "ID=\"FC\"><SHORT-NAME>FC</SHORT-NAME></FLASH-CLASS></FLASH-CLASSS><SESSION-DESCS><SESSION-DESC OID=\"o\" "
        "DIRECTION=\"DOWNLOAD\"><SHORT-NAME>SD</SHORT-NAME><PARTNUMBER>1</PARTNUMBER><PRIORITY>2</PRIORITY>"
        "<SESSION-SNREF SHORT-NAME=\"s\"/><DIAG-COMM-SNREF SHORT-NAME=\"d\"/><FLASH-CLASS-REFS><FLASH-CLASS-REF "
        "ID-REF=\"FC\"/></FLASH-CLASS-REFS><SDGS><SDG/></SDGS></SESSION-DESC></SESSION-DESCS>"
        "<IDENT-DESCS><IDENT-DESC><DIAG-COMM-SNREF SHORT-NAME=\"d\"/><IDENT-IF-SNREF "
        "SHORT-NAME=\"i\"/><OUT-PARAM-IF-SNREF SHORT-NAME=\"o\"/></IDENT-DESC></IDENT-DESCS><ECU-MEM-REF "
        "ID-REF=\"E\"/><LAYER-REFS><LAYER-REF ID-REF=\"L\" DOCREF=\"L\" DOCTYPE=\"LAYER\"/></LAYER-REFS>"
        "</ECU-MEM-CONNECTOR></ECU-MEM-CONNECTORS></FLASH><DIAG-LAYER-CONTAINER "
        "ID=\"X\"><SHORT-NAME>X</SHORT-NAME><ECU-VARIANTS><ECU-VARIANT "
        "ID=\"L\"><SHORT-NAME>L</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS></DIAG-LAYER-CONTAINER>",
        "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& connector = Get<VMemEcuMemConnector>(L"C");
    EXPECT_TRUE(connector.HasAdminData());
    EXPECT_EQ(&At(connector.FlashClassCollection(), 0), &Element(L"FC"));
    auto& desc = At(connector.SessionDescCollection(), 0);
    EXPECT_STREQ(desc.GetShortName(), L"SD");
    EXPECT_STREQ(desc.GetOid(), L"o");
    EXPECT_STREQ(desc.GetDirection(), L"DOWNLOAD");
    EXPECT_STREQ(desc.GetPartnumber(), L"1");
    EXPECT_STREQ(desc.GetPriority(), L"2");
    EXPECT_EQ(Snref(desc.GetSessionSnref()), L"s");
    EXPECT_EQ(Snref(desc.GetDiagCommSnref()), L"d");
    EXPECT_TRUE(At(desc.FlashClassLinkCollection(), 0).HasFlashClass());
    EXPECT_EQ(desc.SdgCollection().Count(), 1U);
    auto& ident = At(connector.IdentDescCollection(), 0);
    EXPECT_EQ(Snref(ident.GetDiagCommSnref()), L"d");
    EXPECT_EQ(Snref(ident.GetIdentIfSnref()), L"i");
    EXPECT_EQ(Snref(ident.GetOutParamIfSnref()), L"o");
    EXPECT_TRUE(connector.GetEcuMemRef().HasEcuMem());
    EXPECT_TRUE(At(connector.DiagLayerLinkCollection(), 0).HasDiagLayer());
}

} // namespace
} // namespace NTest
