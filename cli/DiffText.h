// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Output.h>
#include <diagkit/query/Diff.h>

namespace NCli {

/// Writes the changes for people: each edit once, with the layers that see it.
void WriteDiff(NQuery::VDiff const& diff, VOutput& output);

} // namespace NCli
