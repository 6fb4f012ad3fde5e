// SPDX-License-Identifier: Apache-2.0

// The guarded traverser over every kind of cycle that references can form, and where it must not differ from the other.

#include <stdexcept>
#include <string>
#include <vector>

#include "tools/TraverserTest.h"

namespace NTest {
namespace {

class GuardedTest : public VTraverserTest {
protected:
    NMemory::VMemStructure& Structure(wchar_t const* name) { return m_dictionary.AddStructure(name); }

    std::wstring Walked() { return VGuardedRecorder(m_layer).WalkedLayer(); }
};

TEST_F(GuardedTest, RelatedDiagCommsThatNameEachOther) {
    NMemory::VMemDiagService& first = m_layer.AddDiagService(L"First");
    NMemory::VMemSingleEcuJob& second = m_layer.AddSingleEcuJob(L"Second");
    first.AddRelatedDiagCommRef(second);
    second.AddRelatedDiagCommRef(first);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          DiagService First
            DiagComm Second
              DiagComm First (cycle)
          SingleEcuJob Second
            DiagComm First
              DiagComm Second (cycle)
        )"));
}

TEST_F(GuardedTest, ADiagCommThatIsRelatedToItself) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.AddRelatedDiagCommRef(service);
    service.SetRequestRef(m_layer.AddRequest(L"Request"));
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          DiagService Service
            DiagComm Service (cycle)
            Request Request
          Request Request
        )"));
}

TEST_F(GuardedTest, ACycleOfRelatedDiagCommsIsEnteredFromEveryWayIn) {
    NMemory::VMemDiagService& service = m_library.AddDiagService(L"Service");
    service.AddRelatedDiagCommRef(service);
    m_layer.AddDiagCommRef(service);
    m_layer.AddDiagVariable(L"Variable").AddCommRelation().SetDiagCommLink(service);
    m_layer.AddEcuVariantPattern().AddMatchingParameter().SetDiagCommSnref(service);
    m_layer.MakeDynDefinedSpec().AddDynIdDefModeInfo().SetReadDynDefMessageRef(service);
    m_layer.AddAccessLevel().SetDiagCommSnref(service);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          DiagComm Service
            DiagComm Service (cycle)
          DiagVariable Variable
            CommRelation
              DiagService Service
                DiagComm Service (cycle)
          EcuParentPattern
            MatchingParameter
              DiagComm Service
                DiagComm Service (cycle)
          DynDefinedSpec
            DynIdDefModeInfo
              DiagService Service
                DiagComm Service (cycle)
          AccessLevel
            DiagService Service
              DiagComm Service (cycle)
        )"));
}

TEST_F(GuardedTest, ATableWhoseRowLeadsBackToItByATableKey) {
    NMemory::VMemTable& table = m_library.MakeDiagDataDictionarySpec().AddTable(L"Table");
    NMemory::VMemStructure& content = Structure(L"Content");
    table.AddTableRow(L"Row").SetStructureRef(content);
    content.AddTableKey(L"Key").SetTableRef(table);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          Structure Content
            TableKey Key
              Table Table
                TableRow Row
                  Structure Content (cycle)
        )"));
    VGuardedRecorder fromTable(m_layer);
    fromTable.VisitTable(table);
    EXPECT_EQ(fromTable.TakeTranscript(), Text(LR"(
        Table Table
          TableRow Row
            Structure Content
              TableKey Key
                Table Table (cycle)
        )"));
}

TEST_F(GuardedTest, ATableRowThatLeadsBackToItselfByTableKeyTableEntryAndTableStruct) {
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    NMemory::VMemTableRow& row = table.AddTableRow(L"Row");
    NMemory::VMemStructure& content = m_library.MakeDiagDataDictionarySpec().AddStructure(L"Content");
    NMemory::VMemTableKey& key = content.AddTableKey(L"Key");
    key.SetTableRowRef(row);
    content.AddTableStruct(L"Struct").SetTableKeyRef(key);
    content.AddTableEntry(L"Entry").SetTableRowRef(row);
    row.SetStructureRef(content);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          Table Table
            TableRow Row
              Structure Content
                TableKey Key
                  TableRow Row (cycle)
                TableStruct Struct
                  TableKey Key
                    TableRow Row (cycle)
                TableEntry Entry
                  TableRow Row (cycle)
        )"));
}

TEST_F(GuardedTest, ATableKeyThatIsReachedAgainInsideItself) {
    NMemory::VMemStructure& content = Structure(L"Content");
    NMemory::VMemTableKey& key = content.AddTableKey(L"Key");
    NMemory::VMemTableRow& row = m_library.MakeDiagDataDictionarySpec().AddTable(L"Table").AddTableRow(L"Row");
    NMemory::VMemStructure& inner = m_library.GetDiagDataDictionarySpec().AddStructure(L"Inner");
    key.SetTableRowRef(row);
    row.SetStructureRef(inner);
    inner.AddTableStruct(L"Struct").SetTableKeyRef(key);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          Structure Content
            TableKey Key
              TableRow Row
                Structure Inner
                  TableStruct Struct
                    TableKey Key (cycle)
        )"));
}

TEST_F(GuardedTest, AStructureThatContainsItself) {
    NMemory::VMemStructure& structure = Structure(L"Structure");
    structure.AddValue(L"Again").SetDopBaseLink(structure);
    structure.AddValue(L"Last");
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          Structure Structure
            Value Again
              Structure Structure (cycle)
            Value Last
        )"));
}

TEST_F(GuardedTest, FieldsOfEveryKindThatContainThemselves) {
    NMemory::VMemStructure& row = m_library.MakeDiagDataDictionarySpec().AddStructure(L"Row");
    NMemory::VMemStaticField& field = m_dictionary.AddStaticField(L"Static");
    NMemory::VMemEndOfPduField& endOfPdu = m_dictionary.AddEndOfPduField(L"EndOfPdu");
    NMemory::VMemDynamicLengthField& length = m_dictionary.AddDynamicLengthField(L"Length");
    NMemory::VMemDynamicEndmarkerField& endmarker = m_dictionary.AddDynamicEndmarkerField(L"Endmarker");
    field.SetBasicStructureRef(row);
    endOfPdu.SetBasicStructureRef(row);
    length.SetBasicStructureRef(row);
    endmarker.SetDataObjectPropRef(endmarker);
    row.AddValue(L"Again").SetDopBaseLink(field);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          StaticField Static
            BasicStructure Row
              Value Again
                StaticField Static (cycle)
          EndOfPduField EndOfPdu
            BasicStructure Row
              Value Again
                StaticField Static
                  BasicStructure Row (cycle)
          DynamicLengthField Length
            BasicStructure Row
              Value Again
                StaticField Static
                  BasicStructure Row (cycle)
          DynamicEndmarkerField Endmarker
            DynamicEndmarkerField Endmarker (cycle)
        )"));
}

TEST_F(GuardedTest, AMuxWhoseCasesLeadBackToIt) {
    NMemory::VMemMux& mux = m_dictionary.AddMux(L"Mux");
    NMemory::VMemStructure& content = m_library.MakeDiagDataDictionarySpec().AddStructure(L"Content");
    content.AddValue(L"Again").SetDopBaseLink(mux);
    mux.MakeDefaultCase(L"Default").SetStructureRef(content);
    mux.AddCase(L"Case").SetStructureRef(content);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          Mux Mux
            DefaultCase Default
              Structure Content
                Value Again
                  Mux Mux (cycle)
            Case Case
              Structure Content
                Value Again
                  Mux Mux (cycle)
        )"));
}

TEST_F(GuardedTest, AnEnvDataDescWhoseEnvDatasLeadBackToIt) {
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    NMemory::VMemEnvData& envData = m_library.MakeDiagDataDictionarySpec().AddEnvData(L"Always");
    envData.AddValue(L"Again").SetDopBaseLink(desc);
    desc.AddEnvDataRef(envData);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          EnvDataDesc Environment
            EnvData Always
              Value Again
                EnvDataDesc Environment (cycle)
        )"));
}

TEST_F(GuardedTest, AnEnvDataDescWhoseParamSnrefNamesTheParamThatHoldsIt) {
    NMemory::VMemEnvDataDesc& desc = m_library.MakeDiagDataDictionarySpec().AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"Data"));
    m_layer.AddSingleEcuJob(L"Job").AddOutputParam(L"Data").SetDopBaseRef(desc);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          SingleEcuJob Job
            OutputParam Data
              EnvDataDesc Environment
                OutputParam Data (cycle)
        )"));
}

TEST_F(GuardedTest, TheCurrentDiagCommStaysWhenADiagCommIsNotEnteredAgain) {
    NMemory::VMemEnvDataDesc& desc = m_library.MakeDiagDataDictionarySpec().AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    job.AddRelatedDiagCommRef(job);
    job.AddOutputParam(L"TroubleCode");
    job.AddOutputParam(L"Data").SetDopBaseRef(desc);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          SingleEcuJob Job
            DiagComm Job (cycle)
            OutputParam TroubleCode
            OutputParam Data
              EnvDataDesc Environment
                OutputParam TroubleCode
        )"));
}

TEST_F(GuardedTest, WhatIsReachedTwiceOneBehindTheOtherIsVisitedTwice) {
    NMemory::VMemStructure& shared = m_library.MakeDiagDataDictionarySpec().AddStructure(L"Shared");
    NMemory::VMemStructure& holder = Structure(L"Holder");
    holder.AddValue(L"First").SetDopBaseLink(shared);
    holder.AddValue(L"Second").SetDopBaseLink(shared);
    EXPECT_EQ(Walked(), Text(LR"(
        EcuVariant Layer
          Structure Holder
            Value First
              Structure Shared
            Value Second
              Structure Shared
        )"));
}

TEST_F(GuardedTest, ADictionaryAloneIsGuardedToo) {
    NMemory::VMemStructure& structure = Structure(L"Structure");
    structure.AddValue(L"Again").SetDopBaseLink(structure);
    VGuardedRecorder recorder(m_layer);
    recorder.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(recorder.TakeTranscript(), Text(LR"(
        Structure Structure
          Value Again
            Structure Structure (cycle)
        )"));
}

/// Records the DIAG-COMMs that it enters, and those that are too deep.
class VShallowWalk : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    using VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser;

    std::wstring m_text;

protected:
    void PreProcessDiagService(NODX201::VDiagService& x) override { m_text += std::wstring(x.GetShortName()) + L' '; }
    void PreProcessDiagComm(NODX201::VDiagComm& x) override { m_text += std::wstring(x.GetShortName()) + L' '; }
    void OnTooDeep(wchar_t const* kind, NODX201::VOdxElement& x) override {
        m_text += std::wstring(kind) + L' ' + x.GetShortName() + L" is too deep, ";
    }
    void OnCycle(wchar_t const* kind, NODX201::VOdxElement& x) override {
        m_text += std::wstring(kind) + L' ' + x.GetShortName() + L" leads back, ";
    }
};

TEST_F(GuardedTest, WhatIsDeeperThanTheLimitIsLeftOutAndTold) {
    NMemory::VMemDiagService& first = m_layer.AddDiagService(L"First");
    NMemory::VMemDiagService& second = m_library.AddDiagService(L"Second");
    NMemory::VMemDiagService& third = m_library.AddDiagService(L"Third");
    first.AddRelatedDiagCommRef(second);
    second.AddRelatedDiagCommRef(third);
    m_layer.AddDiagService(L"Last");

    VShallowWalk shallow(m_layer, 3); // the layer, First, Second
    shallow.TraverseDiagLayer();
    EXPECT_EQ(shallow.m_text, L"First Second DiagComm Third is too deep, Last ");
    VShallowWalk deep(m_layer, 4);
    deep.TraverseDiagLayer();
    EXPECT_EQ(deep.m_text, L"First Second Third Last ");
}

TEST_F(GuardedTest, WhatLeadsBackAtTheLimitIsACycle) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.AddRelatedDiagCommRef(service);
    VShallowWalk walk(m_layer, 2); // the layer, Service
    walk.TraverseDiagLayer();
    EXPECT_EQ(walk.m_text, L"Service DiagComm Service leads back, ");
}

TEST_F(GuardedTest, NothingHappensAtACycleOrTheLimitUnlessItIsOverridden) {
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Service");
    service.AddRelatedDiagCommRef(service);
    NMemory::VMemDiagService& second = m_library.AddDiagService(L"Second");
    service.AddRelatedDiagCommRef(second);
    second.AddRelatedDiagCommRef(m_library.AddDiagService(L"Third"));

    class VEntering : public NDIAGKIT::VGuardedDiagLayerTraverser {
    public:
        using VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser;
        std::wstring m_text;

    protected:
        void DefaultVisit(NODX201::VOdxElement& x) override { m_text += std::wstring(x.GetShortName()) + L' '; }
    };
    VEntering walk(m_layer, 3); // the layer, Service, Second
    walk.TraverseDiagLayer();
    EXPECT_EQ(walk.m_text, L"Layer Service Second ");
}

TEST_F(GuardedTest, ARingOfThousandsIsToldWhereItCloses) {
    constexpr int kServices = 1500; // more than the buckets of the guard
    std::vector<NMemory::VMemDiagService*> services;
    for (int number = 0; number < kServices; ++number) {
        services.push_back(&m_library.AddDiagService((L"Service" + std::to_wstring(number)).c_str()));
    }
    for (int number = 0; number < kServices; ++number) {
        services[number]->AddRelatedDiagCommRef(*services[(number + 1) % kServices]);
    }
    m_layer.AddDiagService(L"Entry").AddRelatedDiagCommRef(*services.front());

    class VRing : public VShallowWalk {
    public:
        using VShallowWalk::VShallowWalk;
        std::size_t m_entered = 0;

    protected:
        void PreProcessDiagComm(NODX201::VDiagComm&) override { ++m_entered; }
        void OnCycle(wchar_t const* kind, NODX201::VOdxElement& x) override {
            m_text += std::wstring(kind) + L' ' + x.GetShortName() + L" again, ";
        }
    };
    VRing ring(m_layer);
    ring.TraverseDiagLayer();
    EXPECT_EQ(ring.m_text, L"Entry DiagComm Service0 again, ");
    EXPECT_EQ(ring.m_entered, std::size_t{kServices});
}

TEST_F(GuardedTest, AnExceptionLeavesTheGuardAsItWas) {
    class VThrowing : public VGuardedRecorder {
    public:
        using VGuardedRecorder::VGuardedRecorder;
        bool m_throws = true;

    protected:
        void VisitCodedConst(NODX201::VCodedConst& x) override {
            if (m_throws) {
                throw std::runtime_error("stop");
            }
            VGuardedRecorder::VisitCodedConst(x);
        }
    };
    Structure(L"Structure").AddCodedConst(L"Const");
    VThrowing traverser(m_layer);
    EXPECT_THROW(traverser.TraverseDiagLayer(), std::runtime_error);
    traverser.m_transcript = VTranscript();
    traverser.m_throws = false;
    EXPECT_EQ(traverser.WalkedLayer(), Text(LR"(
        EcuVariant Layer
          Structure Structure
            CodedConst Const
        )"));
}

} // namespace
} // namespace NTest
