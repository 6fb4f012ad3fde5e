// SPDX-License-Identifier: Apache-2.0
#include <cli/Columns.h>

#include <algorithm>
#include <utility>

namespace NCli {
namespace {

constexpr std::size_t kWidestAligned = 60;
constexpr std::size_t kGap = 2; // blanks between columns

using VRows = std::vector<std::vector<std::string>>;

std::vector<std::size_t> WidthsOf(VRows const& rows) {
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
            missing += widths[column] == 0 ? 0 : widths[column] + kGap;
            continue;
        }
        text.append(missing, ' ').append(row[column]);
        std::size_t const width = WidthOf(row[column]);
        missing = (width < widths[column] ? widths[column] - width : 0) + kGap;
    }
}

std::string FormatRows(VRows const& rows, std::string_view indent) {
    std::vector<std::size_t> const widths = WidthsOf(rows);
    std::string text;
    for (auto const& row : rows) {
        text += indent;
        AppendRow(text, row, widths);
        text += '\n';
    }
    return text;
}

bool HasLineWiderThan(std::size_t width, std::string_view text) {
    while (!text.empty()) {
        std::string_view const line = text.substr(0, text.find('\n'));
        if (line.size() > width && WidthOf(line) > width) {
            return true;
        }
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return false;
}

/// The most that every column may take so that all of them fit into so many characters; columns that take less leave
/// the others more.
std::size_t FairWidth(std::vector<std::size_t> widths, std::size_t room) {
    constexpr std::size_t kLeast = 8; // nobody reads less of a name
    widths.erase(std::remove(widths.begin(), widths.end(), 0U), widths.end());
    std::sort(widths.begin(), widths.end());
    for (std::size_t column = 0; column < widths.size(); ++column) {
        std::size_t const left = widths.size() - column;
        std::size_t const gaps = kGap * (left - 1);
        std::size_t const fair = room > gaps ? (room - gaps) / left : 0;
        if (widths[column] > fair) {
            return std::max(fair, kLeast);
        }
        room -= std::min(room, widths[column] + kGap);
    }
    return kAnyWidth;
}

/// The widest cell of each column.
std::vector<std::size_t> WidestOf(VRows const& rows) {
    std::vector<std::size_t> widest;
    for (auto const& row : rows) {
        widest.resize(std::max(widest.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            widest[column] = std::max(widest[column], WidthOf(row[column]));
        }
    }
    return widest;
}

/// Cells one after the other, in lines of their own.
std::string LinesOf(std::vector<std::string> const& cells, std::size_t width, std::string_view indent) {
    std::string text;
    std::string line;
    auto const end = [&] {
        text += line.empty() ? "" : std::string(indent) + line + '\n';
        line.clear();
    };
    std::size_t const room = width > indent.size() ? width - indent.size() : 0;
    for (std::string const& cell : cells) {
        if (cell.empty()) {
            continue;
        }
        if (!line.empty() && WidthOf(line) + kGap + WidthOf(cell) > room) {
            end();
        }
        line += (line.empty() ? "" : std::string(kGap, ' ')) + Shortened(cell, room);
    }
    end();
    return text;
}

bool IsPath(std::string_view text) {
    return text.find(' ') == std::string_view::npos && text.find_first_of("/\\!") != std::string_view::npos;
}

/// Where the text goes on after so many characters.
std::size_t AfterCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    while (at < text.size() && (count > 0 || (text[at] & '\xC0') == '\x80')) {
        count -= (text[at] & '\xC0') == '\x80' ? 0 : 1;
        ++at;
    }
    return at;
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

std::string Shortened(std::string text, std::size_t width) {
    std::size_t const whole = text.size() <= width ? width : WidthOf(text);
    if (whole <= width) {
        return text;
    }
    std::size_t const kept = width - 1;
    std::size_t const before = IsPath(text) ? 0 : (kept + 1) / 3;
    std::size_t const end = AfterCharacters(text, whole - (kept - before));
    return text.substr(0, AfterCharacters(text, before)) + "\xE2\x80\xA6" + text.substr(end);
}

std::string InLines(std::string_view text, std::size_t width) {
    constexpr std::string_view kIndent = "    ";
    std::string wrapped;
    std::size_t column = 0;
    while (!text.empty()) {
        std::string_view const word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        std::size_t const length = WidthOf(word);
        if (column != 0 && column + 1 + length > width) {
            wrapped.append("\n").append(kIndent);
            column = kIndent.size();
        } else if (!wrapped.empty()) {
            wrapped += ' ';
            ++column;
        }
        wrapped += word;
        column += length;
    }
    return wrapped;
}

void VColumns::Add(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }

std::string VColumns::Format(std::string_view indent) const { return FormatRows(m_rows, indent); }

std::string VColumns::FormatWithin(std::size_t width, std::string_view indent) const {
    std::string whole = FormatRows(m_rows, indent);
    if (width == kAnyWidth || !HasLineWiderThan(width, whole)) {
        return whole;
    }
    VRows above = m_rows;
    for (auto& row : above) {
        row.resize(std::min(row.size(), m_firstBelow));
    }
    std::size_t const fair = FairWidth(WidestOf(above), width > indent.size() ? width - indent.size() : 0);
    for (auto& row : above) {
        for (std::string& cell : row) {
            cell = Shortened(std::move(cell), fair);
        }
    }
    std::vector<std::size_t> const widths = WidthsOf(above);
    std::string text;
    for (std::size_t index = 0; index < above.size(); ++index) {
        std::vector<std::string> const& row = m_rows[index];
        text += indent;
        AppendRow(text, above[index], widths);
        text += '\n';
        text += LinesOf({row.begin() + static_cast<std::ptrdiff_t>(above[index].size()), row.end()}, width,
                        std::string(indent) + "    ");
    }
    return text;
}

} // namespace NCli
