// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "support/GraphPlan.h"

namespace NTest {

/// A graph of five to twelve layers with whatever the language of `GraphText.h` can say: own entries of every form and
/// few names, so that many collide; references that fit, that do not, that have no target or run in circles. The same
/// seed gives the same graph on every platform.
VGraphPlan RandomGraph(std::uint32_t seed);

} // namespace NTest
