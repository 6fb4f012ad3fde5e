// SPDX-License-Identifier: Apache-2.0
#include <cli/Entry.h>

#include <string>

#include <cli/Layers.h>
#include <cli/Text.h>

namespace NCli {

void WriteEntryMembers(VJsonWriter& json, NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerAround(element);
    std::string const tag = TagTextOf(element);
    json.TextOrNull("short_name", element.GetShortName());
    json.Member("element", tag);
    json.TextOrNull("id", IdOf(element));
    json.TextOrNull("layer", layer != nullptr ? layer->GetShortName() : L"");
    if (tag == "PARAM") {
        json.TextOrNull("type", NODX201::OdxTypeText(element.GetOdxTag()));
    }
}

void WriteEntry(VJsonWriter& json, NODX201::VOdxElement const& element) {
    json.Object([&] { WriteEntryMembers(json, element); });
}

void WriteEntryOrNull(VJsonWriter& json, std::string_view name, NODX201::VOdxElement const* element) {
    json.Name(name);
    if (element != nullptr) {
        WriteEntry(json, *element);
    } else {
        json.Value(nullptr);
    }
}

void WritePlaceMembers(VJsonWriter& json, NQuery::VFilePlace const& place) {
    json.TextOrNull("file", place.file);
    json.Member("line", place.line);
    json.Member("column", place.column);
}

} // namespace NCli
