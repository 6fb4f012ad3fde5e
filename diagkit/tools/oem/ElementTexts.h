// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include <diagkit/model/Text.h>

/// Texts of elements as the rules compare them: code unit by code unit; where case is ignored, only the ASCII letters
/// are folded, whatever locale the host has set.

namespace NDIAGKIT {

constexpr wchar_t ToLower(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character - L'A' + L'a') : character;
}

constexpr wchar_t ToUpper(wchar_t character) {
    return character >= L'a' && character <= L'z' ? static_cast<wchar_t>(character - L'a' + L'A') : character;
}

bool EqualsIgnoringCase(std::wstring_view left, std::wstring_view right);
bool StartsWithIgnoringCase(std::wstring_view text, std::wstring_view start);
bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part);

/// Whether a text is the concatenation of the parts.
template <class... Parts>
bool IsJoined(std::wstring_view text, Parts... parts) {
    auto const take = [&text](std::wstring_view part) {
        bool const starts = text.substr(0, part.size()) == part;
        text.remove_prefix(starts ? part.size() : 0);
        return starts;
    };
    return (take(parts) && ...) && text.empty();
}

/// The text of LONG-NAME; "" when there is none.
template <class Element>
std::wstring_view LongNameOf(Element& element) {
    return element.HasLongName() ? element.GetLongName().GetBaseMember() : L"";
}

/// @OID; "" when there is none.
template <class Element>
std::wstring_view OidOf(Element const& element) {
    return element.HasOid() ? element.GetOid() : L"";
}

} // namespace NDIAGKIT
