// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <cli/Output.h>
#include <diagkit/query/Uses.h>

namespace NCli {

/// An element and the references to it, in groups by layer or document.
void WriteUses(NMemory::VDatabase const& database, NODX201::VOdxElement const& element,
               std::vector<NQuery::VUse> const& uses, VOutput& output);

/// Elements to which no reference leads, in groups by kind.
void WriteUnused(NMemory::VDatabase const& database, std::vector<NODX201::VOdxElement*> const& unused, VOutput& output);

} // namespace NCli
