// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace NCli {

/// The names that the wanted one may be a misspelling of, nearest first, at most five. A wrong, missing, additional or
/// swapped character counts one step; upper and lower case are the same. A name is near within a third of the
/// characters of a short wanted one, a quarter of a longer one.
std::vector<std::wstring_view> NearNames(std::wstring_view wanted, std::vector<std::wstring_view> const& names);

/// The same with at most so many steps.
std::vector<std::wstring_view> NearNames(std::wstring_view wanted, std::vector<std::wstring_view> const& names,
                                         std::size_t mostSteps);

/// The same for the end of a message: "; similar names: UDS, KWP", or "" when there are none.
std::string NearNote(std::wstring_view wanted, std::vector<std::wstring_view> const& names);
std::string NearNote(std::wstring_view wanted, std::vector<std::wstring_view> const& names, std::size_t mostSteps);

/// The same in UTF-8.
std::string NearNote(std::string const& wanted, std::vector<std::string> const& names);

/// The same, with all names where none is near and they are few: "; there are view, resolve".
std::string NearOrAllNote(std::string const& wanted, std::vector<std::string> const& names);

} // namespace NCli
