// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Sdgs.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VSdg::~VSdg() = default;
VSdgCaption::~VSdgCaption() = default;
VSd::~VSd() = default;

} // namespace NODX201
