// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <diagkit/model/OdxElement.h>

namespace NCli {

/// The entry object of an element, with its members in their fixed order; what the element lacks is null.
nlohmann::ordered_json EntryOf(NODX201::VOdxElement const& element);

/// A text of the model; null for an absent one.
nlohmann::ordered_json TextOrNull(wchar_t const* text);

} // namespace NCli
