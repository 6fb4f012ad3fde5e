// SPDX-License-Identifier: Apache-2.0
#include <cli/Groups.h>

#include <utility>

#include <fmt/format.h>

#include <cli/Layers.h>
#include <cli/Text.h>

namespace NCli {

void VGroups::Add(std::string const& title, std::vector<std::string> cells) {
    AddTo({nullptr, title}, title, std::move(cells));
}

void VGroups::Add(NODX201::VOdxElement const* room, std::vector<std::string> cells) {
    AddTo({room, ""}, TitleOfRoom(room), std::move(cells));
}

void VGroups::AddTo(VKey const& key, std::string const& title, std::vector<std::string> cells) {
    auto const [place, isNew] = m_places.try_emplace(key, m_groups.size());
    if (isNew) {
        m_groups.push_back({title, key.first != nullptr ? ShownId(*key.first) : "", VColumns(m_firstBelow)});
        ++m_titles[title];
    }
    VGroup& group = m_groups[place->second];
    group.columns.Add(std::move(cells));
    ++group.count;
}

void VGroups::Write(VOutput& output) const {
    for (VGroup const& group : m_groups) {
        std::string const id = m_titles.at(group.title) > 1 && !group.id.empty() ? ", ID " + group.id : "";
        output.Write(fmt::format("\n{}\n", output.Heading(fmt::format("{}{} ({})", group.title, id, group.count))));
        output.Write(group.columns.FormatWithin(output.Width()));
    }
}

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

} // namespace NCli
