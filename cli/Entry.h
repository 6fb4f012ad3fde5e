// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include <cli/JsonWriter.h>
#include <diagkit/model/OdxElement.h>

namespace NCli {

/// Writes the entry object of an element, with its members in their fixed order; what the element lacks is null.
void WriteEntry(VJsonWriter& json, NODX201::VOdxElement const& element);

/// The same as a member; null without an element.
void WriteEntryOrNull(VJsonWriter& json, std::string_view name, NODX201::VOdxElement const* element);

} // namespace NCli
