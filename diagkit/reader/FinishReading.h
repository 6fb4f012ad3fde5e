// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/DocumentReading.h>

namespace NReader {

/// What can be said only when everything is loaded: gives PARENT-REFs without xsi:type the kind of their target, and
/// reports references without a target, IDs used twice in one document and parents that ODX does not allow. References
/// into one document that is not loaded are told together, or each.
void FinishReading(VReading& reading, bool tellsEachReference);

} // namespace NReader
