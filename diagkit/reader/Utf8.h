// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace NReader {

/// Wide text as UTF-8; what is not a character (a lone surrogate, a value beyond Unicode) becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// UTF-8 as wide text: UTF-16 where wchar_t has 16 bits, elsewhere one code point per character. Each byte that is not
/// UTF-8 becomes U+FFFD.
std::wstring FromUtf8(std::string_view text);

/// The same at the end of a text that is kept, for callers that convert piece by piece.
void AppendFromUtf8(std::wstring& target, std::string_view text);

/// Whether the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view text);

} // namespace NReader
