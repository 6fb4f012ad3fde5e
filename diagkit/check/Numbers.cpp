// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Numbers.h>

#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <system_error>

namespace NCheck {
namespace {

constexpr std::size_t kMostCharacters = 400; // characters of a number; a text may be of many megabytes

/// The characters without blanks around them; "" where some are none of a number's, or too many.
std::string Narrow(wchar_t const* wide) {
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    std::wstring_view text = wide;
    std::size_t const first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos) {
        return "";
    }
    text = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
    std::string narrow;
    for (wchar_t const character : text.substr(0, kMostCharacters + 1)) {
        if (character <= L' ' || character > L'~') {
            return "";
        }
        narrow += static_cast<char>(character);
    }
    return narrow.size() <= kMostCharacters ? narrow : "";
}

template <class Number, class... Base>
std::optional<Number> Whole(std::string_view text, Base... base) {
    Number number{};
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base...);
    bool const isAll = error == std::errc() && end == text.data() + text.size();
    return isAll ? std::optional<Number>(number) : std::nullopt;
}

} // namespace

std::optional<double> NumberIn(wchar_t const* text) {
    std::string const narrow = Narrow(text);
    std::string_view digits = narrow;
    if (!digits.empty() && digits.front() == '+') {
        digits.remove_prefix(1);
    }
    auto const number = Whole<double>(digits);
    return number.has_value() && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<VWhole> WholeIn(wchar_t const* text) {
    std::string const narrow = Narrow(text);
    std::string_view digits = narrow;
    bool const isNegative = !digits.empty() && digits.front() == '-';
    if (isNegative || (!digits.empty() && digits.front() == '+')) {
        digits.remove_prefix(1);
    }
    std::string_view const prefix = digits.substr(0, 2);
    bool const isHex = prefix == "0x" || prefix == "0X";
    auto const amount = isHex ? Whole<std::uint64_t>(digits.substr(2), 16) : Whole<std::uint64_t>(digits, 10);
    return amount.has_value() ? std::optional<VWhole>({isNegative && *amount != 0, *amount}) : std::nullopt;
}

std::optional<std::uint64_t> LengthIn(wchar_t const* text) {
    constexpr std::uint64_t kMost = std::uint64_t{1} << 30;
    auto const length = WholeIn(text);
    bool const isLength = length.has_value() && !length->isNegative && length->amount <= kMost;
    return isLength ? std::optional<std::uint64_t>(length->amount) : std::nullopt;
}

} // namespace NCheck
