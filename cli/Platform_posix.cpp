// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Platform.h>

#include <unistd.h>

namespace NCli {

void PreparePlatform() {}

std::vector<std::string> ArgumentsInUtf8(int count, char** words) {
    return count > 1 ? std::vector<std::string>(words + 1, words + count) : std::vector<std::string>();
}

bool IsTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

} // namespace NCli
