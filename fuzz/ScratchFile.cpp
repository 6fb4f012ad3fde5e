// SPDX-License-Identifier: Apache-2.0
#include <fuzz/ScratchFile.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

namespace NFuzz {
namespace {

namespace fs = std::filesystem;

} // namespace

VScratchFile::VScratchFile(std::string const& suffix) {
    std::random_device random;
    std::string const name = "diagkit-fuzz-" + std::to_string(random()) + '-' + std::to_string(random()) + suffix;
    m_path = (fs::temp_directory_path() / name).u8string();
}

VScratchFile::~VScratchFile() {
    std::error_code error;
    fs::remove(fs::u8path(m_path), error);
}

void VScratchFile::Write(std::string_view bytes) {
    std::ofstream stream(fs::u8path(m_path), std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush()) {
        throw std::runtime_error(m_path + " cannot be written");
    }
}

} // namespace NFuzz
