// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/ParentRefs.h>

namespace NReader {

/// The layer that a PARENT-REF of one of the four kinds names; null when it does not resolve, and for one without a
/// kind.
NODX201::VDiagLayer* TargetOf(NODX201::VParentRef& parentRef);

} // namespace NReader
