// SPDX-License-Identifier: Apache-2.0
#include <cli/RunProgram.h>

#include <system_error>

namespace NCli {

VProgramRun RunProgram(std::vector<std::string> const& words, std::string_view input) {
    try {
        return RunUnguarded(words, input);
    } catch (std::system_error const& error) {
        VProgramRun run;
        run.errors = error.what();
        return run;
    }
}

} // namespace NCli
