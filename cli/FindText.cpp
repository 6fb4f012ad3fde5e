// SPDX-License-Identifier: Apache-2.0
#include <cli/FindText.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <fmt/format.h>

#include <cli/Text.h>
#include <cli/ViewText.h>
#include <diagkit/query/FilePlace.h>

namespace NCli {
namespace {

using NQuery::VFindField;
using NQuery::VFindMatch;

struct VFieldName {
    VFindField field;
    char const* member;
    char const* text;
};

// clang-format off
constexpr std::array kFields{
    VFieldName{VFindField::ShortName,   "short_name",   "short name"},
    VFieldName{VFindField::LongName,    "long_name",    "long name"},
    VFieldName{VFindField::Id,          "id",           "ID"},
    VFieldName{VFindField::Description, "description",  "description"},
    VFieldName{VFindField::TroubleCode, "trouble_code", "trouble code"},
};
// clang-format on

VFieldName const& RowOfField(VFindField field) {
    return *std::find_if(kFields.begin(), kFields.end(), [field](VFieldName const& row) { return row.field == field; });
}

/// What fits, with as much of the text before and behind it as a line has room for.
std::string Excerpt(VFindMatch const& match, std::size_t width) {
    constexpr std::size_t kBeside = 24; // the indent of the line and the name of the field
    constexpr std::size_t kBefore = 12;
    constexpr char kEllipsis[] = "\xE2\x80\xA6";
    if (match.text.size() + kBeside <= width) {
        return Shown(std::wstring_view(match.text));
    }
    std::size_t const room = width - kBeside;
    std::size_t const start = match.start > kBefore ? match.start - kBefore : 0;
    std::size_t const end = std::min(match.text.size(), start + room);
    std::string const excerpt = Shown(std::wstring_view(match.text).substr(start, end - start));
    return (start > 0 ? kEllipsis : "") + excerpt + (end < match.text.size() ? kEllipsis : "");
}

/// Whether the row of an element shows what fits as it is: its short name, and an ID that is made of it.
bool IsShown(VFindMatch const& match, bool isShortNameMatched) {
    return match.field == VFindField::ShortName || (match.field == VFindField::Id && isShortNameMatched);
}

/// What the headings of groups say: "In PROTOCOL UDS, base.odx-d"; of what documents themselves hold "In base.odx-d".
std::string TitleOf(NODX201::VOdxElement const& element, NQuery::VFilePlace const& place) {
    NODX201::VOdxElement const* const room = RoomOf(element);
    if (place.file.empty()) {
        return TitleOfRoom(room);
    }
    std::string const file = Shown(std::string_view(place.file));
    return room != nullptr ? TitleOfRoom(room) + ", " + file : "In " + file;
}

} // namespace

char const* FieldName(VFindField field) { return RowOfField(field).member; }

void AddMatches(VGroups& groups, NMemory::VDatabase const& database, std::vector<VFindMatch> const& matches,
                std::size_t width) {
    if (matches.empty()) {
        return;
    }
    NODX201::VOdxElement const& element = *matches.front().element;
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, element);
    std::vector<std::string> cells{place.line != 0 ? fmt::format("{:>5}", place.line) : "", Cut(ShownName(element)),
                                   KindOf(element)};
    bool const isShortNameMatched = matches.front().field == VFindField::ShortName;
    for (VFindMatch const& match : matches) {
        if (!IsShown(match, isShortNameMatched)) {
            cells.push_back(std::string(RowOfField(match.field).text) + ": " + Excerpt(match, width));
        }
    }
    groups.Add(TitleOf(element, place), std::move(cells));
}

} // namespace NCli
