// SPDX-License-Identifier: Apache-2.0
#include <cli/UsesText.h>

#include <map>
#include <string>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/ViewText.h>

namespace NCli {
namespace {

/// What comes in groups, each with a heading, in the order in which the groups first occur. Groups of one title
/// show their IDs, too.
template <class Key>
class VGroups {
public:
    void Add(Key const& key, std::string const& title, std::string const& id, std::vector<std::string> cells) {
        auto const [place, isNew] = m_places.try_emplace(key, m_groups.size());
        if (isNew) {
            m_groups.push_back({title, id});
            ++m_titles[title];
        }
        VGroup& group = m_groups[place->second];
        group.columns.Add(std::move(cells));
        ++group.count;
    }

    void Write(VOutput& output) const {
        for (VGroup const& group : m_groups) {
            std::string const id = m_titles.at(group.title) > 1 && !group.id.empty() ? ", ID " + group.id : "";
            output.Write(fmt::format("\n{}\n", output.Heading(fmt::format("{}{} ({})", group.title, id, group.count))));
            output.Write(group.columns.Format());
        }
    }

private:
    struct VGroup {
        std::string title;
        std::string id;
        VColumns columns{};
        std::size_t count = 0;
    };

    std::vector<VGroup> m_groups;
    std::map<Key, std::size_t> m_places;
    std::map<std::string, std::size_t> m_titles; // and how many groups have each
};

/// The layer that an element stands in, or else its document; null for what stands in neither.
NODX201::VOdxElement const* RoomOf(NODX201::VOdxElement const& element) {
    if (NODX201::VDiagLayer const* const layer = LayerAround(element)) {
        return layer;
    }
    NODX201::VOdxElement const* room = nullptr;
    for (NODX201::VOdxObject const* owner = element.GetOwner(); owner != nullptr; owner = owner->GetOwner()) {
        auto const* const outer = dynamic_cast<NODX201::VOdxElement const*>(owner);
        room = outer != nullptr && outer->GetOwner() != nullptr ? outer : room;
    }
    return room;
}

std::string TitleOfRoom(NODX201::VOdxElement const* room) {
    return room != nullptr ? "In " + TagTextOf(*room) + " " + ShownName(*room) : "Elsewhere";
}

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

/// "means it in A, B"; of very many layers the first.
std::string LayersText(std::vector<NODX201::VDiagLayer*> const& layers) {
    constexpr std::size_t kMost = 5;
    std::string text;
    for (std::size_t index = 0; index < std::min(layers.size(), kMost); ++index) {
        text += (index == 0 ? "means it in " : ", ") + ShownName(*layers[index]);
    }
    return layers.size() > kMost ? fmt::format("{} and {} more", text, layers.size() - kMost) : text;
}

} // namespace

void WriteUses(NMemory::VDatabase const& database, NODX201::VOdxElement const& element,
               std::vector<NQuery::VUse> const& uses, VOutput& output) {
    std::string const id = ShownId(element);
    output.Write(
        output.Heading(fmt::format("{} {}{}", KindOf(element), ShownName(element), id.empty() ? "" : ", ID " + id)));
    VColumns where;
    NODX201::VOdxElement const* const home = RoomOf(element);
    where.Add(
        {ShownPlace(database, element), home != nullptr ? "in " + TagTextOf(*home) + " " + ShownName(*home) : ""});
    output.Write("\n" + where.Format());
    VGroups<NODX201::VOdxElement const*> groups;
    std::size_t byName = 0;
    for (NQuery::VUse const& use : uses) {
        NODX201::VOdxElement const* const room = RoomOf(*use.reference);
        byName += dynamic_cast<NODX201::VSnref const*>(&use.reference->GetLink()) != nullptr ? 1 : 0;
        groups.Add(room, TitleOfRoom(room), room != nullptr ? ShownId(*room) : "",
                   {ShownPlace(database, *use.reference), TagTextOf(*use.reference),
                    Cut(PathInside(room, *use.reference)), use.layers.has_value() ? Cut(LayersText(*use.layers)) : ""});
    }
    groups.Write(output);
    output.Write(uses.empty() ? "\nNo reference leads to it\n"
                              : fmt::format("\n{}: {} by ID, {} by short name\n", Counted(uses.size(), "reference"),
                                            uses.size() - byName, byName));
}

void WriteUnused(NMemory::VDatabase const& database, std::vector<NODX201::VOdxElement*> const& unused,
                 VOutput& output) {
    VGroups<std::string> groups;
    for (NODX201::VOdxElement const* const element : unused) {
        NODX201::VOdxElement const* const room = RoomOf(*element);
        std::string const tag = TagTextOf(*element);
        groups.Add(tag, tag, "",
                   {ShownName(*element), ShownId(*element),
                    room != nullptr ? "in " + TagTextOf(*room) + " " + ShownName(*room) : "",
                    ShownPlace(database, *element)});
    }
    output.Write(output.Heading("Elements to which no reference leads") + "\n");
    groups.Write(output);
    output.Write(fmt::format("\n{} in all\n", unused.size()));
}

} // namespace NCli
