// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Responses.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VRequest::~VRequest() = default;
VResponse::~VResponse() = default;
VPosResponse::~VPosResponse() = default;
VNegResponse::~VNegResponse() = default;
VGlobalNegResponse::~VGlobalNegResponse() = default;
VRequestLink::~VRequestLink() = default;
VPosResponseLink::~VPosResponseLink() = default;
VNegResponseLink::~VNegResponseLink() = default;

} // namespace NODX201
