// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string>

#include <cli/Selections.h>
#include <diagkit/query/Explain.h>

namespace NCli {

/// A kind of element that layers inherit, as commands and answers call it.
struct VInheritedKindRow {
    char const* name; ///< KIND of `explain` and `resolve`
    VSelectionRule const& selection;
    NQuery::VInheritedKind kind;
    char const* views;     ///< KIND of `view`
    char const* noun;      ///< in texts: "DIAG-COMM"
    char const* reference; ///< what makes an element of another layer a layer's own; null where nothing does
};

extern std::array<VInheritedKindRow, 4> const kInheritedKinds;

VInheritedKindRow const& RowOf(NQuery::VInheritedKind kind);

/// Whose an element is that came to a layer by PARENT-REFs: the last layer of the way; the layer itself without any.
NODX201::VDiagLayer const& OwnerOn(std::vector<NDIAGKIT::VParent> const& path, NODX201::VDiagLayer const& layer);

/// Where something stands, for people: "FILE:LINE"; "" for what stands nowhere.
std::string ShownPlace(NMemory::VDatabase const& database, NODX201::VOdxElement const& element);

} // namespace NCli
