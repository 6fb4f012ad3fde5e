// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

namespace NCli {

/// Standard output, and the program's own messages on standard error. A write that fails is remembered; what follows it
/// is dropped, and `Finish` says so.
class VOutput {
public:
    VOutput();

    void Write(std::string_view text);
    void WriteJson(nlohmann::ordered_json const& document);
    void WriteJsonLine(nlohmann::ordered_json const& document); ///< one of several documents, as JSON Lines

    /// The text as a heading: emphasised when standard output is a terminal and NO_COLOR is unset.
    std::string Heading(std::string_view text) const;

    /// A message of the program about the call itself; --quiet does not silence it.
    void Complain(std::string_view message) const;

    bool HasFailed() const { return m_error != 0; } ///< long work may as well end

    bool Finish(); ///< false, with a message, when not everything could be written

private:
    bool m_isColoured;
    mutable int m_error = 0; // errno of the first write that failed, which complaining may notice
};

} // namespace NCli
