// SPDX-License-Identifier: Apache-2.0
#include <cli/ViewText.h>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {

std::string KindOf(NODX201::VOdxElement const& element) {
    std::string const type = NReader::ToUtf8(NODX201::OdxTypeText(element.GetOdxTag()));
    return TagTextOf(element) + (type.empty() ? "" : " " + type);
}

std::string PathTo(NODX201::VOdxElement const& element) {
    std::string path;
    for (NODX201::VOdxObject* owner = element.GetOwner(); owner != nullptr; owner = owner->GetOwner()) {
        auto const* const step = dynamic_cast<NODX201::VOdxElement const*>(owner);
        if (step == nullptr || dynamic_cast<NODX201::VDiagLayer const*>(owner) != nullptr) {
            break;
        }
        if (*step->GetShortName() != L'\0') {
            path = TagTextOf(*step) + " " + ShownName(*step) + (path.empty() ? "" : " > " + path);
        }
    }
    return path;
}

std::string PlaceOf(NODX201::VOdxElement const& element) { return "in " + PathTo(element); }

void WriteEntries(std::string_view title, std::vector<NODX201::VOdxElement const*> const& entries,
                  std::string (*noteOf)(NODX201::VOdxElement const& entry), VOutput& output) {
    constexpr std::size_t kNotes = 3;
    VColumns columns(kNotes);
    for (NODX201::VOdxElement const* const entry : entries) {
        columns.Add({ShownName(*entry), KindOf(*entry), ShownOtherId(*entry), noteOf(*entry)});
    }
    output.Write(fmt::format("{}\n\n", output.Heading(title)));
    output.Write(columns.FormatWithin(output.Width()));
    output.Write(fmt::format("{}{} in all\n", entries.empty() ? "" : "\n", entries.size()));
}

} // namespace NCli
