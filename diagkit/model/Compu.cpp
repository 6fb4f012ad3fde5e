// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Compu.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VLimit::~VLimit() = default;
VCompuMethod::~VCompuMethod() = default;
VCompuInternalToPhys::~VCompuInternalToPhys() = default;
VCompuPhysToInternal::~VCompuPhysToInternal() = default;
VCompuScale::~VCompuScale() = default;
VCompuConst::~VCompuConst() = default;
VCompuRationalCoeffs::~VCompuRationalCoeffs() = default;
VCompuDefaultValue::~VCompuDefaultValue() = default;
VCompuInverseValue::~VCompuInverseValue() = default;
VInternalConstr::~VInternalConstr() = default;
VScaleConstr::~VScaleConstr() = default;
VDiagCodedType::~VDiagCodedType() = default;
VStandardLengthType::~VStandardLengthType() = default;
VLeadingLengthInfoType::~VLeadingLengthInfoType() = default;
VMinMaxLengthType::~VMinMaxLengthType() = default;
VParamLengthInfoType::~VParamLengthInfoType() = default;
VPhysicalType::~VPhysicalType() = default;

} // namespace NODX201
