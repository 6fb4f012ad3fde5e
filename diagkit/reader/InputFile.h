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

/// On Windows a name that is not UTF-8 cannot name a file: the path is then empty.
std::filesystem::path PathOf(std::string const& file);

/// The file, opened, or a stream that failed; throws when memory runs out, which is not a property of the file.
std::ifstream Opened(std::filesystem::path const& path);

/// What is known about a file without reading it.
struct VInspection {
    bool isPackage = false;
    std::uint64_t size = 0;            ///< 0 if it is not a regular file
    std::optional<VFailure> failure{}; ///< why it cannot be read, whatever its contents
};

VInspection Inspect(std::string const& file, VReadLimits const& limits);

} // namespace NReader
