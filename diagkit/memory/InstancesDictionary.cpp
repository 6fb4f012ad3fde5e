// SPDX-License-Identifier: Apache-2.0

// The makers of elements, a row a class, so that their code is compiled here alone.

#include <diagkit/memory/Compu.h>
#include <diagkit/memory/DopLinks.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/NewImpl.h>
#include <diagkit/memory/ProgCode.h>
#include <diagkit/memory/TableLinks.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/memory/Units.h>

// clang-format off

namespace NMemory {

template std::unique_ptr<VMemLimit> New(VPlace const& place);
template std::unique_ptr<VMemVt> New(VPlace const& place);
template std::unique_ptr<VMemCompuConst> New(VPlace const& place);
template std::unique_ptr<VMemCompuDefaultValue> New(VPlace const& place);
template std::unique_ptr<VMemCompuInverseValue> New(VPlace const& place);
template std::unique_ptr<VMemCompuRationalCoeffs> New(VPlace const& place);
template std::unique_ptr<VMemCompuScale> New(VPlace const& place);
template std::unique_ptr<VMemCompuScales> New(VPlace const& place);
template std::unique_ptr<VMemCompuInternalToPhys> New(VPlace const& place);
template std::unique_ptr<VMemCompuPhysToInternal> New(VPlace const& place);
template std::unique_ptr<VMemCompuMethod> New(VPlace const& place);
template std::unique_ptr<VMemScaleConstr> New(VPlace const& place);
template std::unique_ptr<VMemInternalConstr> New(VPlace const& place);
template std::unique_ptr<VMemPhysicalType> New(VPlace const& place);
template std::unique_ptr<VMemStandardLengthType> New(VPlace const& place);
template std::unique_ptr<VMemLeadingLengthInfoType> New(VPlace const& place);
template std::unique_ptr<VMemMinMaxLengthType> New(VPlace const& place);
template std::unique_ptr<VMemParamLengthInfoType> New(VPlace const& place);
template std::unique_ptr<VMemLengthKeyLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemProgCode> New(VPlace const& place);
template std::unique_ptr<VMemDopBaseLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemDataObjectPropLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemStructureLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemBasicStructureLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemEnvDataDescLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemEnvDataLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemDtcLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemDynEndDopRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemDataObjectProp> New(VPlace const& place);
template std::unique_ptr<VMemDtc> New(VPlace const& place);
template std::unique_ptr<VMemDtcDop> New(VPlace const& place);
template std::unique_ptr<VMemStructure> New(VPlace const& place);
template std::unique_ptr<VMemAllValue> New(VPlace const& place);
template std::unique_ptr<VMemDtcValues> New(VPlace const& place);
template std::unique_ptr<VMemEnvData> New(VPlace const& place);
template std::unique_ptr<VMemEnvDataDesc> New(VPlace const& place);
template std::unique_ptr<VMemStaticField> New(VPlace const& place);
template std::unique_ptr<VMemDetermineNumberOfItems> New(VPlace const& place);
template std::unique_ptr<VMemDynamicLengthField> New(VPlace const& place);
template std::unique_ptr<VMemDynamicEndmarkerField> New(VPlace const& place);
template std::unique_ptr<VMemEndOfPduField> New(VPlace const& place);
template std::unique_ptr<VMemSwitchKey> New(VPlace const& place);
template std::unique_ptr<VMemDefaultCase> New(VPlace const& place);
template std::unique_ptr<VMemCase> New(VPlace const& place);
template std::unique_ptr<VMemMux> New(VPlace const& place);
template std::unique_ptr<VMemDiagDataDictionarySpec> New(VPlace const& place);
template std::unique_ptr<VMemTableLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemTableRowLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemTableRow> New(VPlace const& place);
template std::unique_ptr<VMemTable> New(VPlace const& place);
template std::unique_ptr<VMemPhysicalDimension> New(VPlace const& place);
template std::unique_ptr<VMemUnit> New(VPlace const& place);
template std::unique_ptr<VMemUnitGroup> New(VPlace const& place);
template std::unique_ptr<VMemUnitSpec> New(VPlace const& place);
template std::unique_ptr<VMemPhysicalDimensionLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemUnitLink> New(VPlace const& place, VReference const& reference);

} // namespace NMemory

// clang-format on
