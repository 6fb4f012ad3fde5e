// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/reader/Codes.h>

namespace NReader {

/// Bytes of a message; longer ones are of no use to readers.
inline constexpr std::size_t kLongestMessage = 2000;

/// The message, truncated where it is longer: it may quote a text of many megabytes.
std::string Clipped(std::string message);

/// Whether a position comes first: by document, as they were read, and by line and column within each.
bool IsBefore(NMemory::VPosition const& a, NMemory::VPosition const& b);

/// The diagnostics of one reading, while they are collected: so many errors, warnings and notes as the limit
/// says. The
/// others are counted, so that nothing that is wrong with data takes more memory than that.
class VFindings {
public:
    explicit VFindings(std::uint64_t limit = std::numeric_limits<std::uint64_t>::max()) : m_limit(limit) {}

    void Add(NMemory::VPosition const& position, VCode const& code, std::string message);
    void Append(VFindings&& later);

    /// All of them, by document and position, with the documents' names. Where some were left out, one more says how
    /// many.
    std::vector<VDiagnostic> Sorted(NMemory::VDatabase const& database) const;

private:
    struct VKept {
        NMemory::VPosition position;
        VCode code;
        std::string message;
    };

    using VCounts = std::array<std::uint64_t, 3>; // by severity

    static std::size_t IndexOf(VSeverity severity) { return static_cast<std::size_t>(severity); }
    void Keep(VKept finding);
    void LeaveOut(NMemory::VPosition const& first, VCounts const& counts);
    VKept Closing() const;

    std::uint64_t m_limit;
    std::vector<VKept> m_findings;
    VCounts m_kept{};
    VCounts m_leftOut{};
    std::optional<NMemory::VPosition> m_firstLeftOut; // by position
};

} // namespace NReader
