// SPDX-License-Identifier: Apache-2.0

// Bytes as the documents of one database, and then everything that programs do with it. Documents are separated by the
// byte 0x1C, FILE SEPARATOR, which no XML document contains.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <diagkit/reader/OdxReader.h>

#include <fuzz/Limits.h>
#include <fuzz/ScratchFile.h>
#include <fuzz/Target.h>
#include <fuzz/UseDatabase.h>

namespace {

constexpr char kSeparator = '\x1C';
constexpr std::size_t kMostDocuments = 8;

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static std::vector<std::unique_ptr<NFuzz::VScratchFile>> files;
    std::vector<std::string> paths;
    std::string_view rest(reinterpret_cast<char const*>(data), size);
    for (bool isMore = true; isMore && paths.size() < kMostDocuments;) {
        std::string_view const document = rest.substr(0, rest.find(kSeparator));
        isMore = document.size() < rest.size();
        rest.remove_prefix(document.size() + (isMore ? 1 : 0));
        if (files.size() == paths.size()) {
            files.push_back(std::make_unique<NFuzz::VScratchFile>(".odx"));
        }
        files[paths.size()]->Write(document);
        paths.push_back(files[paths.size()]->Path());
    }
    NReader::VReadOptions options = NFuzz::LowLimits();
    options.keepsElements = true;
    NReader::VReadResult result = NReader::ReadOdx(paths, options);
    if (result.database != nullptr) {
        NFuzz::UseDatabase(result);
    }
    return 0;
}
