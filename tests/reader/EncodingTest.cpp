// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Layers.h>

#include "reader/ReaderTest.h"

namespace NTest {
namespace {

class VEncodingTest : public VReaderTest {
protected:
    /// Reads bytes that hold a container whose short name they write, and gives that name.
    std::wstring NameIn(std::string_view bytes) {
        Read(bytes);
        auto& containers = Database().GetOdx().DiagLayerContainerCollection();
        return containers.Count() == 1 ? At(containers, 0).GetShortName() : L"(none)";
    }

    static std::string With(std::string_view declaration, std::string_view name) {
        return std::string(declaration) + "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>" +
               std::string(name) + "</SHORT-NAME></DIAG-LAYER-CONTAINER></ODX>";
    }

    static std::string Utf16(std::string_view ascii, bool isBigEndian) {
        std::string bytes;
        for (char const character : ascii) {
            bytes += isBigEndian ? '\0' : character;
            bytes += isBigEndian ? character : '\0';
        }
        return bytes;
    }
};

constexpr char kUtf8[] = R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>)";
constexpr char kUtf16[] = R"(<?xml version="1.0" encoding="UTF-16"?>)";
constexpr char kLatin1[] = R"(<?xml version="1.0" encoding="ISO-8859-1"?>)";
constexpr char kWindows1252[] = R"(<?xml version="1.0" encoding="Windows-1252"?>)";
constexpr char kMark[] = "\xEF\xBB\xBF";

TEST_F(VEncodingTest, Utf8IsReadWithAndWithoutADeclaration) {
    EXPECT_EQ(NameIn(With(kUtf8, "T\xC3\xBCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn(With("", "T\xC3\xBCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, CharactersBeyondTheBasicPlaneAreKept) {
    EXPECT_EQ(NameIn(With(kUtf8, "\xF0\x9F\x9A\x97")), L"\U0001F697");
}

TEST_F(VEncodingTest, Utf8WithAByteOrderMarkIsRead) {
    EXPECT_EQ(NameIn(kMark + With(kUtf8, "T\xC3\xBCr")), L"T\u00FCr");
    EXPECT_EQ(NameIn(kMark + With("", "T\xC3\xBCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, Utf16IsReadInBothByteOrders) {
    EXPECT_EQ(NameIn("\xFF\xFE" + Utf16(With(kUtf16, "Door"), false)), L"Door");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn("\xFE\xFF" + Utf16(With(kUtf16, "Door"), true)), L"Door");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn("\xFE\xFF" + Utf16(With("", "Door"), true)), L"Door");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, Latin1IsRead) {
    EXPECT_EQ(NameIn(With(kLatin1, "T\xFCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, Windows1252IsReadWithItsFiveOpenCodes) {
    EXPECT_EQ(NameIn(With(kWindows1252, "\x80\xFC\x9F")), L"\u20AC\u00FC\u0178");
    EXPECT_EQ(NameIn(With(kWindows1252, "\x81\x8D\x8F\x90\x9D")), L"\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, ByteOrderMarkCountsMoreThanTheDeclaration) {
    EXPECT_EQ(NameIn(kMark + With(kLatin1, "T\xC3\xBCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning encoding");
    EXPECT_EQ(Message(0), "the document declares ISO-8859-1 but has the byte order mark of UTF-8, in which it is read");
    EXPECT_EQ(NameIn("\xFF\xFE" + Utf16(With(kUtf8, "Door"), false)), L"Door");
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning encoding");
    EXPECT_EQ(NameIn(kMark + With(kUtf16, "Door")), L"Door");
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning encoding");
}

TEST_F(VEncodingTest, BytesThatAreNotUtf8AreReadAsWindows1252AndReportedOnce) {
    EXPECT_EQ(NameIn(With(kUtf8, "T\xFCr \x80 \xFC")), L"T\u00FCr \u20AC \u00FC");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "encoding");
    EXPECT_EQ(m_result.diagnostics[0].severity, NReader::VSeverity::Warning);
    EXPECT_EQ(m_result.diagnostics[0].line, 1U);
    EXPECT_EQ(NameIn(With("", "T\xFCr")), L"T\u00FCr");
    EXPECT_EQ(NameIn(kMark + With(kUtf8, "T\xFCr")), L"T\u00FCr");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "encoding");
}

TEST_F(VEncodingTest, DeclaredUtf16OfAUtf8FileIsIgnoredAndReported) {
    EXPECT_EQ(NameIn(With(kUtf16, "T\xC3\xBCr")), L"T\u00FCr");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "encoding");
}

TEST_F(VEncodingTest, UnknownEncodingIsReadAsUtf8AndReported) {
    EXPECT_EQ(NameIn(With(R"(<?xml version="1.0" encoding="x-other"?>)", "T\xC3\xBCr")), L"T\u00FCr");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "encoding");
}

TEST_F(VEncodingTest, NothingOfATryInAnotherEncodingStays) {
    Read("<ODX MODEL-VERSION=\"2.0.1\"><?Note first?><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>A</SHORT-NAME><X/>"
         "<LONG-NAME>\xFC</LONG-NAME></DIAG-LAYER-CONTAINER></ODX>");
    EXPECT_EQ(Database().GetOdx().DiagLayerContainerCollection().Count(), 1U);
    EXPECT_EQ(Database().GetOdx().ProcessingInstructionCollection().Count(), 1U);
    EXPECT_EQ(Count(L"DIAG-LAYER-CONTAINER"), 1U);
    EXPECT_EQ(m_result.documents.size(), 1U);
    EXPECT_EQ(m_result.unknownElements, (std::map<std::string, std::size_t>{{"X", 1}}));
    EXPECT_TRUE(Database().GetIdIndex().Find(L"C")->others.empty());
}

TEST_F(VEncodingTest, BlanksBeforeTheDeclarationAreLeftOutAndCounted) {
    EXPECT_EQ(NameIn("\r\n \t\n" + With(kLatin1, "T\xFCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "");
    Read("\r\n\n  <?xml version=\"1.0\"?><ODX MODEL-VERSION=\"2.0.1\"/>");
    EXPECT_EQ(Diagnostics(), "test.odx:3:24 warning no-category");
    Read("\n<ODX MODEL-VERSION=\"2.0.1\"/>");
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning no-category");
    Read(std::string(kMark) + "\r\r<?xml version=\"1.0\"?>\r<ODX MODEL-VERSION=\"2.0.1\"/>");
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 warning no-category");
}

TEST_F(VEncodingTest, CommentsBeforeTheDeclarationAreLeftOutAndCounted) {
    EXPECT_EQ(NameIn("<!-- made\nby hand --> <!-- <?xml -->\n" + With(kLatin1, "T\xFCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "");
    Read("<!-- a\nb --><?xml version=\"1.0\"?><ODX MODEL-VERSION=\"2.0.1\"/>");
    EXPECT_EQ(Diagnostics(), "test.odx:2:27 warning no-category");
    Read("<!-- without end <?xml version=\"1.0\"?><ODX MODEL-VERSION=\"2.0.1\"/>");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "not-xml");
}

TEST_F(VEncodingTest, CommentsMayStandBeforeTheRoot) {
    EXPECT_EQ(NameIn("<!-- made by hand -->\n\n" + With("", "Door")), L"Door");
    EXPECT_EQ(Diagnostics(), "");
}

} // namespace
} // namespace NTest
