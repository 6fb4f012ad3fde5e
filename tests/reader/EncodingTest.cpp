// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Layers.h>

#include "reader/ReaderTest.h"

namespace NTest {
namespace {

class VEncodingTest : public VReaderTest {
protected:
    /// Reads bytes of a container with a short name in their encoding, and returns that name.
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
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn(With(kWindows1252, "\x81\x8D\x8F\x90\x9D")), L"\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(Diagnostics(), "test.odx:1:114 warning encoding"); // once, at the first
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
    EXPECT_TRUE(Database().GetIdIndex().Find(L"C")->Count() == 1);
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

TEST_F(VEncodingTest, Utf16WithoutAByteOrderMarkIsToldByItsFirstBytes) {
    for (char const* const encoding : {"UTF-16", "utf-16"}) {
        std::string const declaration = std::string("<?xml version=\"1.0\" encoding=\"") + encoding + "\"?>";
        EXPECT_EQ(NameIn(Utf16(With(declaration, "Door"), false)), L"Door");
        EXPECT_EQ(Diagnostics(), "");
        EXPECT_EQ(NameIn(Utf16(With(declaration, "Door"), true)), L"Door");
        EXPECT_EQ(Diagnostics(), "");
    }
    EXPECT_EQ(NameIn(Utf16(With(R"(<?xml version="1.0" encoding="UTF-16LE"?>)", "Door"), false)), L"Door");
    EXPECT_EQ(NameIn(Utf16(With(R"(<?xml version="1.0" encoding="UTF-16BE"?>)", "Door"), true)), L"Door");
    EXPECT_EQ(NameIn("\xFF\xFE" + Utf16(With(R"(<?xml version="1.0" encoding="UTF-16LE"?>)", "Door"), false)), L"Door");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, CharactersOfUtf16AreKept) {
    std::string bytes = "\xFF\xFE" + Utf16(With(kUtf16, "@"), false);
    bytes.replace(bytes.find("@"), 2, "\xFC\x00\x3D\xD8\x97\xDE", 6); // a letter, and a pair of surrogates
    EXPECT_EQ(NameIn(bytes), L"\u00FC\U0001F697");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, Utf16ThatIsCutInsideACharacterIsRefusedAtItsEnd) {
    std::string bytes = "\xFF\xFE" + Utf16("<ODX MODEL-VERSION=\"2.0.1\">", false);
    Read(bytes + "<");
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "test.odx:1:28 error not-xml");
}

TEST_F(VEncodingTest, Latin9IsRead) {
    EXPECT_EQ(NameIn(With(R"(<?xml version="1.0" encoding="iso-8859-15"?>)", "\xA4\xFC")), L"\u20AC\u00FC");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, AsciiThatIsNoneIsReadAsWhatItMayBeAndReportedWhereItShows) {
    std::string const declaration = "<?xml version=\"1.0\" encoding=\"US-ASCII\"?>\n";
    EXPECT_EQ(NameIn(With(declaration, "T\xFCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "test.odx:2:70 warning encoding");
    EXPECT_NE(Message(0).find("read as Windows-1252"), std::string::npos) << Message(0);
    EXPECT_EQ(NameIn(With(declaration, "T\xC3\xBCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "test.odx:2:70 warning encoding");
    EXPECT_NE(Message(0).find("read as UTF-8"), std::string::npos) << Message(0);
}

TEST_F(VEncodingTest, DeclaredUtf8OfAUtf16FileIsIgnoredAndReported) {
    for (bool const isBigEndian : {false, true}) {
        EXPECT_EQ(NameIn(Utf16(With(kUtf8, "Door"), isBigEndian)), L"Door");
        ASSERT_EQ(m_result.diagnostics.size(), 1U);
        EXPECT_EQ(m_result.diagnostics[0].code, "encoding");
        EXPECT_NE(Message(0).find("read as UTF-16"), std::string::npos) << Message(0);
    }
}

TEST_F(VEncodingTest, DeclaredOneByteEncodingOfAUtf8FileIsObeyedAndReportedWhereItShows) {
    std::string const declaration = std::string(kLatin1) + "\n";
    EXPECT_EQ(NameIn(With(declaration, "T\xC3\xBCr \xC2\xB5")), L"T\u00C3\u00BCr \u00C2\u00B5");
    EXPECT_EQ(Diagnostics(), "test.odx:2:70 warning encoding");
    EXPECT_EQ(Message(0),
              "the document declares ISO-8859-1, in which it is read, but all that is beyond ASCII is UTF-8, "
              "first here");
    EXPECT_EQ(NameIn(With(declaration, "T\xC3\xBCr \xE2\x82\xAC")), L"T\u00C3\u00BCr \u00E2\u201A\u00AC");
    EXPECT_EQ(Diagnostics(), "test.odx:2:70 warning encoding");
    EXPECT_EQ(Message(0),
              "the document declares ISO-8859-1 and is read as Windows-1252, but all that is beyond ASCII is UTF-8, "
              "first here");
    // A single character that is not UTF-8 confirms the declaration.
    EXPECT_EQ(NameIn(With(declaration, "T\xC3\xBCr \xFC")), L"T\u00C3\u00BCr \u00FC");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn(With(declaration, "T\xFCr \xC3\xBC")), L"T\u00FCr \u00C3\u00BC");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn(With(declaration, "Door")), L"Door");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, Latin1WithBytesThatItHasNoCharactersForIsReadAsWindows1252AndReportedAtTheFirst) {
    std::string const declaration = std::string(kLatin1) + "\n";
    EXPECT_EQ(NameIn(With(declaration, "T\xFCr \x80 \x93")), L"T\u00FCr \u20AC \u201C");
    EXPECT_EQ(Diagnostics(), "test.odx:2:73 warning encoding");
    EXPECT_EQ(Message(0),
              "the document declares ISO-8859-1, which has no character for the byte 0x80, first here; read "
              "as Windows-1252");
    // The five unassigned codes of Windows-1252 remain control characters.
    EXPECT_EQ(NameIn(With(declaration, "a\x9D")), L"a\x9D");
    EXPECT_EQ(Diagnostics(), "test.odx:2:70 warning encoding");
    EXPECT_NE(Message(0).find("the byte 0x9D"), std::string::npos) << Message(0);
    EXPECT_EQ(NameIn(With(declaration, "\xA0\xFF")), L"\u00A0\u00FF");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(NameIn(With(kWindows1252, "\x80")), L"\u20AC"); // which declares its encoding
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, BytesWithoutACharacterInTheDeclaredEncodingAreControlCharactersAndReported) {
    for (char const byte : {'\x81', '\x8D', '\x8F', '\x90', '\x9D'}) {
        std::wstring const control(1, static_cast<wchar_t>(static_cast<unsigned char>(byte)));
        EXPECT_EQ(NameIn(With(kWindows1252, std::string("\x80") + byte)), L"\u20AC" + control);
        EXPECT_EQ(Diagnostics(), "test.odx:1:115 warning encoding");
    }
    EXPECT_EQ(Message(0),
              "the document declares Windows-1252, which has no character for the byte 0x9D, first here; read "
              "as a control character");
    EXPECT_EQ(NameIn(With("<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>\n", "\x80")), L"\x80");
    EXPECT_EQ(Diagnostics(), "test.odx:2:69 warning encoding");
}

TEST_F(VEncodingTest, Latin1OfManyPiecesIsLookedAtToItsEnd) {
    std::string const declaration = std::string(kLatin1) + "<!--" + std::string(600000, '\n') + "-->";
    EXPECT_EQ(NameIn(With(declaration, "\x80")), L"\u20AC");
    EXPECT_EQ(Diagnostics(), "test.odx:600001:72 warning encoding");
}

TEST_F(VEncodingTest, OtherNamesOfEncodingsAreKnown) {
    constexpr struct {
        char const* declared;
        char const* bytes;
        wchar_t const* name;
    } kRows[] = {
        {"utf8", "\xC3\xBC", L"\u00FC"},     {"UTF8", "\xC3\xBC", L"\u00FC"},
        {"utf_8", "\xC3\xBC", L"\u00FC"},    {"ascii", "u", L"u"},
        {"latin1", "\xFC", L"\u00FC"},       {"Latin-1", "\xFC", L"\u00FC"},
        {"ISO8859-1", "\xFC", L"\u00FC"},    {"iso_8859-1", "\xFC", L"\u00FC"},
        {"cp1252", "\x80", L"\u20AC"},       {"windows1252", "\x80", L"\u20AC"},
        {"WINDOWS_1252", "\x80", L"\u20AC"}, {"latin9", "\xA4", L"\u20AC"},
        {"ISO8859-15", "\xA4", L"\u20AC"},
    };
    for (auto const& row : kRows) {
        for (std::string const quote : {"\"", "'"}) {
            std::string const declaration = "<?xml version='1.0' encoding = " + quote + row.declared + quote + "?>";
            EXPECT_EQ(NameIn(With(declaration, row.bytes)), row.name) << row.declared;
            EXPECT_EQ(Diagnostics(), "") << row.declared;
        }
    }
    for (std::string const declared : {"utf16", "UTF16", "utf_16"}) {
        std::string const declaration = "<?xml version=\"1.0\" encoding=\"" + declared + "\"?>";
        for (bool const isBigEndian : {false, true}) {
            std::string const mark = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
            EXPECT_EQ(NameIn(mark + Utf16(With(declaration, "Door"), isBigEndian)), L"Door");
            EXPECT_EQ(Diagnostics(), "") << declared;
            EXPECT_EQ(NameIn(Utf16(With(declaration, "Door"), isBigEndian)), L"Door");
            EXPECT_EQ(Diagnostics(), "") << declared;
        }
    }
    EXPECT_EQ(NameIn(kMark + With("<?xml version=\"1.0\" encoding=\"utf8\"?>", "\xC3\xBC")), L"\u00FC");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VEncodingTest, OtherNamesOfEncodingsThatLieAreReported) {
    EXPECT_EQ(NameIn(With("<?xml version=\"1.0\" encoding=\"utf8\"?>\n", "T\xFCr")), L"T\u00FCr");
    EXPECT_EQ(Diagnostics(), "test.odx:2:70 warning encoding");
    EXPECT_EQ(Message(0),
              "the bytes are not in the encoding that the document declares (UTF-8 where it declares none); "
              "read as Windows-1252");
    EXPECT_EQ(NameIn(With("<?xml version=\"1.0\" encoding=\"utf16\"?>", "T\xC3\xBCr")), L"T\u00FCr");
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(Message(0),
              "the bytes are not in the encoding that the document declares (UTF-8 where it declares none); "
              "read as UTF-8");
    EXPECT_EQ(NameIn(With("<?xml version=\"1.0\" encoding=\"latin1\"?>\n", "a \x96")), L"a \u2013");
    EXPECT_EQ(Diagnostics(), "test.odx:2:71 warning encoding");
}

TEST_F(VEncodingTest, UnknownEncodingIsReportedWithTheKnownOnes) {
    std::string const known = "known are UTF-8, UTF-16, US-ASCII, ISO-8859-1, ISO-8859-15 and Windows-1252";
    Read(With(R"(<?xml version="1.0" encoding="x-other"?>)", "Door"));
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(Message(0), "the encoding 'x-other' is unknown; " + known + "; read as UTF-8");
    Read("<?xml version=\"1.0\" encoding=\"x-other\"?>\n<ODX");
    EXPECT_EQ(m_result.database, nullptr);
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(Message(0), "not well-formed XML: the encoding 'x-other' is unknown; " + known);
}

TEST_F(VEncodingTest, WhatElseIsWrongInAFileOfAnotherEncodingIsReported) {
    Read("<html>\xFC</html>");
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 error not-odx");
}

TEST_F(VEncodingTest, OtherThingsBeforeTheDeclarationAreRefusedWithWhatToDo) {
    for (std::string const& document :
         {"<?a b?>" + With(kUtf8, "Door"), "\xFF\xFE" + Utf16("<!---->" + With(kUtf16, "Door"), false)}) {
        Read(document);
        EXPECT_EQ(m_result.database, nullptr);
        EXPECT_EQ(Diagnostics(), "test.odx:1:8 error not-xml");
        EXPECT_NE(Message(0).find("remove what stands before the declaration"), std::string::npos) << Message(0);
    }
}

} // namespace
} // namespace NTest
