// SPDX-License-Identifier: Apache-2.0
#include <cli/Csv.h>

#include <string>

#include <cli/Layers.h>
#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {

VCsvWriter::VCsvWriter(VOutput& output, std::initializer_list<std::string_view> header) : m_output(output) {
    Row([&] {
        for (std::string_view const name : header) {
            Cell(name);
        }
    });
}

void VCsvWriter::Cell(std::string_view text) {
    if (!NReader::IsUtf8(text)) { // a file may be called anything
        Cell(std::wstring_view(NReader::FromUtf8(text)));
        return;
    }
    m_output.Write(m_isFirst ? "" : ",");
    m_isFirst = false;
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        m_output.Write(text);
        return;
    }
    m_output.Write("\"");
    for (std::size_t quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"')) {
        m_output.Write(text.substr(0, quote + 1));
        m_output.Write("\"");
        text.remove_prefix(quote + 1);
    }
    m_output.Write(text);
    m_output.Write("\"");
}

void VCsvWriter::Cell(std::wstring_view text) { Cell(std::string_view(NReader::ToUtf8(text))); }

void VCsvWriter::WriteNumber(std::uint64_t number) { Cell(std::string_view(std::to_string(number))); }

void WriteEntryCells(VCsvWriter& csv, NODX201::VOdxElement const* element) {
    if (element == nullptr) {
        for (std::string_view const column : {DIAGKIT_ENTRY_COLUMNS}) {
            static_cast<void>(column);
            csv.Cell(std::string_view());
        }
        return;
    }
    NODX201::VDiagLayer const* const layer = LayerAround(*element);
    std::string const tag = TagTextOf(*element);
    csv.Cell(std::wstring_view(element->GetShortName()));
    csv.Cell(std::string_view(tag));
    csv.Cell(std::wstring_view(IdOf(*element)));
    csv.Cell(std::wstring_view(layer != nullptr ? layer->GetShortName() : L""));
    csv.Cell(std::wstring_view(tag == "PARAM" ? NODX201::OdxTypeText(element->GetOdxTag()) : L""));
}

void WritePlaceCells(VCsvWriter& csv, NQuery::VFilePlace const& place) {
    csv.Cell(std::string_view(place.file));
    csv.Cell(place.line);
}

} // namespace NCli
