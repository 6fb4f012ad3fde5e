// SPDX-License-Identifier: Apache-2.0
#include <cli/Folder.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <diagkit/reader/Ascii.h>

namespace NCli {
namespace {

namespace fs = std::filesystem;

std::string ExtensionOf(fs::path const& path) {
    std::string extension = path.extension().u8string();
    std::transform(extension.begin(), extension.end(), extension.begin(), NReader::Lower);
    return extension;
}

bool IsNamedLikeOdx(fs::path const& path) {
    std::string const extension = ExtensionOf(path);
    return extension == ".pdx" || extension == ".zip" || extension == ".xml" || extension.rfind(".odx", 0) == 0;
}

/// The name of the first element, as far as the start of the document shows it, in any encoding that has ASCII.
std::string RootOf(std::string const& start) {
    std::string text;
    std::copy_if(start.begin(), start.end(), std::back_inserter(text), [](char byte) { return byte != '\0'; });
    std::size_t at = text.find('<');
    while (at != std::string::npos && at + 1 < text.size() && (text[at + 1] == '?' || text[at + 1] == '!')) {
        bool const isComment = text.compare(at, 4, "<!--") == 0;
        std::size_t const end = text.find(isComment ? "-->" : ">", at);
        at = end == std::string::npos ? end : text.find('<', end);
    }
    if (at == std::string::npos) {
        return "";
    }
    return text.substr(at + 1, text.find_first_of(" \t\r\n/>", at) - at - 1);
}

/// Whether an XML document is something else than ODX for sure. What cannot be read is left to the reader, which says
/// why.
bool IsOtherXml(fs::path const& path) {
    if (ExtensionOf(path) != ".xml") {
        return false;
    }
    std::ifstream stream(path, std::ios::binary);
    std::string start(std::size_t{64} * 1024, '\0');
    stream.read(start.data(), static_cast<std::streamsize>(start.size()));
    start.resize(static_cast<std::size_t>(stream.gcount()));
    std::string const root = RootOf(start);
    return !root.empty() && root != "ODX";
}

} // namespace

std::vector<std::string> FilesOf(std::string const& name) {
    std::error_code error;
    fs::directory_iterator const folder(fs::u8path(name), error);
    if (error) {
        return {name}; // a file, or something whose reading says why it is none
    }
    std::vector<std::string> files;
    for (fs::directory_entry const& entry : folder) {
        if (IsNamedLikeOdx(entry.path())) {
            files.push_back(entry.path().generic_u8string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::string> OdxFilesOf(std::string const& name) {
    std::vector<std::string> files = FilesOf(name);
    if (files != std::vector<std::string>{name}) {
        auto const isOther = [](std::string const& file) { return IsOtherXml(fs::u8path(file)); };
        files.erase(std::remove_if(files.begin(), files.end(), isOther), files.end());
    }
    return files;
}

} // namespace NCli
