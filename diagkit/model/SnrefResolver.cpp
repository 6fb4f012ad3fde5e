// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/SnrefResolver.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VAbstractSnrefResolver::~VAbstractSnrefResolver() = default;

} // namespace NODX201
