// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/CodePages.h>

#include <windows.h>

namespace NPavonaUtil {

std::uint32_t ConvertCodePage(std::uint32_t codePage, char const* text, std::uint32_t length, wchar_t* buffer,
                              std::uint32_t capacity) {
    return static_cast<std::uint32_t>(
        MultiByteToWideChar(codePage, 0, text, static_cast<int>(length), buffer, static_cast<int>(capacity)));
}

} // namespace NPavonaUtil
