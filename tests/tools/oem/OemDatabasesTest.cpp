// SPDX-License-Identifier: Apache-2.0

// Databases as manufacturers write them, read from documents; and the results when one characteristic is removed.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/reader/OdxReader.h>
#include <diagkit/tools/oem/OemChecker.h>

namespace NTest {
namespace {

namespace fs = std::filesystem;

std::string TextOf(fs::path const& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Replaces all occurrences; there must be one.
std::string Replaced(std::string text, std::string const& from, std::string const& to) {
    std::size_t at = text.find(from);
    if (at == std::string::npos) {
        throw std::logic_error("the document does not hold: " + from);
    }
    for (; at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

class OemDatabasesTest : public testing::Test {
protected:
    static std::string Path(std::string const& file) { return std::string(DIAGKIT_OEM_DATABASES) + '/' + file; }

    /// The documents of a database: its layers and, where it has them, its COMPARAM-SPEC.
    static std::vector<std::string> FilesOf(std::string const& name) {
        std::vector<std::string> files = {name + ".odx-d"};
        if (fs::exists(Path(name + ".odx-c"))) {
            files.push_back(name + ".odx-c");
        }
        return files;
    }

    void Read(std::vector<std::string> const& paths) {
        m_result = NReader::ReadOdx(paths, NReader::VReadOptions());
        ASSERT_NE(m_result.database, nullptr);
    }

    void ReadFiles(std::vector<std::string> const& files) {
        std::vector<std::string> paths;
        for (std::string const& file : files) {
            paths.push_back(Path(file));
        }
        Read(paths);
        EXPECT_TRUE(m_result.diagnostics.empty());
        EXPECT_TRUE(m_result.unknownElements.empty());
    }

    /// Reads the documents with a replacement made in one of them.
    void ReadEdited(std::string const& name, std::string const& edited, std::string const& from,
                    std::string const& to) {
        fs::path const folder =
            fs::path(testing::TempDir()) /
            ("diagkit_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::create_directories(folder);
        std::vector<std::string> paths;
        for (std::string const& file : FilesOf(name)) {
            std::string const text = TextOf(Path(file));
            fs::path const path = folder / file;
            std::ofstream(path, std::ios::binary) << (file == edited ? Replaced(text, from, to) : text);
            paths.push_back(path.string());
        }
        Read(paths);
        fs::remove_all(folder);
    }

    int Code() { return static_cast<int>(NDIAGKIT::VOemChecker().GetManufacturer(m_result.database->GetOdx())); }

    /// The names of the heuristics that match.
    std::wstring Matching() {
        std::wstring names;
        for (auto const& heuristic : NDIAGKIT::VOemChecker().Report(m_result.database->GetOdx()).heuristics) {
            names += heuristic.matches ? std::wstring(heuristic.name) + L' ' : L"";
        }
        return names;
    }

    /// The rules that decide against a heuristic.
    std::wstring DecisiveIn(std::wstring const& name) {
        std::wstring names;
        for (auto const& heuristic : NDIAGKIT::VOemChecker().Report(m_result.database->GetOdx()).heuristics) {
            for (auto const& rule : heuristic.rules) {
                names += rule.isDecisive && heuristic.name == name ? std::wstring(rule.name) + L' ' : L"";
            }
        }
        return names;
    }

    NReader::VReadResult m_result;
};

struct VDatabaseRow {
    char const* name;
    int code;
    wchar_t const* heuristic;
    char const* instruction; ///< the content of the processing instruction that fits
};

// clang-format off
constexpr VDatabaseRow kDatabases[] = {
    {"Daimler", 1,  L"VDaimlerHeuristic", "1"},
    {"Claas",   3,  L"VClaasHeuristic",   "3"},
    {"Pag",     4,  L"VPagHeuristic",     "4"},
    {"PagTp20", 4,  L"VPagHeuristic",     "4"},
    {"AudiVw",  8,  L"VAudiVwHeuristic",  "8"},
    {"Bmw",     10, L"VBmwHeuristic",     "10"},
    {"BmwNew",  10, L"VBmwHeuristicNew",  "10"},
    {"Fiat",    12, L"VFiatHeuristic",    "12"},
    {"Gm",      15, L"VGmHeuristic",      "2"},
    {"Psa",     19, L"VPSAHeuristic",     "19"},
};

/// A removed characteristic: a replacement in a document, and the rules that then decide against the heuristic, for
/// Porsche those of both lists. No other manufacturer matches.
struct VHabitRow {
    char const* name;
    char const* file;
    char const* from;
    char const* to;
    wchar_t const* decisive;
};

constexpr VHabitRow kHabits[] = {
    {"Daimler", "Daimler.odx-d", "ID=\"BV.Engine\"",       "ID=\"BV_Engine\"",  L"VDaimlerHierarchicalIdsRule "},
    {"Daimler", "Daimler.odx-d", "BV.Engine.FNC.Diag",     "BV.Engine.FC.Diag", L"VDaimlerHierarchicalIdsRule "},
    {"Daimler", "Daimler.odx-d", "ID=\"PT.Uds\"",          "ID=\"PR.Uds\"",     L"VDaimlerHierarchicalIdsRule "},
    {"Daimler", "Daimler.odx-d", "PT.Uds.FNC.Session",     "PT.Uds.Session",    L"VDaimlerHierarchicalIdsRule "},
    {"Daimler", "Daimler.odx-d", "BASE-VARIANT",           "ECU-VARIANT",       L"VDaimlerHierarchicalIdsRule "},
    {"Daimler", "Daimler.odx-d", "ID-REF=\"ISO_15765_3_on_ISO_15765_2\"", "ID-REF=\"absent\"", L"VDaimlerComparamsRule "},
    {"Daimler", "Daimler.odx-c", "ISO_15765_3_on_ISO_15765_2", "ISO_15765_3",   L"VDaimlerComparamsRule "},

    {"Claas",   "Claas.odx-d",   "ClaasParamInformation",  "ParamInformation",  L"VClaasProcessingInstructionRule "},
    {"Claas",   "Claas.odx-d",   "POS-RESPONSE",           "NEG-RESPONSE",      L"VClaasProcessingInstructionRule "},
    {"Claas",   "Claas.odx-d",   "BASE-VARIANT",           "ECU-VARIANT",       L"VClaasProcessingInstructionRule "},

    {"Pag",     "Pag.odx-d",     " OID=\"7001\"",          "",                  L"VPagOidRule VPagComparamSpecRule VPagDopRule "},
    {"Pag",     "Pag.odx-d",     " OID=\"7002\"",          "",                  L"VPagOidRule VPagComparamSpecRule VPagDopRule "},
    {"Pag",     "Pag.odx-d",     "BASE-VARIANT",           "ECU-VARIANT",       L"VPagModelRule VPagComparamSpecRule VPagDopRule "},
    {"Pag",     "Pag.odx-d",     "FunctionalGroupUDS",     "FunctionalGroup",   L"VPagFunctionalGroupRule VPagComparamSpecRule VPagDopRule "},
    {"Pag",     "Pag.odx-d",     "</FUNCTIONAL-GROUPS>",   "<FUNCTIONAL-GROUP ID=\"FG.2\"><SHORT-NAME>FunctionalGroupUDS</SHORT-NAME></FUNCTIONAL-GROUP></FUNCTIONAL-GROUPS>",
                                                                                L"VPagFunctionalGroupRule VPagComparamSpecRule VPagDopRule "},

    {"PagTp20", "PagTp20.odx-c", "VW2000_on_TP20",         "VW2000",            L"VPagOidRule VPagModelRule VPagFunctionalGroupRule VPagComparamSpecRule "},
    {"PagTp20", "PagTp20.odx-d", "_26_Temperatur_C",       "_26_temperatur_c",  L"VPagOidRule VPagModelRule VPagFunctionalGroupRule VPagDopRule "},
    {"PagTp20", "PagTp20.odx-d", "_21_Spannung_V",         "_21_Spannung",      L"VPagOidRule VPagModelRule VPagFunctionalGroupRule VPagDopRule "},

    {"AudiVw",  "AudiVw.odx-d",  "PR_UDSOnCAN_Ext",        "UDSOnCAN",          L"VAudiVwProtocolRule "},
    {"AudiVw",  "AudiVw.odx-d",  "DIAG-COMMS",             "NO-DIAG-COMMS",     L"VAudiVwProtocolRule "},
    {"AudiVw",  "AudiVw.odx-d",  "AUDI AG",                "AUDI AG Ingolstadt", L"VAudiVwTeamMembersRule "},
    {"AudiVw",  "AudiVw.odx-d",  "Contact Person OEM",     "Contact Person",    L"VAudiVwTeamMembersRule "},
    {"AudiVw",  "AudiVw.odx-d",  "DIAGNSERVI_DiagnServi",  "DiagnServi_DiagnoseService", L"VAudiVwCharacterRule "},
    {"AudiVw",  "AudiVw.odx-d",  "Read (ECU)",             "Read the (ECU)",    L"VAudiVwCharacterRule "},

    {"Bmw",     "Bmw.odx-d",     "OID=\"_1001\"",          "OID=\"1001\"",      L"VBmwIdRule "},
    {"Bmw",     "Bmw.odx-d",     "OID=\"_1002\"",          "OID=\"1002\"",      L"VBmwIdRule "},
    {"Bmw",     "Bmw.odx-d",     " OID=\"_1003\"",         "",                  L"VBmwIdRule "},
    {"Bmw",     "Bmw.odx-d",     "OID=\"_1004\"",          "OID=\"1004\"",      L"VBmwIdRule "},
    {"Bmw",     "Bmw.odx-d",     " OID=\"_1005\"",         "",                  L"VBmwIdRule "},
    {"Bmw",     "Bmw.odx-d",     "BMW_Group",              "Group",             L"VBmwEcuSharedDataRule "},
    {"Bmw",     "Bmw.odx-d",     "BMW AG",                 "BMW Group",         L"VBmwEcuSharedDataRule "},
    {"Bmw",     "Bmw.odx-d",     "<ROLE>Manufacturer</ROLE>", "<ROLE>Manufacturer</ROLE><ROLE>Supplier</ROLE>", L"VBmwEcuSharedDataRule "},
    {"Bmw",     "Bmw.odx-d",     "ISO_14229_SERVICES_BMW", "ISO_14229_SERVICES", L"VBmwProtocolRule "},

    {"BmwNew",  "BmwNew.odx-d",  "OID=\"_1002\"",          "OID=\"1002\"",      L"VBmwIdRule "},
    {"BmwNew",  "BmwNew.odx-d",  "BMW_Lib",                "BMW_Lib_2",         L"VBmwEcuSharedDataRuleNew "},
    {"BmwNew",  "BmwNew.odx-d",  "PRIM_DTC_MUX",           "DTC_MUX",           L"VBmwFunctionalGroupRule "},
    {"BmwNew",  "BmwNew.odx-d",  "SEC_DTC_MUX",            "DTC_MUX",           L"VBmwFunctionalGroupRule "},

    {"Fiat",    "Fiat.odx-d",    "State_Model",            "state_model",       L"VFiatStateSdgRule "},
    {"Fiat",    "Fiat.odx-d",    "<SDGS>",                 "<SDGS><SDG><SD>first</SD></SDG>", L"VFiatStateSdgRule "},
    {"Fiat",    "Fiat.odx-c",    "COMPARAM.S3_ECU",        "COMPARAM.S3_Ecu",   L"VFiatAdditionalComparamsRule "},
    {"Fiat",    "Fiat.odx-c",    "COMPARAM.MaxDeltaP2Can", "COMPARAM.P2Can",    L"VFiatAdditionalComparamsRule "},

    {"Gm",      "Gm.odx-d",      "</PROTOCOLS>",           "</PROTOCOLS><FUNCTIONAL-GROUPS><FUNCTIONAL-GROUP ID=\"FG\"><SHORT-NAME>G</SHORT-NAME></FUNCTIONAL-GROUP></FUNCTIONAL-GROUPS>",
                                                                                L"VGmFunctionalGroupRule "},
    {"Gm",      "Gm.odx-d",      "<COMPARAM-SPEC-REF",     "<DIAG-COMMS><DIAG-SERVICE ID=\"DS\"><SHORT-NAME>S</SHORT-NAME><AUDIENCE/></DIAG-SERVICE></DIAG-COMMS><COMPARAM-SPEC-REF",
                                                                                L"VGmProtocolRule "},
    {"Gm",      "Gm.odx-c",      "OID=\"500\"",            "OID=\"5000\"",      L"VGmComparamSpecRule "},
    {"Gm",      "Gm.odx-c",      "ID=\"ID506\"",           "ID=\"Parameter6\"", L"VGmComparamSpecRule "},

    {"Psa",     "Psa.odx-d",     "DIAGNOSTIC_CONSTRUCTEUR", "DIAGNOSTIC",       L"VPSAEcuSharedDataRule "},
    {"Psa",     "Psa.odx-d",     "DIAGNOSTIC_REGLEMENTAIRE", "DIAGNOSTIC",      L"VPSAEcuSharedDataRule "},
    {"Psa",     "Psa.odx-d",     "</ECU-SHARED-DATAS>",    "<ECU-SHARED-DATA ID=\"ES.2\"><SHORT-NAME>Second</SHORT-NAME></ECU-SHARED-DATA></ECU-SHARED-DATAS>",
                                                                                L"VPSAEcuSharedDataRule "},
    {"Psa",     "Psa.odx-d",     "BASE-VARIANT",           "ECU-VARIANT",       L"VPSAEcuSharedDataRule "},
};
// clang-format on

TEST_F(OemDatabasesTest, OneHeuristicMatchesEachAndNoOther) {
    for (VDatabaseRow const& row : kDatabases) {
        SCOPED_TRACE(row.name);
        ReadFiles(FilesOf(row.name));
        EXPECT_EQ(Matching(), std::wstring(row.heuristic) + L' ');
        EXPECT_EQ(Code(), row.code);
    }
}

TEST_F(OemDatabasesTest, WithoutOneHabitTheManufacturerIsUndetermined) {
    for (VHabitRow const& row : kHabits) {
        SCOPED_TRACE(std::string(row.file) + ": " + row.from);
        ReadEdited(row.name, row.file, row.from, row.to);
        EXPECT_EQ(Matching(), L"");
        EXPECT_EQ(Code(), 36);
        for (VDatabaseRow const& database : kDatabases) {
            if (std::string(database.name) == row.name) {
                EXPECT_EQ(DecisiveIn(database.heuristic), row.decisive);
            }
        }
    }
}

TEST_F(OemDatabasesTest, AProcessingInstructionThatFitsChangesNothing) {
    for (VDatabaseRow const& row : kDatabases) {
        SCOPED_TRACE(row.name);
        std::string const instruction = std::string("<?PavonaTemplateManufacturer ") + row.instruction + "?>";
        ReadEdited(row.name, std::string(row.name) + ".odx-d", "<ODX ", instruction + "<ODX ");
        EXPECT_EQ(Code(), row.code) << "before the root";
        ReadEdited(row.name, std::string(row.name) + ".odx-d", "</ODX>", instruction + "</ODX>");
        EXPECT_EQ(Code(), row.code) << "inside the root";
        ReadEdited(row.name, std::string(row.name) + ".odx-d", "<ODX ",
                   "<?PavonaTemplateManufacturer 99?>" + instruction + "<ODX ");
        EXPECT_EQ(Code(), row.code) << "one of two";
    }
}

TEST_F(OemDatabasesTest, AProcessingInstructionOfAnotherManufacturerDecidesAgainstIt) {
    for (VDatabaseRow const& row : kDatabases) {
        for (char const* const content : {"15", "36", "", "8 ", "1 2"}) {
            SCOPED_TRACE(std::string(row.name) + content);
            ReadEdited(row.name, std::string(row.name) + ".odx-d", "<ODX ",
                       std::string("<?PavonaTemplateManufacturer ") + content + "?><ODX ");
            EXPECT_EQ(Code(), 36);
        }
    }
}

TEST_F(OemDatabasesTest, AnInstructionDeepInsideADocumentIsNoneOfTheDatabase) {
    ReadEdited("Psa", "Psa.odx-d", "<BASE-VARIANTS>", "<?PavonaTemplateManufacturer 8?><BASE-VARIANTS>");
    EXPECT_EQ(Code(), 19);
}

TEST_F(OemDatabasesTest, BothBmwLayoutsAtOnceAreUndetermined) {
    ReadFiles({"BmwBoth.odx-d", "Bmw.odx-c"});
    EXPECT_EQ(Matching(), L"VBmwHeuristic VBmwHeuristicNew ");
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemDatabasesTest, DaimlerAndPsaAtOnceAreUndetermined) {
    ReadFiles({"DaimlerAndPsa.odx-d", "Daimler.odx-c"});
    EXPECT_EQ(Matching(), L"VDaimlerHeuristic VPSAHeuristic ");
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemDatabasesTest, ClaasAndPsaAtOnceAreUndetermined) {
    ReadFiles({"ClaasAndPsa.odx-d"});
    EXPECT_EQ(Matching(), L"VClaasHeuristic VPSAHeuristic ");
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemDatabasesTest, WithoutAHabitOfTheOneTheOtherRemains) {
    ReadEdited("ClaasAndPsa", "ClaasAndPsa.odx-d", "ClaasParamInformation", "Other");
    EXPECT_EQ(Code(), 19);
    ReadEdited("ClaasAndPsa", "ClaasAndPsa.odx-d", "DIAGNOSTIC_CONSTRUCTEUR", "Other");
    EXPECT_EQ(Code(), 3);
}

TEST_F(OemDatabasesTest, AProcessingInstructionTellsTwoApart) {
    ReadEdited("ClaasAndPsa", "ClaasAndPsa.odx-d", "<ODX ", "<?PavonaTemplateManufacturer 3?><ODX ");
    EXPECT_EQ(Code(), 3);
    ReadEdited("ClaasAndPsa", "ClaasAndPsa.odx-d", "<ODX ", "<?PavonaTemplateManufacturer 19?><ODX ");
    EXPECT_EQ(Code(), 19);
    ReadEdited("ClaasAndPsa", "ClaasAndPsa.odx-d", "<ODX ", "<?PavonaTemplateManufacturer 8?><ODX ");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
