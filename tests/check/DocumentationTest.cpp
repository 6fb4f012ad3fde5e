// SPDX-License-Identifier: Apache-2.0
#include <fstream>
#include <map>
#include <set>

#include <diagkit/check/Codes.h>

#include "check/CheckTest.h"
#include "reader/ZipBytes.h"

namespace NTest {
namespace {

/// An entry of docs/diagnostics.md.
struct VEntry {
    std::string severity;
    bool hasFix = false;
    std::string place; ///< what the example stands in; "" for a call of the program
    std::string example;
};

bool StartsWith(std::string const& text, std::string const& start) { return text.compare(0, start.size(), start) == 0; }

std::map<std::string, VEntry> ReadEntries() {
    std::map<std::string, VEntry> entries;
    std::ifstream stream(std::string(DIAGKIT_DOCS) + "/diagnostics.md");
    std::string const place = "```xml in ";
    VEntry* entry = nullptr;
    bool isInExample = false;
    for (std::string line; std::getline(stream, line);) {
        if (StartsWith(line, "### `")) {
            entry = &entries[line.substr(5, line.size() - 6)];
        } else if (entry != nullptr && StartsWith(line, "```")) {
            isInExample = !isInExample;
            entry->place += StartsWith(line, place) ? line.substr(place.size()) : "";
        } else if (isInExample) {
            entry->example += line + '\n';
        } else if (entry != nullptr && StartsWith(line, "**")) {
            entry->severity = StartsWith(line, "**Error.**")     ? "error"
                              : StartsWith(line, "**Warning.**") ? "warning"
                              : StartsWith(line, "**Note.**")    ? "note"
                                                                 : "";
        } else if (entry != nullptr && StartsWith(line, "Fix: ")) {
            entry->hasFix = true;
        }
    }
    return entries;
}

/// The element around the example, by the word for it in the documentation.
std::string Wrapped(VEntry const& entry) {
    static std::map<std::string, std::string (*)(std::string_view, std::string_view)> const wrappers{
        {"DIAG-LAYER-CONTAINER",
         [](std::string_view content, std::string_view version) { return Container(content, version); }},
        {"BASE-VARIANT", &Layer},
        {"DIAG-DATA-DICTIONARY-SPEC", &Dictionary},
        {"PARAMS", &Params},
    };
    return entry.place == "ODX" ? entry.example : wrappers.at(entry.place)(entry.example, "2.0.1");
}

/// A document with the BASE-VARIANT "B" in a container of this name.
std::string BaseVariantIn(std::string const& container) {
    return "<ODX MODEL-VERSION=\"2.0.1\">" +
           Xml("DIAG-LAYER-CONTAINER", container, "<BASE-VARIANTS>" + Xml("BASE-VARIANT", "B") + "</BASE-VARIANTS>") +
           "</ODX>";
}

class VDocumentationTest : public VCheckTest {
protected:
    /// The codes of the findings, with their severities.
    std::set<std::string> Found() const {
        std::set<std::string> found;
        for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
            found.insert(diagnostic.code + ' ' + SeverityText(diagnostic.severity));
        }
        return found;
    }

    /// Makes a case that a document alone cannot show; false for a code that a document can show.
    bool ReadSpecial(std::string const& code) {
        std::string const good = Layer("");
        if (code == "empty") {
            ReadFiles({Write("empty.odx", "")});
        } else if (code == "no-file") {
            ReadFiles({Path("absent.odx-d")});
        } else if (code == "no-package") {
            ReadFiles({Write("notes.pdx", "notes")});
        } else if (code == "too-deep") {
            m_options.maxDepth = 2;
            Read(good);
        } else if (code == "too-compressed") {
            ReadFiles({WritePackage("bomb.pdx", {{"a.odx", good}, {"b.odx", good + std::string(17 << 20, '\n')}})});
        } else if (code == "too-many") {
            m_options.maxMembers = 1;
            ReadFiles({WritePackage("large.pdx", {{"a.odx", good}, {"b.txt", ""}})});
        } else if (code == "unsafe-name") {
            ReadFiles({WritePackage("attack.pdx", {{"good.odx", good}, {"../bad.odx", good}})});
        } else if (code == "too-many-diagnostics") {
            m_options.maxDiagnostics = 0;
            Read(Layer("<NEW/>"));
        } else if (code == "repeated-document") {
            ReadFiles({Write("this-year.odx-d", Container("")), Write("last-year.odx-d", Container(""))});
        } else if (code == "ambiguous-document") {
            std::string const reference = "<PARENT-REF xsi:type=\"BASE-VARIANT-REF\" ID-REF=\"B\" DOCREF=\"B\" "
                                          "DOCTYPE=\"LAYER\"/>";
            ReadFiles({Write("this-year.odx-d", BaseVariantIn("C1")), Write("last-year.odx-d", BaseVariantIn("C2")),
                       Write("variant.odx-d",
                             Container("<ECU-VARIANTS>" +
                                       Xml("ECU-VARIANT", "V", "<PARENT-REFS>" + reference + "</PARENT-REFS>") +
                                       "</ECU-VARIANTS>"))});
        } else if (code == "repeated-file") {
            std::string const path = Write("seat.odx-d", good);
            ReadFiles({path, path});
        } else if (code == "duplicate-member") {
            ReadFiles({Write("twice.pdx", ZipOf({{"a.odx", good}, {"a.odx", good}}))});
        } else if (code == "too-large") {
            m_options.maxPackageSize = 10;
            ReadFiles({WritePackage("large.pdx", {{"good.odx", good}})});
        } else if (code == "unreadable") {
            ReadFiles({WritePackage("p.pdx", {{"good.odx", good}, {"secret.odx", good, "password"}})});
        } else {
            return false;
        }
        m_options = {};
        m_options.keepsElements = true;
        return true;
    }
};

TEST_F(VDocumentationTest, EveryCodeHasAnEntryWithItsSeverityAndFix) {
    std::map<std::string, VEntry> const entries = ReadEntries();
    EXPECT_EQ(entries.size(), NCheck::Codes().size());
    for (NCheck::VCode const& code : NCheck::Codes()) {
        auto const entry = entries.find(code.code);
        ASSERT_NE(entry, entries.end()) << code.code;
        EXPECT_EQ(entry->second.severity, SeverityText(code.severity)) << code.code;
        EXPECT_TRUE(entry->second.hasFix) << code.code;
        EXPECT_NE(entry->second.example, "") << code.code;
    }
}

TEST_F(VDocumentationTest, EveryExampleGivesItsCodeAndNoOther) {
    for (auto const& [code, entry] : ReadEntries()) {
        SCOPED_TRACE(code);
        bool const isSpecial = ReadSpecial(code);
        EXPECT_EQ(isSpecial, entry.place.empty());
        if (!isSpecial) {
            CheckDocument(Wrapped(entry));
        }
        std::set<std::string> found = Found();
        if (code == "contradicting-type") {
            found.erase("missing-child error"); // required by the type that is written, and left out of the example
        }
        EXPECT_EQ(found, std::set<std::string>{code + ' ' + entry.severity}) << Diagnostics();
    }
}

TEST_F(VDocumentationTest, CodesAreFoundByTheirText) {
    ASSERT_NE(NCheck::FindCode("duplicate-id"), nullptr);
    EXPECT_EQ(NCheck::FindCode("duplicate-id")->severity, NReader::VSeverity::Error);
    EXPECT_EQ(NCheck::FindCode("duplicate"), nullptr);
}

} // namespace
} // namespace NTest
