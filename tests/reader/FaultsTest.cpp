// SPDX-License-Identifier: Apache-2.0
#include <cerrno>
#include <cstring>

#include "reader/FaultyFiles.h"
#include "reader/ReaderTest.h"
#include "reader/ZipBytes.h"

namespace NTest {
namespace {

class VFaultsTest : public VReaderTest {
protected:
    /// Reads a file that fails after the given number of bytes; returns whether it did.
    bool ReadUntilFault(std::string const& path, std::uint64_t bytesBefore) {
        VFault const fault(bytesBefore);
        ReadFiles({path});
        return fault.HasHappened();
    }

    /// A document of at least this size that is complete without its end: a fault taken for an end would go unnoticed.
    static std::string Large(std::string const& name, std::size_t size) {
        return "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"" + name + "\"><SHORT-NAME>" + name +
               "</SHORT-NAME></DIAG-LAYER-CONTAINER></ODX>" + std::string(size, '\n');
    }
};

TEST_F(VFaultsTest, DocumentThatCannotBeReadToItsEndIsRefused) {
    std::string const path = Write("a.odx", Large("A", 600000));
    for (std::uint64_t const bytes : {0, 10, 1000, 100000, 262144, 300000, 599000}) {
        ASSERT_TRUE(ReadUntilFault(path, bytes)) << bytes;
        EXPECT_EQ(m_result.database, nullptr) << bytes;
        EXPECT_EQ(Diagnostics(), "a.odx:0:0 error unreadable") << bytes;
        EXPECT_EQ(Message(0), std::string("cannot be read: ") + std::strerror(EIO)) << bytes;
    }
    EXPECT_FALSE(ReadUntilFault(path, 10000000));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VFaultsTest, MemberThatCannotBeReadToItsEndIsNeverLostInSilence) {
    std::string const path = Write("a.pdx", ZipOf({{"a.odx", Large("A", 300000)}, {"b.odx", Large("B", 300000)}}));
    for (unsigned const threads : {1U, 2U}) {
        m_options.threads = threads;
        std::size_t refused = 0;
        std::size_t leftOut = 0;
        for (std::uint64_t bytes = 0; ReadUntilFault(path, bytes); bytes += 20000) {
            ASSERT_FALSE(m_result.diagnostics.empty()) << bytes;
            for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
                EXPECT_EQ(diagnostic.severity, NReader::VSeverity::Error);
                EXPECT_TRUE(diagnostic.code == "unreadable" || diagnostic.code == "no-package") << diagnostic.code;
            }
            ++(m_result.database == nullptr ? refused : leftOut);
            EXPECT_LT(m_result.documents.size(), 2U) << bytes;
        }
        EXPECT_EQ(m_result.documents.size(), 2U);
        EXPECT_EQ(Diagnostics(), "");
        EXPECT_GT(refused, 2U);      // in the directory at least
        if (threads == 1) {          // of two threads either may get the fault, after any number of documents
            EXPECT_GT(refused, 10U); // in the directory, or in the first member
            EXPECT_GT(leftOut, 10U); // in the second member
        }
    }
}

TEST_F(VFaultsTest, PackageWhoseBytesCannotBeHadIsCalledThat) {
    std::string const path = Write("a.pdx", ZipOf({{"a.odx", Large("A", 1000)}}));
    // At its first bytes, which show what it is, and in its directory.
    for (std::uint64_t const bytes : {0, 4}) {
        ASSERT_TRUE(ReadUntilFault(path, bytes)) << bytes;
        EXPECT_EQ(m_result.database, nullptr) << bytes;
        EXPECT_EQ(Diagnostics(), "a.pdx:0:0 error unreadable") << bytes;
        EXPECT_EQ(Message(0).find("cannot be read: "), 0U) << Message(0);
        std::string const reason = bytes == 0 ? std::strerror(EIO) : TextOfPackageFault();
        EXPECT_NE(Message(0).find(reason), std::string::npos) << Message(0);
    }
}

TEST_F(VFaultsTest, FileWithoutBytesBehindItIsRefusedWhateverItsName) {
    for (std::string const name : {"a.odx", "a.pdx", "a"}) {
        auto const held = MakeUnreadableFile(Path(name));
        ReadFiles({Path(name)});
        EXPECT_EQ(m_result.database, nullptr);
        ASSERT_EQ(m_result.diagnostics.size(), 1U);
        EXPECT_EQ(NReader::FormatDiagnostic(m_result.diagnostics[0]),
                  Path(name) + ": error: cannot be read: " + std::strerror(kErrorOfUnreadableFile) + " [unreadable]");
    }
}

} // namespace
} // namespace NTest
