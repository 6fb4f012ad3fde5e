// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace NPavonaUtil {

/// What the platform does about code pages, with the rules of `MultiByteToWideChar`: the number of characters written,
/// 0 on failure; with a capacity of 0 nothing is written and the number that there would be is returned. Lengths and
/// capacities fit in an int.
std::uint32_t ConvertCodePage(std::uint32_t codePage, char const* text, std::uint32_t length, wchar_t* buffer,
                              std::uint32_t capacity);

} // namespace NPavonaUtil
