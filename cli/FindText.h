// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Groups.h>
#include <diagkit/memory/Database.h>
#include <diagkit/query/Find.h>

namespace NCli {

/// The members and columns name fields thus: "short_name".
char const* FieldName(NQuery::VFindField field);

/// Adds the row of an element with matches, in the group of the layer or document that it is in, and of its file: its
/// line, its name, its kind, and where the pattern matches. The short name, and an ID beside it, are not repeated. Of a
/// text that is too long for a line of this width, the part around the match is shown.
void AddMatches(VGroups& groups, NMemory::VDatabase const& database, std::vector<NQuery::VFindMatch> const& matches,
                std::size_t width);

} // namespace NCli
