// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <sstream>
#include <thread>

#include <diagkit/memory/Odx.h>
#include <diagkit/reader/Utf8.h>

#include "MakeDatabase.h"
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

using NReader::ToUtf8;

/// All results of reading, as text. Texts are numbered by their addresses, so that it also shows which of them share
/// one copy.
class VDump {
public:
    explicit VDump(NReader::VReadResult& result) : m_result(result) {
        for (NReader::VDiagnostic const& diagnostic : result.diagnostics) {
            m_text << FormatDiagnostic(diagnostic) << '\n';
        }
        if (result.database == nullptr) {
            return;
        }
        for (NReader::VDocumentInfo const& document : result.documents) {
            m_text << document.file << ' ' << document.modelVersion << ' ' << document.category << ' '
                   << document.shortName << '\n';
        }
        for (auto const& [name, count] : result.unknownElements) {
            m_text << name << ' ' << count << '\n';
        }
        AddRoot();
        for (NODX201::VOdxElement* const element : result.elements) {
            AddElement(*element);
        }
        AddRepeatedIds();
    }

    std::string Text() const { return m_text.str(); }

private:
    void AddText(wchar_t const* text) {
        m_text << ' ' << ToUtf8(text) << '#' << m_numbers.emplace(text, m_numbers.size()).first->second;
    }

    void AddRoot() {
        NODX201::VOdx& odx = m_result.database->GetOdx();
        for (NODX201::VDiagLayerContainer& container : odx.DiagLayerContainerCollection()) {
            AddText(container.GetShortName());
        }
        for (NODX201::VComparamSpec& spec : odx.ComparamSpecCollection()) {
            AddText(spec.GetShortName());
        }
        for (NODX201::VProcessingInstruction& instruction : odx.ProcessingInstructionCollection()) {
            m_text << '\n' << ToUtf8(instruction.GetName()) << ' ' << ToUtf8(instruction.GetContent());
        }
        m_text << '\n';
    }

    void AddElement(NODX201::VOdxElement& element) {
        NMemory::VPosition const& position = dynamic_cast<NMemory::VMemNode&>(element).GetPosition();
        m_text << m_result.database->GetDocumentName(position) << ':' << position.line << ':' << position.column << ' '
               << ToUtf8(NODX201::OdxTagText(element.GetOdxTag())) << ' '
               << m_result.database->Count(element.GetOdxTag());
        AddText(element.GetShortName());
        if (auto* const referencable = dynamic_cast<NODX201::VReferencable*>(&element)) {
            AddText(referencable->GetId());
            auto const* const entry = m_result.database->GetIdIndex().Find(referencable->GetId());
            m_text << (entry == nullptr ? " without ID" : entry->first == referencable ? " first" : " other");
        }
        if (auto* const link = dynamic_cast<NODX201::VLink*>(&element)) {
            NMemory::VReference const reference = NMemory::ReferenceOf(link->GetLink());
            for (wchar_t const* const text : {reference.m_id, reference.m_docref, reference.m_doctype}) {
                AddText(text);
            }
            AddText(reference.IsByShortName() ? reference.m_shortName : L"");
        }
        m_text << '\n';
    }

    void AddRepeatedIds() {
        std::map<std::wstring, std::size_t> counts;
        m_result.database->GetIdIndex().ForEachRepeated(
            [&counts](NMemory::VIdIndex::VEntry const& entry) { counts[entry.first->GetId()] = entry.Count() - 1; });
        for (auto const& [id, count] : counts) {
            m_text << ToUtf8(id) << ' ' << count << '\n';
        }
    }

    NReader::VReadResult& m_result;
    std::ostringstream m_text;
    std::map<wchar_t const*, std::size_t> m_numbers;
};

class VThreadsTest : public VReaderTest {
protected:
    VThreadsTest() { m_options.keepsElements = true; }

    std::string DumpOf(std::vector<std::string> const& files, std::uint32_t threads) {
        m_options.threads = threads;
        ReadFiles(files);
        return VDump(m_result).Text();
    }

    void ExpectTheSame(std::vector<std::string> const& files) {
        std::string const expected = DumpOf(files, 1);
        EXPECT_FALSE(expected.empty());
        for (std::uint32_t const threads : {2U, 3U, 4U, 0U, 100U}) {
            EXPECT_TRUE(DumpOf(files, threads) == expected) << threads << " threads";
        }
    }

    /// Documents with all kinds of faults, of different lengths, so that they do not end in their order.
    std::vector<VMember> FaultyMembers() const {
        std::string const many = Repeated("<REQUEST ID='RQ'><SHORT-NAME>Twice</SHORT-NAME></REQUEST>", 500);
        std::string const latin = "<?xml version='1.0'?><ODX MODEL-VERSION='2.0.1'><DIAG-LAYER-CONTAINER ID='C'>"
                                  "<SHORT-NAME>Stra\xDF"
                                  "e</SHORT-NAME></DIAG-LAYER-CONTAINER></ODX>";
        return {
            {"a.odx", Layer("<REQUESTS>" + many + "</REQUESTS><UNKNOWN/><POS-RESPONSES/>")},
            {"b.odx", Layer("<PARENT-REFS><PARENT-REF ID-REF='P'/><PARENT-REF ID-REF='L'/></PARENT-REFS>")},
            {"c.odx", "<ODX MODEL-VERSION='2.0.1'><DIAG-LAYER-CONTAINER ID='Broken'>" + many},
            {"d.odx", latin},
            {"e.odx", ""},
            {"f.odx",
             "<?One for all?>" + Params("<PARAM><SHORT-NAME>P</SHORT-NAME><CODED-VALUE>1</CODED-VALUE></PARAM>")},
            {"g.odx", Container("<PROTOCOLS><PROTOCOL ID='P'><SHORT-NAME>P</SHORT-NAME></PROTOCOL></PROTOCOLS>")},
            {"h.odx", "<ODX><NEW ID='Q'/></ODX>"},
            {"i.odx", Layer("<DIAG-COMMS><DIAG-COMM-REF ID-REF='Q'/><DIAG-COMM-REF ID-REF='RQ'/></DIAG-COMMS>")},
        };
    }
};

TEST_F(VThreadsTest, AMadeDatabaseIsTheSame) {
    NBench::VMadeSize size;
    size.documents = 5;
    size.layers = 9;
    size.services = 20;
    NBench::VMadeDatabase const database(size);
    database.WritePackage(std::filesystem::u8path(Path("made.pdx")));
    ExpectTheSame({Path("made.pdx")});
    ExpectTheSame(database.WriteFolder(std::filesystem::u8path(Path("made"))));
}

TEST_F(VThreadsTest, FaultyMembersGiveTheSame) {
    std::string const package = WritePackage("faulty.pdx", FaultyMembers());
    ExpectTheSame({package});
    ExpectTheSame({package, package});
}

TEST_F(VThreadsTest, ARefusedCallSaysTheSame) {
    std::string const package = WritePackage("faulty.pdx", FaultyMembers());
    ExpectTheSame({Path("none.odx"), package, Write("empty.odx", ""), Write("broken.odx", "<ODX>"), package});
}

TEST_F(VThreadsTest, APackageThatIsTooLargeIsRefusedTheSame) {
    std::vector<VMember> members = FaultyMembers();
    for (std::uint64_t const limit : {100U, 5000U, 40000U, 60000U}) {
        m_options.maxPackageSize = limit;
        ExpectTheSame({WritePackage("large.pdx", members), Write("other.odx", members[1].bytes)});
    }
}

TEST_F(VThreadsTest, ProgressIsToldByTheCallersThreadAlone) {
    std::string const package = WritePackage("faulty.pdx", FaultyMembers());
    auto const caller = std::this_thread::get_id();
    std::uint64_t before = 0;
    m_options.progress = [&](std::uint64_t done, std::uint64_t all) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_GE(done, before);
        EXPECT_LE(done, all);
        before = done;
    };
    m_options.threads = 4;
    ReadFiles({package});
    EXPECT_GT(before, 0U) << "it was told";
}

TEST_F(VThreadsTest, WhatProgressThrowsEndsTheReading) {
    m_options.threads = 4;
    m_options.progress = [](std::uint64_t, std::uint64_t) { throw std::runtime_error("cancelled"); };
    EXPECT_THROW(ReadFiles({WritePackage("faulty.pdx", FaultyMembers())}), std::runtime_error);
}

} // namespace
} // namespace NTest
