// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Topics.h>

#include <algorithm>

namespace NCheck {

std::string ListedIn(NReader::VCycleSearch::VChain const& chain) {
    std::vector<std::string> titles;
    for (std::size_t index = 0; index < std::min(chain.Count(), kMostListed); ++index) {
        titles.push_back(Titled(chain[index]));
    }
    return NReader::ListedOf(titles, chain.Count());
}

} // namespace NCheck
