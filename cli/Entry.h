// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include <cli/JsonWriter.h>
#include <diagkit/model/OdxElement.h>
#include <diagkit/query/FilePlace.h>

namespace NCli {

/// Writes the entry object of an element, with its members in their fixed order; what the element lacks is null.
void WriteEntry(VJsonWriter& json, NODX201::VOdxElement const& element);

/// The members of an entry object alone, for an object that has more of them.
void WriteEntryMembers(VJsonWriter& json, NODX201::VOdxElement const& element);

/// The same as a member; null without an element.
void WriteEntryOrNull(VJsonWriter& json, std::string_view name, NODX201::VOdxElement const* element);

/// The members "file", "line" and "column" of a place; null and 0 for what stands nowhere.
void WritePlaceMembers(VJsonWriter& json, NQuery::VFilePlace const& place);

} // namespace NCli
