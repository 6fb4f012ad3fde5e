// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/check/Views.h>
#include <diagkit/model/ParentRefs.h>

namespace NCheck {

/// A PARENT-REF that inheritance follows, and its target.
struct VParent {
    NODX201::VParentRef* reference;
    NODX201::VDiagLayer* layer;
};

/// The parents of a layer by rank: first those that win over the rest, each rank in the order of the PARENT-REFs.
/// References that inheritance does not follow are left out.
std::vector<std::vector<VParent>> ParentsByRank(NODX201::VDiagLayer& layer);

/// The short names of a PARENT-REF's NOT-INHERITED-DIAG-COMMS.
VNames ExcludedDiagComms(NODX201::VParentRef& parentRef);

} // namespace NCheck
