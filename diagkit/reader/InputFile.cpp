// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/InputFile.h>

#include <cerrno>
#include <new>
#include <string_view>
#include <system_error>
#include <utility>

#include <diagkit/reader/Folder.h>

namespace NReader {

namespace fs = std::filesystem;

VFailure Unreadable(std::string const& reason) { return {&NCode::Unreadable, "cannot be read: " + reason}; }

VFailure UnreadableStream() {
    return Unreadable(errno != 0 ? std::generic_category().message(errno) : "reading failed");
}

VFailure FileTooLarge(VReadLimits const& limits) {
    return {&NCode::TooLarge, OverLimit("the file is larger than", limits.maxFileSize, " bytes", "--max-file-size")};
}

fs::path PathOf(std::string const& file) {
    try {
        return fs::u8path(file);
    } catch (std::system_error const&) {
        return {};
    }
}

std::ifstream Opened(fs::path const& path) {
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream && errno == ENOMEM) {
        throw std::bad_alloc();
    }
    return stream;
}

namespace {

/// Reads the first bytes of a file, fewer where it is shorter; the failure when they cannot be read.
std::optional<VFailure> ReadHead(fs::path const& path, std::string& head) {
    std::ifstream stream = Opened(path);
    char bytes[4] = {};
    stream.read(bytes, sizeof bytes);
    if (!stream.is_open() || stream.bad()) {
        return UnreadableStream();
    }
    head.assign(bytes, static_cast<std::size_t>(stream.gcount()));
    return {};
}

bool IsLikeZip(std::string_view head) { return head == "PK\3\4" || head == "PK\5\6"; }

/// Why there is no readable file of that name, if so.
std::optional<VFailure> NoFile(fs::file_status const& status, std::error_code const& error) {
    if (!fs::exists(status)) {
        bool const isTold = error && error != std::errc::no_such_file_or_directory;
        return VFailure{&NCode::NoFile, isTold ? "cannot be read: " + error.message() : "no such file"};
    }
    if (fs::is_directory(status)) {
        return VFailure{&NCode::NoFile, "the folder contains no ODX document or package"};
    }
    if (fs::is_fifo(status)) {
        return VFailure{&NCode::NoFile, "is a pipe, which cannot be read twice; save it to a file first"};
    }
    return {};
}

} // namespace

VInspection Inspect(std::string const& file, VReadLimits const& limits) {
    std::error_code error;
    fs::path const path = PathOf(file);
    fs::file_status const status = fs::status(path, error);
    if (std::optional<VFailure> failure = NoFile(status, error)) {
        return {false, 0, std::move(failure)};
    }
    std::string head;
    if (std::optional<VFailure> failure = ReadHead(path, head)) {
        return {false, 0, std::move(failure)};
    }
    // Only reading shows whether a file is empty: some system files report size 0 and have contents.
    if (IsPackageName(file) && head.empty()) {
        return {false, 0, VFailure{&NCode::Empty, "is empty"}};
    }
    std::uintmax_t const told = fs::is_regular_file(status) ? fs::file_size(path, error) : 0;
    std::uintmax_t const size = error ? 0 : told;
    if (size > limits.maxFileSize) {
        return {false, size, FileTooLarge(limits)};
    }
    bool const isPackage = IsLikeZip(head);
    if (!isPackage && IsPackageName(file)) {
        return {false, size, VFailure{&NCode::NoPackage, "is not a PDX package: the file is not a zip archive"}};
    }
    return {isPackage, size, {}};
}

} // namespace NReader
