// SPDX-License-Identifier: Apache-2.0
#include <cli/InheritedKinds.h>

#include <algorithm>

#include <fmt/format.h>

#include <cli/Text.h>
#include <diagkit/query/FilePlace.h>

namespace NCli {

using NQuery::VInheritedKind;

// clang-format off
std::array<VInheritedKindRow, 4> const kInheritedKinds{{
    {"diag-comm",           kLayerSelection, VInheritedKind::DiagComm,          "diag-comms",           "DIAG-COMM",           "DIAG-COMM-REF"},
    {"diag-variable",       kLayerSelection, VInheritedKind::DiagVariable,      "diag-variables",       "DIAG-VARIABLE",       "DIAG-VARIABLE-REF"},
    {"global-neg-response", kLayerSelection, VInheritedKind::GlobalNegResponse, "global-neg-responses", "GLOBAL-NEG-RESPONSE", nullptr},
    {"dop",                 kLayerSelection, VInheritedKind::Dop,               "dops",                 "DOP",                 nullptr},
}};
// clang-format on

VInheritedKindRow const& RowOf(VInheritedKind kind) {
    return *std::find_if(kInheritedKinds.begin(), kInheritedKinds.end(),
                         [kind](VInheritedKindRow const& row) { return row.kind == kind; });
}

NODX201::VDiagLayer const& OwnerOn(std::vector<NDIAGKIT::VParent> const& path, NODX201::VDiagLayer const& layer) {
    return *(path.empty() ? &layer : path.back().layer.layer);
}

std::string ShownPlace(NMemory::VDatabase const& database, NODX201::VOdxElement const& element) {
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, element);
    return place.line != 0 ? fmt::format("{}:{}", Shown(std::string_view(place.file)), place.line) : "";
}

} // namespace NCli
