// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/model/Collections.h>
#include <diagkit/tools/DiagDataDictionarySpecTraverser.h>

namespace NDIAGKIT {

/// Walks one diagnostic layer depth first and calls a hook before and after every element. Derive from it, override the
/// hooks you care about, construct it on a layer and call `TraverseDiagLayer`. The tiers Visit, Descend and PreProcess,
/// PostProcess are those of `VDiagDataDictionarySpecTraverser`, which also walks the layer's dictionary, parameters,
/// SDGs and administrative data.
///
/// Followed every time they occur: references to DIAG-COMMs (from DIAG-COMMS, related DIAG-COMMs, access levels, comm
/// relations, dynamic definitions, matching parameters), requests and responses, functional classes, DOPs, tables. Not
/// followed: PARENT-REFs (the walk covers the layer's own contents) and DIAG-VARIABLE-REFs. Every reference resolves in
/// the constructor's layer, including those in other layers.
///
/// While a DIAG-COMM is being visited it is the current one, in whose context an ENV-DATA-DESC reads its PARAM-SNREF.
/// Leaving a DIAG-COMM, even by an exception, sets the current one to null; it is not restored, so after a nested
/// DIAG-COMM there is none for the rest of the outer one.
///
/// There is no protection against cycles: related DIAG-COMMs that refer to each other cause endless recursion.
/// `VGuardedDiagLayerTraverser` is the same walk with protection.
class DIAGKIT_EXPORT VDiagLayerTraverser : public NODX201::VDiagLayerVisitor,
                                           public NODX201::VDiagCommVisitor,
                                           public VDiagDataDictionarySpecTraverser {
public:
    explicit VDiagLayerTraverser(NODX201::VDiagLayer& layer); ///< the layer must outlive the traverser
    ~VDiagLayerTraverser() override;

protected:
    void VisitBaseVariant(NODX201::VBaseVariant& x) override;
    void VisitProtocol(NODX201::VProtocol& x) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& x) override;
    void VisitEcuVariant(NODX201::VEcuVariant& x) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& x) override;

public:
    virtual void TraverseDiagLayer(); ///< visits the layer, by its kind

protected:
    virtual void VisitFunctClass(NODX201::VFunctClass& x);
    virtual void VisitRequest(NODX201::VRequest& x);
    virtual void VisitResponse(NODX201::VResponse& x);
    virtual void VisitDiagComm(NODX201::VDiagComm& x);
    virtual void VisitAudience(NODX201::VAudience& x);
    virtual void VisitDiagVariable(NODX201::VDiagVariable& x);
    virtual void VisitVariableGroup(NODX201::VVariableGroup& x);
    virtual void VisitAutMethod(std::wstring& text);
    virtual void VisitAccessLevel(NODX201::VAccessLevel& x);
    virtual void VisitDynDefinedSpec(NODX201::VDynDefinedSpec& x);
    virtual void VisitEcuParentPattern(NODX201::VEcuVariantPattern& x);
    virtual void VisitInputParam(NODX201::VInputParam& x);
    virtual void VisitNegOutputParam(NODX201::VNegOutputParam& x);
    virtual void VisitSwVariable(NODX201::VSwVariable& x);
    virtual void VisitCommRelation(NODX201::VCommRelation& x);
    virtual void VisitDynIdDefModeInfo(NODX201::VDynIdDefModeInfo& x);
    virtual void VisitMatchingParameter(NODX201::VMatchingParameter& x);
    virtual void VisitSupportedDynId(NODX201::VByteStream& x);
    virtual void VisitComparamRef(NODX201::VComparamRef& x);

    virtual void DescendDiagLayer(NODX201::VDiagLayer& x);
    virtual void DescendBaseVariant(NODX201::VBaseVariant& x);
    virtual void DescendProtocol(NODX201::VProtocol& x);
    virtual void DescendFunctionalGroup(NODX201::VFunctionalGroup& x);
    virtual void DescendEcuVariant(NODX201::VEcuVariant& x);
    virtual void DescendEcuSharedData(NODX201::VEcuSharedData& x);
    virtual void DescendFunctClass(NODX201::VFunctClass& x);
    virtual void DescendSingleEcuJob(NODX201::VSingleEcuJob& x);
    virtual void DescendDiagService(NODX201::VDiagService& x);
    virtual void DescendDiagVariable(NODX201::VDiagVariable& x);
    virtual void DescendAccessLevel(NODX201::VAccessLevel& x);
    virtual void DescendDynDefinedSpec(NODX201::VDynDefinedSpec& x);
    virtual void DescendEcuParentPattern(NODX201::VEcuVariantPattern& x);
    virtual void DescendRequest(NODX201::VRequest& x);
    virtual void DescendResponse(NODX201::VResponse& x);
    virtual void DescendNegOutputParam(NODX201::VNegOutputParam& x);
    virtual void DescendInputParam(NODX201::VInputParam& x);
    virtual void DescendCommRelation(NODX201::VCommRelation& x);
    virtual void DescendDynIdDefModeInfo(NODX201::VDynIdDefModeInfo& x);
    virtual void DescendMatchingParameter(NODX201::VMatchingParameter& x);
    virtual void DescendDiagComm(NODX201::VDiagComm& x);

    // clang-format off
    virtual void PreProcessProtocol(NODX201::VProtocol&) {}
    virtual void PreProcessBaseVariant(NODX201::VBaseVariant&) {}
    virtual void PreProcessFunctionalGroup(NODX201::VFunctionalGroup&) {}
    virtual void PreProcessEcuVariant(NODX201::VEcuVariant&) {}
    virtual void PreProcessEcuSharedData(NODX201::VEcuSharedData&) {}
    virtual void PreProcessFunctClass(NODX201::VFunctClass&) {}
    virtual void PreProcessSingleEcuJob(NODX201::VSingleEcuJob&) {}
    virtual void PreProcessDiagService(NODX201::VDiagService&) {}
    virtual void PreProcessDiagVariable(NODX201::VDiagVariable&) {}
    virtual void PreProcessVariableGroup(NODX201::VVariableGroup&) {}
    virtual void PreProcessAutMethod(std::wstring&) {}
    virtual void PreProcessAccessLevel(NODX201::VAccessLevel&) {}
    virtual void PreProcessDynDefinedSpec(NODX201::VDynDefinedSpec&) {}
    virtual void PreProcessEcuParentPattern(NODX201::VEcuVariantPattern&) {}
    virtual void PreProcessRequest(NODX201::VRequest&) {}
    virtual void PreProcessResponse(NODX201::VResponse&) {}
    virtual void PreProcessInputParam(NODX201::VInputParam&) {}
    virtual void PreProcessNegOutputParam(NODX201::VNegOutputParam&) {}
    virtual void PreProcessSwVariable(NODX201::VSwVariable&) {}
    virtual void PreProcessCommRelation(NODX201::VCommRelation&) {}
    virtual void PreProcessDynIdDefModeInfo(NODX201::VDynIdDefModeInfo&) {}
    virtual void PreProcessMatchingParameter(NODX201::VMatchingParameter&) {}
    virtual void PreProcessSupportedDynId(NODX201::VByteStream&) {}
    virtual void PreProcessDiagComm(NODX201::VDiagComm&) {}
    virtual void PreProcessAudience(NODX201::VAudience&) {}
    virtual void PreProcessComparamRef(NODX201::VComparamRef&) {}

    virtual void PostProcessBaseVariant(NODX201::VBaseVariant&) {}
    virtual void PostProcessProtocol(NODX201::VProtocol&) {}
    virtual void PostProcessFunctionalGroup(NODX201::VFunctionalGroup&) {}
    virtual void PostProcessEcuVariant(NODX201::VEcuVariant&) {}
    virtual void PostProcessEcuSharedData(NODX201::VEcuSharedData&) {}
    virtual void PostProcessFunctClass(NODX201::VFunctClass&) {}
    virtual void PostProcessSingleEcuJob(NODX201::VSingleEcuJob&) {}
    virtual void PostProcessDiagService(NODX201::VDiagService&) {}
    virtual void PostProcessDiagVariable(NODX201::VDiagVariable&) {}
    virtual void PostProcessVariableGroup(NODX201::VVariableGroup&) {}
    virtual void PostProcessAutMethod(std::wstring&) {}
    virtual void PostProcessAccessLevel(NODX201::VAccessLevel&) {}
    virtual void PostProcessDynDefinedSpec(NODX201::VDynDefinedSpec&) {}
    virtual void PostProcessEcuParentPattern(NODX201::VEcuVariantPattern&) {}
    virtual void PostProcessRequest(NODX201::VRequest&) {}
    virtual void PostProcessResponse(NODX201::VResponse&) {}
    virtual void PostProcessInputParam(NODX201::VInputParam&) {}
    virtual void PostProcessNegOutputParam(NODX201::VNegOutputParam&) {}
    virtual void PostProcessSwVariable(NODX201::VSwVariable&) {}
    virtual void PostProcessCommRelation(NODX201::VCommRelation&) {}
    virtual void PostProcessDynIdDefModeInfo(NODX201::VDynIdDefModeInfo&) {}
    virtual void PostProcessMatchingParameter(NODX201::VMatchingParameter&) {}
    virtual void PostProcessSupportedDynId(NODX201::VByteStream&) {}
    virtual void PostProcessDiagComm(NODX201::VDiagComm&) {}
    virtual void PostProcessAudience(NODX201::VAudience&) {}
    virtual void PostProcessComparamRef(NODX201::VComparamRef&) {}
    // clang-format on

    void VisitDiagService(NODX201::VDiagService& x) override;
    void VisitSingleEcuJob(NODX201::VSingleEcuJob& x) override;

    void DefaultVisit(NODX201::VOdxElement&) override {}

private:
    void VisitAccessLevelCollectionElements(NODX201::VAccessLevelCollection& accessLevels);
    void VisitAutMethodsElements(NODX201::VStringCollection& autMethods);
    void VisitVariableGroupCollectionElements(NODX201::VVariableGroupCollection& variableGroups);
    void VisitDiagVariableProxyCollectionElements(NODX201::VDiagVariableProxyCollection& diagVariables);
};

} // namespace NDIAGKIT
