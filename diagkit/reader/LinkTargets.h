// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Reference.h>

namespace NReader {

/// What a reference by ID names, of whatever class the reference is, also where it was cut because it closes a circle.
/// Null where that is nothing, for a reference by short name, and for one of another model.
NODX201::VOdxElement* TargetById(NODX201::VLink& reference);

} // namespace NReader
