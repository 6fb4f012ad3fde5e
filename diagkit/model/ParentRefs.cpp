// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/ParentRefs.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VParentRef::~VParentRef() = default;
VProtocolRef::~VProtocolRef() = default;
VFunctionalGroupRef::~VFunctionalGroupRef() = default;
VBaseVariantRef::~VBaseVariantRef() = default;
VEcuSharedDataRef::~VEcuSharedDataRef() = default;
VNotInheritedDiagComm::~VNotInheritedDiagComm() = default;
VNotInheritedVariable::~VNotInheritedVariable() = default;

} // namespace NODX201
