// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Odx.h>

/// The table of each element class, by class. The argument only chooses; it is never looked at.

namespace NReader {

struct VElementType;

/// Links without children.
template <class Contract, NODX201::VOdxTagEnum Tag, class Target>
VElementType const& TypeOf(NMemory::VMemLink<Contract, Tag, Target>*);
VElementType const& LinkType();

// AdminData
VElementType const& TypeOf(NMemory::VMemCompanyDocInfo*);
VElementType const& TypeOf(NMemory::VMemCompanyRevisionInfo*);
VElementType const& TypeOf(NMemory::VMemModification*);
VElementType const& TypeOf(NMemory::VMemDocRevision*);
VElementType const& TypeOf(NMemory::VMemAdminData*);
VElementType const& TypeOf(NMemory::VMemXdoc*);
VElementType const& TypeOf(NMemory::VMemRelatedDoc*);
VElementType const& TypeOf(NMemory::VMemCompanySpecificInfo*);
VElementType const& TypeOf(NMemory::VMemTeamMember*);
VElementType const& TypeOf(NMemory::VMemCompanyData*);

// Comparams
VElementType const& TypeOf(NMemory::VMemComparamRef*);
VElementType const& TypeOf(NMemory::VMemComparam*);
VElementType const& TypeOf(NMemory::VMemComparamSpec*);

// Compu
VElementType const& TypeOf(NMemory::VMemLimit*);
VElementType const& TypeOf(NMemory::VMemVt*);
VElementType const& TypeOf(NMemory::VMemCompuConst*);
VElementType const& TypeOf(NMemory::VMemCompuDefaultValue*);
VElementType const& TypeOf(NMemory::VMemCompuInverseValue*);
VElementType const& TypeOf(NMemory::VMemCompuRationalCoeffs*);
VElementType const& TypeOf(NMemory::VMemCompuScale*);
VElementType const& TypeOf(NMemory::VMemCompuScales*);
VElementType const& TypeOf(NMemory::VMemCompuInternalToPhys*);
VElementType const& TypeOf(NMemory::VMemCompuPhysToInternal*);
VElementType const& TypeOf(NMemory::VMemCompuMethod*);
VElementType const& TypeOf(NMemory::VMemScaleConstr*);
VElementType const& TypeOf(NMemory::VMemInternalConstr*);
VElementType const& TypeOf(NMemory::VMemPhysicalType*);
VElementType const& TypeOf(NMemory::VMemStandardLengthType*);
VElementType const& TypeOf(NMemory::VMemLeadingLengthInfoType*);
VElementType const& TypeOf(NMemory::VMemMinMaxLengthType*);
VElementType const& TypeOf(NMemory::VMemParamLengthInfoType*);

// DiagCommLinks
VElementType const& TypeOf(NMemory::VMemRelatedDiagCommRef*);

// DiagComms
VElementType const& TypeOf(NMemory::VMemAudience*);
VElementType const& TypeOf(NMemory::VMemInputParam*);
VElementType const& TypeOf(NMemory::VMemOutputParam*);
VElementType const& TypeOf(NMemory::VMemNegOutputParam*);
VElementType const& TypeOf(NMemory::VMemDiagService*);
VElementType const& TypeOf(NMemory::VMemSingleEcuJob*);

// DiagVariables
VElementType const& TypeOf(NMemory::VMemVariableGroup*);
VElementType const& TypeOf(NMemory::VMemSwVariable*);
VElementType const& TypeOf(NMemory::VMemCommRelation*);
VElementType const& TypeOf(NMemory::VMemDiagVariable*);

// DopLinks
VElementType const& TypeOf(NMemory::VMemDynEndDopRef*);

// Dops
VElementType const& TypeOf(NMemory::VMemDataObjectProp*);
VElementType const& TypeOf(NMemory::VMemDtc*);
VElementType const& TypeOf(NMemory::VMemDtcDop*);
VElementType const& TypeOf(NMemory::VMemStructure*);
VElementType const& TypeOf(NMemory::VMemAllValue*);
VElementType const& TypeOf(NMemory::VMemDtcValues*);
VElementType const& TypeOf(NMemory::VMemEnvData*);
VElementType const& TypeOf(NMemory::VMemEnvDataDesc*);
VElementType const& TypeOf(NMemory::VMemStaticField*);
VElementType const& TypeOf(NMemory::VMemDetermineNumberOfItems*);
VElementType const& TypeOf(NMemory::VMemDynamicLengthField*);
VElementType const& TypeOf(NMemory::VMemDynamicEndmarkerField*);
VElementType const& TypeOf(NMemory::VMemEndOfPduField*);
VElementType const& TypeOf(NMemory::VMemSwitchKey*);
VElementType const& TypeOf(NMemory::VMemDefaultCase*);
VElementType const& TypeOf(NMemory::VMemCase*);
VElementType const& TypeOf(NMemory::VMemMux*);
VElementType const& TypeOf(NMemory::VMemDiagDataDictionarySpec*);

// Flash
VElementType const& TypeOf(NMemory::VMemIdentValue*);
VElementType const& TypeOf(NMemory::VMemExpectedIdent*);
VElementType const& TypeOf(NMemory::VMemOwnIdent*);
VElementType const& TypeOf(NMemory::VMemChecksumResult*);
VElementType const& TypeOf(NMemory::VMemSecurityMethod*);
VElementType const& TypeOf(NMemory::VMemFwSignature*);
VElementType const& TypeOf(NMemory::VMemFwChecksum*);
VElementType const& TypeOf(NMemory::VMemValidityFor*);
VElementType const& TypeOf(NMemory::VMemSecurity*);
VElementType const& TypeOf(NMemory::VMemChecksum*);
VElementType const& TypeOf(NMemory::VMemSession*);
VElementType const& TypeOf(NMemory::VMemDataformat*);
VElementType const& TypeOf(NMemory::VMemEncryptCompressMethod*);
VElementType const& TypeOf(NMemory::VMemFlashdata*);
VElementType const& TypeOf(NMemory::VMemFilter*);
VElementType const& TypeOf(NMemory::VMemSegment*);
VElementType const& TypeOf(NMemory::VMemTargetAddrOffset*);
VElementType const& TypeOf(NMemory::VMemDatablock*);
VElementType const& TypeOf(NMemory::VMemMem*);
VElementType const& TypeOf(NMemory::VMemProjectIdent*);
VElementType const& TypeOf(NMemory::VMemProjectInfo*);
VElementType const& TypeOf(NMemory::VMemPhysSegment*);
VElementType const& TypeOf(NMemory::VMemPhysMem*);
VElementType const& TypeOf(NMemory::VMemEcuMem*);
VElementType const& TypeOf(NMemory::VMemFlashClass*);
VElementType const& TypeOf(NMemory::VMemSessionDesc*);
VElementType const& TypeOf(NMemory::VMemIdentDesc*);
VElementType const& TypeOf(NMemory::VMemEcuMemConnector*);
VElementType const& TypeOf(NMemory::VMemFlash*);

// FunctClasses
VElementType const& TypeOf(NMemory::VMemFunctClass*);

// LayerParts
VElementType const& TypeOf(NMemory::VMemAccessLevel*);
VElementType const& TypeOf(NMemory::VMemByteStream*);
VElementType const& TypeOf(NMemory::VMemDynIdDefModeInfo*);
VElementType const& TypeOf(NMemory::VMemDynDefinedSpec*);
VElementType const& TypeOf(NMemory::VMemMatchingParameter*);
VElementType const& TypeOf(NMemory::VMemEcuVariantPattern*);

// Layers
VElementType const& TypeOf(NMemory::VMemProtocol*);
VElementType const& TypeOf(NMemory::VMemFunctionalGroup*);
VElementType const& TypeOf(NMemory::VMemBaseVariant*);
VElementType const& TypeOf(NMemory::VMemEcuVariant*);
VElementType const& TypeOf(NMemory::VMemEcuSharedData*);
VElementType const& TypeOf(NMemory::VMemDiagLayerContainer*);

// MultipleEcuJobs
VElementType const& TypeOf(NMemory::VMemMultipleEcuJob*);
VElementType const& TypeOf(NMemory::VMemMultipleEcuJobSpec*);

// Params
VElementType const& TypeOf(NMemory::VMemCodedConst*);
VElementType const& TypeOf(NMemory::VMemDynamic*);
VElementType const& TypeOf(NMemory::VMemLengthKey*);
VElementType const& TypeOf(NMemory::VMemMatchingRequestParam*);
VElementType const& TypeOf(NMemory::VMemPhysConst*);
VElementType const& TypeOf(NMemory::VMemReserved*);
VElementType const& TypeOf(NMemory::VMemSystem*);
VElementType const& TypeOf(NMemory::VMemTableKey*);
VElementType const& TypeOf(NMemory::VMemTableStruct*);
VElementType const& TypeOf(NMemory::VMemTableEntry*);
VElementType const& TypeOf(NMemory::VMemValue*);

// ParentRefs
VElementType const& TypeOf(NMemory::VMemNotInheritedDiagComm*);
VElementType const& TypeOf(NMemory::VMemNotInheritedVariable*);
VElementType const& TypeOf(NMemory::VMemParentRef*);
VElementType const& TypeOf(NMemory::VMemProtocolRef*);
VElementType const& TypeOf(NMemory::VMemFunctionalGroupRef*);
VElementType const& TypeOf(NMemory::VMemBaseVariantRef*);
VElementType const& TypeOf(NMemory::VMemEcuSharedDataRef*);

// ProgCode
VElementType const& TypeOf(NMemory::VMemProgCode*);

// Responses
VElementType const& TypeOf(NMemory::VMemRequest*);
VElementType const& TypeOf(NMemory::VMemPosResponse*);
VElementType const& TypeOf(NMemory::VMemNegResponse*);
VElementType const& TypeOf(NMemory::VMemGlobalNegResponse*);

// Sdgs
VElementType const& TypeOf(NMemory::VMemSdgCaption*);
VElementType const& TypeOf(NMemory::VMemSd*);
VElementType const& TypeOf(NMemory::VMemSdg*);

// Tables
VElementType const& TypeOf(NMemory::VMemTableRow*);
VElementType const& TypeOf(NMemory::VMemTable*);

// Units
VElementType const& TypeOf(NMemory::VMemPhysicalDimension*);
VElementType const& TypeOf(NMemory::VMemUnit*);
VElementType const& TypeOf(NMemory::VMemUnitGroup*);
VElementType const& TypeOf(NMemory::VMemUnitSpec*);

template <class Contract, NODX201::VOdxTagEnum Tag, class Target>
VElementType const& TypeOf(NMemory::VMemLink<Contract, Tag, Target>*) {
    return LinkType();
}

} // namespace NReader
