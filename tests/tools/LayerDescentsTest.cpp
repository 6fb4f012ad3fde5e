// SPDX-License-Identifier: Apache-2.0

// The children of every kind that the layer traverser adds, and their order: one test per kind.

#include "tools/TraverserTest.h"

namespace NTest {
namespace {

class LayerDescentsTest : public VTraverserTest {
protected:
    NMemory::VMemComparam& Comparam(wchar_t const* name) {
        return m_database.AddComparamSpec(L"ComparamSpec").AddComparam(name);
    }

    /// The possible contents of every layer, in reverse order.
    template <class Layer>
    static void FillLayer(Layer& layer) {
        layer.AddNegResponse(L"NegResponse");
        layer.AddGlobalNegResponse(L"GlobalNegResponse");
        layer.AddPosResponse(L"PosResponse");
        layer.AddRequest(L"Request");
        layer.AddSingleEcuJob(L"Job");
        layer.AddDiagService(L"Service");
        layer.MakeDiagDataDictionarySpec().AddStructure(L"Structure");
        layer.AddFunctClass(L"FunctClass");
        layer.AddCompanyData(L"Company");
        layer.MakeAdminData();
    }

    template <class Layer>
    static void FillAccess(Layer& layer) {
        layer.AddAccessLevel();
        layer.AddAutMethod(L"Seed");
        layer.AddAutMethod(L"Key");
    }

    template <class Layer>
    static void FillVariables(Layer& layer) {
        layer.AddVariableGroup(L"Group");
        layer.AddDiagVariable(L"Variable");
    }
};

TEST_F(LayerDescentsTest, BaseVariant) {
    NMemory::VMemBaseVariant& layer = m_container.AddBaseVariant(L"Base");
    FillAccess(layer);
    layer.MakeDynDefinedSpec();
    FillVariables(layer);
    FillLayer(layer);
    EXPECT_EQ(VRecorder(layer).WalkedLayer(), Text(LR"(
        BaseVariant Base
          AdminData
          CompanyData Company
          FunctClass FunctClass
          Structure Structure
          SingleEcuJob Job
          DiagService Service
          Request Request
          Response NegResponse
          Response GlobalNegResponse
          Response PosResponse
          DiagVariable Variable
          VariableGroup Group
          AutMethod Seed
          AutMethod Key
          DynDefinedSpec
          AccessLevel
        )"));
}

TEST_F(LayerDescentsTest, Protocol) {
    NMemory::VMemProtocol& layer = m_container.AddProtocol(L"Protocol");
    FillAccess(layer);
    FillLayer(layer);
    EXPECT_EQ(VRecorder(layer).WalkedLayer(), Text(LR"(
        Protocol Protocol
          AdminData
          CompanyData Company
          FunctClass FunctClass
          Structure Structure
          SingleEcuJob Job
          DiagService Service
          Request Request
          Response NegResponse
          Response GlobalNegResponse
          Response PosResponse
          AccessLevel
          AutMethod Seed
          AutMethod Key
        )"));
}

TEST_F(LayerDescentsTest, FunctionalGroup) {
    NMemory::VMemFunctionalGroup& layer = m_container.AddFunctionalGroup(L"Group");
    FillAccess(layer);
    FillVariables(layer);
    FillLayer(layer);
    EXPECT_EQ(VRecorder(layer).WalkedLayer(), Text(LR"(
        FunctionalGroup Group
          AdminData
          CompanyData Company
          FunctClass FunctClass
          Structure Structure
          SingleEcuJob Job
          DiagService Service
          Request Request
          Response NegResponse
          Response GlobalNegResponse
          Response PosResponse
          DiagVariable Variable
          VariableGroup Group
          AccessLevel
          AutMethod Seed
          AutMethod Key
        )"));
}

TEST_F(LayerDescentsTest, EcuVariant) {
    NMemory::VMemEcuVariant& layer = m_container.AddEcuVariant(L"Ecu");
    FillAccess(layer);
    layer.MakeDynDefinedSpec();
    layer.AddEcuVariantPattern();
    FillVariables(layer);
    FillLayer(layer);
    EXPECT_EQ(VRecorder(layer).WalkedLayer(), Text(LR"(
        EcuVariant Ecu
          AdminData
          CompanyData Company
          FunctClass FunctClass
          Structure Structure
          SingleEcuJob Job
          DiagService Service
          Request Request
          Response NegResponse
          Response GlobalNegResponse
          Response PosResponse
          DiagVariable Variable
          VariableGroup Group
          EcuParentPattern
          AutMethod Seed
          AutMethod Key
          DynDefinedSpec
          AccessLevel
        )"));
}

TEST_F(LayerDescentsTest, EcuSharedData) {
    NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"Shared");
    FillVariables(layer);
    FillLayer(layer);
    EXPECT_EQ(VRecorder(layer).WalkedLayer(), Text(LR"(
        EcuSharedData Shared
          AdminData
          CompanyData Company
          FunctClass FunctClass
          Structure Structure
          SingleEcuJob Job
          DiagService Service
          Request Request
          Response NegResponse
          Response GlobalNegResponse
          Response PosResponse
          DiagVariable Variable
          VariableGroup Group
        )"));
}

TEST_F(LayerDescentsTest, DiagLayerVisitsDiagCommReferencesInTheirPlace) {
    m_layer.AddDiagService(L"First");
    m_layer.AddDiagCommRef(m_library.AddDiagService(L"Service"));
    m_layer.AddDiagCommRef(m_library.AddSingleEcuJob(L"Job"));
    m_layer.AddDiagCommRef(Nowhere());
    m_layer.AddSingleEcuJob(L"Last");
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          DiagService First
          DiagComm Service
          DiagComm Job
          SingleEcuJob Last
        )"));
}

TEST_F(LayerDescentsTest, DiagLayerDoesNotVisitItsParents) {
    m_library.AddDiagService(L"Inherited");
    m_layer.AddParentRef(m_library);
    EXPECT_EQ(m_recorder.WalkedLayer(), L"EcuVariant Layer\n");
}

TEST_F(LayerDescentsTest, DiagComm) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.AddRelatedDiagCommRef(m_library.AddSingleEcuJob(L"Related"));
    service.AddRelatedDiagCommRef(Nowhere());
    service.MakeAudience();
    service.AddFunctClassRef(m_layer.AddFunctClass(L"FunctClass"));
    service.AddFunctClassRef(Nowhere());
    service.AddComparamRef(Comparam(L"Timeout"));
    service.AddSdg().AddSd(L"first");
    service.AddSdg().AddSd(L"second");
    service.MakeAdminData();
    m_recorder.VisitDiagComm(service);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DiagComm Service
          AdminData
          Sdg
            Sd first
          Sdg
            Sd second
          ComparamRef
          FunctClass FunctClass
          Audience
          DiagComm Related
        )"));
}

TEST_F(LayerDescentsTest, DiagCommHasNoneOfTheChildrenOfItsKind) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.SetRequestRef(m_layer.AddRequest(L"Request"));
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    job.AddInputParam(L"Input");
    m_recorder.VisitDiagComm(service);
    m_recorder.VisitDiagComm(job);
    EXPECT_EQ(m_recorder.TakeTranscript(), L"DiagComm Service\nDiagComm Job\n");
}

TEST_F(LayerDescentsTest, DiagService) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.AddNegResponseRef(m_layer.AddNegResponse(L"Negative"));
    service.AddNegResponseRef(Nowhere());
    service.AddPosResponseRef(Nowhere());
    service.AddPosResponseRef(m_layer.AddPosResponse(L"Positive"));
    service.AddPosResponseRef(m_layer.AddPosResponse(L"AlsoPositive"));
    service.SetRequestRef(m_layer.AddRequest(L"Request"));
    service.MakeAudience();
    m_recorder.VisitDiagService(service);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DiagService Service
          Audience
          Request Request
          Response Positive
          Response AlsoPositive
          Response Negative
        )"));
}

TEST_F(LayerDescentsTest, AServiceWhoseRequestDoesNotResolveStillHasItsResponses) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.SetRequestRef(Nowhere());
    service.AddPosResponseRef(m_layer.AddPosResponse(L"Positive"));
    service.AddNegResponseRef(m_layer.AddNegResponse(L"Negative"));
    m_recorder.VisitDiagService(service);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DiagService Service
          Response Positive
          Response Negative
        )"));
}

TEST_F(LayerDescentsTest, SingleEcuJob) {
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    job.AddNegOutputParam(L"Failure");
    job.AddOutputParam(L"Output");
    job.AddInputParam(L"Input");
    job.AddInputParam(L"MoreInput");
    job.AddProgCode();
    job.AddProgCode();
    job.MakeAudience();
    m_recorder.VisitSingleEcuJob(job);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        SingleEcuJob Job
          Audience
          ProgCode
          ProgCode
          InputParam Input
          InputParam MoreInput
          OutputParam Output
          NegOutputParam Failure
        )"));
}

TEST_F(LayerDescentsTest, FunctClass) {
    NMemory::VMemFunctClass& functClass = m_layer.AddFunctClass(L"FunctClass");
    functClass.MakeAdminData();
    m_recorder.VisitFunctClass(functClass);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        FunctClass FunctClass
          AdminData
        )"));
}

TEST_F(LayerDescentsTest, AFunctClassReferencedByTwoDiagCommsIsVisitedThreeTimes) {
    NMemory::VMemFunctClass& functClass = m_layer.AddFunctClass(L"FunctClass");
    m_layer.AddDiagService(L"First").AddFunctClassRef(functClass);
    m_layer.AddDiagService(L"Second").AddFunctClassRef(functClass);
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          FunctClass FunctClass
          DiagService First
            FunctClass FunctClass
          DiagService Second
            FunctClass FunctClass
        )"));
}

TEST_F(LayerDescentsTest, DiagVariable) {
    NMemory::VMemDiagVariable& variable = m_layer.AddDiagVariable(L"Variable");
    variable.AddCommRelation();
    variable.AddCommRelation();
    variable.AddSwVariable(L"ram");
    variable.AddSwVariable(L"rom");
    variable.SetVariableGroupRef(m_layer.AddVariableGroup(L"Group"));
    variable.MakeAdminData();
    m_recorder.VisitDiagVariable(variable);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DiagVariable Variable
          AdminData
          VariableGroup Group
          SwVariable ram
          SwVariable rom
          CommRelation
          CommRelation
        )"));
}

TEST_F(LayerDescentsTest, AccessLevelDispatchesItsDiagComm) {
    NMemory::VMemAccessLevel& ofService = m_layer.AddAccessLevel();
    NMemory::VMemAccessLevel& ofJob = m_layer.AddAccessLevel();
    ofService.SetDiagCommSnref(m_layer.AddDiagService(L"Service"));
    ofJob.SetDiagCommSnref(m_layer.AddSingleEcuJob(L"Job"));
    m_recorder.VisitAccessLevel(ofService);
    m_recorder.VisitAccessLevel(ofJob);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        AccessLevel
          DiagService Service
        AccessLevel
          SingleEcuJob Job
        )"));
}

TEST_F(LayerDescentsTest, DynDefinedSpec) {
    NMemory::VMemDynDefinedSpec& spec = m_layer.MakeDynDefinedSpec();
    spec.AddDynIdDefModeInfo().AddSupportedDynId(L"F300");
    spec.AddDynIdDefModeInfo();
    m_recorder.VisitDynDefinedSpec(spec);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DynDefinedSpec
          DynIdDefModeInfo
            SupportedDynId
          DynIdDefModeInfo
        )"));
}

TEST_F(LayerDescentsTest, DynIdDefModeInfo) {
    NMemory::VMemDynIdDefModeInfo& info = m_layer.MakeDynDefinedSpec().AddDynIdDefModeInfo();
    info.AddSelectionTableRef(m_dictionary.AddTable(L"Table"));
    info.AddSelectionTableRef(Nowhere());
    info.AddSelectionTableRef(m_dictionary.AddTable(L"OtherTable"));
    info.AddSupportedDynId(L"F300");
    info.AddSupportedDynId(L"F301");
    info.SetDynDefMessageRef(m_layer.AddDiagService(L"Define"));
    info.SetReadDynDefMessageRef(m_layer.AddSingleEcuJob(L"Read"));
    info.SetClearDynDefMessageRef(m_layer.AddDiagService(L"Clear"));
    m_recorder.VisitDynIdDefModeInfo(info);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DynIdDefModeInfo
          DiagService Clear
          SingleEcuJob Read
          DiagService Define
          SupportedDynId
          SupportedDynId
          Table Table
          Table OtherTable
        )"));
}

TEST_F(LayerDescentsTest, EcuParentPattern) {
    NMemory::VMemEcuVariantPattern& pattern = m_layer.AddEcuVariantPattern();
    pattern.AddMatchingParameter();
    pattern.AddMatchingParameter();
    m_recorder.VisitEcuParentPattern(pattern);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        EcuParentPattern
          MatchingParameter
          MatchingParameter
        )"));
}

TEST_F(LayerDescentsTest, MatchingParameter) {
    NMemory::VMemMatchingParameter& param = m_layer.AddEcuVariantPattern().AddMatchingParameter();
    param.SetDiagCommSnref(m_layer.AddDiagService(L"Service"));
    m_recorder.VisitMatchingParameter(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        MatchingParameter
          DiagComm Service
        )"));
}

TEST_F(LayerDescentsTest, CommRelationDispatchesItsDiagComm) {
    NMemory::VMemDiagVariable& variable = m_layer.AddDiagVariable(L"Variable");
    NMemory::VMemCommRelation& toService = variable.AddCommRelation();
    NMemory::VMemCommRelation& toJob = variable.AddCommRelation();
    toService.SetDiagCommLink(m_layer.AddDiagService(L"Service"));
    toJob.SetDiagCommLink(m_layer.AddSingleEcuJob(L"Job"));
    m_recorder.VisitCommRelation(toService);
    m_recorder.VisitCommRelation(toJob);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CommRelation
          DiagService Service
        CommRelation
          SingleEcuJob Job
        )"));
}

TEST_F(LayerDescentsTest, Request) {
    NMemory::VMemRequest& request = m_layer.AddRequest(L"Request");
    request.AddCodedConst(L"ServiceId");
    request.AddValue(L"Data");
    request.MakeAdminData();
    m_recorder.VisitRequest(request);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Request Request
          AdminData
          CodedConst ServiceId
          Value Data
        )"));
}

TEST_F(LayerDescentsTest, Response) {
    NMemory::VMemGlobalNegResponse& response = m_layer.AddGlobalNegResponse(L"Response");
    response.AddCodedConst(L"ServiceId");
    response.AddMatchingRequestParam(L"Echo");
    response.MakeAdminData();
    m_recorder.VisitResponse(response);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Response Response
          AdminData
          CodedConst ServiceId
          MatchingRequestParam Echo
        )"));
}

TEST_F(LayerDescentsTest, InputParamDispatchesItsDop) {
    NMemory::VMemInputParam& param = m_layer.AddSingleEcuJob(L"Job").AddInputParam(L"Input");
    param.SetDopBaseRef(m_dictionary.AddDtcDop(L"TroubleCodes"));
    m_recorder.VisitInputParam(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        InputParam Input
          DtcDop TroubleCodes
        )"));
}

TEST_F(LayerDescentsTest, NegOutputParamDispatchesItsDop) {
    NMemory::VMemNegOutputParam& param = m_layer.AddSingleEcuJob(L"Job").AddNegOutputParam(L"Failure");
    param.SetDopBaseRef(m_dictionary.AddStructure(L"Reason"));
    m_recorder.VisitNegOutputParam(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        NegOutputParam Failure
          Structure Reason
        )"));
}

TEST_F(LayerDescentsTest, UnresolvableReferencesAreSkipped) {
    NMemory::VMemDiagVariable& variable = m_layer.AddDiagVariable(L"Variable");
    variable.SetVariableGroupRef(Nowhere());
    variable.AddCommRelation().SetDiagCommLink(Nowhere());
    m_layer.AddEcuVariantPattern().AddMatchingParameter().SetDiagCommSnref(Nowhere());
    NMemory::VMemDynIdDefModeInfo& info = m_layer.MakeDynDefinedSpec().AddDynIdDefModeInfo();
    info.SetClearDynDefMessageRef(Nowhere());
    info.SetReadDynDefMessageRef(Nowhere());
    info.SetDynDefMessageRef(Nowhere());
    m_layer.AddAccessLevel().SetDiagCommSnref(Nowhere());
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    job.AddInputParam(L"Input").SetDopBaseRef(Nowhere());
    job.AddOutputParam(L"Output").SetDopBaseRef(Nowhere());
    job.AddNegOutputParam(L"Failure").SetDopBaseRef(Nowhere());
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          SingleEcuJob Job
            InputParam Input
            OutputParam Output
            NegOutputParam Failure
          DiagVariable Variable
            CommRelation
          EcuParentPattern
            MatchingParameter
          DynDefinedSpec
            DynIdDefModeInfo
          AccessLevel
        )"));
}

TEST_F(LayerDescentsTest, ATraverserMayBeRunMoreThanOnce) {
    m_layer.AddDiagService(L"Service");
    std::wstring const first = m_recorder.WalkedLayer();
    EXPECT_EQ(first, Text(LR"(
        EcuVariant Layer
          DiagService Service
        )"));
    EXPECT_EQ(m_recorder.WalkedLayer(), first);
}

} // namespace
} // namespace NTest
