// SPDX-License-Identifier: Apache-2.0
#include <cli/Columns.h>

#include <algorithm>
#include <utility>

namespace NCli {
namespace {

constexpr std::size_t kWidestAligned = 60;

std::vector<std::size_t> WidthsOf(std::vector<std::vector<std::string>> const& rows) {
    std::vector<std::size_t> widths;
    for (auto const& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (std::size_t const width = WidthOf(row[column]); width <= kWidestAligned) {
                widths[column] = std::max(widths[column], width);
            }
        }
    }
    return widths;
}

void AppendRow(std::string& text, std::vector<std::string> const& row, std::vector<std::size_t> const& widths) {
    std::size_t missing = 0;
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (row[column].empty()) {
            missing += widths[column] == 0 ? 0 : widths[column] + 2;
            continue;
        }
        text.append(missing, ' ').append(row[column]);
        std::size_t const width = WidthOf(row[column]);
        missing = (width < widths[column] ? widths[column] - width : 0) + 2;
    }
}

} // namespace

std::size_t WidthOf(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char unit) { return (unit & '\xC0') != '\x80'; }));
}

std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        std::size_t const end = std::min(text.find(' '), text.size());
        std::string_view const word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (lines.empty() || WidthOf(lines.back()) + 1 + WidthOf(word) > width) {
            lines.emplace_back(word);
        } else {
            lines.back().append(" ").append(word);
        }
    }
    return lines;
}

std::string Cut(std::string text) {
    constexpr std::size_t kLongest = 400;
    if (text.size() <= kLongest) {
        return text;
    }
    std::size_t end = kLongest;
    while ((text[end] & '\xC0') == '\x80') { // inside a character of UTF-8
        --end;
    }
    return text.substr(0, end) + "...";
}

void VColumns::Add(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }

std::string VColumns::Format(std::string_view indent) const {
    std::vector<std::size_t> const widths = WidthsOf(m_rows);
    std::string text;
    for (auto const& row : m_rows) {
        text += indent;
        AppendRow(text, row, widths);
        text += '\n';
    }
    return text;
}

} // namespace NCli
