// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace NReader {

/// What the system says of its latest error, where that is more than a number of C's can say; otherwise "".
std::string ReasonBeyondErrno();

} // namespace NReader
