// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Values.h>

#include <algorithm>

#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

bool IsHexDigit(wchar_t character) {
    return IsDigit(character) || (character >= L'a' && character <= L'f') || (character >= L'A' && character <= L'F');
}

bool AreDigits(std::wstring_view text) { return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit); }

std::wstring_view WithoutSign(std::wstring_view text) {
    return !text.empty() && (text.front() == L'-' || text.front() == L'+') ? text.substr(1) : text;
}

bool IsDouble(std::wstring_view text) {
    if (text == L"INF" || text == L"-INF" || text == L"NaN") {
        return true;
    }
    auto const exponent = text.find_first_of(L"eE");
    if (exponent != std::wstring_view::npos && !AreDigits(WithoutSign(text.substr(exponent + 1)))) {
        return false;
    }
    std::wstring_view const mantissa = WithoutSign(text.substr(0, exponent));
    auto const point = mantissa.find(L'.');
    std::wstring_view const whole = mantissa.substr(0, point);
    std::wstring_view const rest = point == std::wstring_view::npos ? L"" : mantissa.substr(point + 1);
    bool const isEmpty = whole.empty() && rest.empty();
    return !isEmpty && (whole.empty() || AreDigits(whole)) && (rest.empty() || AreDigits(rest));
}

/// `lower` is in lower case.
bool EqualsFolded(std::wstring_view text, std::wstring_view lower) {
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [](wchar_t a, wchar_t b) { return (a >= L'A' && a <= L'Z' ? a - L'A' + L'a' : a) == b; });
}

/// xs:dateTime: 2005-06-01T12:00:00, with fractions of a second and a zone where they are given.
bool IsDate(std::wstring_view text) {
    constexpr std::wstring_view kShape = L"0000-00-00T00:00:00";
    if (text.size() < kShape.size()) {
        return false;
    }
    for (std::size_t index = 0; index < kShape.size(); ++index) {
        bool const fits = kShape[index] == L'0' ? IsDigit(text[index]) : text[index] == kShape[index];
        if (!fits) {
            return false;
        }
    }
    text.remove_prefix(kShape.size());
    if (!text.empty() && text.front() == L'.') {
        auto const end = text.find_first_of(L"Z+-");
        if (!AreDigits(text.substr(1, end == std::wstring_view::npos ? end : end - 1))) {
            return false;
        }
        text = end == std::wstring_view::npos ? std::wstring_view() : text.substr(end);
    }
    if (text.empty() || text == L"Z") {
        return true;
    }
    return text.size() == 6 && (text.front() == L'+' || text.front() == L'-') && AreDigits(text.substr(1, 2)) &&
           text[3] == L':' && AreDigits(text.substr(4, 2));
}

} // namespace

void Trim(std::wstring& text) {
    auto const isBlank = [](wchar_t character) {
        return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
    };
    if (text.empty() || (!isBlank(text.front()) && !isBlank(text.back()))) {
        return; // as nearly all are
    }
    auto const first = text.find_first_not_of(L" \t\r\n");
    if (first == std::wstring::npos) {
        text.clear();
        return;
    }
    text.erase(text.find_last_not_of(L" \t\r\n") + 1);
    text.erase(0, first);
}

bool IsValue(VContent content, std::wstring_view text) {
    if (text.empty()) {
        return content != VContent::Uint && content != VContent::Int && content != VContent::Double;
    }
    switch (content) {
    case VContent::Text:
    case VContent::Name:
        return true;
    case VContent::Uint:
        return AreDigits(text.front() == L'+' ? text.substr(1) : text);
    case VContent::Int:
        return AreDigits(WithoutSign(text));
    case VContent::Double:
        return IsDouble(text);
    case VContent::Bool:
        return IsTrue(text) || IsFalse(text);
    case VContent::Hex:
        return text.size() % 2 == 0 && std::all_of(text.begin(), text.end(), IsHexDigit);
    case VContent::Date:
        return IsDate(text);
    }
    return true;
}

char const* ValueText(VContent content) {
    switch (content) {
    case VContent::Text:
    case VContent::Name:
        return "text";
    case VContent::Uint:
        return "unsigned integer";
    case VContent::Int:
        return "integer";
    case VContent::Double:
        return "number";
    case VContent::Bool:
        return "boolean (true or false)";
    case VContent::Hex:
        return "even number of hex digits";
    case VContent::Date:
        return "date with time (such as 2005-06-01T12:00:00)";
    }
    return "";
}

bool IsTrue(std::wstring_view text) { return text == L"1" || EqualsFolded(text, L"true"); }
bool IsFalse(std::wstring_view text) { return text == L"0" || EqualsFolded(text, L"false"); }

bool IsLiteral(wchar_t const* const* literals, std::wstring_view text) {
    for (; *literals != nullptr; ++literals) {
        if (text == *literals) {
            return true;
        }
    }
    return false;
}

std::string LiteralsText(wchar_t const* const* literals) {
    std::string text;
    for (; *literals != nullptr; ++literals) {
        text += text.empty() ? "" : ", ";
        text += ToUtf8(*literals);
    }
    return text;
}

void AppendEscaped(std::string& target, std::string_view text) {
    for (char const character : text) {
        switch (character) {
        case '<':
            target += "&lt;";
            break;
        case '>':
            target += "&gt;";
            break;
        case '&':
            target += "&amp;";
            break;
        case '"':
            target += "&quot;";
            break;
        default:
            target += character;
        }
    }
}

} // namespace NReader
