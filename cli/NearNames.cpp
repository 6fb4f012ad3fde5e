// SPDX-License-Identifier: Apache-2.0
#include <cli/NearNames.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

constexpr std::size_t kMostNames = 5;
constexpr std::size_t kFewNames = 25;     // that may be listed where none is near
constexpr std::size_t kLongestName = 256; // what people type and misspell is shorter

std::wstring LowerCase(std::wstring_view text) {
    std::wstring lower(text);
    for (wchar_t& character : lower) {
        if (character >= L'A' && character <= L'Z') {
            character = static_cast<wchar_t>(character - L'A' + L'a');
        }
    }
    return lower;
}

/// Steps from one text to the other: optimal string alignment, in three rows of its table.
std::size_t Distance(std::wstring_view from, std::wstring_view to) {
    std::vector<std::size_t> beforeLast(to.size() + 1);
    std::vector<std::size_t> last(to.size() + 1);
    std::vector<std::size_t> row(to.size() + 1);
    for (std::size_t column = 0; column <= to.size(); ++column) {
        row[column] = column;
    }
    for (std::size_t line = 1; line <= from.size(); ++line) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = line;
        for (std::size_t column = 1; column <= to.size(); ++column) {
            std::size_t const replaced = last[column - 1] + (from[line - 1] == to[column - 1] ? 0 : 1);
            row[column] = std::min({replaced, last[column] + 1, row[column - 1] + 1});
            if (line > 1 && column > 1 && from[line - 1] == to[column - 2] && from[line - 2] == to[column - 1]) {
                row[column] = std::min(row[column], beforeLast[column - 2] + 1);
            }
        }
    }
    return row[to.size()];
}

/// A third of the characters, or a quarter of many: beyond that it is another name.
std::size_t MostSteps(std::wstring_view wanted) { return wanted.size() < 8 ? wanted.size() / 3 : wanted.size() / 4; }

} // namespace

std::vector<std::wstring_view> NearNames(std::wstring_view wanted, std::vector<std::wstring_view> const& names,
                                         std::size_t mostSteps) {
    std::vector<std::wstring_view> near;
    if (wanted.size() > kLongestName) {
        return near;
    }
    std::vector<std::pair<std::size_t, std::wstring_view>> ranked;
    std::wstring const wantedInLowerCase = LowerCase(wanted);
    for (std::wstring_view const name : names) {
        // Every difference in length is at least one step, so most names need no further comparison.
        if (name.empty() || name.size() > wanted.size() + mostSteps || wanted.size() > name.size() + mostSteps) {
            continue;
        }
        if (std::size_t const steps = Distance(wantedInLowerCase, LowerCase(name)); steps <= mostSteps) {
            ranked.emplace_back(steps, name);
        }
    }
    std::sort(ranked.begin(), ranked.end());
    ranked.erase(std::unique(ranked.begin(), ranked.end()), ranked.end());
    for (std::size_t index = 0; index < std::min(ranked.size(), kMostNames); ++index) {
        near.push_back(ranked[index].second);
    }
    return near;
}

std::vector<std::wstring_view> NearNames(std::wstring_view wanted, std::vector<std::wstring_view> const& names) {
    return NearNames(wanted, names, MostSteps(wanted));
}

std::string NearNote(std::wstring_view wanted, std::vector<std::wstring_view> const& names) {
    return NearNote(wanted, names, MostSteps(wanted));
}

std::string NearNote(std::wstring_view wanted, std::vector<std::wstring_view> const& names, std::size_t mostSteps) {
    std::string note;
    char const* separator = "; similar names: ";
    for (std::wstring_view const name : NearNames(wanted, names, mostSteps)) {
        note += separator + Shown(name);
        separator = ", ";
    }
    return note;
}

std::string NearNote(std::string const& wanted, std::vector<std::string> const& names) {
    std::vector<std::wstring> wide(names.size());
    std::transform(names.begin(), names.end(), wide.begin(), &NReader::FromUtf8);
    return NearNote(NReader::FromUtf8(wanted), std::vector<std::wstring_view>(wide.begin(), wide.end()));
}

std::string NearOrAllNote(std::string const& wanted, std::vector<std::string> const& names) {
    std::string const note = NearNote(wanted, names);
    bool const areFew = names.size() <= kFewNames;
    return note.empty() && areFew ? fmt::format("; there are {}", fmt::join(names, ", ")) : note;
}

} // namespace NCli
