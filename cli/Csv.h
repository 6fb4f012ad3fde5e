// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <type_traits>

#include <cli/Output.h>
#include <diagkit/model/OdxElement.h>
#include <diagkit/query/FilePlace.h>

namespace NCli {

/// Writes a table for spreadsheets (RFC 4180) while it is being told, and keeps nothing of it: a header line, then a
/// line for each row, which all end with CR LF. Cells are UTF-8, in quotes where they hold a comma, a quote or a line
/// end, and otherwise as they stand: what a spreadsheet takes for a formula stays one. Bytes that are not UTF-8 become
/// U+FFFD. What is absent is an empty cell.
///
///     VCsvWriter csv(output, {"short_name", "line"});
///     csv.Row([&] {
///         csv.Cell(layer.GetShortName());
///         csv.Cell(place.line);
///     });
class VCsvWriter {
public:
    VCsvWriter(VOutput& output, std::initializer_list<std::string_view> header);

    /// A row, whose cells `write` writes, one for each column of the header.
    template <class Write>
    void Row(Write write) {
        m_isFirst = true;
        write();
        m_output.Write("\r\n");
    }

    void Cell(std::string_view text);
    void Cell(std::wstring_view text);

    template <class Number, std::enable_if_t<std::is_unsigned_v<Number>, int> = 0>
    void Cell(Number number) {
        WriteNumber(number);
    }

    /// A cell for several texts, which it gets one after the other; `/` stands between them.
    template <class Items, class TextOf>
    void CellOf(Items const& items, TextOf textOf) {
        std::wstring joined;
        for (auto const& item : items) {
            joined += (joined.empty() ? L"" : L"/") + std::wstring(textOf(item));
        }
        Cell(std::wstring_view(joined));
    }

private:
    void WriteNumber(std::uint64_t number);

    VOutput& m_output;
    bool m_isFirst = true; // no cell of the row has been written
};

/// The columns of an entry object, for headers.
#define DIAGKIT_ENTRY_COLUMNS "short_name", "element", "id", "layer", "type"

/// The cells of an entry object; all empty without an element. The type is that of a parameter.
void WriteEntryCells(VCsvWriter& csv, NODX201::VOdxElement const* element);

/// A table of entry objects.
template <class Elements>
void WriteEntriesAsCsv(Elements const& elements, VOutput& output) {
    VCsvWriter csv(output, {DIAGKIT_ENTRY_COLUMNS});
    for (NODX201::VOdxElement const* const element : elements) {
        csv.Row([&csv, element] { WriteEntryCells(csv, element); });
    }
}

/// The columns "file" and "line", without "column".
void WritePlaceCells(VCsvWriter& csv, NQuery::VFilePlace const& place);

} // namespace NCli
