// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

constexpr std::size_t kLongestQuotation = 200;
constexpr std::size_t kMostListed = 5;

/// "PROTOCOLs", "MUXes"
std::wstring InPlural(std::wstring_view noun) {
    bool const isHissing = noun.back() == L'S' || noun.back() == L'X';
    return std::wstring(noun) + (isHissing ? L"es" : L"s");
}

} // namespace

std::wstring Quoted(std::wstring_view text) {
    bool const isLong = text.size() > kLongestQuotation;
    return L"'" + std::wstring(text.substr(0, kLongestQuotation)) + (isLong ? L"'..." : L"'");
}

std::wstring Stated(std::wstring_view noun, std::wstring_view text) {
    return text.empty() ? L"no " + std::wstring(noun) : L"the " + std::wstring(noun) + L' ' + Quoted(text);
}

std::wstring Counted(std::size_t count, std::wstring_view noun) {
    return (count == 0 ? L"no" : std::to_wstring(count)) + L' ' + (count > 1 ? InPlural(noun) : std::wstring(noun));
}

std::wstring LookedAt(std::wstring_view found, std::size_t count, std::wstring_view noun) {
    std::wstring const counted = Counted(count, noun);
    return count == 0 ? counted : std::wstring(found) + L"; " + counted + L" looked at";
}

std::wstring OneOfTwo(std::wstring_view first, bool isFirstThere, std::wstring_view second, bool isSecondThere) {
    if (isFirstThere == isSecondThere) {
        return L"neither";
    }
    return L"only " + Quoted(isFirstThere ? first : second);
}

void VListing::Add(std::wstring_view text) {
    if (m_count++ < kMostListed) {
        m_text.append(m_text.empty() ? L"" : L", ").append(text);
    }
}

std::wstring VListing::As(std::wstring_view noun) const {
    if (m_count == 0) {
        return Counted(0, noun);
    }
    return L"the " + (m_count > 1 ? InPlural(noun) : std::wstring(noun)) + L' ' + Text();
}

std::wstring VListing::Text() const {
    return m_count <= kMostListed ? m_text : m_text + L" and " + std::to_wstring(m_count - kMostListed) + L" more";
}

} // namespace NDIAGKIT
