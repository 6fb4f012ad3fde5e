// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Tables.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VTable::~VTable() = default;
VTableRow::~VTableRow() = default;
VTableLink::~VTableLink() = default;
VTableRowLink::~VTableRowLink() = default;

} // namespace NODX201
