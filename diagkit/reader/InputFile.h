// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <diagkit/reader/Limits.h>
#include <diagkit/reader/ReadDocument.h>

namespace NReader {

VFailure Unreadable(std::string const& reason);
VFailure UnreadableStream(); ///< of a stream that just failed, with the reason in errno if there is one
VFailure FileTooLarge(VReadLimits const& limits);

/// On Windows a name that is not UTF-8 is no name of a file: the path is then empty.
std::filesystem::path PathOf(std::string const& file);

/// The file, opened, or a stream that failed; running out of memory, which says nothing about a file, is raised.
std::ifstream Opened(std::filesystem::path const& path);

/// What a look at a file from outside tells.
struct VInspection {
    bool isPackage = false;
    std::uint64_t size = 0;            ///< 0 for what is no plain file
    std::optional<VFailure> failure{}; ///< why it cannot be read, whatever is in it
};

VInspection Inspect(std::string const& file, VReadLimits const& limits);

} // namespace NReader
