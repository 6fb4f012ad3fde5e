// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Zip archives byte by byte, so that they can be wrong in ways that no library writes.

namespace NTest {

/// A member, stored without compression, and the values in its headers.
struct VZipMember {
    std::string name;
    std::string bytes;
    std::uint16_t flags = 0;         ///< 1 encrypted, 0x800 the name is UTF-8
    std::uint16_t method = 0;        ///< how it is packed: 0 stored
    std::uint32_t checksumError = 0; ///< the error of the checksum
    std::optional<std::uint32_t> saidSize{};
    std::optional<std::uint32_t> saidPackedSize{};
    bool sharesFirst = false; ///< is only in the directory, as another name of the first member

    static VZipMember SharingFirst(std::string const& name) {
        VZipMember member{name, {}};
        member.sharesFirst = true;
        return member;
    }
};

std::string ZipOf(std::vector<VZipMember> const& members);

} // namespace NTest
