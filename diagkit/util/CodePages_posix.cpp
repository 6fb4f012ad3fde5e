// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/CodePages.h>

#include <algorithm>
#include <array>

namespace NPavonaUtil {
namespace {

constexpr std::uint32_t kWestern = 1252;

/// The codes 0x80 to 0x9F of Windows-1252; all others are their own Unicode. The page leaves five open (81, 8D, 8F, 90
/// and 9D), which Windows maps to the control characters of the same codes.
constexpr std::array<wchar_t, 32> kUpperControls{
    L'\x20AC', L'\x0081', L'\x201A', L'\x0192', L'\x201E', L'\x2026', L'\x2020', L'\x2021', //
    L'\x02C6', L'\x2030', L'\x0160', L'\x2039', L'\x0152', L'\x008D', L'\x017D', L'\x008F', //
    L'\x0090', L'\x2018', L'\x2019', L'\x201C', L'\x201D', L'\x2022', L'\x2013', L'\x2014', //
    L'\x02DC', L'\x2122', L'\x0161', L'\x203A', L'\x0153', L'\x009D', L'\x017E', L'\x0178'};

wchar_t Converted(char byte) {
    auto const code = static_cast<unsigned char>(byte);
    return code >= 0x80 && code < 0xA0 ? kUpperControls[code - 0x80U] : static_cast<wchar_t>(code);
}

} // namespace

std::uint32_t ConvertCodePage(std::uint32_t codePage, char const* text, std::uint32_t length, wchar_t* buffer,
                              std::uint32_t capacity) {
    if (codePage != kWestern || length == 0) {
        return 0;
    }
    if (capacity == 0) {
        return length;
    }
    if (capacity < length) {
        return 0;
    }
    std::transform(text, text + length, buffer, &Converted);
    return length;
}

} // namespace NPavonaUtil
