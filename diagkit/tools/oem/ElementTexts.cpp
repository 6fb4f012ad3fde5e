// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ElementTexts.h>

#include <algorithm>

namespace NDIAGKIT {
namespace {

bool IsSameLetter(wchar_t left, wchar_t right) { return ToLower(left) == ToLower(right); }

} // namespace

bool EqualsIgnoringCase(std::wstring_view left, std::wstring_view right) {
    return left.size() == right.size() && StartsWithIgnoringCase(left, right);
}

bool StartsWithIgnoringCase(std::wstring_view text, std::wstring_view start) {
    return text.size() >= start.size() && std::equal(start.begin(), start.end(), text.begin(), &IsSameLetter);
}

bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part) {
    return std::search(text.begin(), text.end(), part.begin(), part.end(), &IsSameLetter) != text.end() || part.empty();
}

} // namespace NDIAGKIT
