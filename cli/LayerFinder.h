// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/cli/Layers.h>
#include <diagkit/cli/Output.h>

namespace NCli {

/// The one layer of this short name or ID. Null, with a message that helps to name it right, when there is none or when
/// several fit.
NODX201::VDiagLayer* FindLayer(NMemory::VDatabase& database, std::string const& name, VOutput const& output);

} // namespace NCli
