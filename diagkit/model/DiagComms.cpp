// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/DiagComms.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

IInParamIf::~IInParamIf() = default;
IOutParamIf::~IOutParamIf() = default;
VDiagComm::~VDiagComm() = default;
VDiagService::~VDiagService() = default;
VSingleEcuJob::~VSingleEcuJob() = default;
VMultipleEcuJob::~VMultipleEcuJob() = default;
VDiagCommLink::~VDiagCommLink() = default;
VRelatedDiagCommRef::~VRelatedDiagCommRef() = default;
VAudience::~VAudience() = default;
VProgCode::~VProgCode() = default;
VInputParam::~VInputParam() = default;
VOutputParam::~VOutputParam() = default;
VNegOutputParam::~VNegOutputParam() = default;
VOutParamIfLink::~VOutParamIfLink() = default;

} // namespace NODX201
