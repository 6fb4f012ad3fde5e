// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NQuery {

/// The kinds of element that layers inherit.
enum class VInheritedKind { DiagComm, DiagVariable, GlobalNegResponse, Dop };

} // namespace NQuery
