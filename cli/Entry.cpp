// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Entry.h>

#include <nlohmann/json.hpp>

#include <diagkit/cli/Layers.h>
#include <diagkit/cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {

nlohmann::ordered_json TextOrNull(wchar_t const* text) {
    return *text == L'\0' ? nlohmann::ordered_json() : nlohmann::ordered_json(NReader::ToUtf8(text));
}

nlohmann::ordered_json EntryOf(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerOf(element);
    std::string const tag = TagTextOf(element);
    nlohmann::ordered_json entry;
    entry["short_name"] = TextOrNull(element.GetShortName());
    entry["element"] = tag;
    entry["id"] = TextOrNull(IdOf(element));
    entry["layer"] = layer != nullptr ? TextOrNull(layer->GetShortName()) : nlohmann::ordered_json();
    if (tag == "PARAM") {
        entry["type"] = TextOrNull(NODX201::OdxTypeText(element.GetOdxTag()));
    }
    return entry;
}

} // namespace NCli
