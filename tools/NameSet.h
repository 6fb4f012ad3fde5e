// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <unordered_set>

namespace NDIAGKIT {

/// The short names that a view holds, for the time of its construction alone: merging a parent's view asks it instead
/// of searching the list. It views the elements' own texts, compared code unit by code unit.
using VNameSet = std::unordered_set<std::wstring_view>;

} // namespace NDIAGKIT
