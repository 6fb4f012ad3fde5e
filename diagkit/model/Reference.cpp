// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Reference.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

ILink::~ILink() = default;
VSnref::~VSnref() = default;
VOdxLink::~VOdxLink() = default;
VLink::~VLink() = default;

} // namespace NODX201
