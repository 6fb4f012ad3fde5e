// SPDX-License-Identifier: Apache-2.0
#include <fstream>
#include <iterator>

#include <diagkit/check/Check.h>
#include <diagkit/reader/Utf8.h>

#include "MakeDatabase.h"
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

using NBench::VMadeDatabase;
using NBench::VMadeSize;

class VMadeDatabaseTest : public VReaderTest {
protected:
    std::string WritePackage(VMadeSize const& size, std::string const& name) {
        VMadeDatabase(size).WritePackage(std::filesystem::u8path(Path(name)));
        return Path(name);
    }

    static std::string BytesOf(std::string const& path) {
        std::ifstream stream(std::filesystem::u8path(path), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::string Findings() {
        std::string text;
        for (NReader::VDiagnostic const& diagnostic : NCheck::CheckDatabase(m_result)) {
            text += FormatDiagnostic(diagnostic) + '\n';
        }
        return text;
    }
};

TEST_F(VMadeDatabaseTest, EqualOptionsGiveEqualBytes) {
    VMadeSize size;
    size.seed = 7;
    std::string const first = BytesOf(WritePackage(size, "first.pdx"));
    EXPECT_FALSE(first.empty());
    EXPECT_TRUE(first == BytesOf(WritePackage(size, "second.pdx")));
    size.seed = 8;
    EXPECT_FALSE(first == BytesOf(WritePackage(size, "third.pdx")));
}

TEST_F(VMadeDatabaseTest, IsWithoutFault) {
    m_options.keepsElements = true;
    for (VMadeSize const size : {VMadeSize{1, 2, 8, 40}, VMadeSize{2, 1, 1, 1}, VMadeSize{3, 3, 7, 130}}) {
        ReadFiles({WritePackage(size, "made.pdx")});
        ASSERT_NE(m_result.database, nullptr);
        EXPECT_EQ(m_result.documents.size(), size.documents + 2);
        EXPECT_TRUE(m_result.unknownElements.empty());
        EXPECT_EQ(Findings(), "");
    }
}

TEST_F(VMadeDatabaseTest, HasWhatWasAskedFor) {
    VMadeSize size;
    size.documents = 3;
    size.layers = 8; // 3, 3 and 2: a BASE-VARIANT in each
    size.services = 40;
    ReadFiles({WritePackage(size, "made.pdx")});
    EXPECT_EQ(Count(L"BASE-VARIANT"), 3U);
    EXPECT_EQ(Count(L"ECU-VARIANT"), 5U);
    EXPECT_EQ(Count(L"PROTOCOL"), 2U);
    EXPECT_EQ(Count(L"FUNCTIONAL-GROUP"), 1U);
    EXPECT_EQ(Count(L"ECU-SHARED-DATA"), 1U);
    EXPECT_EQ(Count(L"COMPARAM-SPEC"), 1U);
    // Two PROTOCOLs of 8, a FUNCTIONAL-GROUP of 12, a library of 24.
    EXPECT_EQ(Count(L"DIAG-SERVICE"), 3U * 40 + 5 * 10 + 2 * 8 + 12 + 24);
}

TEST_F(VMadeDatabaseTest, HasEveryKindOfDopAndParameter) {
    ReadFiles({WritePackage({}, "made.pdx")});
    for (wchar_t const* const kind :
         {L"DATA-OBJECT-PROP", L"DTC-DOP", L"STRUCTURE", L"STATIC-FIELD", L"DYNAMIC-LENGTH-FIELD",
          L"DYNAMIC-ENDMARKER-FIELD", L"END-OF-PDU-FIELD", L"MUX", L"ENV-DATA-DESC", L"ENV-DATA", L"TABLE", L"SDG"}) {
        EXPECT_GT(Count(kind), 0U) << NReader::ToUtf8(kind);
    }
    for (wchar_t const* const type :
         {L"CODED-CONST", L"DYNAMIC", L"LENGTH-KEY", L"MATCHING-REQUEST-PARAM", L"PHYS-CONST", L"RESERVED", L"SYSTEM",
          L"TABLE-KEY", L"TABLE-STRUCT", L"TABLE-ENTRY", L"VALUE"}) {
        EXPECT_GT(Count(L"PARAM", type), 0U) << NReader::ToUtf8(type);
    }
}

TEST_F(VMadeDatabaseTest, FolderAndPackageHoldTheSame) {
    VMadeDatabase const database({});
    std::vector<std::string> const files = database.WriteFolder(std::filesystem::u8path(Path("made")));
    ASSERT_EQ(files.size(), 4U);
    for (std::size_t document = 0; document < files.size(); ++document) {
        EXPECT_TRUE(BytesOf(files[document]) == database.Document(document)) << files[document];
    }
    ReadFiles(files);
    std::size_t const services = Count(L"DIAG-SERVICE");
    ReadFiles({WritePackage({}, "made.pdx")});
    EXPECT_EQ(Count(L"DIAG-SERVICE"), services);
}

} // namespace
} // namespace NTest
