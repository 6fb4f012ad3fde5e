// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/Export.h>
#include <diagkit/model/ElementCollection.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/OdxElement.h>

/// The collections of the contract, a row each: all are ordered in document order and behave as `VElementCollection`
/// says. Three need a line more.

namespace NODX201 {

/// Texts such as ROLE and AUT-METHOD; iterates `std::wstring const&`.
class VStringCollection : public VElementCollection<std::wstring const> {};

/// The layers of a container, of all kinds, in document order. It owns its layers in the sense of `GetOwner()`.
class DIAGKIT_EXPORT VDiagLayerCollection : public VOdxObject, public VElementCollection<VDiagLayer> {
public:
    ~VDiagLayerCollection() override;
};

/// One alternative of COMPU-INTERNAL-TO-PHYS: COMPU-SCALES or PROG-CODE.
class DIAGKIT_EXPORT ICompuScalesProgCodeChoice {
public:
    virtual bool IsCompuScales() const = 0; ///< castable to `VCompuScaleCollection`
    virtual bool IsProgCode() const = 0;    ///< castable to `VProgCode`

protected:
    ICompuScalesProgCodeChoice() = default;
    ~ICompuScalesProgCodeChoice() = default;
};

/// COMPU-SCALES
class VCompuScaleCollection : public VElementCollection<VCompuScale>, public ICompuScalesProgCodeChoice {
public:
    bool IsCompuScales() const final { return true; }
    bool IsProgCode() const final { return false; }

protected:
    VCompuScaleCollection() = default;
    ~VCompuScaleCollection() = default;
};

// clang-format off
class VAccessLevelCollection             : public VElementCollection<VAccessLevel> {};
class VCaseCollection                    : public VElementCollection<VCase> {};
class VCommRelationCollection            : public VElementCollection<VCommRelation> {};
class VCompanyDataCollection             : public VElementCollection<VCompanyData> {};
class VCompanyDocInfoCollection          : public VElementCollection<VCompanyDocInfo> {};
class VCompanyRevisionInfoCollection     : public VElementCollection<VCompanyRevisionInfo> {};
class VComparamCollection                : public VElementCollection<VComparam> {};
class VComparamRefCollection             : public VElementCollection<VComparamRef> {};
class VComparamSpecCollection            : public VElementCollection<VComparamSpec> {};
class VDiagCommProxyCollection           : public VElementCollection<IDiagCommProxy> {};
class VDiagLayerContainerCollection      : public VElementCollection<VDiagLayerContainer> {};
class VDiagVariableProxyCollection       : public VElementCollection<IDiagVariableProxy> {};
class VDocRevisionCollection             : public VElementCollection<VDocRevision> {};
class VDopBaseCollection                 : public VElementCollection<VDopBase> {};
class VDtcProxyCollection                : public VElementCollection<IDtcProxy> {};
class VDynIdDefModeInfoCollection        : public VElementCollection<VDynIdDefModeInfo> {};
class VEcuMemCollection                  : public VElementCollection<VEcuMem> {};
class VEcuVariantPatternCollection       : public VElementCollection<VEcuVariantPattern> {};
class VEnvDataProxyCollection            : public VElementCollection<IEnvDataProxy> {};
class VExpectedIdentCollection           : public VElementCollection<VExpectedIdent> {};
class VFunctClassCollection              : public VElementCollection<VFunctClass> {};
class VFunctClassLinkCollection          : public VElementCollection<VFunctClassLink> {};
class VInputParamCollection              : public VElementCollection<VInputParam> {};
class VMatchingParameterCollection       : public VElementCollection<VMatchingParameter> {};
class VModificationCollection            : public VElementCollection<VModification> {};
class VNegOutputParamCollection          : public VElementCollection<VNegOutputParam> {};
class VNegResponseLinkCollection         : public VElementCollection<VNegResponseLink> {};
class VNotInheritedDiagCommCollection    : public VElementCollection<VNotInheritedDiagComm> {};
class VNotInheritedVariableCollection    : public VElementCollection<VNotInheritedVariable> {};
class VOutputParamCollection             : public VElementCollection<VOutputParam> {};
class VParamCollection                   : public VElementCollection<VParam> {};
class VParentRefCollection               : public VElementCollection<VParentRef> {};
class VPhysicalDimensionCollection       : public VElementCollection<VPhysicalDimension> {};
class VPosResponseLinkCollection         : public VElementCollection<VPosResponseLink> {};
class VProcessingInstructionCollection   : public VElementCollection<VProcessingInstruction> {};
class VProgCodeCollection                : public VElementCollection<VProgCode> {};
class VRelatedDiagCommRefCollection      : public VElementCollection<VRelatedDiagCommRef> {};
class VRelatedDocCollection              : public VElementCollection<VRelatedDoc> {};
class VRequestCollection                 : public VElementCollection<VRequest> {};
class VResponseCollection                : public VElementCollection<VResponse> {};
class VRowWrapperCollection              : public VElementCollection<IRowWrapper> {};
class VScaleConstrCollection             : public VElementCollection<VScaleConstr> {};
class VSdgCollection                     : public VElementCollection<VSdg> {};
class VSdgSdChoiceCollection             : public VElementCollection<ISdgSdChoice> {};
class VSessionCollection                 : public VElementCollection<VSession> {};
class VSupportedDynIdCollection          : public VElementCollection<VByteStream> {};
class VSwVariableCollection              : public VElementCollection<VSwVariable> {};
class VTableCollection                   : public VElementCollection<VTable> {};
class VTableLinkCollection               : public VElementCollection<VTableLink> {};
class VTeamMemberCollection              : public VElementCollection<VTeamMember> {};
class VUnitCollection                    : public VElementCollection<VUnit> {};
class VUnitGroupCollection               : public VElementCollection<VUnitGroup> {};
class VUnitLinkCollection                : public VElementCollection<VUnitLink> {};
class VVariableGroupCollection           : public VElementCollection<VVariableGroup> {};
// clang-format on

} // namespace NODX201
