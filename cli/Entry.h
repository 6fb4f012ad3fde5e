// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include <cli/JsonWriter.h>
#include <diagkit/model/OdxElement.h>
#include <diagkit/query/FilePlace.h>

namespace NCli {

/// Writes the entry object of an element, with its members in their fixed order; absent ones are null.
void WriteEntry(VJsonWriter& json, NODX201::VOdxElement const& element);

/// Only the members of an entry object, for an object with further members.
void WriteEntryMembers(VJsonWriter& json, NODX201::VOdxElement const& element);

/// The same as a member; null without an element.
void WriteEntryOrNull(VJsonWriter& json, std::string_view name, NODX201::VOdxElement const* element);

/// The members "file", "line" and "column" of a place; null and 0 where there is none.
void WritePlaceMembers(VJsonWriter& json, NQuery::VFilePlace const& place);

} // namespace NCli
