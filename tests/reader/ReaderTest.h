// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/reader/OdxReader.h>

/// Common to the tests of the reader: small documents and packages in a folder for each test.

namespace NTest {

// Documents. The text given begins at line 2, column 1.

std::string Document(std::string_view categories, std::string_view version = "2.0.1");
/// A container whose ID and short name are the name.
std::string Container(std::string_view content, std::string_view version = "2.0.1", std::string_view name = "C");
/// A BASE-VARIANT with ID and short name "L" in such a container.
std::string Layer(std::string_view content, std::string_view version = "2.0.1");
std::string Dictionary(std::string_view content, std::string_view version = "2.0.1"); ///< of such a layer
/// The PARAMs of a REQUEST with the ID "RQ" in such a layer.
std::string Params(std::string_view params, std::string_view version = "2.0.1");

/// A DIAG-CODED-TYPE of eight bits.
inline constexpr char kStandardType[] =
    "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_UINT32\">"
    "<BIT-LENGTH>8</BIT-LENGTH></DIAG-CODED-TYPE>";

/// A container of that ID and short name, on one line.
std::string Named(std::string const& name);

std::string Repeated(std::string_view text, std::size_t times);

/// A member of a package.
struct VMember {
    std::string name;
    std::string bytes;
    std::string password = {}; ///< encrypted when not empty
};

class VReaderTest : public testing::Test {
protected:
    VReaderTest();
    ~VReaderTest() override;

    std::string Path(std::string const& name) const; ///< in the test's folder
    std::string Write(std::string const& name, std::string_view bytes) const;
    std::string WritePackage(std::string const& name, std::vector<VMember> const& members) const;

    void ReadFiles(std::vector<std::string> const& paths);
    void Read(std::string_view document); ///< as the file "test.odx"
    /// Several documents as the files "1.odx", "2.odx" and so on.
    void Read(std::vector<std::string> const& documents);

    /// A line for each, such as "test.odx:2:1 error unresolved-reference", without the folder.
    std::string Diagnostics() const;
    std::string Message(std::size_t index) const; ///< of a diagnostic

    NMemory::VDatabase& Database() const;
    std::wstring ContainerNames() const; ///< short names in load order
    std::size_t Count(wchar_t const* element, wchar_t const* type = L"") const;

    NODX201::VReferencable& Element(wchar_t const* id) const; ///< the first of this ID

    template <class T>
    T& Get(wchar_t const* id) const {
        return dynamic_cast<T&>(Element(id));
    }

    /// Line and column of an element, such as "2:1".
    static std::string PositionOf(NMemory::VMemNode const& node);

    NReader::VReadOptions m_options;
    NReader::VReadResult m_result;

private:
    std::filesystem::path m_folder;
};

/// The item of a collection by index.
template <class Collection>
auto& At(Collection& collection, std::size_t index) {
    for (auto& item : collection) {
        if (index-- == 0) {
            return item;
        }
    }
    throw std::out_of_range("the collection has no such item");
}

template <class T, class From>
T& As(From& from) {
    return dynamic_cast<T&>(from);
}

} // namespace NTest
