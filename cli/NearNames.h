// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

namespace NCli {

/// The names that the wanted one may be a misspelling of, nearest first, at most five. A wrong, missing, additional or
/// swapped character counts one step; upper and lower case are the same.
std::vector<std::wstring_view> NearNames(std::wstring_view wanted, std::vector<std::wstring_view> const& names);

} // namespace NCli
