// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Odx.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VOdx::~VOdx() = default;

} // namespace NODX201
