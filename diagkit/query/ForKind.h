// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/query/InheritedKind.h>
#include <diagkit/tools/Inheritance.h>

namespace NQuery {

/// Calls the action with a value of the row that defines how elements of the kind are inherited.
template <class Action>
auto ForKind(VInheritedKind kind, Action const& action) {
    switch (kind) {
    case VInheritedKind::DiagVariable:
        return action(NDIAGKIT::VInheritedDiagVariables());
    case VInheritedKind::GlobalNegResponse:
        return action(NDIAGKIT::VInheritedGlobalNegResponses());
    case VInheritedKind::Dop:
        return action(NDIAGKIT::VInheritedDops());
    default:
        return action(NDIAGKIT::VInheritedDiagComms());
    }
}

} // namespace NQuery
