// SPDX-License-Identifier: Apache-2.0

// The dictionary itself and its DOPs.

#include "tools/DictionaryDescentsTest.h"

namespace NTest {
namespace {

TEST_F(DictionaryDescentsTest, TraverseDiagDataDictionarySpec) {
    m_dictionary.AddTable(L"Table");
    m_dictionary.MakeUnitSpec();
    m_dictionary.AddEnvDataRef(m_library.MakeDiagDataDictionarySpec().AddEnvData(L"Elsewhere")); // not followed
    m_dictionary.AddEnvData(L"EnvData");
    m_dictionary.AddMux(L"Mux");
    m_dictionary.AddDtcDop(L"DtcDop");
    m_dictionary.AddEndOfPduField(L"EndOfPduField");
    m_dictionary.AddDynamicEndmarkerField(L"DynamicEndmarkerField");
    m_dictionary.AddDynamicLengthField(L"DynamicLengthField");
    m_dictionary.AddStaticField(L"StaticField");
    m_dictionary.AddEnvDataDesc(L"EnvDataDesc");
    m_dictionary.AddStructure(L"Structure");
    m_dictionary.AddDataObjectProp(L"DataObjectProp");
    m_dictionary.MakeAdminData();
    m_recorder.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        AdminData
        Mux Mux
        DtcDop DtcDop
        EndOfPduField EndOfPduField
        DynamicEndmarkerField DynamicEndmarkerField
        DynamicLengthField DynamicLengthField
        StaticField StaticField
        EnvDataDesc EnvDataDesc
        Structure Structure
        DataObjectProp DataObjectProp
        EnvData EnvData
        UnitSpec
        Table Table
        )"));
}

TEST_F(DictionaryDescentsTest, TraverseParamCollectionInCollectionOrderByKind) {
    NMemory::VMemStructure& structure = Structure(L"All");
    structure.AddTableEntry(L"TableEntry");
    structure.AddValue(L"Value");
    structure.AddTableStruct(L"TableStruct");
    structure.AddTableKey(L"TableKey");
    structure.AddSystem(L"System");
    structure.AddReserved(L"Reserved");
    structure.AddPhysConst(L"PhysConst");
    structure.AddMatchingRequestParam(L"MatchingRequestParam");
    structure.AddLengthKey(L"LengthKey");
    structure.AddDynamic(L"Dynamic");
    structure.AddCodedConst(L"CodedConst");
    m_recorder.TraverseParamCollection(structure.ParamCollection());
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableEntry TableEntry
        Value Value
        TableStruct TableStruct
        TableKey TableKey
        System System
        Reserved Reserved
        PhysConst PhysConst
        MatchingRequestParam MatchingRequestParam
        LengthKey LengthKey
        Dynamic Dynamic
        CodedConst CodedConst
        )"));
}

TEST_F(DictionaryDescentsTest, TraverseParamIsAnEntranceOfItsOwn) {
    NMemory::VMemValue& value = Structure(L"Holder").AddValue(L"Voltage");
    value.SetDopBaseLink(Dop(L"Volts"));
    m_recorder.TraverseParam(value);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Value Voltage
          DataObjectProp Volts
        )"));
}

TEST_F(DictionaryDescentsTest, DataObjectProp) {
    NMemory::VMemDataObjectProp& dop = Dop(L"Voltage");
    dop.SetUnitRef(Unit(L"Volt"));
    dop.MakeInternalConstr();
    dop.MakePhysicalType();
    dop.MakeStandardLengthType();
    dop.MakeCompuMethod();
    dop.MakeAdminData();
    m_recorder.VisitDataObjectProp(dop);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DataObjectProp Voltage
          AdminData
          CompuMethod
          DiagCodedType
          PhysicalType
          InternalConstr
          Unit Volt
        )"));
}

TEST_F(DictionaryDescentsTest, DtcDop) {
    NMemory::VMemDtcDop& other = m_dictionary.AddDtcDop(L"Other");
    NMemory::VMemDtcDop& dop = m_dictionary.AddDtcDop(L"TroubleCodes");
    dop.AddDtc(L"First");
    dop.AddDtcRef(other.AddDtc(L"Referenced"));
    dop.AddDtcRef(Nowhere());
    dop.AddDtc(L"Last");
    dop.MakeCompuMethod();
    dop.MakePhysicalType();
    dop.MakeLeadingLengthInfoType();
    dop.MakeAdminData();
    m_recorder.VisitDtcDop(dop);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DtcDop TroubleCodes
          AdminData
          DiagCodedType
          PhysicalType
          CompuMethod
          Dtc First
          Dtc Referenced
          Dtc Last
        )"));
}

TEST_F(DictionaryDescentsTest, ComplexDop) {
    NMemory::VMemMux& mux = m_dictionary.AddMux(L"Mux");
    mux.MakeSwitchKey();
    mux.MakeAdminData();
    m_recorder.VisitComplexDop(mux); // no element is of this kind alone
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        ComplexDop Mux
          AdminData
        )"));
}

TEST_F(DictionaryDescentsTest, BasicStructure) {
    NMemory::VMemStructure& structure = Structure(L"Record");
    structure.AddReserved(L"Gap");
    structure.AddValue(L"Count");
    structure.MakeAdminData();
    m_recorder.VisitBasicStructure(structure);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        BasicStructure Record
          AdminData
          Reserved Gap
          Value Count
        )"));
}

TEST_F(DictionaryDescentsTest, Structure) {
    NMemory::VMemStructure& structure = Structure(L"Record");
    structure.AddReserved(L"Gap");
    structure.AddValue(L"Count");
    structure.MakeAdminData();
    m_recorder.VisitStructure(structure);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Structure Record
          AdminData
          Reserved Gap
          Value Count
        )"));
}

TEST_F(DictionaryDescentsTest, EnvData) {
    NMemory::VMemEnvData& envData = m_dictionary.AddEnvData(L"Always");
    envData.MakeAllValue();
    envData.AddValue(L"Time");
    envData.MakeAdminData();
    m_recorder.VisitEnvData(envData);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        EnvData Always
          AdminData
          Value Time
          AllValue
        )"));
}

TEST_F(DictionaryDescentsTest, EnvDataDoesNotVisitDtcValues) {
    NMemory::VMemEnvData& envData = m_dictionary.AddEnvData(L"Sometimes");
    envData.AddValue(L"Time");
    envData.MakeDtcValues();
    m_recorder.VisitEnvData(envData);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        EnvData Sometimes
          Value Time
        )"));
}

TEST_F(DictionaryDescentsTest, EnvDataDesc) {
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    desc.AddEnvDataRef(m_dictionary.AddEnvData(L"Referenced"));
    desc.AddEnvData(L"Own");
    desc.AddEnvDataRef(Nowhere());
    desc.MakeAdminData();
    m_recorder.VisitEnvDataDesc(desc);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        EnvDataDesc Environment
          AdminData
          EnvData Referenced
          EnvData Own
        )"));
}

TEST_F(DictionaryDescentsTest, EnvDataDescVisitsTheValueThatItsParamSnrefNamesInTheCurrentService) {
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    desc.AddEnvData(L"Always");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Read");
    NMemory::VMemPosResponse& response = ResponseOf(service);
    response.AddValue(L"TroubleCode");
    response.AddValue(L"Data").SetDopBaseLink(desc);
    m_recorder.VisitDiagService(service);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DiagService Read
          Response Response
            Value TroubleCode
            Value Data
              EnvDataDesc Environment
                Value TroubleCode
                EnvData Always
        )"));
}

TEST_F(DictionaryDescentsTest, EnvDataDescVisitsTheOutputParamThatItsParamSnrefNamesInTheCurrentJob) {
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    desc.AddEnvData(L"Always");
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Read");
    job.AddOutputParam(L"TroubleCode");
    job.AddOutputParam(L"Data").SetDopBaseRef(desc);
    m_recorder.VisitSingleEcuJob(job);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        SingleEcuJob Read
          OutputParam TroubleCode
          OutputParam Data
            EnvDataDesc Environment
              OutputParam TroubleCode
              EnvData Always
        )"));
}

TEST_F(DictionaryDescentsTest, EnvDataDescLooksForItsParamInResponsesOnly) {
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    NMemory::VMemDiagService& service = m_layer.AddDiagService(L"Read");
    NMemory::VMemRequest& request = m_layer.AddRequest(L"Request");
    service.SetRequestRef(request);
    request.AddValue(L"TroubleCode");
    request.AddValue(L"Data").SetDopBaseLink(desc);
    m_recorder.VisitDiagService(service);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DiagService Read
          Request Request
            Value TroubleCode
            Value Data
              EnvDataDesc Environment
        )"));
}

TEST_F(DictionaryDescentsTest, EnvDataDescOfADictionaryWalkNeverVisitsTheTargetOfItsParamSnref) {
    NMemory::VMemEnvDataDesc& desc = m_dictionary.AddEnvDataDesc(L"Environment");
    desc.SetParamSnref(NMemory::VReference::ByShortName(L"TroubleCode"));
    ResponseOf(m_layer.AddDiagService(L"Read")).AddValue(L"TroubleCode");
    m_recorder.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(m_recorder.TakeTranscript(), L"EnvDataDesc Environment\n");
}

TEST_F(DictionaryDescentsTest, FieldOfABasicStructure) {
    NMemory::VMemStaticField& field = m_dictionary.AddStaticField(L"Rows");
    field.SetBasicStructureRef(Structure(L"Row"));
    field.MakeAdminData();
    m_recorder.VisitField(field); // no element is of this kind alone
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Field Rows
          AdminData
          BasicStructure Row
        )"));
}

TEST_F(DictionaryDescentsTest, FieldOfAnEnvDataDesc) {
    NMemory::VMemStaticField& field = m_dictionary.AddStaticField(L"Rows");
    field.SetEnvDataDescRef(m_dictionary.AddEnvDataDesc(L"Row"));
    m_recorder.VisitField(field);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Field Rows
          EnvDataDesc Row
        )"));
}

TEST_F(DictionaryDescentsTest, StaticFieldAndEndOfPduFieldDescendAlike) {
    NMemory::VMemStaticField& fixed = m_dictionary.AddStaticField(L"Fixed");
    NMemory::VMemEndOfPduField& open = m_dictionary.AddEndOfPduField(L"Open");
    NMemory::VMemStructure& row = Structure(L"Row");
    fixed.SetBasicStructureRef(row);
    fixed.MakeAdminData();
    open.SetBasicStructureRef(row);
    open.MakeAdminData();
    m_recorder.VisitStaticField(fixed);
    m_recorder.VisitEndOfPduField(open);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        StaticField Fixed
          AdminData
          BasicStructure Row
        EndOfPduField Open
          AdminData
          BasicStructure Row
        )"));
}

TEST_F(DictionaryDescentsTest, DynamicLengthField) {
    NMemory::VMemDynamicLengthField& field = m_dictionary.AddDynamicLengthField(L"Rows");
    field.MakeDetermineNumberOfItems();
    field.SetBasicStructureRef(Structure(L"Row"));
    field.MakeAdminData();
    m_recorder.VisitDynamicLengthField(field);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DynamicLengthField Rows
          AdminData
          BasicStructure Row
          DetermineNumberOfItems
        )"));
}

TEST_F(DictionaryDescentsTest, DynamicEndmarkerField) {
    NMemory::VMemDynamicEndmarkerField& field = m_dictionary.AddDynamicEndmarkerField(L"Rows");
    field.SetDataObjectPropRef(Dop(L"End"));
    field.SetBasicStructureRef(Structure(L"Row"));
    field.MakeAdminData();
    m_recorder.VisitDynamicEndmarkerField(field);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DynamicEndmarkerField Rows
          AdminData
          BasicStructure Row
          DataObjectProp End
        )"));
}

TEST_F(DictionaryDescentsTest, DynamicEndmarkerFieldDispatchesItsDop) {
    NMemory::VMemDynamicEndmarkerField& field = m_dictionary.AddDynamicEndmarkerField(L"Rows");
    field.SetDataObjectPropRef(m_dictionary.AddDtcDop(L"End"));
    m_recorder.VisitDynamicEndmarkerField(field);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DynamicEndmarkerField Rows
          DtcDop End
        )"));
}

TEST_F(DictionaryDescentsTest, Mux) {
    NMemory::VMemMux& mux = m_dictionary.AddMux(L"Mux");
    mux.AddCase(L"First");
    mux.AddCase(L"Second");
    mux.MakeDefaultCase(L"Default");
    mux.MakeSwitchKey();
    mux.MakeAdminData();
    m_recorder.VisitMux(mux);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Mux Mux
          AdminData
          SwitchKey
          DefaultCase Default
          Case First
          Case Second
        )"));
}

} // namespace
} // namespace NTest
