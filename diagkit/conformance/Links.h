// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <vector>

#include <diagkit/conformance/Alternatives.h>
#include <diagkit/model/Reference.h>

namespace NConformance {

/// A way to query a link for its target.
struct VQuestion {
    std::function<bool()> has;
    std::function<VChild()> get;
};

/// The queries for a link in the context of a layer or, with null, without context; a link that needs one then has
/// none. A COMPARAM-REF and a PARENT-REF of unknown kind have no target in the contract.
std::vector<VQuestion> QuestionsFor(NODX201::VLink& link, NODX201::VDiagLayer* layer);

/// Whether its result may depend on the layer.
bool IsAskedForLayer(NODX201::VLink& link);

} // namespace NConformance
