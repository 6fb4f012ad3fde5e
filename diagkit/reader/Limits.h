// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace NReader {

/// Limits for input, so that no input uses more memory or time than its reader is ready to give. Real databases do not
/// reach them. Input beyond a limit gives one diagnostic ("too-large", "too-many", "too-deep", "too-compressed"), which
/// names the limit, its value and the option of the program `diagkit` that raises it. A member of a package is then
/// left out; a file that the caller named is refused, and so is a package as a whole where the limit is one of
/// packages.
struct VReadLimits {
    std::uint64_t maxFileSize = std::uint64_t{4} << 30;    ///< bytes of one document or package on disk
    std::uint64_t maxMembers = 100'000;                    ///< members of one package, documents or not
    std::uint64_t maxMemberSize = std::uint64_t{1} << 30;  ///< unpacked bytes of one member of a package
    std::uint64_t maxPackageSize = std::uint64_t{4} << 30; ///< unpacked bytes of all members read of one package
    /// Unpacked bytes of a member for each packed one. Checked from 16 MiB unpacked on: repetitive texts pack well, and
    /// small members do no harm.
    std::uint64_t maxRatio = 500;
    std::uint64_t maxElements = 50'000'000;               ///< of one document, including those that are left out
    std::uint64_t maxDepth = 1000;                        ///< nesting depth of elements
    std::uint64_t maxAttributes = 1000;                   ///< of one element
    std::uint64_t maxTagSize = std::uint64_t{8} << 20;    ///< bytes of one tag, comment or processing instruction
    std::uint64_t maxTextSize = std::uint64_t{256} << 20; ///< bytes in UTF-8 of one text, tags inside it among them
    /// Errors that are kept, and warnings, and notes: so many of each. The others are left out and counted, in one
    /// diagnostic at the first of them ("too-many-diagnostics"). Nothing is refused.
    std::uint64_t maxDiagnostics = 100'000;
};

/// "WHAT LIMIT UNIT; OPTION allows more": the end of every message about a limit.
std::string OverLimit(std::string const& what, std::uint64_t limit, char const* unit, char const* option);

} // namespace NReader
