// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "support/GraphPlan.h"

/// What is visible in a layer, by the rules of ODX inheritance and nothing else: no model, no toolkit, quadratic. In
/// the form of `Print(view)`. What the entries of a plan stand for, other than DIAG-COMMs, is what `VContent` says.

namespace NTest {

std::wstring NaiveDiagComms(VGraphPlan const& graph, std::wstring const& layer);
std::wstring NaiveDops(VGraphPlan const& graph, std::wstring const& layer);
std::wstring NaiveDiagVariables(VGraphPlan const& graph, std::wstring const& layer);
std::wstring NaiveGlobalNegResponses(VGraphPlan const& graph, std::wstring const& layer);

} // namespace NTest
