// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace NCli {

/// The result of running a program.
struct VProgramRun {
    enum class VOutcome {
        Done,     ///< it ended with status 0
        Failed,   ///< it could not be started, or failed
        NotFound, ///< no folder of PATH has it
    };

    VOutcome outcome = VOutcome::Failed;
    std::string output; ///< its standard output
    std::string errors; ///< its standard error, or why it could not be started; truncated when long
};

/// Runs a program from a folder of PATH, without a shell: passes the words and, on standard input, the text, and waits
/// for its end. However much both sides write, there is no deadlock.
VProgramRun RunProgram(std::vector<std::string> const& words, std::string_view input);

/// The same, but it throws std::system_error if a system call fails. The bodies are in
/// `RunProgram_posix.cpp` and `RunProgram_win32.cpp`.
VProgramRun RunUnguarded(std::vector<std::string> const& words, std::string_view input);

inline constexpr std::size_t kMostErrors = 4096; ///< limit for standard error

} // namespace NCli
