// SPDX-License-Identifier: Apache-2.0
#include "reader/ReaderTest.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include <diagkit/model/Layers.h>

namespace NTest {
namespace {

class VBadInputTest : public VReaderTest {
protected:
    /// The result of a refused file: no database, one error.
    void ExpectRefused(std::string const& diagnostic, std::string const& message) {
        EXPECT_EQ(m_result.database, nullptr);
        EXPECT_TRUE(m_result.documents.empty());
        EXPECT_EQ(Diagnostics(), diagnostic);
        ASSERT_EQ(m_result.diagnostics.size(), 1U);
        EXPECT_NE(Message(0).find(message), std::string::npos) << Message(0);
    }

    std::string Bytes(std::string const& path) const {
        std::ifstream stream(std::filesystem::u8path(path), std::ios::binary);
        std::ostringstream bytes;
        bytes << stream.rdbuf();
        return bytes.str();
    }

    /// Changes a package's bytes in place.
    template <class Change>
    void Patch(std::string const& name, Change change) {
        std::string bytes = Bytes(Path(name));
        change(bytes);
        Write(name, bytes);
    }
};

// Files

TEST_F(VBadInputTest, MissingFileIsRefused) {
    ReadFiles({Path("absent.odx")});
    ExpectRefused("absent.odx:0:0 error no-file", "no such file");
}

TEST_F(VBadInputTest, FolderWithoutOdxIsRefused) {
    std::filesystem::create_directory(Path("folder"));
    ReadFiles({Path("folder")});
    ExpectRefused("folder:0:0 error no-file", "the folder contains no ODX document or package");
}

TEST_F(VBadInputTest, EmptyFileIsRefused) {
    Read("");
    ExpectRefused("test.odx:0:0 error empty", "is empty");
}

TEST_F(VBadInputTest, BlankFileIsRefused) {
    Read(" \n ");
    ExpectRefused("test.odx:2:2 error not-xml", "not well-formed XML");
}

TEST_F(VBadInputTest, TruncatedDocumentIsRefusedAtItsEnd) {
    std::string const whole = Container("<PROTOCOLS>\n</PROTOCOLS>");
    Read(whole.substr(0, whole.find("</PROTOCOLS>")));
    ExpectRefused("test.odx:3:1 error not-xml", "not well-formed XML");
}

TEST_F(VBadInputTest, OtherRootIsRefused) {
    Read("<?xml version=\"1.0\"?>\n<html/>");
    ExpectRefused("test.odx:2:1 error not-odx", "the root element is 'html', not ODX");
}

TEST_F(VBadInputTest, BinaryFileIsRefused) {
    Read(std::string_view("\x7F"
                          "ELF\0\x01\x02\0\xFF",
                          9));
    ExpectRefused("test.odx:1:1 error not-xml", "not well-formed XML");
    EXPECT_EQ(Message(0).find("not well-formed", 1), std::string::npos) << "said twice: " << Message(0);
}

TEST_F(VBadInputTest, NameThatIsNotUtf8IsAMissingFileOrReadAsItIs) {
    ReadFiles({Path("plain") + "\xFF\xFE.odx"});
    EXPECT_EQ(m_result.database, nullptr);
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "no-file");
}

TEST_F(VBadInputTest, VeryLongNameIsReported) {
    ReadFiles({Path(std::string(5000, 'x'))});
    EXPECT_EQ(m_result.database, nullptr);
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "no-file");
#ifndef _WIN32 // which reports it as a missing file
    EXPECT_NE(Message(0), "no such file");
#endif
}

TEST_F(VBadInputTest, OneFileThatCannotBeReadLeavesNothingButEveryOneIsReported) {
    std::string const good = Write("good.odx", Named("A"));
    ReadFiles({Path("absent.odx"), good, Write("bad.odx", "<ODX>")});
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "absent.odx:0:0 error no-file\nbad.odx:1:6 error not-xml");
    ReadFiles({good});
    EXPECT_EQ(ContainerNames(), L"A");
}

TEST_F(VBadInputTest, FileNamedTwiceIsReadOnceAndReported) {
    std::string const path = Write("a.odx", Named("A"));
    std::string const package = WritePackage("p.pdx", {{"b.odx", Named("B")}});
    std::filesystem::create_directory(Path("folder"));
    ReadFiles({path, package, Path("folder/../a.odx"), path, package});
    EXPECT_EQ(ContainerNames(), L"A B");
    EXPECT_EQ(m_result.documents.size(), 2U);
    EXPECT_EQ(Diagnostics(), "folder/../a.odx:0:0 warning repeated-file\na.odx:0:0 warning repeated-file\n"
                             "p.pdx:0:0 warning repeated-file");
    EXPECT_EQ(Message(0), "is the file '" + path + "' again, which is read once");
}

TEST_F(VBadInputTest, CopyOfAFileIsReadToo) {
    ReadFiles({Write("a.odx", Named("A")), Write("b.odx", Named("A"))});
    EXPECT_EQ(ContainerNames(), L"A A");
    EXPECT_EQ(Diagnostics(), "b.odx:1:28 warning repeated-document");
}

TEST_F(VBadInputTest, FileNamedTwiceThatCannotBeReadIsRefused) {
    std::string const path = Write("a.odx", "<ODX>");
    ReadFiles({path, path});
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.odx:1:6 error not-xml\na.odx:0:0 warning repeated-file");
}

// XML used for attacks

TEST_F(VBadInputTest, DocumentTypesAreRefused) {
    std::string laughs = "<?xml version=\"1.0\"?>\n<!DOCTYPE ODX [<!ENTITY a \"ha\">";
    for (char name = 'b'; name <= 'z'; ++name) {
        std::string const before = std::string("&") + static_cast<char>(name - 1) + ';';
        laughs += std::string("<!ENTITY ") + name + " \"" + Repeated(before, 10) + "\">";
    }
    Read(laughs + "]><ODX>&z;</ODX>");
    ExpectRefused("test.odx:2:15 error document-type", "document type declaration");

    Write("secret.txt", "secret");
    Read("<!DOCTYPE ODX [<!ENTITY e SYSTEM \"secret.txt\">]><ODX>&e;</ODX>");
    ExpectRefused("test.odx:1:15 error document-type", "document type declaration");

    Read("<!DOCTYPE ODX SYSTEM \"odx.dtd\"><ODX MODEL-VERSION=\"2.0.1\"/>");
    ExpectRefused("test.odx:1:31 error document-type", "document type declaration");
}

TEST_F(VBadInputTest, UndefinedEntityIsRefused) {
    Read(Container("<LONG-NAME>a&nbsp;b</LONG-NAME>"));
    ExpectRefused("test.odx:2:13 error not-xml", "entity");
}

TEST_F(VBadInputTest, NestingIsLimited) {
    std::string const deepest = Repeated("<a>", 998) + Repeated("</a>", 998);
    Read("<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME>" + deepest +
         "</DIAG-LAYER-CONTAINER></ODX>");
    EXPECT_EQ(ContainerNames(), L"C");
    Read("<ODX MODEL-VERSION=\"2.0.1\">\n" + Repeated("<a>", 1000) + Repeated("</a>", 1000) + "</ODX>");
    ExpectRefused("test.odx:2:2998 error too-deep", "deeper than 1000");
    Read("<ODX MODEL-VERSION=\"2.0.1\">" + Repeated("<a>", 200000));
    EXPECT_EQ(m_result.database, nullptr);
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "too-deep");
}

TEST_F(VBadInputTest, NestedGroupsWithinTheLimitAreDestroyedToo) {
    Read(Layer("<DIAG-COMMS><DIAG-SERVICE ID=\"S\"><SHORT-NAME>S</SHORT-NAME><SDGS>" + Repeated("<SDG>", 900) +
               Repeated("</SDG>", 900) + "</SDGS><AUDIENCE/></DIAG-SERVICE></DIAG-COMMS>"));
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(Count(L"SDG"), 900U);
}

// Packages

TEST_F(VBadInputTest, PackageThatIsNoArchiveIsRefused) {
    ReadFiles({Write("a.pdx", "no archive")});
    ExpectRefused("a.pdx:0:0 error no-package", "not a zip archive");
    ReadFiles({Write("b.ZIP", "")});
    ExpectRefused("b.ZIP:0:0 error empty", "is empty");
    ReadFiles({Write("c.pdx", "PK\x03\x04 and no more")});
    ExpectRefused("c.pdx:0:0 error no-package", "the package cannot be read: ");
}

TEST_F(VBadInputTest, PackageWithoutDocumentsIsRefused) {
    ReadFiles({WritePackage("a.pdx", {{"index.xml", "<CATALOG/>"}, {"job.jar", "x"}, {"odx", "x"}})});
    ExpectRefused("a.pdx:0:0 error no-package", "contains no ODX document");
}

TEST_F(VBadInputTest, PackageIsToldByItsBytesAndNotByItsName) {
    ReadFiles({WritePackage("database.odx", {{"a.odx-d", Named("A")}})});
    EXPECT_EQ(ContainerNames(), L"A");
    ASSERT_EQ(m_result.documents.size(), 1U);
    EXPECT_EQ(m_result.documents[0].file, Path("database.odx") + "!a.odx-d");
    EXPECT_EQ(m_result.documents[0].category, "DIAG-LAYER-CONTAINER");
    EXPECT_EQ(m_result.documents[0].shortName, "A");
    EXPECT_EQ(m_result.documents[0].modelVersion, "2.0.1");
}

TEST_F(VBadInputTest, MembersAreReadInTheOrderOfTheirNames) {
    ReadFiles({WritePackage("a.pdx", {{"z.odx-d", Named("Z")},
                                      {"sub/b.ODX-D", Named("B")},
                                      {"a.odx", Named("A")},
                                      {"deep\\er\\c.Odx-D", Named("C2")},
                                      {"inner.pdx", "PK\x03\x04"},
                                      {"T\xC3\xBCr.odx-d", Named("T")},
                                      {"notes.odx.txt", "none of it"}})});
    EXPECT_EQ(ContainerNames(), L"T A C2 B Z"); // upper case sorts before lower
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(m_result.documents[2].file, Path("a.pdx") + "!deep/er/c.Odx-D");
    EXPECT_EQ(m_result.documents[0].file, Path("a.pdx") + "!T\xC3\xBCr.odx-d");
}

TEST_F(VBadInputTest, BrokenMemberIsLeftOutWhole) {
    std::string const broken =
        "<ODX MODEL-VERSION=\"2.0.1\"><?Maker 9?><DIAG-LAYER-CONTAINER ID=\"B\"><SHORT-NAME>B</SHORT-NAME><FOO "
        "ID=\"F\"/>"
        "<BASE-VARIANTS><BASE-VARIANT ID=\"BV\"><SHORT-NAME>BV</SHORT-NAME><DIAG-COMMS><DIAG-COMM-REF ID-REF=\"gone\"/>"
        "</DIAG-COMMS><PARENT-REFS><PARENT-REF ID-REF=\"gone\"/></PARENT-REFS></BASE-VARIANT></BASE-VARIANTS>\n"
        "</DIAG-LAYER-CONTAINER><oops></ODX>";
    ReadFiles({WritePackage("a.pdx", {{"a.odx-d", Named("A")}, {"b.odx-d", broken}, {"c.odx-d", Named("C")}})});
    EXPECT_EQ(ContainerNames(), L"A C");
    EXPECT_EQ(Diagnostics(), "a.pdx!b.odx-d:2:32 error not-xml");
    EXPECT_EQ(Database().GetOdx().ProcessingInstructionCollection().Count(), 0U);
    EXPECT_EQ(m_result.documents.size(), 2U);
    EXPECT_TRUE(m_result.unknownElements.empty());
    EXPECT_EQ(Count(L"DIAG-LAYER-CONTAINER"), 2U);
    EXPECT_EQ(Count(L"BASE-VARIANT"), 0U);
    EXPECT_EQ(Count(L"PARENT-REF"), 0U);
    EXPECT_EQ(Count(L"DIAG-COMM-REF"), 0U);
    EXPECT_EQ(Database().GetIdIndex().Find(L"B"), nullptr);
    EXPECT_EQ(Database().GetIdIndex().Find(L"BV"), nullptr);
}

TEST_F(VBadInputTest, PackageOfBrokenMembersIsRefused) {
    ReadFiles({WritePackage("a.pdx", {{"a.odx-d", "<ODX"}})});
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx-d:1:1 error not-xml\na.pdx:0:0 error no-package");
}

TEST_F(VBadInputTest, CorruptMembersAreLeftOut) {
    // Long enough to be deflated, and to be detected only at its end.
    std::string const filler = "<!--" + Repeated("0123456789 abcdefgh ", 2000) + "-->";
    WritePackage("a.pdx", {{"a.odx-d", Named("A")}, {"b.odx-d", filler + Named("B")}, {"c.odx-d", Named("C")}});
    Patch("a.pdx", [](std::string& bytes) {
        // The checksum in the central directory: 16 bytes into the entry of b.odx-d.
        auto const entry = bytes.rfind("PK\x01\x02", bytes.rfind("b.odx-d"));
        bytes[entry + 16] = static_cast<char>(bytes[entry + 16] ^ 1);
        auto const local = bytes.rfind("PK\x03\x04", bytes.find("b.odx-d"));
        bytes[local + 14] = bytes[entry + 16];
    });
    ReadFiles({Path("a.pdx")});
    EXPECT_EQ(ContainerNames(), L"A C");
    EXPECT_EQ(Diagnostics(), "a.pdx!b.odx-d:0:0 error unreadable");
    EXPECT_EQ(Message(0), "cannot be read: CRC error");

    WritePackage("d.pdx", {{"a.odx-d", Named("A")}, {"b.odx-d", filler + Named("B")}});
    Patch("d.pdx", [](std::string& bytes) {
        auto const data = bytes.find("b.odx-d") + 7;
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(data), 8, '\xFF');
    });
    ReadFiles({Path("d.pdx")});
    EXPECT_EQ(ContainerNames(), L"A");
    EXPECT_EQ(Diagnostics(), "d.pdx!b.odx-d:0:0 error unreadable");
    EXPECT_NE(Message(0).find("cannot be read: "), std::string::npos);
}

TEST_F(VBadInputTest, EncryptedMemberIsLeftOut) {
    ReadFiles({WritePackage("a.pdx", {{"a.odx-d", Named("A"), "key"}, {"b.odx-d", Named("B")}})});
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx-d:0:0 error unreadable");
    EXPECT_NE(Message(0).find("password"), std::string::npos) << Message(0);
}

TEST_F(VBadInputTest, SizeOfAMemberIsLimited) {
    std::string const large = Named("B") + std::string(2000, '\n');
    std::string const path =
        WritePackage("a.pdx", {{"a.odx-d", Named("A")}, {"b.odx-d", large}, {"c.odx-d", Named("C")}});
    m_options.maxMemberSize = large.size();
    ReadFiles({path});
    EXPECT_EQ(ContainerNames(), L"A B C");
    m_options.maxMemberSize = large.size() - 1;
    ReadFiles({path});
    EXPECT_EQ(ContainerNames(), L"A C");
    EXPECT_EQ(Diagnostics(), "a.pdx!b.odx-d:0:0 error too-large");
    EXPECT_EQ(Message(0), "the member unpacks to more than " + std::to_string(large.size() - 1) +
                              " bytes; --max-member-size allows more");
}

TEST_F(VBadInputTest, SizeOfAPackageIsLimited) {
    std::size_t const size = Named("A").size();
    std::string const path =
        WritePackage("a.pdx", {{"a.odx-d", Named("A")}, {"b.odx-d", Named("B")}, {"c.odx-d", Named("C")}});
    m_options.maxPackageSize = 3 * size;
    ReadFiles({path});
    EXPECT_EQ(ContainerNames(), L"A B C");
    m_options.maxPackageSize = 3 * size - 1;
    ReadFiles({path});
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.pdx:0:0 error too-large"); // and nothing about the member in which it occurs
    EXPECT_EQ(Message(0), "the package unpacks to more than " + std::to_string(3 * size - 1) +
                              " bytes; --max-package-size allows more");
}

TEST_F(VBadInputTest, MemberThatIsReadAgainInAnotherEncodingCountsOnceAgainstTheLimit) {
    std::string const odd = "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"A\"><SHORT-NAME>A</SHORT-NAME>"
                            "<LONG-NAME>\xFC</LONG-NAME></DIAG-LAYER-CONTAINER></ODX>";
    m_options.maxPackageSize = odd.size() + Named("B").size();
    ReadFiles({WritePackage("a.pdx", {{"a.odx-d", odd}, {"b.odx-d", Named("B")}})});
    EXPECT_EQ(ContainerNames(), L"A B");
}

TEST_F(VBadInputTest, SizeInTheHeaderIsNotBelieved) {
    std::string const large = Named("A") + std::string(100000, '\n');
    WritePackage("a.pdx", {{"a.odx-d", large}, {"b.odx-d", Named("B")}});
    Patch("a.pdx", [](std::string& bytes) {
        auto const entry = bytes.find("PK\x01\x02");
        for (std::size_t const at : {entry + 24, std::size_t{22}}) {
            std::copy_n("\x0A\0\0\0", 4, bytes.begin() + static_cast<std::ptrdiff_t>(at));
        }
    });
    m_options.maxMemberSize = 5000;
    ReadFiles({Path("a.pdx")});
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx-d:0:0 error too-large");
    EXPECT_EQ(Message(0), "the member unpacks to more than 5000 bytes; --max-member-size allows more");
}

TEST_F(VBadInputTest, ProgressGrowsAndNeverPassesTheWhole) {
    std::uint64_t last = 0;
    std::size_t calls = 0;
    bool isSound = true;
    m_options.progress = [&](std::uint64_t done, std::uint64_t all) {
        isSound = isSound && done >= last && done <= all;
        last = done;
        ++calls;
    };
    std::string const odd = Named("A") + "<!--\xFC-->";
    ReadFiles({Write("a.odx", odd), WritePackage("b.pdx", {{"b.odx", Named("B")}})});
    EXPECT_EQ(ContainerNames(), L"A B");
    EXPECT_TRUE(isSound);
    EXPECT_GT(calls, 1U);
}

} // namespace
} // namespace NTest
