// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include <diagkit/reader/Diagnostic.h>

namespace NCheck {

using NReader::VCode;

/// Every code of the reader and of `CheckDatabase`, in alphabetical order.
std::vector<VCode> const& Codes();

/// The row of a code; null for a text that is not a code.
VCode const* FindCode(std::string_view code);

} // namespace NCheck
