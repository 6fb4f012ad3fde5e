// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace NPavonaUtil {

/// The code-page conversion of the platform, with the rules of `MultiByteToWideChar`: returns the number of characters
/// written, 0 on failure; with a capacity of 0 nothing is written and the required number is returned. Lengths and
/// capacities fit in an int.
std::uint32_t ConvertCodePage(std::uint32_t codePage, char const* text, std::uint32_t length, wchar_t* buffer,
                              std::uint32_t capacity);

} // namespace NPavonaUtil
