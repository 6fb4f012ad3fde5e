// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <diagkit/reader/ElementTable.h>

namespace NReader {

void Trim(std::wstring& text); ///< blanks, tabs and line ends at both ends

/// Whether a text is a value of its kind, as XML Schema writes them. An empty text is never a number.
bool IsValue(VContent content, std::wstring_view text);
char const* ValueText(VContent content); ///< "unsigned integer", for messages

bool IsTrue(std::wstring_view text);  ///< 1, or true in any case
bool IsFalse(std::wstring_view text); ///< 0, or false in any case

bool IsLiteral(wchar_t const* const* literals, std::wstring_view text);
std::string LiteralsText(wchar_t const* const* literals); ///< "HEX, DEC, BIN, OCT"

/// Appends text in the form used in XML, with markup characters escaped.
void AppendEscaped(std::string& target, std::string_view text);

} // namespace NReader
