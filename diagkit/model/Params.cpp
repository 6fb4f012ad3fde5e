// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Params.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VParam::~VParam() = default;
VCodedConst::~VCodedConst() = default;
VDynamic::~VDynamic() = default;
VLengthKey::~VLengthKey() = default;
VMatchingRequestParam::~VMatchingRequestParam() = default;
VPhysConst::~VPhysConst() = default;
VReserved::~VReserved() = default;
VSystem::~VSystem() = default;
VTableKey::~VTableKey() = default;
VTableKeyLink::~VTableKeyLink() = default;
VTableStruct::~VTableStruct() = default;
VTableEntry::~VTableEntry() = default;
VValue::~VValue() = default;

} // namespace NODX201
