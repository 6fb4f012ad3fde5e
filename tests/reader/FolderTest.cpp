// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Folder.h>

#include <filesystem>
#include <fstream>

#include "reader/ReaderTest.h"

namespace NTest {
namespace {

class VFolderTest : public VReaderTest {
protected:
    VFolderTest() { std::filesystem::create_directory(Path("folder")); }

    void Write(std::string const& name, std::string const& content = Named("C")) {
        std::ofstream(std::filesystem::u8path(Path("folder/" + name)), std::ios::binary) << content;
    }

    /// The names of the files, without the folder's.
    std::string Files() {
        std::string names;
        for (std::string const& file : NReader::FilesOf(Path("folder"))) {
            names += (names.empty() ? "" : " ") + file.substr(file.rfind('/') + 1);
        }
        return names;
    }
};

TEST_F(VFolderTest, StandsForDocumentsAndPackagesInTheOrderOfTheirNames) {
    for (std::string const name : {"c.odx-d", "a.pdx", "b.ODX", "d.zip", "B.odx-c", "e.odx-e", "notes.txt", "odx", "f.odx-d~", ".g.odx-d",
                                   "h.odxfoo"}) {
        Write(name);
    }
    EXPECT_EQ("B.odx-c a.pdx b.ODX c.odx-d d.zip e.odx-e", Files());
}

TEST_F(VFolderTest, OfXmlTheRootDecides) {
    Write("a.xml", "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<!-- <CATALOG/> -->\n<ODX>");
    Write("b.xml", "<o:ODX xmlns:o=\"urn:x\"/>");
    Write("index.xml", "<CATALOG><ODX/></CATALOG>");
    Write("late.xml", "<!--" + std::string(10000, ' ') + "--><ODX/>");
    Write("none.xml", "ODX");
    Write("empty.xml", "");
    EXPECT_EQ("a.xml b.xml late.xml", Files());
}

TEST_F(VFolderTest, FoldersInItAreLeftOut) {
    std::filesystem::create_directory(Path("folder/a.odx-d"));
    Write("b.odx-d");
    EXPECT_EQ("b.odx-d", Files());
}

TEST_F(VFolderTest, OtherNamesStandForThemselves) {
    EXPECT_EQ(std::vector<std::string>{"absent.odx"}, NReader::FilesOf("absent.odx"));
    EXPECT_EQ(std::vector<std::string>{Path("folder")}, NReader::FilesOf(Path("folder"))); // which is empty
}

TEST_F(VFolderTest, IsReadAsOneDatabaseWithTheOtherFiles) {
    Write("b.odx-d", Named("B"));
    Write("a.odx-d", Named("A"));
    ReadFiles({Path("folder"), Path("folder/b.odx-d")});
    ASSERT_NE(nullptr, m_result.database);
    ASSERT_EQ(2U, m_result.documents.size());
    EXPECT_EQ("A", m_result.documents[0].shortName);
    EXPECT_EQ("B", m_result.documents[1].shortName);
    EXPECT_EQ("folder/b.odx-d:0:0 warning repeated-file", Diagnostics());
}

} // namespace
} // namespace NTest
