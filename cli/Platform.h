// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdio>
#include <string>
#include <vector>

/// The differences between platforms, implemented in `Platform_posix.cpp` and `Platform_win32.cpp`.

namespace NCli {

void PreparePlatform(); ///< once, before anything is written

/// The words after the program's name.
std::vector<std::string> ArgumentsInUtf8(int count, char** words);

bool IsTerminal(std::FILE* stream); ///< whether it understands escape sequences

} // namespace NCli
