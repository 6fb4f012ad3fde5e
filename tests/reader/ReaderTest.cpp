// SPDX-License-Identifier: Apache-2.0
#include "reader/ReaderTest.h"

#include <fstream>

#include <zip.h>

#include <diagkit/model/Layers.h>

namespace NTest {

namespace fs = std::filesystem;

std::string Document(std::string_view categories, std::string_view version) {
    return "<ODX MODEL-VERSION=\"" + std::string(version) +
           "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n" + std::string(categories) + "</ODX>";
}

std::string Container(std::string_view content, std::string_view version, std::string_view name) {
    return "<ODX MODEL-VERSION=\"" + std::string(version) +
           "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"><DIAG-LAYER-CONTAINER ID=\"" +
           std::string(name) + "\"><SHORT-NAME>" + std::string(name) + "</SHORT-NAME>\n" + std::string(content) +
           "</DIAG-LAYER-CONTAINER></ODX>";
}

namespace {

/// A container with one layer, whose content begins at line 2.
std::string InLayer(std::string const& before, std::string_view content, std::string const& after,
                    std::string_view version) {
    std::string text = Container("<BASE-VARIANTS><BASE-VARIANT ID=\"L\"><SHORT-NAME>L</SHORT-NAME>" + before + '\n' +
                                     std::string(content) + after + "</BASE-VARIANT></BASE-VARIANTS>",
                                 version);
    return text.erase(text.find('\n'), 1);
}

} // namespace

std::string Layer(std::string_view content, std::string_view version) { return InLayer({}, content, {}, version); }

std::string Dictionary(std::string_view content, std::string_view version) {
    return InLayer("<DIAG-DATA-DICTIONARY-SPEC>", content, "</DIAG-DATA-DICTIONARY-SPEC>", version);
}

std::string Params(std::string_view params, std::string_view version) {
    return InLayer("<REQUESTS><REQUEST ID=\"RQ\"><SHORT-NAME>RQ</SHORT-NAME><PARAMS>", params,
                   "</PARAMS></REQUEST></REQUESTS>", version);
}

std::string Named(std::string const& name) {
    return "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"" + name + "\"><SHORT-NAME>" + name +
           "</SHORT-NAME></DIAG-LAYER-CONTAINER></ODX>";
}

std::string Repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t index = 0; index < times; ++index) {
        all += text;
    }
    return all;
}

VReaderTest::VReaderTest() {
    auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
    m_folder = fs::temp_directory_path() / ("diagkit-" + std::string(test->test_suite_name()) + '-' + test->name() +
                                            '-' + std::to_string(testing::UnitTest::GetInstance()->random_seed()) +
                                            '-' + std::to_string(testing::UnitTest::GetInstance()->start_timestamp()));
    fs::create_directories(m_folder);
}

VReaderTest::~VReaderTest() {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

std::string VReaderTest::Path(std::string const& name) const {
    return (m_folder / fs::u8path(name)).generic_u8string();
}

std::string VReaderTest::Write(std::string const& name, std::string_view bytes) const {
    std::string const path = Path(name);
    std::ofstream stream(fs::u8path(path), std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(stream.good()) << path;
    return path;
}

std::string VReaderTest::WritePackage(std::string const& name, std::vector<VMember> const& members) const {
    std::string const path = Path(name);
    int code = 0;
    zip_t* const zip = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &code);
    if (zip == nullptr) {
        throw std::runtime_error("the package cannot be made");
    }
    for (VMember const& member : members) {
        zip_source_t* const source = zip_source_buffer(zip, member.bytes.data(), member.bytes.size(), 0);
        zip_int64_t const index = zip_file_add(zip, member.name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            throw std::runtime_error("the member cannot be added");
        }
        if (!member.password.empty()) {
            zip_file_set_encryption(zip, static_cast<zip_uint64_t>(index), ZIP_EM_AES_256, member.password.c_str());
        }
    }
    if (zip_close(zip) != 0) {
        throw std::runtime_error("the package cannot be written");
    }
    return path;
}

void VReaderTest::ReadFiles(std::vector<std::string> const& paths) { m_result = NReader::ReadOdx(paths, m_options); }

void VReaderTest::Read(std::string_view document) { ReadFiles({Write("test.odx", document)}); }

void VReaderTest::Read(std::vector<std::string> const& documents) {
    std::vector<std::string> paths;
    for (std::string const& document : documents) {
        paths.push_back(Write(std::to_string(paths.size() + 1) + ".odx", document));
    }
    ReadFiles(paths);
}

std::string VReaderTest::Diagnostics() const {
    std::string const folder = m_folder.generic_u8string() + '/';
    std::string text;
    for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
        std::string file = diagnostic.file;
        if (file.compare(0, folder.size(), folder) == 0) {
            file.erase(0, folder.size());
        }
        text += (text.empty() ? "" : "\n") + file + ':' + std::to_string(diagnostic.line) + ':' +
                std::to_string(diagnostic.column) + ' ' + SeverityText(diagnostic.severity) + ' ' + diagnostic.code;
    }
    return text;
}

std::string VReaderTest::Message(std::size_t index) const { return m_result.diagnostics.at(index).message; }

NMemory::VDatabase& VReaderTest::Database() const {
    if (m_result.database == nullptr) {
        throw std::runtime_error("nothing was read: " + Diagnostics());
    }
    return *m_result.database;
}

std::wstring VReaderTest::ContainerNames() const {
    std::wstring names;
    for (NODX201::VDiagLayerContainer& container : Database().GetOdx().DiagLayerContainerCollection()) {
        names += (names.empty() ? L"" : L" ") + std::wstring(container.GetShortName());
    }
    return names;
}

std::size_t VReaderTest::Count(wchar_t const* element, wchar_t const* type) const {
    return Database().Count(NODX201::OdxTagOf(element, type));
}

NODX201::VReferencable& VReaderTest::Element(wchar_t const* id) const {
    auto const* const entry = Database().GetIdIndex().Find(id);
    if (entry == nullptr) {
        throw std::runtime_error("no element has the ID; " + Diagnostics());
    }
    return *entry->first;
}

std::string VReaderTest::PositionOf(NMemory::VMemNode const& node) {
    return std::to_string(node.GetPosition().line) + ':' + std::to_string(node.GetPosition().column);
}

} // namespace NTest
