// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/LetterCase.h>

namespace NQuery {
namespace {

/// Capital letters, and how far after each its small one comes. With a step of 2 every other character is a capital.
struct VCapitals {
    int first;
    int last;
    int distance;
    int step;
};

// clang-format off
constexpr VCapitals kCapitals[] = {
    {0x0041, 0x005A, 32, 1}, {0x00C0, 0x00D6, 32, 1}, {0x00D8, 0x00DE, 32, 1},                          // Latin
    {0x0100, 0x012E, 1, 2},  {0x0132, 0x0136, 1, 2},  {0x0139, 0x0147, 1, 2}, {0x014A, 0x0176, 1, 2},
    {0x0178, 0x0178, -121, 1}, {0x0179, 0x017D, 1, 2}, {0x01CD, 0x01DB, 1, 2}, {0x01DE, 0x01EE, 1, 2},
    {0x01F8, 0x021E, 1, 2},  {0x0222, 0x0232, 1, 2},
    {0x0386, 0x0386, 38, 1}, {0x0388, 0x038A, 37, 1}, {0x038C, 0x038C, 64, 1}, {0x038E, 0x038F, 63, 1}, // Greek
    {0x0391, 0x03A1, 32, 1}, {0x03A3, 0x03AB, 32, 1},
    {0x0400, 0x040F, 80, 1}, {0x0410, 0x042F, 32, 1}, {0x0460, 0x0480, 1, 2},                           // Cyrillic
    {0x048A, 0x04BE, 1, 2},  {0x04C1, 0x04CD, 1, 2},  {0x04D0, 0x052E, 1, 2},
    {0x1E00, 0x1E94, 1, 2},  {0x1EA0, 0x1EFE, 1, 2},                                                    // Latin
};
// clang-format on

bool IsCapital(int code, VCapitals const& capitals) {
    return code >= capitals.first && code <= capitals.last && (code - capitals.first) % capitals.step == 0;
}

} // namespace

wchar_t SmallOf(wchar_t character) {
    int const code = static_cast<int>(character);
    for (VCapitals const& capitals : kCapitals) {
        if (IsCapital(code, capitals)) {
            return static_cast<wchar_t>(code + capitals.distance);
        }
        if (code < 0x80) { // the first row holds those of ASCII
            return character;
        }
    }
    return character;
}

wchar_t CapitalOf(wchar_t character) {
    int const code = static_cast<int>(character);
    for (VCapitals const& capitals : kCapitals) {
        if (IsCapital(code - capitals.distance, capitals)) {
            return static_cast<wchar_t>(code - capitals.distance);
        }
        if (code < 0x80) {
            return character;
        }
    }
    return character;
}

} // namespace NQuery
