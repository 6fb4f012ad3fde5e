// SPDX-License-Identifier: Apache-2.0

// Runs a target over files, and over the files in folders: the seeds, or what libFuzzer found.
//
//     replay_TARGET FILE|FOLDER...
//
// A folder that is absent is skipped. Exit status: 0 all were run, 1 there was none, 2 a file cannot be read.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include <fuzz/Target.h>

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> FilesOf(fs::path const& named) {
    if (!fs::is_directory(named)) {
        return {named};
    }
    std::vector<fs::path> files;
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(named)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

int main(int count, char** words) {
    std::size_t runs = 0;
    for (int index = 1; index < count; ++index) {
        for (fs::path const& file : FilesOf(words[index])) {
            std::ifstream stream(file, std::ios::binary);
            std::string const bytes(std::istreambuf_iterator<char>(stream), {});
            if (stream.bad() || !stream.is_open()) {
                std::cerr << file.string() << ": cannot be read\n";
                return 2;
            }
            std::cerr << file.string() << std::endl; // flushed: a crash belongs to the last one named
            LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
            ++runs;
        }
    }
    std::cerr << runs << " inputs\n";
    return runs > 0 ? 0 : 1;
}
