// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/Containment.h>

/// What contains what in data dictionaries, tables included.

namespace NCheck {

/// The ways out of parameters: through the DOPs of VALUE parameters, and through the tables and rows that the table
/// parameters name.
NReader::VEdges EdgesOf(NODX201::VParamCollection& params, NReader::VShortNameTargets const& shortNameTargets);

/// The ways out of a DOP, a TABLE or a TABLE-ROW, in document order; those through tables come last.
NReader::VEdges EdgesOf(NODX201::VReferencable& element, NReader::VShortNameTargets const& shortNameTargets);

} // namespace NCheck
