// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Suspects.h>

#include <algorithm>

namespace NReader {

VSuspects::VSuspects(VReferencables const& suspects, VFollow follow) : m_follow(follow) {
    for (NODX201::VReferencable* const suspect : suspects) {
        m_order.emplace(suspect, m_order.size());
    }
}

VDopMeanings::VNames VSuspects::RelevantNames() const {
    VDopMeanings::VNames names;
    for (auto const& [suspect, order] : m_order) {
        VMayLead const mayLead = MayLeadFrom(*suspect, m_follow, {});
        names.insert(suspect->GetShortName());
        names.insert(mayLead.shortNames.begin(), mayLead.shortNames.end());
    }
    return names;
}

VReferencables VSuspects::RootsIn(VDopMeanings::VClass const& meaning) const {
    VReferencables roots = meaning.Visible();
    roots.erase(std::remove_if(roots.begin(), roots.end(),
                               [this](NODX201::VReferencable* dop) { return m_order.count(dop) == 0; }),
                roots.end());
    std::sort(roots.begin(), roots.end(),
              [this](NODX201::VReferencable* a, NODX201::VReferencable* b) { return m_order.at(a) < m_order.at(b); });
    return roots;
}

} // namespace NReader
