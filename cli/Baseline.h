// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <stdexcept>
#include <string>

#include <diagkit/reader/Diagnostic.h>

namespace NCli {

/// The findings of an earlier `check`, which no longer count.
///
/// A finding is recognised by file, code and message, so it may have moved to another line. Each finding of the
/// baseline covers one: of three equal ones, of which two were there, one is new.
class VBaseline {
public:
    VBaseline() = default; ///< covers nothing

    /// Reads the result of an earlier `check` in JSON or SARIF. Throws std::runtime_error with a message for a file
    /// that cannot be read or is neither.
    explicit VBaseline(std::string const& file);

    bool Covers(NReader::VDiagnostic const& diagnostic); ///< covers it only once

private:
    std::map<std::string, std::size_t> m_left; ///< findings, by file, code and message
    bool m_isSarif = false;
};

} // namespace NCli
