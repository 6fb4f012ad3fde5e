// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/SystemReason.h>

#include <system_error>

#include <windows.h>

namespace NReader {

std::string ReasonBeyondErrno() { return std::system_category().message(static_cast<int>(GetLastError())); }

} // namespace NReader
