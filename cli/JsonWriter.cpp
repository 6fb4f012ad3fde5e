// SPDX-License-Identifier: Apache-2.0
#include <cli/JsonWriter.h>

#include <array>
#include <charconv>

#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

constexpr char32_t kNone = 0x110000; // beyond Unicode

/// The next character of a text, and its number of bytes; `kNone` for bytes that are at most the start of a character.
struct VCharacter {
    char32_t code;
    std::size_t length;
};

VCharacter FirstOf(std::string_view text) {
    auto const byteAt = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    unsigned char const first = byteAt(0);
    if (first < 0x80) {
        return {first, 1};
    }
    if (first < 0xC2 || first > 0xF4) {
        return {kNone, 1};
    }
    std::size_t const length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    // The second byte rules out overlong forms, surrogates and values beyond Unicode.
    unsigned char least = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    unsigned char most = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    char32_t code = first & (0xFFU >> (length + 1));
    for (std::size_t index = 1; index < length; ++index) {
        if (index == text.size() || byteAt(index) < least || byteAt(index) > most) {
            return {kNone, index};
        }
        code = (code << 6) | (byteAt(index) & 0x3FU);
        least = 0x80;
        most = 0xBF;
    }
    return {code, length};
}

bool StandsForItself(char32_t code) { return code != kNone && code != U'"' && code != U'\\' && !IsSteering(code); }

/// An escaped character; all control characters are below U+10000.
void WriteEscape(char32_t code, VOutput& output) {
    constexpr std::string_view kShort = "\"\\\b\f\n\r\t";
    constexpr std::string_view kLetters = "\"\\bfnrt";
    constexpr std::string_view kDigits = "0123456789abcdef";
    if (code == kNone) {
        output.Write("\xEF\xBF\xBD");
        return;
    }
    auto const place = code < 0x80 ? kShort.find(static_cast<char>(code)) : std::string_view::npos;
    output.Write(place != std::string_view::npos ? "\\" : "\\u");
    if (place != std::string_view::npos) {
        output.Write(kLetters.substr(place, 1));
        return;
    }
    for (int shift = 12; shift >= 0; shift -= 4) {
        output.Write(kDigits.substr((code >> shift) & 0xFU, 1));
    }
}

template <class Number>
void WriteDigits(Number number, VOutput& output) {
    std::array<char, 24> room{};
    auto const [end, error] = std::to_chars(room.data(), room.data() + room.size(), number);
    static_cast<void>(error); // there is room for every number
    output.Write({room.data(), static_cast<std::size_t>(end - room.data())});
}

} // namespace

void VJsonWriter::Value(std::nullptr_t) { WriteWord("null"); }

void VJsonWriter::Value(std::string_view text) {
    StartValue();
    WriteText(text);
}

void VJsonWriter::Value(std::wstring_view text) { Value(std::string_view(NReader::ToUtf8(text))); }

void VJsonWriter::TextOrNull(std::string_view name, std::string_view text) {
    Name(name);
    if (text.empty()) {
        Value(nullptr);
    } else {
        Value(text);
    }
}

void VJsonWriter::TextOrNull(std::string_view name, std::wstring_view text) {
    TextOrNull(name, std::string_view(NReader::ToUtf8(text)));
}

void VJsonWriter::Name(std::string_view name) {
    StartEntry();
    WriteText(name);
    m_output.Write(m_isIndented ? ": " : ":");
    m_isNamed = true;
}

void VJsonWriter::Open(std::string_view bracket) {
    StartValue();
    m_output.Write(bracket);
    ++m_depth;
    m_isFirst = true;
}

void VJsonWriter::Close(std::string_view bracket) {
    --m_depth;
    if (!m_isFirst) {
        StartLine();
    }
    m_output.Write(bracket);
    m_isFirst = false;
}

void VJsonWriter::WriteWord(std::string_view word) {
    StartValue();
    m_output.Write(word);
}

void VJsonWriter::WriteNumber(std::int64_t number) {
    StartValue();
    WriteDigits(number, m_output);
}

void VJsonWriter::WriteNumber(std::uint64_t number) {
    StartValue();
    WriteDigits(number, m_output);
}

void VJsonWriter::WriteText(std::string_view text) {
    m_output.Write("\"");
    std::size_t plain = 0; // bytes at the start that need no escape
    while (plain < text.size()) {
        VCharacter const character = FirstOf(text.substr(plain));
        if (StandsForItself(character.code)) {
            plain += character.length;
            continue;
        }
        m_output.Write(text.substr(0, plain));
        WriteEscape(character.code, m_output);
        text.remove_prefix(plain + character.length);
        plain = 0;
    }
    m_output.Write(text);
    m_output.Write("\"");
}

/// A member or item: after a comma unless it is the first, in a line of its own.
void VJsonWriter::StartEntry() {
    if (!m_isFirst) {
        m_output.Write(",");
    }
    m_isFirst = false;
    StartLine();
}

/// A value is an item itself unless it comes after a name, or is the document.
void VJsonWriter::StartValue() {
    if (!m_isNamed && m_depth > 0) {
        StartEntry();
    }
    m_isNamed = false;
}

void VJsonWriter::StartLine() {
    if (!m_isIndented) {
        return;
    }
    m_output.Write("\n");
    for (std::size_t level = 0; level < m_depth; ++level) {
        m_output.Write("  ");
    }
}

} // namespace NCli
