// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Collections.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VDiagLayerCollection::~VDiagLayerCollection() = default;

} // namespace NODX201
