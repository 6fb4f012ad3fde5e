// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/ProcessingInstruction.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VProcessingInstruction::~VProcessingInstruction() = default;

} // namespace NODX201
