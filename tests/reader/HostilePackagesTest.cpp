// SPDX-License-Identifier: Apache-2.0
#include "reader/ReaderTest.h"

#include "reader/ZipBytes.h"

namespace NTest {
namespace {

class VHostilePackagesTest : public VReaderTest {
protected:
    /// A package of these bytes.
    void ReadBytes(std::string const& bytes) { ReadFiles({Write("a.pdx", bytes)}); }
};

TEST_F(VHostilePackagesTest, WholeMembersAreRead) {
    ReadBytes(ZipOf({{"a.odx", Named("A")}, {"b.odx", Named("B")}}));
    EXPECT_EQ(ContainerNames(), L"A B");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VHostilePackagesTest, NamesThatLeadOutOfThePackageAreLeftOut) {
    ReadBytes(ZipOf({{"/a.odx", Named("A")},
                     {"../b.odx", Named("B")},
                     {"x/../../c.odx", Named("C")},
                     {"C:/d.odx", Named("D")},
                     {"c:e.odx", Named("E")},
                     {"..\\f.odx", Named("F")},
                     {"\\\\host\\g.odx", Named("G")},
                     {"..", "x"},
                     {"good.odx", Named("Good")},
                     {"./x..y/..also.odx", Named("Also")}}));
    EXPECT_EQ(ContainerNames(), L"Also Good");
    EXPECT_EQ(Diagnostics(), "a.pdx!../b.odx:0:0 error unsafe-name\n"
                             "a.pdx!../f.odx:0:0 error unsafe-name\n"
                             "a.pdx!//host/g.odx:0:0 error unsafe-name\n"
                             "a.pdx!/a.odx:0:0 error unsafe-name\n"
                             "a.pdx!C:/d.odx:0:0 error unsafe-name\n"
                             "a.pdx!c:e.odx:0:0 error unsafe-name\n"
                             "a.pdx!x/../../c.odx:0:0 error unsafe-name");
    EXPECT_EQ(Message(0), "the member's name is not a path inside the package, so the member is ignored");
}

TEST_F(VHostilePackagesTest, PackageOfNothingElseIsRefused) {
    ReadBytes(ZipOf({{"../a.odx", Named("A")}}));
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.pdx!../a.odx:0:0 error unsafe-name\na.pdx:0:0 error no-package");
}

TEST_F(VHostilePackagesTest, BackslashesAreFolders) {
    ReadBytes(ZipOf({{"sub\\deeper\\a.odx", Named("A")}}));
    EXPECT_EQ(ContainerNames(), L"A");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(m_result.documents.at(0).file, Path("a.pdx") + "!sub/deeper/a.odx");
}

TEST_F(VHostilePackagesTest, OfMembersOfOneNameTheLastCounts) {
    ReadBytes(ZipOf({{"s\\a.odx", Named("First")},
                     {"s/a.odx", Named("Second")},
                     {"b.odx", Named("B")},
                     {"s/a.odx", Named("Third")},
                     {"s/A.odx", Named("Other")}}));
    EXPECT_EQ(ContainerNames(), L"B Other Third");
    EXPECT_EQ(Diagnostics(), "a.pdx!s/a.odx:0:0 error duplicate-member\na.pdx!s/a.odx:0:0 error duplicate-member");
    EXPECT_EQ(Message(0), "a later member of the package has the same name and is used; this one is ignored");
}

TEST_F(VHostilePackagesTest, MemberThatIsLargerThanItsHeaderSaysIsLeftOut) {
    VZipMember member{"a.odx", Named("A") + std::string(100000, '\n')};
    member.saidSize = 10;
    ReadBytes(ZipOf({member, {"b.odx", Named("B")}}));
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx:0:0 error unreadable");
}

TEST_F(VHostilePackagesTest, MemberThatIsSmallerThanItsHeaderSaysIsLeftOut) {
    VZipMember member{"a.odx", Named("A")};
    member.saidSize = 1000000000;
    ReadBytes(ZipOf({member, {"b.odx", Named("B")}}));
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx:0:0 error unreadable");
}

TEST_F(VHostilePackagesTest, MemberThatSaysMorePackedBytesThanThereAreIsLeftOutOrThePackageRefused) {
    VZipMember member{"z.odx", Named("Z")};
    member.saidPackedSize = 1000000;
    ReadBytes(ZipOf({{"b.odx", Named("B")}, member}));
    if (m_result.database != nullptr) {
        EXPECT_EQ(ContainerNames(), L"B");
        EXPECT_EQ(Diagnostics(), "a.pdx!z.odx:1:114 error not-xml"); // the directory follows the document
    } else {
        EXPECT_EQ(Diagnostics(), "a.pdx:0:0 error no-package");
    }
}

TEST_F(VHostilePackagesTest, MemberOfAnotherChecksumIsLeftOut) {
    VZipMember member{"a.odx", Named("A")};
    member.checksumError = 1;
    ReadBytes(ZipOf({member, {"b.odx", Named("B")}}));
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx:0:0 error unreadable");
    EXPECT_EQ(Message(0), "cannot be read: CRC error");
}

TEST_F(VHostilePackagesTest, EncryptedMemberIsLeftOut) {
    VZipMember member{"a.odx", Named("A")};
    member.flags = 1;
    ReadBytes(ZipOf({member, {"b.odx", Named("B")}}));
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx:0:0 error unreadable");
    EXPECT_NE(Message(0).find("password"), std::string::npos) << Message(0);
}

TEST_F(VHostilePackagesTest, MemberPackedInAnUnknownWayIsLeftOut) {
    VZipMember member{"a.odx", Named("A")};
    member.method = 77;
    ReadBytes(ZipOf({member, {"b.odx", Named("B")}}));
    EXPECT_EQ(ContainerNames(), L"B");
    EXPECT_EQ(Diagnostics(), "a.pdx!a.odx:0:0 error unreadable");
}

TEST_F(VHostilePackagesTest, FoldersAreNoDocuments) {
    ReadBytes(ZipOf({{"folder.odx/", ""}, {"folder.odx/a.odx", Named("A")}}));
    EXPECT_EQ(ContainerNames(), L"A");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VHostilePackagesTest, PackagesInsidePackagesAreNotOpened) {
    std::string inner = ZipOf({{"inner.odx", Named("Inner")}});
    for (int level = 0; level < 3; ++level) {
        inner = ZipOf({{"inner.pdx", inner}});
    }
    ReadBytes(ZipOf({{"inner.pdx", inner}, {"a.odx", Named("A")}}));
    EXPECT_EQ(ContainerNames(), L"A");
    EXPECT_EQ(Diagnostics(), "");
    ReadBytes(ZipOf({{"inner.odx", inner}, {"a.odx", Named("A")}})); // named like a document, but not XML
    EXPECT_EQ(ContainerNames(), L"A");
    EXPECT_EQ(Diagnostics(), "a.pdx!inner.odx:1:3 error not-xml");
}

TEST_F(VHostilePackagesTest, NameThatIsNotUtf8IsReadInTheCodePageOfZip) {
    ReadBytes(ZipOf({{"T\x81r.odx", Named("A")}}));
    EXPECT_EQ(ContainerNames(), L"A");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(m_result.documents.at(0).file, Path("a.pdx") + "!T\xC3\xBCr.odx");
}

TEST_F(VHostilePackagesTest, NameThatSaysToBeUtf8AndIsNotMakesThePackageRefused) {
    VZipMember member{"T\x81r.odx", Named("A")};
    member.flags = 0x800;
    ReadBytes(ZipOf({member, {"b.odx", Named("B")}}));
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.pdx:0:0 error no-package");
}

TEST_F(VHostilePackagesTest, ArchiveThatIsCutOffIsRefusedWhereverItEnds) {
    std::string const whole = ZipOf({{"a.odx", Named("A")}, {"b.odx", Named("B")}});
    for (std::size_t length = 4; length < whole.size(); ++length) {
        ReadBytes(whole.substr(0, length));
        ASSERT_EQ(m_result.database, nullptr) << length;
        ASSERT_EQ(Diagnostics(), "a.pdx:0:0 error no-package") << length;
    }
    EXPECT_EQ(Message(0),
              "the package cannot be read: the archive has no directory at its end; it is cut off or damaged");
}

TEST_F(VHostilePackagesTest, EveryByteTurnedOverIsReadOrReported) {
    std::string const whole = ZipOf({{"a.odx", Named("A")}, {"b.odx", Named("B")}});
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string broken = whole;
        broken[at] = static_cast<char>(broken[at] ^ 0xFF);
        ReadBytes(broken);
        bool const isWhole = m_result.database != nullptr && m_result.documents.size() == 2;
        EXPECT_TRUE(isWhole || !m_result.diagnostics.empty() || m_result.documents.size() == 1) << at;
        if (m_result.database != nullptr) {
            for (NReader::VDocumentInfo const& document : m_result.documents) {
                EXPECT_TRUE(document.shortName == "A" || document.shortName == "B") << at; // never other contents
            }
        }
    }
}

TEST_F(VHostilePackagesTest, RatioOfAMemberIsLimitedFrom16MebibytesOn) {
    std::string const small = Named("A") + std::string(15 << 20, '\n');
    std::string const large = Named("B") + std::string(17 << 20, '\n');
    std::string const path =
        WritePackage("a.pdx", {{"a.odx", small}, {"b.odx", large}, {"c.odx", Named("C")}}); // about 1:1000
    ReadFiles({path});
    EXPECT_EQ(ContainerNames(), L"A C");
    EXPECT_EQ(Diagnostics(), "a.pdx!b.odx:0:0 error too-compressed");
    EXPECT_EQ(Message(0), "the member unpacks to more than 500 times its size in the package; --max-ratio allows more");
    m_options.maxRatio = 2000;
    ReadFiles({path});
    EXPECT_EQ(ContainerNames(), L"A B C");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VHostilePackagesTest, MembersThatShareTheirBytesCountEachAgainstThePackage) {
    std::string const document = Named("A");
    std::string const bytes =
        ZipOf({{"a.odx", document}, VZipMember::SharingFirst("b.odx"), VZipMember::SharingFirst("c.odx")});
    m_options.maxPackageSize = 3 * document.size() - 1;
    ReadBytes(bytes);
    EXPECT_EQ(m_result.database, nullptr);
    EXPECT_EQ(Diagnostics(), "a.pdx:0:0 error too-large");
}

} // namespace
} // namespace NTest
