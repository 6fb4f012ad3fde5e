// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/SystemReason.h>

namespace NReader {

std::string ReasonBeyondErrno() { return {}; }

} // namespace NReader
