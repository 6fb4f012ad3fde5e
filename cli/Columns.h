// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace NCli {

/// As wide as it takes.
inline constexpr std::size_t kAnyWidth = std::numeric_limits<std::size_t>::max();

inline constexpr std::size_t kPageWidth = 80; ///< columns of a terminal that a text for people fills

/// Characters of a text in UTF-8.
std::size_t WidthOf(std::string_view text);

/// The words of a text in lines of that width; a longer word has a line of its own.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);

/// A text for a cell that many rows may show: cut off where it is longer than anybody reads.
std::string Cut(std::string text);

/// A text of at most so many characters, which are three at least: an ellipsis stands for what is left out, in
/// the middle, or at the start of a path, whose end says most.
std::string Shortened(std::string text, std::size_t width);

/// A text in lines of at most so many characters, broken at blanks; those after the first are indented. What has no
/// blank is not broken.
std::string InLines(std::string_view text, std::size_t width);

/// Rows of cells, printed as aligned columns. A row may have fewer cells than others; cells of unusual length do not
/// widen their column.
class VColumns {
public:
    /// Where rows are too wide, the cells from column `firstBelow` on go to lines of their own below the others.
    explicit VColumns(std::size_t firstBelow = kAnyWidth) : m_firstBelow(firstBelow) {}

    void Add(std::vector<std::string> cells);

    /// One line per row, each with the indent before and a line end after it.
    std::string Format(std::string_view indent = "  ") const;

    /// The same with lines of at most so many characters: where one is wider, the widest columns are shortened.
    std::string FormatWithin(std::size_t width, std::string_view indent = "  ") const;

private:
    std::vector<std::vector<std::string>> m_rows;
    std::size_t m_firstBelow;
};

} // namespace NCli
