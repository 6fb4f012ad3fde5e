// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Encodings.h>

#include <string>

#include <diagkit/reader/Ascii.h>

namespace NReader {
namespace {

// The characters of Windows-1252 from 0x80 to 0x9F; the five unassigned codes are the control characters of the same
// number.
constexpr int kWindows1252[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct VEncodingName {
    std::string_view plain;    ///< in lower case, without hyphens and underscores
    std::string_view encoding; ///< for the XML parser
};

constexpr std::string_view kWindows = "windows-1252";
constexpr std::string_view kLatin9 = "iso-8859-15";

// clang-format off
constexpr VEncodingName kNames[] = {
    {"utf8",        "UTF-8"},
    {"utf16",       "UTF-16"},
    {"utf16le",     "UTF-16LE"},
    {"utf16be",     "UTF-16BE"},
    {"ascii",       "US-ASCII"},
    {"usascii",     "US-ASCII"},
    {"iso88591",    kWindows},
    {"latin1",      kWindows},
    {"windows1252", kWindows},
    {"win1252",     kWindows},
    {"cp1252",      kWindows},
    {"iso885915",   kLatin9},
    {"latin9",      kLatin9},
};
// clang-format on

std::string Plain(std::string_view name) {
    std::string plain;
    for (char const character : name) {
        if (character != '-' && character != '_') {
            plain += Lower(character);
        }
    }
    return plain;
}

} // namespace

char const* KnownEncodings() { return "UTF-8, UTF-16, US-ASCII, ISO-8859-1, ISO-8859-15 and Windows-1252"; }

std::string_view EncodingOf(std::string_view declared) {
    std::string const plain = Plain(declared);
    for (VEncodingName const& row : kNames) {
        if (row.plain == plain) {
            return row.encoding;
        }
    }
    return {};
}

bool IsLatin1(std::string_view declared) {
    std::string const plain = Plain(declared);
    return plain == "iso88591" || plain == "latin1";
}

bool IsOneByteEncoding(std::string_view encoding) { return encoding == kWindows || encoding == kLatin9; }

bool HasCharacter(std::string_view declared, unsigned char byte) {
    if (byte < 0x80 || byte > 0x9F) {
        return true;
    }
    return EncodingOf(declared) == kWindows && !IsLatin1(declared) && kWindows1252[byte - 0x80] != byte;
}

bool FillEncoding(char const* name, int (&map)[256]) {
    std::string_view const encoding = EncodingOf(name);
    if (!IsOneByteEncoding(encoding)) {
        return false;
    }
    for (int byte = 0; byte < 256; ++byte) {
        map[byte] = byte;
    }
    if (encoding == kWindows) {
        for (int index = 0; index < 32; ++index) {
            map[0x80 + index] = kWindows1252[index];
        }
        return true;
    }
    constexpr int kOwn[][2] = {{0xA4, 0x20AC}, {0xA6, 0x0160}, {0xA8, 0x0161}, {0xB4, 0x017D},
                               {0xB8, 0x017E}, {0xBC, 0x0152}, {0xBD, 0x0153}, {0xBE, 0x0178}};
    for (auto const& [byte, character] : kOwn) {
        map[byte] = character;
    }
    return true;
}

} // namespace NReader
