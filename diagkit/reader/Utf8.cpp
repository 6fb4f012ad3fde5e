// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace NReader {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr bool kIsUtf16 = sizeof(wchar_t) == 2;

void AppendUtf8(std::string& target, char32_t character) {
    auto const byte = [&target](char32_t value) { target += static_cast<char>(static_cast<unsigned char>(value)); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | (character >> 6));
        byte(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        byte(0xE0 | (character >> 12));
        byte(0x80 | ((character >> 6) & 0x3F));
        byte(0x80 | (character & 0x3F));
    } else {
        byte(0xF0 | (character >> 18));
        byte(0x80 | ((character >> 12) & 0x3F));
        byte(0x80 | ((character >> 6) & 0x3F));
        byte(0x80 | (character & 0x3F));
    }
}

void AppendWide(std::wstring& target, char32_t character) {
    if constexpr (kIsUtf16) {
        if (character >= 0x10000) {
            char32_t const rest = character - 0x10000;
            target += static_cast<wchar_t>(0xD800 + (rest >> 10));
            target += static_cast<wchar_t>(0xDC00 + (rest & 0x3FF));
            return;
        }
    }
    target += static_cast<wchar_t>(character);
}

bool IsSurrogate(char32_t value) { return value >= 0xD800 && value <= 0xDFFF; }

/// One character of UTF-8 and its number of bytes; no character where the bytes are not one.
struct VDecoded {
    char32_t character;
    std::size_t length;
    bool isValid;
};

VDecoded Decode(std::string_view text, std::size_t at) {
    auto const byteAt = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    unsigned char const first = byteAt(at);
    if (first < 0x80) {
        return {first, 1, true};
    }
    std::size_t const length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (first < 0xC2 || first > 0xF4 || at + length > text.size()) {
        return {kReplacement, 1, false};
    }
    char32_t character = first & (0xFFU >> (length + 1));
    for (std::size_t index = 1; index < length; ++index) {
        unsigned char const next = byteAt(at + index);
        if ((next & 0xC0) != 0x80) {
            return {kReplacement, 1, false};
        }
        character = (character << 6) | (next & 0x3F);
    }
    if (character < kSmallest[length] || character > 0x10FFFF || IsSurrogate(character)) {
        return {kReplacement, 1, false};
    }
    return {character, length, true};
}

/// How many bytes at the start are ASCII.
std::size_t AsciiLength(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t index = 0;
    for (std::uint64_t eight = 0; index + sizeof eight <= text.size(); index += sizeof eight) {
        std::memcpy(&eight, text.data() + index, sizeof eight);
        if ((eight & kHighBits) != 0) {
            break;
        }
    }
    while (index < text.size() && static_cast<unsigned char>(text[index]) < 0x80) {
        ++index;
    }
    return index;
}

} // namespace

std::string ToUtf8(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        auto character = static_cast<char32_t>(static_cast<std::make_unsigned_t<wchar_t>>(text[index]));
        if (kIsUtf16 && character >= 0xD800 && character <= 0xDBFF && index + 1 < text.size()) {
            auto const low = static_cast<char32_t>(static_cast<std::make_unsigned_t<wchar_t>>(text[index + 1]));
            if (low >= 0xDC00 && low <= 0xDFFF) {
                character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
                ++index;
            }
        }
        AppendUtf8(result, IsSurrogate(character) || character > 0x10FFFF ? kReplacement : character);
    }
    return result;
}

void AppendFromUtf8(std::wstring& target, std::string_view text) {
    // Nearly all texts are ASCII, every byte of which is a character.
    std::size_t const before = target.size();
    std::size_t index = AsciiLength(text);
    target.resize(before + index);
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(index),
                   target.begin() + static_cast<std::ptrdiff_t>(before),
                   [](char character) { return static_cast<wchar_t>(static_cast<unsigned char>(character)); });
    while (index < text.size()) {
        VDecoded const decoded = Decode(text, index);
        AppendWide(target, decoded.character);
        index += decoded.length;
    }
}

std::wstring FromUtf8(std::string_view text) {
    std::wstring result;
    AppendFromUtf8(result, text);
    return result;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t index = 0; index < text.size();) {
        VDecoded const decoded = Decode(text, index);
        if (!decoded.isValid) {
            return false;
        }
        index += decoded.length;
    }
    return true;
}

} // namespace NReader
