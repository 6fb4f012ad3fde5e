// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Output.h>
#include <diagkit/memory/Database.h>
#include <diagkit/query/MessageLayout.h>

namespace NCli {

/// What `show` looks at.
struct VShown {
    NMemory::VDatabase const& database;
    NODX201::VOdxElement& element;
    NODX201::VDiagLayer* layer; ///< in which short names are read; null for none
    NQuery::VLayoutOptions const& options;
};

/// All of an element as text for people: what it is for, then what is inside. False when a layout was cut.
bool WriteShown(VShown const& shown, VOutput& output);

} // namespace NCli
