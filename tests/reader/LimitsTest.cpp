// SPDX-License-Identifier: Apache-2.0
#include "reader/ReaderTest.h"

#include <diagkit/model/Layers.h>

namespace NTest {
namespace {

/// Input beyond a limit gives one diagnostic, which names the limit, its value and the option that raises it.
class VLimitsTest : public VReaderTest {
protected:
    /// Reads a document once just within a limit, and once just beyond it.
    void ExpectLimit(std::uint64_t NReader::VReadLimits::*limit, std::uint64_t enough, std::string const& document,
                     std::string const& diagnostic, std::string const& message) {
        m_options.*limit = enough;
        Read(document);
        EXPECT_NE(m_result.database, nullptr) << Diagnostics();
        m_options.*limit = enough - 1;
        Read(document);
        ExpectRefused(diagnostic, message);
        m_options = {};
    }

    void ExpectRefused(std::string const& diagnostic, std::string const& message) {
        EXPECT_EQ(m_result.database, nullptr);
        EXPECT_EQ(Diagnostics(), diagnostic);
        ASSERT_EQ(m_result.diagnostics.size(), 1U);
        EXPECT_EQ(Message(0), message);
    }
};

TEST_F(VLimitsTest, SizeOfAFile) {
    std::string const document = Container("");
    std::string const beyond = " bytes; --max-file-size allows more";
    ExpectLimit(&NReader::VReadLimits::maxFileSize, document.size(), document, "test.odx:0:0 error too-large",
                "the file is larger than " + std::to_string(document.size() - 1) + beyond);
    m_options.maxFileSize = 10;
    ReadFiles({WritePackage("a.pdx", {{"a.odx", document}})});
    ExpectRefused("a.pdx:0:0 error too-large", "the file is larger than 10" + beyond);
}

TEST_F(VLimitsTest, NumberOfMembersOfAPackage) {
    std::string const path = WritePackage("a.pdx", {{"a.odx", Container("")}, {"b.txt", ""}, {"c.txt", ""}});
    m_options.maxMembers = 3;
    ReadFiles({path});
    EXPECT_EQ(Diagnostics(), "");
    m_options.maxMembers = 2;
    ReadFiles({path});
    ExpectRefused("a.pdx:0:0 error too-many", "the package has more members than 2; --max-members allows more");
}

TEST_F(VLimitsTest, DepthOfElements) {
    ExpectLimit(&NReader::VReadLimits::maxDepth, 3, Container(""), "test.odx:1:111 error too-deep",
                "elements are nested deeper than 2; --max-depth allows more");
}

TEST_F(VLimitsTest, NumberOfElements) {
    ExpectLimit(&NReader::VReadLimits::maxElements, 6, Container("<PROTOCOLS/><A>\n<B/></A>"),
                "test.odx:3:1 error too-many", "the document has more elements than 5; --max-elements allows more");
}

TEST_F(VLimitsTest, NumberOfAttributes) {
    ExpectLimit(&NReader::VReadLimits::maxAttributes, 3, Container("<A a='' b='' c=''/>"),
                "test.odx:2:1 error too-many", "'A' has more attributes than 2; --max-attributes allows more");
}

TEST_F(VLimitsTest, SizeOfATag) {
    std::string const beyond = "a tag, comment or processing instruction is longer than 199 bytes; --max-tag-size "
                               "allows more";
    for (std::string const& tag : {"<A a='" + std::string(191, 'x') + "'/>", "<!--" + std::string(193, 'x') + "-->",
                                   "<?a " + std::string(194, 'x') + "?>"}) {
        ASSERT_EQ(tag.size(), 200U);
        ExpectLimit(&NReader::VReadLimits::maxTagSize, 200, Container(tag), "test.odx:2:1 error too-large", beyond);
    }
}

TEST_F(VLimitsTest, SizeOfATagThatNeverEnds) {
    // Larger than the pieces in which files are read: the reader does not wait for the end.
    for (std::string const start : {"<A a='", "<!--", "<?a "}) {
        m_options.maxTagSize = 100000;
        Read(Container(start + std::string(1500000, 'x')));
        ExpectRefused("test.odx:2:1 error too-large", "a tag, comment or processing instruction is longer than 100000 "
                                                      "bytes; --max-tag-size allows more");
    }
}

TEST_F(VLimitsTest, SizeOfAText) {
    std::string const message = "a text is longer than 199 bytes; --max-text-size allows more";
    std::string const text = std::string(200, 'x');
    ExpectLimit(&NReader::VReadLimits::maxTextSize, 200, Container("<LONG-NAME>" + text + "</LONG-NAME>"),
                "test.odx:2:12 error too-large", message);
    ExpectLimit(
        &NReader::VReadLimits::maxTextSize, 200,
        Container("<LONG-NAME><![CDATA[" + text.substr(100) + "]]><!-- -->\n" + text.substr(101) + "</LONG-NAME>"),
        "test.odx:3:1 error too-large", message);
}

TEST_F(VLimitsTest, SizeOfATextWithTagsInside) {
    std::string const inside = "<p>" + std::string(193, 'x') + "</p>"; // the tags are part of the text
    ExpectLimit(&NReader::VReadLimits::maxTextSize, 200 - 4, Container("<DESC>" + inside + "</DESC>"),
                "test.odx:2:10 error too-large", "a text is longer than 195 bytes; --max-text-size allows more");
}

TEST_F(VLimitsTest, SizeOfTextsThatAreLeftOutDoesNotCount) {
    m_options.maxTextSize = 10;
    Read(Container("<A>" + std::string(200, 'x') + "</A>", "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VLimitsTest, ContentsThatAreHeldUntilTheirKindShowsCountAsAText) {
    std::string const document =
        Params("<PARAM><SHORT-NAME>P</SHORT-NAME>" + Repeated("<A/>", 1000) + "</PARAM>", "2.2.0");
    Read(document);
    EXPECT_NE(m_result.database, nullptr);
    m_options.maxTextSize = 10000;
    Read(document);
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "too-large");
    EXPECT_EQ(Message(0), "a text is longer than 10000 bytes; --max-text-size allows more");
}

TEST_F(VLimitsTest, OnlyTheMemberOverALimitIsLeftOut) {
    std::string const good = Container("");
    m_options.maxDepth = 4;
    ReadFiles({WritePackage("a.pdx", {{"a.odx", Container("<A><B><C/></B></A>")}, {"b.odx", good}})});
    EXPECT_NE(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx:2:7 error too-deep");
}

TEST_F(VLimitsTest, LongTextsAreCutOffInMessages) {
    Read(Params("<PARAM xsi:type=\"RESERVED\"><SHORT-NAME>P</SHORT-NAME><BYTE-POSITION>" +
                Repeated("\xC3\xBC", 100000) + "</BYTE-POSITION><BIT-LENGTH>8</BIT-LENGTH></PARAM>"));
    ASSERT_EQ(m_result.diagnostics.size(), 1U) << Diagnostics();
    EXPECT_LT(Message(0).size(), 2100U);
    EXPECT_EQ(Message(0).substr(Message(0).size() - 5), "\xC3\xBC...");
}

TEST_F(VLimitsTest, NumberOfDiagnosticsOfEachSeverity) {
    std::string const document = Container("<A/><A/>\n<A/><A/><A/>\n<SHORT-NAME>D</SHORT-NAME>");
    Read(document);
    std::string const all = "test.odx:2:1 warning unknown-child\ntest.odx:2:5 warning unknown-child\n"
                            "test.odx:3:1 warning unknown-child\ntest.odx:3:5 warning unknown-child\n"
                            "test.odx:3:9 warning unknown-child\ntest.odx:4:1 error repeated-child";
    EXPECT_EQ(Diagnostics(), all);
    m_options.maxDiagnostics = 5;
    Read(document);
    EXPECT_EQ(Diagnostics(), all);
    m_options.maxDiagnostics = 2;
    Read(document);
    EXPECT_NE(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning unknown-child\ntest.odx:2:5 warning unknown-child\n"
                             "test.odx:3:1 warning too-many-diagnostics\ntest.odx:4:1 error repeated-child");
    EXPECT_EQ(Message(2), "left out are 3 diagnostics, 0 of them errors, the first here: there are more errors, "
                          "warnings or notes than 2; --max-diagnostics allows more");
    m_options.maxDiagnostics = 0;
    Read(document);
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 error too-many-diagnostics"); // one of them is an error
    EXPECT_EQ(Message(0).find("left out are 6 diagnostics, 1 of them errors"), 0U) << Message(0);
}

TEST_F(VLimitsTest, NumberOfDiagnosticsHoldsForAllDocumentsTogether) {
    m_options.maxDiagnostics = 3;
    auto const document = [](char const* name) { return Container("<A/>\n<A/>", "2.0.1", name); };
    for (std::uint32_t const threads : {1U, 3U}) {
        m_options.threads = threads;
        Read({document("C1"), document("C2"), document("C3")});
        EXPECT_EQ(Diagnostics(), "1.odx:2:1 warning unknown-child\n1.odx:3:1 warning unknown-child\n"
                                 "2.odx:2:1 warning unknown-child\n2.odx:3:1 warning too-many-diagnostics");
        EXPECT_EQ(Message(3).find("left out are 3 diagnostics"), 0U) << Message(3);
    }
}

} // namespace
} // namespace NTest
