// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "support/GraphPlan.h"

/// The elements visible in a layer, by the rules of ODX inheritance and nothing else: no model, no toolkit, quadratic.
/// In the form of `Print(view)`. `VContent` defines what the entries of a plan represent, other than DIAG-COMMs.

namespace NTest {

std::wstring NaiveDiagComms(VGraphPlan const& graph, std::wstring const& layer);
std::wstring NaiveDops(VGraphPlan const& graph, std::wstring const& layer);
std::wstring NaiveDiagVariables(VGraphPlan const& graph, std::wstring const& layer);
std::wstring NaiveGlobalNegResponses(VGraphPlan const& graph, std::wstring const& layer);

/// The kinds of inherited element.
enum class VNaiveKind { DiagComms, DiagVariables, GlobalNegResponses, Dops };

/// Every own element of the name on every way to the layer, one per line with its ID, the layers of the way and what
/// happens to it: "L1.a<L2<L1 hidden in L0 by L0.a". Elements are shown by their IDs.
std::wstring NaiveWays(VNaiveKind kind, VGraphPlan const& graph, std::wstring const& layer, std::wstring const& name);

/// The elements of the name in layers to which no chain of PARENT-REFs leads, a line each.
std::wstring NaiveElsewhere(VNaiveKind kind, VGraphPlan const& graph, std::wstring const& layer,
                            std::wstring const& name);

/// The view of a layer with the way of each entry, then what is hidden and excluded in it.
std::wstring NaiveReasons(VNaiveKind kind, VGraphPlan const& graph, std::wstring const& layer);

} // namespace NTest
