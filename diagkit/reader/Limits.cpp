// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Limits.h>

namespace NReader {

std::string OverLimit(std::string const& what, std::uint64_t limit, char const* unit, char const* option) {
    return what + ' ' + std::to_string(limit) + unit + "; " + option + " allows more";
}

} // namespace NReader
