// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Encodings.h>

#include <string>

namespace NReader {
namespace {

// What Windows-1252 has at 0x80 to 0x9F; the five codes it leaves open are the control characters of the same number.
constexpr int kWindows1252[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string Folded(char const* name) {
    std::string folded;
    for (; *name != '\0'; ++name) {
        folded += *name >= 'A' && *name <= 'Z' ? static_cast<char>(*name - 'A' + 'a') : *name;
    }
    return folded;
}

} // namespace

char const* KnownEncodings() { return "UTF-8, UTF-16, US-ASCII, ISO-8859-1, ISO-8859-15 and Windows-1252"; }

bool FillEncoding(char const* name, int (&map)[256]) {
    std::string const folded = Folded(name);
    bool const isWindows1252 = folded == "windows-1252" || folded == "cp1252" || folded == "cp-1252";
    bool const isLatin9 = folded == "iso-8859-15";
    if (!isWindows1252 && !isLatin9) {
        return false;
    }
    for (int byte = 0; byte < 256; ++byte) {
        map[byte] = byte;
    }
    if (isWindows1252) {
        for (int index = 0; index < 32; ++index) {
            map[0x80 + index] = kWindows1252[index];
        }
        return true;
    }
    constexpr int kLatin9[][2] = {{0xA4, 0x20AC}, {0xA6, 0x0160}, {0xA8, 0x0161}, {0xB4, 0x017D},
                                  {0xB8, 0x017E}, {0xBC, 0x0152}, {0xBD, 0x0153}, {0xBE, 0x0178}};
    for (auto const& [byte, character] : kLatin9) {
        map[byte] = character;
    }
    return true;
}

} // namespace NReader
