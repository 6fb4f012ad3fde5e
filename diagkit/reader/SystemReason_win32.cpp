// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/SystemReason.h>

#include <system_error>

#include <windows.h>

namespace NReader {

std::string ReasonBeyondErrno() {
    DWORD const number = GetLastError();
    return number == ERROR_SUCCESS ? std::string() : std::system_category().message(static_cast<int>(number));
}

} // namespace NReader
