// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace NCli {

inline constexpr std::size_t kPageWidth = 80; ///< columns of a terminal that a text for people fills

/// Characters of a text in UTF-8.
std::size_t WidthOf(std::string_view text);

/// The words of a text in lines of that width; a longer word has a line of its own.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);

/// A text for a cell that many rows may show: cut off where it is longer than anybody reads.
std::string Cut(std::string text);

/// Rows of cells, printed as aligned columns. A row may have fewer cells than others; cells of unusual length do not
/// widen their column.
class VColumns {
public:
    void Add(std::vector<std::string> cells);

    /// One line a row, each with the indent before and a line end after it.
    std::string Format(std::string_view indent = "  ") const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace NCli
