// SPDX-License-Identifier: Apache-2.0
#include <cli/ViewText.h>

#include <map>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Layers.h>
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

void WriteEntriesByOrigin(std::string_view title, NODX201::VDiagLayer const& layer,
                          std::vector<NODX201::VOdxElement const*> const& entries, VReferencedEntries const& referenced,
                          VOutput& output) {
    struct VGroup {
        NODX201::VDiagLayer const* origin;
        VColumns columns;
        std::size_t count = 0;
    };
    std::vector<VGroup> groups(1);
    groups.front().origin = &layer;
    std::map<NODX201::VDiagLayer const*, std::size_t> places{{&layer, 0}};
    for (NODX201::VOdxElement const* const entry : entries) {
        auto const reference = referenced.find(entry);
        NODX201::VDiagLayer const* const origin = reference != referenced.end() ? &layer : LayerAround(*entry);
        auto const [place, isNew] = places.try_emplace(origin, groups.size());
        if (isNew) {
            groups.push_back({origin, {}, 0});
        }
        VGroup& group = groups[place->second];
        group.columns.Add({ShownName(*entry), KindOf(*entry), ShownId(*entry),
                           reference != referenced.end() ? reference->second : ""});
        ++group.count;
    }
    std::string const id = ShownId(layer);
    output.Write(output.Heading(fmt::format("{} of {}{}", title, Titled(layer), id.empty() ? "" : ", ID " + id)));
    output.Write("\n");
    for (VGroup const& group : groups) {
        if (group.count == 0) {
            continue;
        }
        std::string const name = group.origin == &layer ? "Own" : "Inherited from " + Titled(*group.origin);
        output.Write(fmt::format("\n{}\n", output.Heading(fmt::format("{} ({})", name, group.count))));
        output.Write(group.columns.Format());
    }
    output.Write(fmt::format("\n{} visible: {} own, {} inherited\n", entries.size(), groups.front().count,
                             entries.size() - groups.front().count));
}

void WriteEntries(std::string_view title, std::vector<NODX201::VOdxElement const*> const& entries,
                  std::string (*noteOf)(NODX201::VOdxElement const& entry), VOutput& output) {
    VColumns columns;
    for (NODX201::VOdxElement const* const entry : entries) {
        columns.Add({ShownName(*entry), KindOf(*entry), ShownId(*entry), noteOf(*entry)});
    }
    output.Write(fmt::format("{}\n\n", output.Heading(title)));
    output.Write(columns.Format());
    output.Write(fmt::format("{}{} in all\n", entries.empty() ? "" : "\n", entries.size()));
}

} // namespace NCli
