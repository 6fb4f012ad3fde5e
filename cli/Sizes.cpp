// SPDX-License-Identifier: Apache-2.0
#include <cli/Sizes.h>

#include <charconv>
#include <limits>
#include <system_error>

#include <diagkit/reader/Ascii.h>

namespace NCli {
namespace {

/// The power of two that a suffix stands for.
std::optional<int> ShiftOf(std::string_view suffix) {
    constexpr std::string_view kUnits = "kmgt";
    std::string lower;
    for (char const character : suffix) {
        lower += NReader::Lower(character);
    }
    if (lower.empty() || lower == "b") {
        return 0;
    }
    auto const unit = kUnits.find(lower.front());
    std::string const rest = lower.substr(1);
    if (unit == std::string_view::npos || (!rest.empty() && rest != "b" && rest != "ib")) {
        return std::nullopt;
    }
    return 10 * (static_cast<int>(unit) + 1);
}

} // namespace

std::optional<std::uint64_t> SizeIn(std::string_view text) {
    char const* const end = text.data() + text.size();
    std::uint64_t number = 0;
    auto const [suffix, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc()) {
        return std::nullopt;
    }
    auto const shift = ShiftOf({suffix, static_cast<std::size_t>(end - suffix)});
    if (!shift.has_value() || number > std::numeric_limits<std::uint64_t>::max() >> *shift) {
        return std::nullopt;
    }
    return number << *shift;
}

std::string SizeText(std::uint64_t size) {
    constexpr std::string_view kUnits = "KMGT";
    std::size_t unit = 0;
    while (unit < kUnits.size() && size != 0 && size % 1024 == 0) {
        size /= 1024;
        ++unit;
    }
    return std::to_string(size) + (unit > 0 ? std::string(1, kUnits[unit - 1]) : std::string());
}

} // namespace NCli
