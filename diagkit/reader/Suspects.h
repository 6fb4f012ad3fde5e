// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <unordered_map>

#include <diagkit/reader/Containment.h>
#include <diagkit/reader/DopMeanings.h>

namespace NReader {

/// Containers that may lead into cycles by short names.
class VSuspects {
public:
    VSuspects(VReferencables const& suspects, VFollow follow); ///< in document order

    /// What they are called, and what they refer to.
    VDopMeanings::VNames RelevantNames() const;

    /// Where to search in a class of layers, in document order: every cycle leads over what a short name means there.
    VReferencables RootsIn(VDopMeanings::VClass const& meaning) const;

private:
    VFollow m_follow;
    std::unordered_map<NODX201::VReferencable*, std::size_t> m_order;
};

} // namespace NReader
