// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace NReader {

/// What Windows says of the latest error of this thread; "" elsewhere, where errno tells all.
std::string ReasonBeyondErrno();

} // namespace NReader
