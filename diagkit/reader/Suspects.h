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

    /// Their names, and the names they refer to.
    VDopMeanings::VNames RelevantNames() const;

    /// Where to search in a class of layers, in document order: every cycle contains the target of a short name there.
    VReferencables RootsIn(VDopMeanings::VClass const& meaning) const;

private:
    VFollow m_follow;
    std::unordered_map<NODX201::VReferencable*, std::size_t> m_order;
};

} // namespace NReader
