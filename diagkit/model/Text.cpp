// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Text.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VText::~VText() = default;
VVt::~VVt() = default;
VByteStream::~VByteStream() = default;

} // namespace NODX201
