// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Layers.h>

namespace NTest {

/// The PARENT-REFS of a layer of any kind; null for an ECU-SHARED-DATA, which has none.
NODX201::VParentRefCollection* ParentRefsOf(NODX201::VDiagLayer& layer);

} // namespace NTest
