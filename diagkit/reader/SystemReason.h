// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace NReader {

/// The Windows message for the latest error of this thread; "" elsewhere, where errno is sufficient.
std::string ReasonBeyondErrno();

} // namespace NReader
