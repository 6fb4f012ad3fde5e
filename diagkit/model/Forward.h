// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Forward declarations of the contract's classes, by topic, for headers that only name them.

namespace NODX201 {

class ILink;
class VByteStream;
class VLink;
class VOdx;
class VOdxElement;
class VOdxLink;
class VOdxObject;
class VProcessingInstruction;
class VReferencable;
class VSnref;
class VText;
class VVt;
enum class VSearchRange : int;

// visitors
class VDiagCommVisitor;
class VDiagLayerVisitor;
class VDopBaseVisitor;
class VParamVisitor;

// layers
class VAccessLevel;
class VBaseVariant;
class VBaseVariantRef;
class VDiagLayer;
class VDiagLayerContainer;
class VDynDefinedSpec;
class VDynIdDefModeInfo;
class VEcuSharedData;
class VEcuSharedDataRef;
class VEcuVariant;
class VEcuVariantPattern;
class VFunctClass;
class VFunctClassLink;
class VFunctionalGroup;
class VFunctionalGroupRef;
class VMatchingParameter;
class VNotInheritedDiagComm;
class VNotInheritedVariable;
class VParentRef;
class VProtocol;
class VProtocolRef;

// diag comms
class IDiagCommProxy;
class IInParamIf;
class IOutParamIf;
class VAudience;
class VDiagComm;
class VDiagCommLink;
class VDiagService;
class VInputParam;
class VMultipleEcuJob;
class VNegOutputParam;
class VOutParamIfLink;
class VOutputParam;
class VProgCode;
class VRelatedDiagCommRef;
class VSingleEcuJob;

// diag variables
class IDiagVariableProxy;
class VCommRelation;
class VDiagVariable;
class VDiagVariableLink;
class VSwVariable;
class VVariableGroup;
class VVariableGroupLink;

// requests, responses, parameters
class VCodedConst;
class VDynamic;
class VGlobalNegResponse;
class VLengthKey;
class VMatchingRequestParam;
class VNegResponse;
class VNegResponseLink;
class VParam;
class VPhysConst;
class VPosResponse;
class VPosResponseLink;
class VRequest;
class VRequestLink;
class VReserved;
class VResponse;
class VSystem;
class VTableEntry;
class VTableKey;
class VTableKeyLink;
class VTableStruct;
class VValue;

// data dictionary
class IAllValueDtcValuesChoice;
class IBasicStructureEnvDataDescChoice;
class ICompuConstCompuRationalCoeffsChoice;
class ICompuScalesProgCodeChoice;
class IDtcProxy;
class IEnvDataProxy;
class IRowWrapper;
class ITableRefTableRowRefChoice;
class VAllValue;
class VBasicStructure;
class VBasicStructureLink;
class VCase;
class VComplexDop;
class VCompuConst;
class VCompuDefaultValue;
class VCompuInternalToPhys;
class VCompuInverseValue;
class VCompuMethod;
class VCompuPhysToInternal;
class VCompuRationalCoeffs;
class VCompuScale;
class VDataObjectProp;
class VDataObjectPropLink;
class VDefaultCase;
class VDetermineNumberOfItems;
class VDiagCodedType;
class VDiagDataDictionarySpec;
class VDopBase;
class VDopBaseLink;
class VDtc;
class VDtcDop;
class VDtcLink;
class VDtcValues;
class VDynEndDopRef;
class VDynamicEndmarkerField;
class VDynamicLengthField;
class VEndOfPduField;
class VEnvData;
class VEnvDataDesc;
class VEnvDataDescLink;
class VEnvDataLink;
class VField;
class VInternalConstr;
class VLeadingLengthInfoType;
class VLimit;
class VMinMaxLengthType;
class VMux;
class VParamLengthInfoType;
class VPhysicalDimension;
class VPhysicalDimensionLink;
class VPhysicalType;
class VScaleConstr;
class VStandardLengthType;
class VStaticField;
class VStructure;
class VStructureLink;
class VSwitchKey;
class VTable;
class VTableLink;
class VTableRow;
class VTableRowLink;
class VUnit;
class VUnitGroup;
class VUnitLink;
class VUnitSpec;

// administrative data
class ISdgSdChoice;
class VAdminData;
class VCompanyData;
class VCompanyDataLink;
class VCompanyDocInfo;
class VCompanyRevisionInfo;
class VCompanySpecificInfo;
class VDocRevision;
class VModification;
class VRelatedDoc;
class VSd;
class VSdg;
class VSdgCaption;
class VTeamMember;
class VTeamMemberLink;
class VXdoc;

// communication parameters
class VComparam;
class VComparamRef;
class VComparamSpec;
class VComparamSpecLink;

// flash
class IIdentIf;
class VChecksumResult;
class VDataformat;
class VEcuMem;
class VEncryptCompressMethod;
class VExpectedIdent;
class VFlash;
class VIdentValue;
class VMem;
class VOwnIdent;
class VProjectIdent;
class VSession;
class VSessionDesc;

} // namespace NODX201
