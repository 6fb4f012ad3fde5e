// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

/// Wide texts as UTF-16. Where `wchar_t` has 16 bits a text is in UTF-16; elsewhere one `wchar_t` may represent two
/// code units, and order and lengths would differ between platforms. Unpaired surrogates, and values that are not
/// characters, count as one unit of their value.

namespace NPavonaUtil {

/// How many code units a character takes: 2 above U+FFFF, else 1.
template <class Character>
constexpr int Utf16Length(Character character) {
    if constexpr (sizeof(Character) == 2) {
        return 1;
    } else {
        auto const code = static_cast<char32_t>(character);
        return code > 0xFFFF && code <= 0x10FFFF ? 2 : 1;
    }
}

/// The first code unit of a character, or the only one.
template <class Character>
constexpr Character FirstUtf16Unit(Character character) {
    auto const code = static_cast<char32_t>(character);
    return Utf16Length(character) == 1 ? character : static_cast<Character>(0xD800 + ((code - 0x10000) >> 10));
}

/// The second code unit of a character that takes two.
template <class Character>
constexpr Character SecondUtf16Unit(Character character) {
    return static_cast<Character>(0xDC00 + ((static_cast<char32_t>(character) - 0x10000) & 0x3FF));
}

/// The code units of a text, one after the other.
template <class Character>
class VUtf16Units {
public:
    explicit VUtf16Units(std::basic_string_view<Character> text) : m_rest(text) {} ///< has to outlive this object

    bool IsAtEnd() const { return m_rest.empty(); }
    /// REQUIRES: not at the end.
    char32_t Next() {
        Character const character = m_rest.front();
        bool const isSecond = m_isSecond;
        m_isSecond = !isSecond && Utf16Length(character) == 2;
        if (!m_isSecond) {
            m_rest.remove_prefix(1);
        }
        return static_cast<char32_t>(isSecond ? SecondUtf16Unit(character) : FirstUtf16Unit(character));
    }

private:
    std::basic_string_view<Character> m_rest;
    bool m_isSecond = false;
};

/// Advances a position, `Step` characters at a time, as long as two texts are equal from there.
template <std::size_t Step, class Character>
void SkipEqual(std::basic_string_view<Character> left, std::basic_string_view<Character> right, std::size_t& at) {
    std::size_t const size = left.size() < right.size() ? left.size() : right.size();
    while (size - at >= Step && std::memcmp(left.data() + at, right.data() + at, Step * sizeof(Character)) == 0) {
        at += Step;
    }
}

/// Whether a text comes before another one, compared unit by unit.
template <class Character>
bool AreUnitsLess(VUtf16Units<Character> left, VUtf16Units<Character> right) {
    while (!left.IsAtEnd() && !right.IsAtEnd()) {
        char32_t const leftUnit = left.Next();
        char32_t const rightUnit = right.Next();
        if (leftUnit != rightUnit) {
            return leftUnit < rightUnit;
        }
    }
    return left.IsAtEnd() && !right.IsAtEnd();
}

/// Whether a text comes before another one, compared by UTF-16 code units. Characters above U+FFFF therefore come
/// before U+E000.
template <class Character>
bool IsLessInUtf16(std::basic_string_view<Character> left, std::basic_string_view<Character> right) {
    std::size_t at = 0; // where they differ; speed matters for maps of names with long common prefixes
    SkipEqual<16>(left, right, at);
    SkipEqual<4>(left, right, at);
    SkipEqual<1>(left, right, at);
    if (at == left.size() || at == right.size()) {
        return left.size() < right.size();
    }
    auto const leftCode = static_cast<char32_t>(left[at]);
    auto const rightCode = static_cast<char32_t>(right[at]);
    if (sizeof(Character) == 2 || leftCode < 0xD800 || rightCode < 0xD800) { // one is below all surrogates
        return leftCode < rightCode;
    }
    return AreUnitsLess(VUtf16Units(left.substr(at)), VUtf16Units(right.substr(at)));
}

/// That order, for maps whose keys are wide texts.
struct VUtf16Less {
    using is_transparent = void;

    bool operator()(std::wstring_view left, std::wstring_view right) const { return IsLessInUtf16(left, right); }
};

} // namespace NPavonaUtil
