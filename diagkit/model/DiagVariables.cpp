// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/DiagVariables.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VDiagVariable::~VDiagVariable() = default;
VDiagVariableLink::~VDiagVariableLink() = default;
VVariableGroup::~VVariableGroup() = default;
VVariableGroupLink::~VVariableGroupLink() = default;
VSwVariable::~VSwVariable() = default;
VCommRelation::~VCommRelation() = default;

} // namespace NODX201
