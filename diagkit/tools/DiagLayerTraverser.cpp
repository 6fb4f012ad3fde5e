// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagLayerTraverser.h>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/tools/Alternative.h>

namespace NDIAGKIT {

using Traverser = VDiagLayerTraverser;

namespace {

/// Sets the current DIAG-COMM while it is being visited and clears it afterwards, also after an exception: the element
/// may be destroyed before the next walk.
class VCurrentDiagComm {
public:
    VCurrentDiagComm(NODX201::VDiagComm*& current, NODX201::VDiagComm& diagComm) : m_current(current) {
        m_current = &diagComm;
    }
    ~VCurrentDiagComm() { m_current = nullptr; }
    VCurrentDiagComm(VCurrentDiagComm const&) = delete;
    VCurrentDiagComm& operator=(VCurrentDiagComm const&) = delete;

private:
    NODX201::VDiagComm*& m_current;
};

} // namespace

Traverser::VDiagLayerTraverser(NODX201::VDiagLayer& layer) : VDiagDataDictionarySpecTraverser(layer) {}

Traverser::~VDiagLayerTraverser() = default;

void Traverser::TraverseDiagLayer() { DispatchDiagLayer(m_layer); }

// clang-format off

// Visits: before, any, children, after. An empty column shows a kind without children.

void Traverser::VisitBaseVariant(NODX201::VBaseVariant& x)             { PreProcessBaseVariant(x);       DefaultVisit(x); DescendBaseVariant(x);       PostProcessBaseVariant(x);       }
void Traverser::VisitProtocol(NODX201::VProtocol& x)                   { PreProcessProtocol(x);          DefaultVisit(x); DescendProtocol(x);          PostProcessProtocol(x);          }
void Traverser::VisitFunctionalGroup(NODX201::VFunctionalGroup& x)     { PreProcessFunctionalGroup(x);   DefaultVisit(x); DescendFunctionalGroup(x);   PostProcessFunctionalGroup(x);   }
void Traverser::VisitEcuVariant(NODX201::VEcuVariant& x)               { PreProcessEcuVariant(x);        DefaultVisit(x); DescendEcuVariant(x);        PostProcessEcuVariant(x);        }
void Traverser::VisitEcuSharedData(NODX201::VEcuSharedData& x)         { PreProcessEcuSharedData(x);     DefaultVisit(x); DescendEcuSharedData(x);     PostProcessEcuSharedData(x);     }
void Traverser::VisitFunctClass(NODX201::VFunctClass& x)               { PreProcessFunctClass(x);        DefaultVisit(x); DescendFunctClass(x);        PostProcessFunctClass(x);        }
void Traverser::VisitRequest(NODX201::VRequest& x)                     { PreProcessRequest(x);           DefaultVisit(x); DescendRequest(x);           PostProcessRequest(x);           }
void Traverser::VisitResponse(NODX201::VResponse& x)                   { PreProcessResponse(x);          DefaultVisit(x); DescendResponse(x);          PostProcessResponse(x);          }
void Traverser::VisitAudience(NODX201::VAudience& x)                   { PreProcessAudience(x);          DefaultVisit(x);                              PostProcessAudience(x);          }
void Traverser::VisitDiagVariable(NODX201::VDiagVariable& x)           { PreProcessDiagVariable(x);      DefaultVisit(x); DescendDiagVariable(x);      PostProcessDiagVariable(x);      }
void Traverser::VisitVariableGroup(NODX201::VVariableGroup& x)         { PreProcessVariableGroup(x);     DefaultVisit(x);                              PostProcessVariableGroup(x);     }
void Traverser::VisitAutMethod(std::wstring& text)                     { PreProcessAutMethod(text);                                                    PostProcessAutMethod(text);      }
void Traverser::VisitAccessLevel(NODX201::VAccessLevel& x)             { PreProcessAccessLevel(x);       DefaultVisit(x); DescendAccessLevel(x);       PostProcessAccessLevel(x);       }
void Traverser::VisitDynDefinedSpec(NODX201::VDynDefinedSpec& x)       { PreProcessDynDefinedSpec(x);    DefaultVisit(x); DescendDynDefinedSpec(x);    PostProcessDynDefinedSpec(x);    }
void Traverser::VisitEcuParentPattern(NODX201::VEcuVariantPattern& x)  { PreProcessEcuParentPattern(x);  DefaultVisit(x); DescendEcuParentPattern(x);  PostProcessEcuParentPattern(x);  }
void Traverser::VisitInputParam(NODX201::VInputParam& x)               { PreProcessInputParam(x);        DefaultVisit(x); DescendInputParam(x);        PostProcessInputParam(x);        }
void Traverser::VisitNegOutputParam(NODX201::VNegOutputParam& x)       { PreProcessNegOutputParam(x);    DefaultVisit(x); DescendNegOutputParam(x);    PostProcessNegOutputParam(x);    }
void Traverser::VisitSwVariable(NODX201::VSwVariable& x)               { PreProcessSwVariable(x);        DefaultVisit(x);                              PostProcessSwVariable(x);        }
void Traverser::VisitCommRelation(NODX201::VCommRelation& x)           { PreProcessCommRelation(x);      DefaultVisit(x); DescendCommRelation(x);      PostProcessCommRelation(x);      }
void Traverser::VisitDynIdDefModeInfo(NODX201::VDynIdDefModeInfo& x)   { PreProcessDynIdDefModeInfo(x);  DefaultVisit(x); DescendDynIdDefModeInfo(x);  PostProcessDynIdDefModeInfo(x);  }
void Traverser::VisitMatchingParameter(NODX201::VMatchingParameter& x) { PreProcessMatchingParameter(x); DefaultVisit(x); DescendMatchingParameter(x); PostProcessMatchingParameter(x); }
void Traverser::VisitSupportedDynId(NODX201::VByteStream& x)           { PreProcessSupportedDynId(x);    DefaultVisit(x);                              PostProcessSupportedDynId(x);    }
void Traverser::VisitComparamRef(NODX201::VComparamRef& x)             { PreProcessComparamRef(x);       DefaultVisit(x);                              PostProcessComparamRef(x);       }

// Entering a DIAG-COMM makes it the current one.
// Deliberate: it is null afterwards and not restored (CurrentDiagCommIsNullAfterANestedDiagComm).

void Traverser::VisitDiagComm(NODX201::VDiagComm& x) {
    VCurrentDiagComm const current(m_currentDiagComm, x);
    PreProcessDiagComm(x);
    DefaultVisit(x);
    DescendDiagComm(x);
    PostProcessDiagComm(x);
}

void Traverser::VisitDiagService(NODX201::VDiagService& x) {
    VCurrentDiagComm const current(m_currentDiagComm, x);
    PreProcessDiagService(x);
    DefaultVisit(x);
    DescendDiagService(x);
    PostProcessDiagService(x);
}

void Traverser::VisitSingleEcuJob(NODX201::VSingleEcuJob& x) {
    VCurrentDiagComm const current(m_currentDiagComm, x);
    PreProcessSingleEcuJob(x);
    DefaultVisit(x);
    DescendSingleEcuJob(x);
    PostProcessSingleEcuJob(x);
}

// Children, in the order in which they are visited.

void Traverser::DescendDiagLayer(NODX201::VDiagLayer& x) {
    if (x.HasAdminData())                                             { VisitAdminData(x.GetAdminData()); }
    for (NODX201::VCompanyData& company : x.CompanyDataCollection())  { VisitCompanyData(company); }
    for (NODX201::VFunctClass& functClass : x.FunctClassCollection()) { VisitFunctClass(functClass); }
    if (x.HasDiagDataDictionarySpec())                                { TraverseDiagDataDictionarySpec(x.GetDiagDataDictionarySpec()); }
    if (x.HasDiagCommProxyCollection()) {
        std::tuple<NPavonaUtil::VCheckedCast<NODX201::VDiagService, NODX201::IDiagCommProxy>,
                   NPavonaUtil::VCheckedCast<NODX201::VSingleEcuJob, NODX201::IDiagCommProxy>,
                   NPavonaUtil::VCheckedCast<NODX201::VDiagCommLink, NODX201::IDiagCommProxy>> casts;
        for (NODX201::IDiagCommProxy& proxy : x.DiagCommProxyCollection()) {
            auto* const service = As<NODX201::VDiagService>(casts, proxy.IsDiagService(), proxy);
            auto* const job = As<NODX201::VSingleEcuJob>(casts, proxy.IsSingleEcuJob(), proxy);
            auto* const link = As<NODX201::VDiagCommLink>(casts, proxy.IsDiagCommLink(), proxy);
            if (service != nullptr)                            { VisitDiagService(*service); }
            if (job != nullptr)                                { VisitSingleEcuJob(*job); }
            if (link != nullptr && link->HasDiagComm(m_layer)) { VisitDiagComm(link->GetDiagComm()); }
        }
    }
    for (NODX201::VRequest& request : x.RequestCollection())          { VisitRequest(request); }
    for (NODX201::VResponse& response : x.ResponseCollection())       { VisitResponse(response); }
}

void Traverser::DescendBaseVariant(NODX201::VBaseVariant& x) {
    DescendDiagLayer(x);
    VisitDiagVariableProxyCollectionElements(x.DiagVariableProxyCollection());
    VisitVariableGroupCollectionElements(x.VariableGroupCollection());
    VisitAutMethodsElements(x.AutMethodCollection());
    if (x.HasDynDefinedSpec()) { VisitDynDefinedSpec(x.GetDynDefinedSpec()); }
    VisitAccessLevelCollectionElements(x.AccessLevelCollection());
}

void Traverser::DescendProtocol(NODX201::VProtocol& x) {
    DescendDiagLayer(x);
    VisitAccessLevelCollectionElements(x.AccessLevelCollection());
    VisitAutMethodsElements(x.AutMethodCollection());
}

void Traverser::DescendFunctionalGroup(NODX201::VFunctionalGroup& x) {
    DescendDiagLayer(x);
    VisitDiagVariableProxyCollectionElements(x.DiagVariableProxyCollection());
    VisitVariableGroupCollectionElements(x.VariableGroupCollection());
    VisitAccessLevelCollectionElements(x.AccessLevelCollection());
    VisitAutMethodsElements(x.AutMethodCollection());
}

void Traverser::DescendEcuVariant(NODX201::VEcuVariant& x) {
    DescendDiagLayer(x);
    VisitDiagVariableProxyCollectionElements(x.DiagVariableProxyCollection());
    VisitVariableGroupCollectionElements(x.VariableGroupCollection());
    for (NODX201::VEcuVariantPattern& pattern : x.EcuVariantPatternCollection()) { VisitEcuParentPattern(pattern); }
    VisitAutMethodsElements(x.AutMethodCollection());
    if (x.HasDynDefinedSpec())                                                   { VisitDynDefinedSpec(x.GetDynDefinedSpec()); }
    VisitAccessLevelCollectionElements(x.AccessLevelCollection());
}

void Traverser::DescendEcuSharedData(NODX201::VEcuSharedData& x) {
    DescendDiagLayer(x);
    VisitDiagVariableProxyCollectionElements(x.DiagVariableProxyCollection());
    VisitVariableGroupCollectionElements(x.VariableGroupCollection());
}

void Traverser::DescendFunctClass(NODX201::VFunctClass& x) {
    if (x.HasAdminData()) { VisitAdminData(x.GetAdminData()); }
}

void Traverser::DescendSingleEcuJob(NODX201::VSingleEcuJob& x) {
    DescendDiagComm(x);
    for (NODX201::VProgCode& progCode : x.ProgCodeCollection())          { VisitProgCode(progCode); }
    if (x.HasInputParamCollection()) {
        for (NODX201::VInputParam& param : x.InputParamCollection()) { VisitInputParam(param); }
    }
    if (x.HasOutputParamCollection()) {
        for (NODX201::VOutputParam& param : x.OutputParamCollection()) { VisitOutputParam(param); }
    }
    for (NODX201::VNegOutputParam& param : x.NegOutputParamCollection()) { VisitNegOutputParam(param); }
}

void Traverser::DescendDiagService(NODX201::VDiagService& x) {
    DescendDiagComm(x);
    if (x.HasRequestRef() && x.GetRequestRef().HasRequest()) { VisitRequest(x.GetRequestRef().GetRequest()); }
    if (x.HasPosResponseLinkCollection()) {
        for (NODX201::VPosResponseLink& link : x.PosResponseLinkCollection()) {
            if (link.HasPosResponse()) { VisitResponse(link.GetPosResponse()); }
        }
    }
    if (x.HasNegResponseLinkCollection()) {
        for (NODX201::VNegResponseLink& link : x.NegResponseLinkCollection()) {
            if (link.HasNegResponse()) { VisitResponse(link.GetNegResponse()); }
        }
    }
}

void Traverser::DescendDiagVariable(NODX201::VDiagVariable& x) {
    if (x.HasAdminData())                                                      { VisitAdminData(x.GetAdminData()); }
    if (x.HasVariableGroupRef() && x.GetVariableGroupRef().HasVariableGroup()) { VisitVariableGroup(x.GetVariableGroupRef().GetVariableGroup()); }
    for (NODX201::VSwVariable& swVariable : x.SwVariableCollection())          { VisitSwVariable(swVariable); }
    for (NODX201::VCommRelation& relation : x.CommRelationCollection())        { VisitCommRelation(relation); }
}

void Traverser::DescendAccessLevel(NODX201::VAccessLevel& x) {
    if (x.HasDiagCommSnref() && x.GetDiagCommSnref().HasDiagComm(m_layer)) { DispatchDiagComm(x.GetDiagCommSnref().GetDiagComm()); }
}

void Traverser::DescendDynDefinedSpec(NODX201::VDynDefinedSpec& x) {
    for (NODX201::VDynIdDefModeInfo& info : x.DynIdDefModeInfoCollection()) { VisitDynIdDefModeInfo(info); }
}

void Traverser::DescendEcuParentPattern(NODX201::VEcuVariantPattern& x) {
    for (NODX201::VMatchingParameter& param : x.MatchingParameterCollection()) { VisitMatchingParameter(param); }
}

void Traverser::DescendRequest(NODX201::VRequest& x) {
    if (x.HasAdminData()) { VisitAdminData(x.GetAdminData()); }
    TraverseParamCollection(x.ParamCollection());
}

void Traverser::DescendResponse(NODX201::VResponse& x) {
    if (x.HasAdminData()) { VisitAdminData(x.GetAdminData()); }
    TraverseParamCollection(x.ParamCollection());
}

void Traverser::DescendNegOutputParam(NODX201::VNegOutputParam& x) {
    if (x.HasDopBaseRef() && x.GetDopBaseRef().HasDopBase(m_layer)) { DispatchDopBase(x.GetDopBaseRef().GetDopBase()); }
}

void Traverser::DescendInputParam(NODX201::VInputParam& x) {
    if (x.HasDopBaseRef() && x.GetDopBaseRef().HasDopBase(m_layer)) { DispatchDopBase(x.GetDopBaseRef().GetDopBase()); }
}

void Traverser::DescendCommRelation(NODX201::VCommRelation& x) {
    if (x.HasDiagCommLink() && x.GetDiagCommLink().HasDiagComm(m_layer)) { DispatchDiagComm(x.GetDiagCommLink().GetDiagComm()); }
}

void Traverser::DescendDynIdDefModeInfo(NODX201::VDynIdDefModeInfo& x) {
    if (x.HasClearDynDefMessageRef() && x.GetClearDynDefMessageRef().HasDiagComm(m_layer)) { DispatchDiagComm(x.GetClearDynDefMessageRef().GetDiagComm()); }
    if (x.HasReadDynDefMessageRef() && x.GetReadDynDefMessageRef().HasDiagComm(m_layer))   { DispatchDiagComm(x.GetReadDynDefMessageRef().GetDiagComm()); }
    if (x.HasDynDefMessageRef() && x.GetDynDefMessageRef().HasDiagComm(m_layer))           { DispatchDiagComm(x.GetDynDefMessageRef().GetDiagComm()); }
    for (NODX201::VByteStream& dynId : x.SupportedDynIdCollection())                       { VisitSupportedDynId(dynId); }
    for (NODX201::VTableLink& link : x.TableLinkCollection()) {
        if (link.HasTable()) { VisitTable(link.GetTable()); }
    }
}

void Traverser::DescendMatchingParameter(NODX201::VMatchingParameter& x) {
    // Deliberate: visited as a DIAG-COMM, not dispatched by kind (MatchingParameterVisitsDiagCommWithoutDispatch).
    if (x.HasDiagCommSnref() && x.GetDiagCommSnref().HasDiagComm(m_layer)) { VisitDiagComm(x.GetDiagCommSnref().GetDiagComm()); }
}

void Traverser::DescendDiagComm(NODX201::VDiagComm& x) {
    if (x.HasAdminData())                                                { VisitAdminData(x.GetAdminData()); }
    for (NODX201::VSdg& sdg : x.SdgCollection())                         { VisitSdg(sdg); }
    for (NODX201::VComparamRef& comparamRef : x.ComparamRefCollection()) { VisitComparamRef(comparamRef); }
    for (NODX201::VFunctClassLink& link : x.FunctClassLinkCollection()) {
        if (link.HasFunctClass()) { VisitFunctClass(link.GetFunctClass()); }
    }
    if (x.HasAudience())                                                 { VisitAudience(x.GetAudience()); }
    for (NODX201::VRelatedDiagCommRef& related : x.RelatedDiagCommRefCollection()) {
        if (related.HasDiagComm()) { VisitDiagComm(related.GetDiagComm()); }
    }
}

void Traverser::VisitAccessLevelCollectionElements(NODX201::VAccessLevelCollection& accessLevels) {
    for (NODX201::VAccessLevel& accessLevel : accessLevels) { VisitAccessLevel(accessLevel); }
}

void Traverser::VisitAutMethodsElements(NODX201::VStringCollection& autMethods) {
    for (std::wstring const& autMethod : autMethods) {
        std::wstring copy = autMethod;
        VisitAutMethod(copy);
    }
}

void Traverser::VisitVariableGroupCollectionElements(NODX201::VVariableGroupCollection& variableGroups) {
    for (NODX201::VVariableGroup& group : variableGroups) { VisitVariableGroup(group); }
}

void Traverser::VisitDiagVariableProxyCollectionElements(NODX201::VDiagVariableProxyCollection& diagVariables) {
    // Deliberate: references to DIAG-VARIABLEs are not followed (DiagVariableReferencesAreNotFollowed).
    for (NODX201::IDiagVariableProxy& proxy : diagVariables) {
        if (auto* const variable = As<NODX201::VDiagVariable>(proxy.IsDiagVariable(), proxy)) { VisitDiagVariable(*variable); }
    }
}

// clang-format on

} // namespace NDIAGKIT
