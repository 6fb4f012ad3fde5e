// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Dops.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VDiagDataDictionarySpec::~VDiagDataDictionarySpec() = default;
VDopBase::~VDopBase() = default;
VDataObjectProp::~VDataObjectProp() = default;
VDtcDop::~VDtcDop() = default;
VDtc::~VDtc() = default;
VDtcLink::~VDtcLink() = default;
VComplexDop::~VComplexDop() = default;
VBasicStructure::~VBasicStructure() = default;
VStructure::~VStructure() = default;
VAllValue::~VAllValue() = default;
VDtcValues::~VDtcValues() = default;
VEnvData::~VEnvData() = default;
VEnvDataLink::~VEnvDataLink() = default;
VEnvDataDesc::~VEnvDataDesc() = default;
VBasicStructureLink::~VBasicStructureLink() = default;
VEnvDataDescLink::~VEnvDataDescLink() = default;
VField::~VField() = default;
VStaticField::~VStaticField() = default;
VDynamicLengthField::~VDynamicLengthField() = default;
VDetermineNumberOfItems::~VDetermineNumberOfItems() = default;
VDynamicEndmarkerField::~VDynamicEndmarkerField() = default;
VDynEndDopRef::~VDynEndDopRef() = default;
VEndOfPduField::~VEndOfPduField() = default;
VMux::~VMux() = default;
VSwitchKey::~VSwitchKey() = default;
VDefaultCase::~VDefaultCase() = default;
VCase::~VCase() = default;
VStructureLink::~VStructureLink() = default;
VDopBaseLink::~VDopBaseLink() = default;
VDataObjectPropLink::~VDataObjectPropLink() = default;

} // namespace NODX201
