// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "support/GraphPlan.h"

namespace NTest {

/// The DIAG-COMMs visible in a layer, by the rules of ODX inheritance and nothing else: no model, no toolkit,
/// quadratic. In the form of `Print(view)`.
std::wstring NaiveDiagComms(VGraphPlan const& graph, std::wstring const& layer);

} // namespace NTest
