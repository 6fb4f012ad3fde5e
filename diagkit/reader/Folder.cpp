// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Folder.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

#include <diagkit/reader/Ascii.h>
#include <diagkit/reader/InputFile.h>
#include <diagkit/reader/XmlParser.h>

namespace NReader {
namespace {

namespace fs = std::filesystem;

/// Reads up to the tag of the root.
class VRootName final : public IXmlHandler {
public:
    explicit VRootName(VReadLimits const& limits) : m_parser(*this, limits, nullptr) {}

    std::string_view In(std::ifstream& stream) {
        char bytes[4096];
        do {
            stream.read(bytes, sizeof bytes);
        } while (stream.gcount() > 0 && m_parser.Feed({bytes, static_cast<std::size_t>(stream.gcount())}, false));
        if (m_name.empty()) {
            m_parser.Feed({}, true); // a short document is parsed only when it is complete
        }
        return m_name;
    }

    void Start(std::string_view name, VAttributes const&) override {
        m_name = name.substr(name.find(':') + 1); // the whole of a name without a prefix
        m_parser.Refuse(NCode::NotOdx, "");       // no need to read on
    }
    void End(std::string_view) override {}
    void Text(std::string_view) override {}
    void Instruction(std::string_view, std::string_view) override {}

private:
    VXmlParser m_parser;
    std::string m_name;
};

bool HasOdxRoot(fs::path const& path) {
    std::ifstream stream = Opened(path);
    return VRootName(VReadLimits()).In(stream) == "ODX";
}

std::string SuffixOf(fs::path const& path) {
    std::string suffix = path.extension().u8string();
    std::transform(suffix.begin(), suffix.end(), suffix.begin(), Lower);
    return suffix;
}

/// Of a document by its contents; .odx for any.
bool IsDocumentSuffix(std::string const& suffix) {
    static constexpr std::string_view kSuffixes[] = {".odx",   ".odx-c",  ".odx-cs", ".odx-d", ".odx-e",
                                                     ".odx-f", ".odx-fd", ".odx-m",  ".odx-v"};
    return std::find(std::begin(kSuffixes), std::end(kSuffixes), suffix) != std::end(kSuffixes);
}

bool IsPackageSuffix(std::string const& suffix) { return suffix == ".pdx" || suffix == ".zip"; }

bool IsOdx(fs::directory_entry const& entry) {
    std::error_code error;
    if (entry.is_directory(error) || entry.path().filename().u8string().front() == '.') {
        return false;
    }
    std::string const suffix = SuffixOf(entry.path());
    return IsPackageSuffix(suffix) || IsDocumentSuffix(suffix) ||
           (suffix == ".xml" && entry.is_regular_file(error) && HasOdxRoot(entry.path()));
}

} // namespace

bool IsPackageName(std::string const& file) { return IsPackageSuffix(SuffixOf(PathOf(file))); }

std::vector<std::string> FilesOf(std::string const& name) {
    std::error_code error;
    std::vector<std::string> files;
    for (fs::directory_iterator entry(PathOf(name), error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (IsOdx(*entry)) {
            files.push_back(entry->path().generic_u8string());
        }
    }
    if (error || files.empty()) {
        return {name}; // reading it reports what is wrong
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace NReader
