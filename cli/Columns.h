// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace NCli {

/// A text for a cell that many rows may show: cut off where it is longer than anybody reads.
std::string Cut(std::string text);

/// Rows of cells, printed as aligned columns. A row may have fewer cells than others; cells of unusual length do not
/// widen their column.
class VColumns {
public:
    void Add(std::vector<std::string> cells);

    /// One line per row, each with the indent before and a line end after it.
    std::string Format(std::string_view indent = "  ") const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace NCli
