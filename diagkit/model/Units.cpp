// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Units.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VUnitSpec::~VUnitSpec() = default;
VUnit::~VUnit() = default;
VUnitGroup::~VUnitGroup() = default;
VUnitLink::~VUnitLink() = default;
VPhysicalDimension::~VPhysicalDimension() = default;
VPhysicalDimensionLink::~VPhysicalDimensionLink() = default;

} // namespace NODX201
