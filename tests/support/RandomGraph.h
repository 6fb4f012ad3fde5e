// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "support/GraphPlan.h"

namespace NTest {

/// A graph of five to twelve layers with everything that the language of `GraphText.h` can express: own entries of
/// every form and few names, so that many collide; references that fit, that do not, that have no target or form
/// cycles. The same seed gives the same graph on every platform.
VGraphPlan RandomGraph(std::uint32_t seed);

} // namespace NTest
