// SPDX-License-Identifier: Apache-2.0
#include <cli/UsesText.h>

#include <algorithm>
#include <string>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Groups.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/ViewText.h>

namespace NCli {
namespace {

constexpr std::size_t kBelow = 2; // the column from which cells go below, where lines are too wide

/// The elements with short names between the layer or document and a reference.
std::string PathInside(NODX201::VOdxElement const* room, NODX201::VLink const& reference) {
    std::string path;
    for (NODX201::VOdxObject const* owner = reference.GetOwner(); owner != nullptr; owner = owner->GetOwner()) {
        auto const* const step = dynamic_cast<NODX201::VOdxElement const*>(owner);
        if (step != nullptr && step == room) {
            break;
        }
        if (step != nullptr && *step->GetShortName() != L'\0') {
            path = TagTextOf(*step) + " " + ShownName(*step) + (path.empty() ? "" : " > " + path);
        }
    }
    return path;
}

/// "refers to it in A, B"; of very many layers, or where a line has no room for more, the first.
std::string LayersText(std::vector<NODX201::VDiagLayer*> const& layers, std::size_t width) {
    constexpr std::size_t kMost = 5;
    constexpr std::size_t kBeside = 20; // what the line is indented, and the end of the text
    std::string text = "refers to it in ";
    std::size_t told = 0;
    for (; told < std::min(layers.size(), kMost); ++told) {
        std::string const name = (told == 0 ? "" : ", ") + ShownName(*layers[told]);
        if (told > 0 && text.size() + name.size() + kBeside > width) {
            break;
        }
        text += name;
    }
    return layers.size() > told ? fmt::format("{} and {} more", text, layers.size() - told) : text;
}

} // namespace

void WriteUses(NMemory::VDatabase const& database, NODX201::VOdxElement const& element,
               std::vector<NQuery::VUse> const& uses, VOutput& output) {
    std::string const id = ShownOtherId(element);
    output.Write(
        output.Heading(fmt::format("{} {}{}", KindOf(element), ShownName(element), id.empty() ? "" : ", ID " + id)));
    VColumns where(1);
    NODX201::VOdxElement const* const home = RoomOf(element);
    where.Add(
        {ShownPlace(database, element), home != nullptr ? "in " + TagTextOf(*home) + " " + ShownName(*home) : ""});
    output.Write("\n" + where.FormatWithin(output.Width()));
    VGroups groups(kBelow);
    std::size_t byName = 0;
    for (NQuery::VUse const& use : uses) {
        NODX201::VOdxElement const* const room = RoomOf(*use.reference);
        byName += dynamic_cast<NODX201::VSnref const*>(&use.reference->GetLink()) != nullptr ? 1 : 0;
        groups.Add(room, {ShownPlace(database, *use.reference), TagTextOf(*use.reference),
                          Cut(PathInside(room, *use.reference)),
                          use.layers.has_value() ? Cut(LayersText(*use.layers, output.Width())) : ""});
    }
    groups.Write(output);
    output.Write(uses.empty() ? "\nNo reference leads to it\n"
                              : fmt::format("\n{}: {} by ID, {} by short name\n", Counted(uses.size(), "reference"),
                                            uses.size() - byName, byName));
}

void WriteUnused(NMemory::VDatabase const& database, std::vector<NODX201::VOdxElement*> const& unused,
                 VOutput& output) {
    VGroups groups(kBelow);
    for (NODX201::VOdxElement const* const element : unused) {
        NODX201::VOdxElement const* const room = RoomOf(*element);
        groups.Add(TagTextOf(*element), {ShownName(*element), ShownOtherId(*element),
                                         room != nullptr ? "in " + TagTextOf(*room) + " " + ShownName(*room) : "",
                                         ShownPlace(database, *element)});
    }
    output.Write(output.Heading("Elements to which no reference leads") + "\n");
    groups.Write(output);
    output.Write(fmt::format("\n{} in all\n", unused.size()));
}

} // namespace NCli
