// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Flash.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VFlash::~VFlash() = default;
VEcuMem::~VEcuMem() = default;
VMem::~VMem() = default;
VSession::~VSession() = default;
IIdentIf::~IIdentIf() = default;
VExpectedIdent::~VExpectedIdent() = default;
VOwnIdent::~VOwnIdent() = default;
VIdentValue::~VIdentValue() = default;
VDataformat::~VDataformat() = default;
VEncryptCompressMethod::~VEncryptCompressMethod() = default;
VChecksumResult::~VChecksumResult() = default;
VSessionDesc::~VSessionDesc() = default;
VProjectIdent::~VProjectIdent() = default;

} // namespace NODX201
