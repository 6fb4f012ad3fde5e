// SPDX-License-Identifier: Apache-2.0

// The choices of the traversers that look like mistakes but are intentional.

#include <stdexcept>

#include "tools/TraverserTest.h"

namespace NTest {
namespace {

using AsymmetriesTest = VTraverserTest;

/// Records the DIAG-COMMs that it enters and leaves, with the current DIAG-COMM.
class VCurrentRecorder : public NDIAGKIT::VDiagLayerTraverser {
public:
    using VDiagLayerTraverser::VDiagLayerTraverser;

    std::wstring Recorded() {
        TraverseDiagLayer();
        return m_recorded;
    }

protected:
    void PreProcessDiagService(NODX201::VDiagService& x) override { Note(L"+", x); }
    void PostProcessDiagService(NODX201::VDiagService& x) override { Note(L"-", x); }
    void PreProcessSingleEcuJob(NODX201::VSingleEcuJob& x) override { Note(L"+", x); }
    void PostProcessSingleEcuJob(NODX201::VSingleEcuJob& x) override { Note(L"-", x); }
    void PreProcessDiagComm(NODX201::VDiagComm& x) override { Note(L"+", x); }
    void PostProcessDiagComm(NODX201::VDiagComm& x) override { Note(L"-", x); }
    void PreProcessRequest(NODX201::VRequest& x) override { Note(L"+", x); }

private:
    void Note(std::wstring const& what, NODX201::VOdxElement& x) {
        std::wstring const current = m_currentDiagComm != nullptr ? m_currentDiagComm->GetShortName() : L"none";
        m_recorded += what + x.GetShortName() + L" in " + current + L'\n';
    }

    std::wstring m_recorded;
};

TEST_F(AsymmetriesTest, CurrentDiagCommIsTheOneBeingVisitedAndNoneElsewhere) {
    m_layer.AddDiagService(L"Service").SetRequestRef(m_layer.AddRequest(L"Request"));
    m_layer.AddSingleEcuJob(L"Job");
    m_layer.AddDiagCommRef(m_library.AddDiagService(L"Shared"));
    EXPECT_EQ(VCurrentRecorder(m_layer).Recorded(), Text(LR"(
        +Service in Service
        +Request in Service
        -Service in Service
        +Job in Job
        -Job in Job
        +Shared in Shared
        -Shared in Shared
        +Request in none
        )"));
}

TEST_F(AsymmetriesTest, CurrentDiagCommIsNullAfterAJob) {
    m_layer.AddSingleEcuJob(L"Job");
    m_layer.AddRequest(L"Request");
    EXPECT_EQ(VCurrentRecorder(m_layer).Recorded(), Text(LR"(
        +Job in Job
        -Job in Job
        +Request in none
        )"));
}

TEST_F(AsymmetriesTest, CurrentDiagCommIsNullAfterANestedDiagComm) {
    NMemory::VMemDiagService& outer = m_layer.AddDiagService(L"Outer");
    outer.AddRelatedDiagCommRef(m_library.AddDiagService(L"Nested"));
    outer.SetRequestRef(m_layer.AddRequest(L"Request"));
    VerifyModel(m_database);
    EXPECT_EQ(VCurrentRecorder(m_layer).Recorded(), Text(LR"(
        +Outer in Outer
        +Nested in Nested
        -Nested in Nested
        +Request in none
        -Outer in none
        +Request in none
        )"));
}

/// Reports its current DIAG-COMM, and leaves a walk by an exception where a hook is set to do so.
class VLeaving : public NDIAGKIT::VDiagLayerTraverser {
public:
    using VDiagLayerTraverser::VDiagLayerTraverser;
    using VDiagLayerTraverser::VisitDiagComm;
    using VDiagLayerTraverser::VisitDiagService;
    using VDiagLayerTraverser::VisitSingleEcuJob;

    bool HasCurrentDiagComm() const { return m_currentDiagComm != nullptr; }
    NODX201::VOdxElement* m_leaveAt = nullptr;
    std::wstring m_seen;

protected:
    void DefaultVisit(NODX201::VOdxElement& x) override {
        m_seen += std::wstring(x.GetShortName()) + L' ';
        if (&x == m_leaveAt) {
            throw std::runtime_error("enough");
        }
    }
};

TEST_F(AsymmetriesTest, EachVisitOfADiagCommLeavesNoCurrentOneBehind) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    VLeaving traverser(m_layer);
    traverser.VisitDiagComm(service);
    EXPECT_FALSE(traverser.HasCurrentDiagComm());
    traverser.VisitDiagService(service);
    EXPECT_FALSE(traverser.HasCurrentDiagComm());
    traverser.VisitSingleEcuJob(job);
    EXPECT_FALSE(traverser.HasCurrentDiagComm());
}

TEST_F(AsymmetriesTest, EachVisitOfADiagCommThatAnExceptionEndsLeavesNoCurrentOneBehind) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    VLeaving traverser(m_layer);
    traverser.m_leaveAt = &service;
    EXPECT_THROW(traverser.VisitDiagComm(service), std::runtime_error);
    EXPECT_FALSE(traverser.HasCurrentDiagComm());
    EXPECT_THROW(traverser.VisitDiagService(service), std::runtime_error);
    EXPECT_FALSE(traverser.HasCurrentDiagComm());
    traverser.m_leaveAt = &job;
    EXPECT_THROW(traverser.VisitSingleEcuJob(job), std::runtime_error);
    EXPECT_FALSE(traverser.HasCurrentDiagComm());
}

TEST_F(AsymmetriesTest, AWalkAfterOneThatAnExceptionEndedHasNoCurrentDiagComm) {
    NMemory::VMemPosResponse& response = m_layer.AddPosResponse(L"Response");
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.AddPosResponseRef(response);
    response.AddValue(L"TroubleCode");
    m_dictionary.AddEnvDataDesc(L"Environment").SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    VLeaving traverser(m_layer);
    traverser.m_leaveAt = &response;
    EXPECT_THROW(traverser.TraverseDiagLayer(), std::runtime_error);
    traverser.m_seen.clear();
    traverser.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(traverser.m_seen, L"Environment ") << "the PARAM-SNREF has no DIAG-COMM to resolve in";
}

TEST_F(AsymmetriesTest, ThereIsNoParamSnrefToFollowAfterANestedDiagComm) {
    NMemory::VMemEnvDataDesc& desc = m_library.MakeDiagDataDictionarySpec().AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    job.AddOutputParam(L"TroubleCode").SetDopBaseRef(desc);
    job.AddRelatedDiagCommRef(m_library.AddDiagService(L"Nested"));
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          SingleEcuJob Job
            DiagComm Nested
            OutputParam TroubleCode
              EnvDataDesc Environment
        )"));
}

TEST_F(AsymmetriesTest, MatchingParameterVisitsDiagCommWithoutDispatch) {
    NMemory::VMemSingleEcuJob& job = m_library.AddSingleEcuJob(L"Job");
    m_layer.AddEcuVariantPattern().AddMatchingParameter().SetDiagCommSnref(job);
    m_layer.AddAccessLevel().SetDiagCommSnref(job);
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          EcuParentPattern
            MatchingParameter
              DiagComm Job
          AccessLevel
            SingleEcuJob Job
        )"));
}

TEST_F(AsymmetriesTest, DiagVariableReferencesAreNotFollowed) {
    NMemory::VMemDiagVariable& referenced = m_library.AddDiagVariable(L"Referenced");
    m_layer.AddDiagVariable(L"First");
    m_layer.AddDiagVariableRef(referenced);
    m_layer.AddDiagVariable(L"Last");
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          DiagVariable First
          DiagVariable Last
        )"));
}

TEST_F(AsymmetriesTest, EnvDataReferencesOfADictionaryAreNotFollowedButThoseOfAnEnvDataDescAre) {
    NMemory::VMemEnvData& elsewhere = m_library.MakeDiagDataDictionarySpec().AddEnvData(L"Elsewhere");
    m_dictionary.AddEnvDataRef(elsewhere);
    m_dictionary.AddEnvDataDesc(L"Environment").AddEnvDataRef(elsewhere);
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          EnvDataDesc Environment
            EnvData Elsewhere
        )"));
}

TEST_F(AsymmetriesTest, ReferencesResolveAgainstTheLayerOfTheTraverserNotAgainstTheirOwner) {
    // Both layers have a DOP and a service of the same names; the reference by short name is in the library.
    m_dictionary.AddDtcDop(L"Status");
    m_library.MakeDiagDataDictionarySpec().AddStructure(L"Status");
    m_layer.AddDiagService(L"Read");
    m_library.AddSingleEcuJob(L"Read");
    NMemory::VMemSingleEcuJob& job = m_library.AddSingleEcuJob(L"Job");
    job.AddInputParam(L"Input").SetDopBaseRef(NMemory::VReference::ByShortName(L"Status"));
    NMemory::VMemCommRelation& relation = m_library.AddDiagVariable(L"Variable").AddCommRelation();
    relation.SetDiagCommLink(NMemory::VReference::ByShortName(L"Read"));
    m_recorder.VisitSingleEcuJob(job);
    m_recorder.VisitCommRelation(relation);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        SingleEcuJob Job
          InputParam Input
            DtcDop Status
        CommRelation
          DiagService Read
        )"));
}

/// Counts the DOPs that are visited by way of the dispatch.
class VDispatchRecorder : public VRecorder {
public:
    using VRecorder::VRecorder;
    void DispatchDopBase(NODX201::VDopBase& dop) override {
        ++m_dispatched;
        VRecorder::DispatchDopBase(dop);
    }
    std::size_t m_dispatched = 0;
};

TEST_F(AsymmetriesTest, OnlyReferencesToDopsOfAnyKindAreDispatched) {
    NMemory::VMemDataObjectProp& dop = m_library.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Dop");
    NMemory::VMemStructure& params = m_library.GetDiagDataDictionarySpec().AddStructure(L"Params");
    params.AddLengthKey(L"LengthKey").SetDataObjectPropLink(dop);
    params.AddPhysConst(L"PhysConst").SetDataObjectPropLink(dop);
    params.AddSystem(L"System").SetDataObjectPropLink(dop);
    VDispatchRecorder direct(m_layer);
    direct.VisitStructure(params);
    EXPECT_EQ(direct.TakeTranscript(), Text(LR"(
        Structure Params
          LengthKey LengthKey
            DataObjectProp Dop
          PhysConst PhysConst
            DataObjectProp Dop
          System System
            DataObjectProp Dop
        )"));
    EXPECT_EQ(direct.m_dispatched, 0u);

    NMemory::VMemTable& table = m_library.GetDiagDataDictionarySpec().AddTable(L"Table");
    table.SetKeyDopRef(dop);
    VDispatchRecorder dispatched(m_layer);
    dispatched.VisitTable(table);
    EXPECT_EQ(dispatched.TakeTranscript(), Text(LR"(
        Table Table
          DataObjectProp Dop
        )"));
    EXPECT_EQ(dispatched.m_dispatched, 1u);
}

/// Changes every text that its hooks receive, and records the received texts.
class VTextChanger : public NDIAGKIT::VDiagLayerTraverser {
public:
    using VDiagLayerTraverser::VDiagLayerTraverser;
    std::wstring m_seen;

protected:
    void PreProcessRole(std::wstring& text) override { Change(text); }
    void PostProcessRole(std::wstring& text) override { Change(text); }
    void PreProcessAutMethod(std::wstring& text) override { Change(text); }
    void PostProcessAutMethod(std::wstring& text) override { Change(text); }

private:
    void Change(std::wstring& text) {
        m_seen += text + L' ';
        text += L'!';
    }
};

TEST_F(AsymmetriesTest, WhatAHookDoesToATextNeverReachesTheModel) {
    NMemory::VMemCompanyData& company = m_layer.AddCompanyData(L"Company");
    company.AddRole(L"supplier");
    company.AddTeamMember(L"Author").AddRole(L"writer");
    m_layer.AddAutMethod(L"seed");
    VTextChanger changer(m_layer);
    changer.TraverseDiagLayer();
    changer.TraverseDiagLayer();
    // PreProcess and PostProcess share one copy.
    EXPECT_EQ(changer.m_seen, L"supplier supplier! writer writer! seed seed! "
                              L"supplier supplier! writer writer! seed seed! ");
    EXPECT_EQ(m_recorder.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          CompanyData Company
            Role supplier
            TeamMember Author
              Role writer
          AutMethod seed
        )"));
}

/// A dictionary walk without a layer traverser around it.
class VDictionaryNames : public NDIAGKIT::VDiagDataDictionarySpecTraverser {
public:
    using VDiagDataDictionarySpecTraverser::VDiagDataDictionarySpecTraverser;
    std::wstring m_seen;
    NODX201::VDiagComm* CurrentDiagComm() const { return m_currentDiagComm; }

protected:
    void DefaultVisit(NODX201::VOdxElement& x) override { m_seen += std::wstring(x.GetShortName()) + L' '; }
};

TEST_F(AsymmetriesTest, ADictionaryTraverserHasNoCurrentDiagCommAndFollowsNoParamSnref) {
    NMemory::VMemPosResponse& response = m_layer.AddPosResponse(L"Response");
    m_layer.AddDiagService(L"Read").AddPosResponseRef(response);
    response.AddValue(L"TroubleCode");
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    desc.AddEnvData(L"Always");
    VDictionaryNames traverser(m_layer);
    traverser.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(traverser.m_seen, L"Environment Always ");
    EXPECT_EQ(traverser.CurrentDiagComm(), nullptr);
}

/// Leaves out the children of structures, and DTC-DOPs with all their parts.
class VSkipping : public VRecorder {
public:
    using VRecorder::VRecorder;

protected:
    void DescendStructure(NODX201::VStructure&) override {}
    void VisitDtcDop(NODX201::VDtcDop&) override {}
};

TEST_F(AsymmetriesTest, AVisitOrADescendThatIsOverriddenSkipsWhatItLeavesOut) {
    m_dictionary.AddStructure(L"Structure").AddValue(L"Value");
    m_dictionary.AddDtcDop(L"DtcDop").AddDtc(L"Dtc");
    m_dictionary.AddDataObjectProp(L"Last");
    EXPECT_EQ(VSkipping(m_layer).WalkedLayer(), Text(LR"(
        EcuVariant Layer
          Structure Structure
          DataObjectProp Last
        )"));
}

/// Asks for fields in general, which no step of a walk does, and overrides nothing else.
class VFieldHook final : public NDIAGKIT::VDiagDataDictionarySpecTraverser {
public:
    using VDiagDataDictionarySpecTraverser::VDiagDataDictionarySpecTraverser;

    int m_count = 0;

protected:
    void PreProcessStaticField(NODX201::VStaticField& x) override {
        ++m_count;
        PreProcessField(x);
        PreProcessComplexDop(x);
    }
};

TEST_F(AsymmetriesTest, HooksThatAreNotOverriddenDoNothingAndTheWalkGoesOn) {
    m_dictionary.AddStaticField(L"First");
    m_dictionary.AddStaticField(L"Second");
    VFieldHook walk(m_layer);
    walk.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(walk.m_count, 2);
}

} // namespace
} // namespace NTest
