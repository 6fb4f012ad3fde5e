// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace NCli {

/// The message when memory is exhausted.
inline constexpr char const* kOutOfMemory = "diagkit: out of memory\n";

/// Standard output, and the program's own messages on standard error. A failed write is remembered; everything after it
/// is discarded, and `Finish` reports it.
class VOutput {
public:
    VOutput();

    void Write(std::string_view text);

    /// The text as a heading: emphasised when standard output is a terminal and NO_COLOR is unset.
    std::string Heading(std::string_view text) const;

    /// A message of the program about the call itself; --quiet does not silence it.
    void Complain(std::string_view message) const;

    /// The same for `kOutOfMemory`, without allocating memory.
    void ComplainOfNoMemory() const noexcept;

    bool HasFailed() const { return m_error != 0; } ///< long work may then stop

    bool Finish(); ///< false, with a message, when not everything could be written

private:
    void Flush() const noexcept;

    bool m_isColoured;
    mutable int m_error = 0; // errno of the first write that failed, which complaining may notice
};

} // namespace NCli
