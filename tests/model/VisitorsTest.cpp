// SPDX-License-Identifier: Apache-2.0

// Double dispatch: an element calls back the Visit operation of its kind, once.

#include <diagkit/model/Visitors.h>

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Layers.h>

namespace NTest {
namespace {

static_assert(std::has_virtual_destructor_v<NODX201::VDiagLayerVisitor>);
static_assert(std::has_virtual_destructor_v<NODX201::VDiagCommVisitor>);
static_assert(std::has_virtual_destructor_v<NODX201::VDopBaseVisitor>);
static_assert(std::has_virtual_destructor_v<NODX201::VParamVisitor>);

/// Records every callback with the short name of the element.
class VRecorder : public NODX201::VDiagLayerVisitor,
                  public NODX201::VDiagCommVisitor,
                  public NODX201::VDopBaseVisitor,
                  public NODX201::VParamVisitor {
public:
    // clang-format off
    void VisitBaseVariant(NODX201::VBaseVariant& x) override { Note(L"BaseVariant", x); }
    void VisitProtocol(NODX201::VProtocol& x) override { Note(L"Protocol", x); }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& x) override { Note(L"FunctionalGroup", x); }
    void VisitEcuVariant(NODX201::VEcuVariant& x) override { Note(L"EcuVariant", x); }
    void VisitEcuSharedData(NODX201::VEcuSharedData& x) override { Note(L"EcuSharedData", x); }
    void VisitDiagService(NODX201::VDiagService& x) override { Note(L"DiagService", x); }
    void VisitSingleEcuJob(NODX201::VSingleEcuJob& x) override { Note(L"SingleEcuJob", x); }
    void VisitEnvData(NODX201::VEnvData& x) override { Note(L"EnvData", x); }
    void VisitStructure(NODX201::VStructure& x) override { Note(L"Structure", x); }
    void VisitEnvDataDesc(NODX201::VEnvDataDesc& x) override { Note(L"EnvDataDesc", x); }
    void VisitStaticField(NODX201::VStaticField& x) override { Note(L"StaticField", x); }
    void VisitDynamicLengthField(NODX201::VDynamicLengthField& x) override { Note(L"DynamicLengthField", x); }
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& x) override { Note(L"DynamicEndmarkerField", x); }
    void VisitEndOfPduField(NODX201::VEndOfPduField& x) override { Note(L"EndOfPduField", x); }
    void VisitMux(NODX201::VMux& x) override { Note(L"Mux", x); }
    void VisitDataObjectProp(NODX201::VDataObjectProp& x) override { Note(L"DataObjectProp", x); }
    void VisitDtcDop(NODX201::VDtcDop& x) override { Note(L"DtcDop", x); }
    void VisitCodedConst(NODX201::VCodedConst& x) override { Note(L"CodedConst", x); }
    void VisitDynamic(NODX201::VDynamic& x) override { Note(L"Dynamic", x); }
    void VisitLengthKey(NODX201::VLengthKey& x) override { Note(L"LengthKey", x); }
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam& x) override { Note(L"MatchingRequestParam", x); }
    void VisitPhysConst(NODX201::VPhysConst& x) override { Note(L"PhysConst", x); }
    void VisitReserved(NODX201::VReserved& x) override { Note(L"Reserved", x); }
    void VisitSystem(NODX201::VSystem& x) override { Note(L"System", x); }
    void VisitTableKey(NODX201::VTableKey& x) override { Note(L"TableKey", x); }
    void VisitTableStruct(NODX201::VTableStruct& x) override { Note(L"TableStruct", x); }
    void VisitValue(NODX201::VValue& x) override { Note(L"Value", x); }
    void VisitTableEntry(NODX201::VTableEntry& x) override { Note(L"TableEntry", x); }
    // clang-format on

    std::wstring m_calls;

private:
    void Note(std::wstring const& operation, NODX201::VOdxElement& element) {
        m_calls += L" " + operation + L"(" + element.GetShortName() + L")";
    }
};

class VisitorsTest : public testing::Test {
protected:
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"C");
    NMemory::VMemProtocol& m_protocol = m_container.AddProtocol(L"p");
    VRecorder m_recorder;
};

TEST_F(VisitorsTest, ALayerCallsBackItsKindOnce) {
    m_container.AddFunctionalGroup(L"f");
    m_container.AddBaseVariant(L"b");
    m_container.AddEcuVariant(L"e");
    m_container.AddEcuSharedData(L"s");
    std::wstring const expected = L" Protocol(p) FunctionalGroup(f) BaseVariant(b) EcuVariant(e) EcuSharedData(s)";
    for (NODX201::VDiagLayer& layer : m_container.DiagLayerCollection()) {
        layer.Accept(m_recorder);
    }
    EXPECT_EQ(m_recorder.m_calls, expected);
    m_recorder.m_calls.clear();
    for (NODX201::VDiagLayer& layer : m_container.DiagLayerCollection()) {
        m_recorder.DispatchDiagLayer(layer);
    }
    EXPECT_EQ(m_recorder.m_calls, expected) << "the same from the visitor's side";
}

TEST_F(VisitorsTest, ADiagCommCallsBackItsKindOnce) {
    NODX201::VDiagComm& service = m_protocol.AddDiagService(L"s");
    NODX201::VDiagComm& job = m_protocol.AddSingleEcuJob(L"j");
    service.Accept(m_recorder);
    job.Accept(m_recorder);
    m_recorder.DispatchDiagComm(job);
    m_recorder.DispatchDiagComm(service);
    EXPECT_EQ(m_recorder.m_calls, L" DiagService(s) SingleEcuJob(j) SingleEcuJob(j) DiagService(s)");
}

TEST_F(VisitorsTest, AMultipleEcuJobCallsBackNothing) {
    NODX201::VDiagComm& job = m_database.AddMultipleEcuJobSpec(L"Jobs").AddMultipleEcuJob(L"m");
    job.Accept(m_recorder);
    m_recorder.DispatchDiagComm(job);
    EXPECT_EQ(m_recorder.m_calls, L"");
}

TEST_F(VisitorsTest, ADopCallsBackItsKindOnce) {
    auto& dictionary = m_protocol.MakeDiagDataDictionarySpec();
    dictionary.AddStructure(L"1");
    dictionary.AddEnvDataDesc(L"2").AddEnvData(L"0");
    dictionary.AddStaticField(L"3");
    dictionary.AddDynamicLengthField(L"4");
    dictionary.AddDynamicEndmarkerField(L"5");
    dictionary.AddEndOfPduField(L"6");
    dictionary.AddMux(L"7");
    dictionary.AddDataObjectProp(L"8");
    dictionary.AddDtcDop(L"9");
    std::wstring const expected = L" Structure(1) EnvDataDesc(2) StaticField(3) DynamicLengthField(4) "
                                  L"DynamicEndmarkerField(5) EndOfPduField(6) Mux(7) DataObjectProp(8) DtcDop(9)";
    for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
        dop.Accept(m_recorder);
    }
    EXPECT_EQ(m_recorder.m_calls, expected);
    m_recorder.m_calls.clear();
    for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
        m_recorder.DispatchDopBase(dop);
    }
    EXPECT_EQ(m_recorder.m_calls, expected);
}

TEST_F(VisitorsTest, AnEnvDataCallsBackItsKindOnce) {
    auto& description = m_protocol.MakeDiagDataDictionarySpec().AddEnvDataDesc(L"d");
    NODX201::VDopBase& envData = description.AddEnvData(L"e");
    envData.Accept(m_recorder);
    m_recorder.DispatchDopBase(envData);
    EXPECT_EQ(m_recorder.m_calls, L" EnvData(e) EnvData(e)");
}

TEST_F(VisitorsTest, AParameterCallsBackItsKindOnce) {
    auto& request = m_protocol.AddRequest(L"r");
    request.AddCodedConst(L"1");
    request.AddDynamic(L"2");
    request.AddLengthKey(L"3");
    request.AddMatchingRequestParam(L"4");
    request.AddPhysConst(L"5");
    request.AddReserved(L"6");
    request.AddSystem(L"7");
    request.AddTableKey(L"8");
    request.AddTableStruct(L"9");
    request.AddValue(L"10");
    request.AddTableEntry(L"11");
    std::wstring const expected =
        L" CodedConst(1) Dynamic(2) LengthKey(3) MatchingRequestParam(4) PhysConst(5) Reserved(6) "
        L"System(7) TableKey(8) TableStruct(9) Value(10) TableEntry(11)";
    for (NODX201::VParam& param : request.ParamCollection()) {
        param.Accept(m_recorder);
    }
    EXPECT_EQ(m_recorder.m_calls, expected);
    m_recorder.m_calls.clear();
    for (NODX201::VParam& param : request.ParamCollection()) {
        m_recorder.DispatchParam(param);
    }
    EXPECT_EQ(m_recorder.m_calls, expected);
}

} // namespace
} // namespace NTest
