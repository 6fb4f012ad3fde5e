// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <tuple>

#include "check/CheckTest.h"

namespace NTest {
namespace {

using VOrderTest = VCheckTest;

/// A document with findings of every topic, of the reader and of check, whose lines are not in the order of the topics.
std::string Faulty(std::string const& name) {
    std::string const twice = "<DIAG-SERVICE ID=\"2\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>\n"
                              "<DIAG-SERVICE ID=\"3\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>\n";
    std::string const related = "<RELATED-DIAG-COMM-REFS>\n<RELATED-DIAG-COMM-REF ID-REF=\"4\"><RELATION-TYPE>r"
                                "</RELATION-TYPE></RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS>";
    return "<ODX MODEL-VERSION=\"2.2.0\"><DIAG-LAYER-CONTAINER ID=\"" + name + "\"><SHORT-NAME>" + name +
           "</SHORT-NAME><BASE-VARIANTS><BASE-VARIANT ID=\"B\"><SHORT-NAME>B-" + name + "</SHORT-NAME>" +
           DiagComms(
               twice + "<DIAG-SERVICE ID=\"4\"><SHORT-NAME>T</SHORT-NAME>" + related +
               "\n<REQUEST-REF ID-REF=\"nothing\"/>\n<REQUEST-REF ID-REF=\"RQ\" DOCREF=\"nothing\"/></DIAG-SERVICE>") +
           "\n<REQUESTS><REQUEST "
           "ID=\"RQ\"><SHORT-NAME>RQ</SHORT-NAME></REQUEST></REQUESTS></BASE-VARIANT></BASE-VARIANTS>"
           "</DIAG-LAYER-CONTAINER></ODX>";
}

TEST_F(VOrderTest, FilesInTheOrderGivenAndPositionsWithinEach) {
    std::string const first = Write("z.odx", Faulty("Z"));
    std::string const second = Write("a.odx", Faulty("A"));
    ReadFiles({first, second});
    std::vector<NReader::VDiagnostic> const diagnostics = NCheck::CheckDatabase(m_result);
    auto const key = [&](NReader::VDiagnostic const& diagnostic) {
        return std::make_tuple(diagnostic.file == first ? 1 : 2, diagnostic.line, diagnostic.column);
    };
    EXPECT_TRUE(std::is_sorted(diagnostics.begin(), diagnostics.end(),
                               [&](auto const& a, auto const& b) { return key(a) < key(b); }));
    EXPECT_GE(diagnostics.size(), 10U);
    EXPECT_EQ(std::count_if(diagnostics.begin(), diagnostics.end(), [&](auto const& a) { return a.file == first; }) * 2,
              static_cast<std::ptrdiff_t>(diagnostics.size()));
}

TEST_F(VOrderTest, TheSameOnEveryRun) {
    std::vector<std::string> const files{Write("z.odx", Faulty("Z")), Write("a.odx", Faulty("A"))};
    auto const run = [&] {
        ReadFiles(files);
        std::string text;
        for (NReader::VDiagnostic const& diagnostic : NCheck::CheckDatabase(m_result)) {
            text += FormatDiagnostic(diagnostic) + '\n';
        }
        return text;
    };
    std::string const first = run();
    NReader::VReadResult const kept = std::move(m_result); // so that the next one is elsewhere in memory
    EXPECT_EQ(run(), first);
}

TEST_F(VOrderTest, CheckingTwiceFindsTheSame) {
    ReadFiles({Write("z.odx", Faulty("Z"))});
    auto const first = NCheck::CheckDatabase(m_result);
    auto const second = NCheck::CheckDatabase(m_result);
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t index = 0; index < first.size(); ++index) {
        EXPECT_EQ(FormatDiagnostic(first[index]), FormatDiagnostic(second[index]));
    }
}

TEST_F(VOrderTest, FindingsBeyondTheLimitAreCounted) {
    std::string const variant = "<ECU-VARIANT ID=\"1\"><SHORT-NAME>a-1</SHORT-NAME></ECU-VARIANT>\n";
    m_options.maxDiagnostics = 2;
    Check("<ECU-VARIANTS>\n" + Repeated(variant, 4) + "</ECU-VARIANTS>");
    // Reading gives three errors; the names give as many, and four warnings.
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 warning short-name-characters\ntest.odx:4:1 error duplicate-id\n"
                             "test.odx:4:1 warning short-name-characters\ntest.odx:4:1 error duplicate-short-name\n"
                             "test.odx:5:1 error duplicate-id\ntest.odx:5:1 error duplicate-short-name\n"
                             "test.odx:5:1 error too-many-diagnostics\ntest.odx:6:1 error too-many-diagnostics");
}

TEST_F(VOrderTest, FindingsBeyondTheLimitAreTheLastOnesOfTheDocument) {
    // Many lists, so that anything that walks over them by address uses another order.
    constexpr int kLists = 200;
    std::string services;
    for (int index = 0; index < kLists; ++index) {
        std::string const number = std::to_string(index);
        std::string const job = "<SINGLE-ECU-JOB ID=\"J" + number + "\"><SHORT-NAME>J" + number + "</SHORT-NAME>";
        std::string const param = "<INPUT-PARAM><SHORT-NAME>P</SHORT-NAME></INPUT-PARAM>";
        services += job + "<INPUT-PARAMS>" + param + "\n" + param + "</INPUT-PARAMS></SINGLE-ECU-JOB>";
    }
    m_options.maxDiagnostics = 3;
    Check(LayerXml("BASE-VARIANT", "L", DiagComms(services)));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error duplicate-short-name\ntest.odx:5:1 error duplicate-short-name\n"
                             "test.odx:6:1 error duplicate-short-name\ntest.odx:7:1 error too-many-diagnostics");
}

TEST_F(VOrderTest, WithoutADatabaseTheReadersDiagnosticsAreAll) {
    ReadFiles({Path("absent.odx")});
    auto const diagnostics = NCheck::CheckDatabase(m_result);
    ASSERT_EQ(diagnostics.size(), 1U);
    EXPECT_EQ(diagnostics[0].code, "no-file");
}

} // namespace
} // namespace NTest
