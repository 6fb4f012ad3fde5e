// SPDX-License-Identifier: Apache-2.0
#include "reader/ZipBytes.h"

namespace NTest {
namespace {

std::string Number(std::uint32_t value, int bytes) {
    std::string text;
    for (int index = 0; index < bytes; ++index) {
        text += static_cast<char>(static_cast<unsigned char>(value >> (8 * index)));
    }
    return text;
}

std::uint32_t Checksum(std::string const& bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (char const byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~sum;
}

/// The common part of the local header and the entry of the directory, from the version on.
std::string CommonHeader(VZipMember const& member, std::string const& bytes) {
    auto const size = static_cast<std::uint32_t>(bytes.size());
    return Number(20, 2) + Number(member.flags, 2) + Number(member.method, 2) + Number(0, 2) + Number(0x21, 2) +
           Number(Checksum(bytes) + member.checksumError, 4) + Number(member.saidPackedSize.value_or(size), 4) +
           Number(member.saidSize.value_or(size), 4) + Number(static_cast<std::uint32_t>(member.name.size()), 2) +
           Number(0, 2);
}

} // namespace

std::string ZipOf(std::vector<VZipMember> const& members) {
    std::string archive;
    std::string directory;
    for (VZipMember const& member : members) {
        std::string const& bytes = member.sharesFirst ? members.front().bytes : member.bytes;
        auto const offset = static_cast<std::uint32_t>(member.sharesFirst ? 0 : archive.size());
        std::string const header = CommonHeader(member, bytes);
        if (!member.sharesFirst) {
            archive += "PK\x03\x04" + header + member.name + bytes;
        }
        directory += "PK\x01\x02" + Number(20, 2) + header + Number(0, 2) + Number(0, 2) + Number(0, 2) + Number(0, 4) +
                     Number(offset, 4) + member.name;
    }
    auto const count = static_cast<std::uint32_t>(members.size());
    return archive + directory + "PK\x05\x06" + Number(0, 4) + Number(count, 2) + Number(count, 2) +
           Number(static_cast<std::uint32_t>(directory.size()), 4) +
           Number(static_cast<std::uint32_t>(archive.size()), 4) + Number(0, 2);
}

} // namespace NTest
