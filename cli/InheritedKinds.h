// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string>

#include <cli/Selections.h>
#include <diagkit/query/Explain.h>

namespace NCli {

/// A kind of inherited element, with its names in commands and output.
struct VInheritedKindRow {
    char const* name; ///< KIND of `explain` and `resolve`
    VSelectionRule const& selection;
    NQuery::VInheritedKind kind;
    char const* views;     ///< KIND of `view`
    char const* noun;      ///< in texts: "DIAG-COMM"
    char const* reference; ///< the reference that adds an element of another layer to a layer; null where there is none
};

extern std::array<VInheritedKindRow, 4> const kInheritedKinds;

VInheritedKindRow const& RowOf(NQuery::VInheritedKind kind);

/// The owner of an element that came to a layer through PARENT-REFs: the last layer of the way; the layer itself
/// without any.
NODX201::VDiagLayer const& OwnerOn(std::vector<NDIAGKIT::VParent> const& path, NODX201::VDiagLayer const& layer);

/// A place for people: "FILE:LINE"; "" where there is none.
std::string ShownPlace(NMemory::VDatabase const& database, NODX201::VOdxElement const& element);

} // namespace NCli
