// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Reference.h>

namespace NReader {

/// The target of a reference by ID of any class, even if it was severed because it closes a cycle. Null where there is
/// none, for a reference by short name, and for one of another model.
NODX201::VOdxElement* TargetById(NODX201::VLink& reference);

} // namespace NReader
