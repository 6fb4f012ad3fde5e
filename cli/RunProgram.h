// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace NCli {

/// What came of running a program.
struct VProgramRun {
    enum class VOutcome {
        Done,     ///< it ended with status 0
        Failed,   ///< it could not be started, or ended otherwise
        NotFound, ///< no folder of PATH has it
    };

    VOutcome outcome = VOutcome::Failed;
    std::string output; ///< what it wrote to standard output
    std::string errors; ///< what it wrote to standard error, or why it could not be started; the start of it when long
};

/// Runs a program that a folder of PATH has, without a shell: gives it the words and, on standard input, the text, and
/// waits for its end. However much both sides write, neither waits for the other for ever.
VProgramRun RunProgram(std::vector<std::string> const& words, std::string_view input);

/// The same, but it throws std::system_error where the system refuses something. The bodies are in
/// `RunProgram_posix.cpp` and `RunProgram_win32.cpp`.
VProgramRun RunUnguarded(std::vector<std::string> const& words, std::string_view input);

inline constexpr std::size_t kMostErrors = 4096; ///< of standard error that is kept

} // namespace NCli
