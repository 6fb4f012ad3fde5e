// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <cli/Columns.h>
#include <cli/Output.h>
#include <diagkit/model/OdxElement.h>

namespace NCli {

/// Rows in groups, each with a heading, in the order in which the groups first occur.
class VGroups {
public:
    /// See `VColumns`.
    explicit VGroups(std::size_t firstBelow = kAnyWidth) : m_firstBelow(firstBelow) {}

    void Add(std::string const& title, std::vector<std::string> cells);

    /// A row of the group of a layer or document, or of those outside for null. Groups of one title show their IDs.
    void Add(NODX201::VOdxElement const* room, std::vector<std::string> cells);

    void Write(VOutput& output) const;

private:
    using VKey = std::pair<NODX201::VOdxElement const*, std::string>; // and the title without a room

    struct VGroup {
        std::string title;
        std::string id;
        VColumns columns;
        std::size_t count = 0;
    };

    void AddTo(VKey const& key, std::string const& title, std::vector<std::string> cells);

    std::vector<VGroup> m_groups;
    std::map<VKey, std::size_t> m_places;
    std::map<std::string, std::size_t> m_titles; // the number of groups with each
    std::size_t m_firstBelow;
};

/// The layer that an element stands in, or else its document; null for what stands in neither.
NODX201::VOdxElement const* RoomOf(NODX201::VOdxElement const& element);

/// The heading of a group: "In PROTOCOL UDS".
std::string TitleOfRoom(NODX201::VOdxElement const* room);

} // namespace NCli
