// SPDX-License-Identifier: Apache-2.0

// Violations found with the reference database: by models that keep all promises, but have other contents.

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include <diagkit/conformance/Reference.h>

#include "ConformanceTest.h"
#include "own_model/Database.h"

namespace NTest {
namespace {

/// The findings for the example's table after a change.
std::string FindingsAfter(std::wstring const& text, std::wstring const& instead) {
    std::wifstream file(DIAGKIT_EXAMPLES "/own_model/reference.table");
    std::wstring table{std::istreambuf_iterator<wchar_t>(file), {}};
    std::size_t const at = table.find(text);
    EXPECT_NE(at, std::wstring::npos);
    table.replace(at, text.size(), instead);
    std::wistringstream changed(table);
    NOwnModel::VDatabase database(changed);
    return Lines(NConformance::CheckReference({database.GetOdx()}));
}

TEST(ReferenceTest, NothingIsFoundInTheSame) { EXPECT_EQ(FindingsAfter(L"text=", L"text="), ""); }

TEST(ReferenceTest, ReferenceAnswer) {
    EXPECT_EQ(FindingsAfter(L"text=Services of every ECU", L"text=Services"),
              "reference-answer: Doors/Uds/LONG-NAME GetBaseMember: expected 'Services of every ECU', found "
              "'Services'\n");
}

TEST(ReferenceTest, MissingAnswerIsFound) {
    EXPECT_EQ(FindingsAfter(L" oid=P.OID", L""),
              "reference-answer: Doors/Uds GetOid: expected 'P.OID', found no answer\n");
}

TEST(ReferenceTest, ReferenceSilence) {
    EXPECT_EQ(FindingsAfter(L"id=F\n", L"id=F oid=F.OID\n"),
              "reference-silence: Doors/Body GetOid: expected no answer, found 'F.OID'\n");
}

TEST(ReferenceTest, OrderOfEntriesIsAnAnswer) {
    EXPECT_EQ(FindingsAfter(L"    DIAG-VARIABLE name=Position id=B.Position\n    DIAG-VARIABLE name=Lock id=B.Lock\n",
                            L"    DIAG-VARIABLE name=Lock id=B.Lock\n    DIAG-VARIABLE name=Position id=B.Position\n"),
              "reference-answer: Doors/Door DiagVariableProxyCollection: expected 'DIAG-VARIABLE Position, "
              "DIAG-VARIABLE Lock', found 'DIAG-VARIABLE Lock, DIAG-VARIABLE Position'\n"
              "reference-answer: Doors/Door visible DIAG-VARIABLEs: expected 'Doors/Door/DIAG-VARIABLE Position, "
              "Doors/Door/DIAG-VARIABLE Lock', found 'Doors/Door/DIAG-VARIABLE Lock, Doors/Door/DIAG-VARIABLE "
              "Position'\n");
}

TEST(ReferenceTest, BrokenPromisesAreFoundToo) {
    std::string const findings = FindingsAfter(L"AUDIENCE", L"COMPU-METHOD");
    EXPECT_EQ(findings.find("reference-answer: Doors/Uds/DIAG-SERVICE ReadIdent GetAudience"), 0u) << findings;
}

TEST(ReferenceTest, TheAnswersAreThoseOfTheFile) {
    std::ifstream file(DIAGKIT_CONFORMANCE "/reference.txt");
    std::string text;
    for (std::string line; std::getline(file, line);) {
        text += line.empty() || line[0] == '#' ? "" : line + "\n";
    }
    EXPECT_EQ(Lines(NConformance::ReferenceAnswers()), text);
}

TEST(ReferenceTest, EveryCheckHasAName) {
    for (NConformance::VCheck const& check : NConformance::Checks()) {
        std::wstring const name = check.name;
        EXPECT_NE(name, L"");
        EXPECT_EQ(name.find_first_not_of(L"abcdefghijklmnopqrstuvwxyz-"), std::wstring::npos);
        EXPECT_NE(std::wstring(check.promise), L"");
    }
}

} // namespace
} // namespace NTest
