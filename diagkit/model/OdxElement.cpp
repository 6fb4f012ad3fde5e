// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/OdxElement.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VOdxObject::~VOdxObject() = default;
VOdxElement::~VOdxElement() = default;
VReferencable::~VReferencable() = default;

} // namespace NODX201
