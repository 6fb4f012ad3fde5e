// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace NBench {

/// The size of a generated database. Equal options give equal bytes, on every machine.
struct VMadeSize {
    std::uint64_t seed = 1;
    std::size_t documents = 2; ///< containers of control units, not counting the COMPARAM-SPEC and the common container
    std::size_t layers = 8;    ///< BASE-VARIANTs and ECU-VARIANTs in all; each of these containers has at least one
    std::size_t services = 40; ///< of a BASE-VARIANT; an ECU-VARIANT has a quarter of that
};

/// Realistic ODX 2.0.1 of any size, for benchmarks and tests: a COMPARAM-SPEC; a container with PROTOCOLs,
/// FUNCTIONAL-GROUPs and an ECU-SHARED-DATA that all inherit from; and containers of control units, each with
/// BASE-VARIANTs and up to four ECU-VARIANTs of each. Every layer has services, messages with parameters of all kinds
/// and a dictionary with DOPs of all kinds. The documents are valid, every reference resolves, and nothing in them
/// causes a warning.
class VMadeDatabase {
public:
    explicit VMadeDatabase(VMadeSize const& size) : m_size(size) {}

    /// The files, in the order in which packages are read.
    std::vector<std::string> FileNames() const;
    /// The document with that number among the files, piece by piece.
    void Write(std::size_t document, std::function<void(std::string_view)> sink) const;
    std::string Document(std::size_t document) const;

    /// Writes all documents as files of the folder, which is created; returns their paths.
    std::vector<std::string> WriteFolder(std::filesystem::path const& folder) const;
    /// All documents as a package; throws std::runtime_error when it cannot be written.
    void WritePackage(std::filesystem::path const& file) const;

private:
    VMadeSize m_size;
};

} // namespace NBench
