// SPDX-License-Identifier: Apache-2.0

// The children of every kind that the dictionary traverser knows, and their order: one test a kind. Kinds without
// children have one test together, at the end.

#include "traversers/TraverserTest.h"

namespace NTest {
namespace {

class DictionaryDescentsTest : public VTraverserTest {
protected:
    NMemory::VMemStructure& Structure(wchar_t const* name) { return m_dictionary.AddStructure(name); }

    NMemory::VMemDataObjectProp& Dop(wchar_t const* name) { return m_dictionary.AddDataObjectProp(name); }

    NMemory::VMemUnitSpec& UnitSpec() {
        return m_dictionary.HasUnitSpec() ? m_dictionary.GetUnitSpec() : m_dictionary.MakeUnitSpec();
    }

    NMemory::VMemUnit& Unit(wchar_t const* name) { return UnitSpec().AddUnit(name); }

    NMemory::VMemCompanyData& Company(wchar_t const* name) { return m_layer.AddCompanyData(name); }

    /// A positive response of a service.
    NMemory::VMemPosResponse& ResponseOf(NMemory::VMemDiagService& service) {
        NMemory::VMemPosResponse& response = m_layer.AddPosResponse(L"Response");
        service.AddPosResponseRef(response);
        return response;
    }
};

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

TEST_F(DictionaryDescentsTest, SwitchKey) {
    NMemory::VMemSwitchKey& key = m_dictionary.AddMux(L"Mux").MakeSwitchKey();
    key.SetDataObjectPropRef(Dop(L"Key"));
    m_recorder.VisitSwitchKey(key);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        SwitchKey
          DataObjectProp Key
        )"));
}

TEST_F(DictionaryDescentsTest, LengthKey) {
    NMemory::VMemLengthKey& param = Structure(L"Holder").AddLengthKey(L"Length");
    param.SetDataObjectPropLink(Dop(L"Bits"));
    m_recorder.VisitLengthKey(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        LengthKey Length
          DataObjectProp Bits
        )"));
}

TEST_F(DictionaryDescentsTest, PhysConst) {
    NMemory::VMemPhysConst& param = Structure(L"Holder").AddPhysConst(L"Constant");
    param.SetDataObjectPropLink(Dop(L"Number"));
    m_recorder.VisitPhysConst(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        PhysConst Constant
          DataObjectProp Number
        )"));
}

TEST_F(DictionaryDescentsTest, System) {
    NMemory::VMemSystem& param = Structure(L"Holder").AddSystem(L"Tester");
    param.SetDataObjectPropLink(Dop(L"Number"));
    m_recorder.VisitSystem(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        System Tester
          DataObjectProp Number
        )"));
}

TEST_F(DictionaryDescentsTest, DetermineNumberOfItems) {
    NMemory::VMemDetermineNumberOfItems& items =
        m_dictionary.AddDynamicLengthField(L"Rows").MakeDetermineNumberOfItems();
    items.SetDataObjectPropRef(Dop(L"Count"));
    m_recorder.VisitDetermineNumberOfItems(items);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DetermineNumberOfItems
          DataObjectProp Count
        )"));
}

TEST_F(DictionaryDescentsTest, DefaultCase) {
    NMemory::VMemDefaultCase& defaultCase = m_dictionary.AddMux(L"Mux").MakeDefaultCase(L"Default");
    defaultCase.SetStructureRef(Structure(L"Content"));
    m_recorder.VisitDefaultCase(defaultCase);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DefaultCase Default
          Structure Content
        )"));
}

TEST_F(DictionaryDescentsTest, TableRow) {
    NMemory::VMemTableRow& row = m_dictionary.AddTable(L"Table").AddTableRow(L"Row");
    row.SetStructureRef(Structure(L"Content"));
    m_recorder.VisitTableRow(row);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableRow Row
          Structure Content
        )"));
}

TEST_F(DictionaryDescentsTest, Case) {
    NMemory::VMemCase& muxCase = m_dictionary.AddMux(L"Mux").AddCase(L"Case");
    muxCase.MakeUpperLimit();
    muxCase.MakeLowerLimit();
    muxCase.SetStructureRef(Structure(L"Content"));
    m_recorder.VisitCase(muxCase);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Case Case
          Structure Content
          Limit LOWER-LIMIT
          Limit UPPER-LIMIT
        )"));
}

TEST_F(DictionaryDescentsTest, ValueDispatchesItsDop) {
    NMemory::VMemStructure& holder = Structure(L"Holder");
    NMemory::VMemValue& number = holder.AddValue(L"Number");
    NMemory::VMemValue& rows = holder.AddValue(L"Rows");
    number.SetDopBaseLink(Dop(L"Volts"));
    rows.SetDopBaseLink(m_dictionary.AddStaticField(L"Field"));
    m_recorder.VisitValue(number);
    m_recorder.VisitValue(rows);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Value Number
          DataObjectProp Volts
        Value Rows
          StaticField Field
        )"));
}

TEST_F(DictionaryDescentsTest, OutputParamDispatchesItsDop) {
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    NMemory::VMemOutputParam& number = job.AddOutputParam(L"Number");
    NMemory::VMemOutputParam& code = job.AddOutputParam(L"Code");
    number.SetDopBaseRef(Dop(L"Volts"));
    code.SetDopBaseRef(m_dictionary.AddDtcDop(L"TroubleCodes"));
    m_recorder.VisitOutputParam(number);
    m_recorder.VisitOutputParam(code);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        OutputParam Number
          DataObjectProp Volts
        OutputParam Code
          DtcDop TroubleCodes
        )"));
}

TEST_F(DictionaryDescentsTest, CodedConst) {
    NMemory::VMemCodedConst& param = Structure(L"Holder").AddCodedConst(L"ServiceId");
    param.MakeMinMaxLengthType();
    m_recorder.VisitCodedConst(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CodedConst ServiceId
          DiagCodedType
        )"));
}

TEST_F(DictionaryDescentsTest, Reserved) {
    NMemory::VMemReserved& param = Structure(L"Holder").AddReserved(L"Gap");
    param.MakeParamLengthInfoType();
    m_recorder.VisitReserved(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Reserved Gap
          DiagCodedType
        )"));
}

TEST_F(DictionaryDescentsTest, TableKeyOfATable) {
    NMemory::VMemTableKey& param = Structure(L"Holder").AddTableKey(L"Key");
    param.SetTableRef(m_dictionary.AddTable(L"Table"));
    m_recorder.VisitTableKey(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableKey Key
          Table Table
        )"));
}

TEST_F(DictionaryDescentsTest, TableKeyOfATableRow) {
    NMemory::VMemTableKey& param = Structure(L"Holder").AddTableKey(L"Key");
    param.SetTableRowRef(m_dictionary.AddTable(L"Table").AddTableRow(L"Row"));
    m_recorder.VisitTableKey(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableKey Key
          TableRow Row
        )"));
}

TEST_F(DictionaryDescentsTest, TableStruct) {
    NMemory::VMemStructure& holder = Structure(L"Holder");
    NMemory::VMemTableStruct& param = holder.AddTableStruct(L"Content");
    param.SetTableKeyRef(holder.AddTableKey(L"Key"));
    m_recorder.VisitTableStruct(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableStruct Content
          TableKey Key
        )"));
}

TEST_F(DictionaryDescentsTest, TableEntry) {
    NMemory::VMemTableEntry& param = Structure(L"Holder").AddTableEntry(L"Entry");
    param.SetTableRowRef(m_dictionary.AddTable(L"Table").AddTableRow(L"Row"));
    m_recorder.VisitTableEntry(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableEntry Entry
          TableRow Row
        )"));
}

TEST_F(DictionaryDescentsTest, Table) {
    NMemory::VMemTable& other = m_dictionary.AddTable(L"Other");
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    table.AddTableRow(L"First");
    table.AddTableRowRef(other.AddTableRow(L"Referenced"));
    table.AddTableRowRef(Nowhere());
    table.AddTableRow(L"Last");
    table.SetKeyDopRef(Dop(L"Key"));
    table.MakeAdminData();
    m_recorder.VisitTable(table);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Table Table
          AdminData
          DataObjectProp Key
          TableRow First
          TableRow Referenced
          TableRow Last
        )"));
}

TEST_F(DictionaryDescentsTest, ATableRowReachedFromItsTableAndFromATableEntryIsVisitedTwice) {
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    Structure(L"Holder").AddTableEntry(L"Entry").SetTableRowRef(table.AddTableRow(L"Row"));
    m_recorder.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Structure Holder
          TableEntry Entry
            TableRow Row
        Table Table
          TableRow Row
        )"));
}

TEST_F(DictionaryDescentsTest, UnitSpec) {
    NMemory::VMemUnitSpec& spec = UnitSpec();
    spec.AddPhysicalDimension(L"Time");
    spec.AddPhysicalDimension(L"Length");
    spec.AddUnit(L"Second");
    spec.AddUnit(L"Metre");
    spec.AddUnitGroup(L"Metric");
    spec.AddUnitGroup(L"Imperial");
    spec.MakeAdminData();
    m_recorder.VisitUnitSpec(spec);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        UnitSpec
          AdminData
          UnitGroup Metric
          UnitGroup Imperial
          Unit Second
          Unit Metre
          PhysicalDimension Time
          PhysicalDimension Length
        )"));
}

TEST_F(DictionaryDescentsTest, UnitGroup) {
    NMemory::VMemUnitGroup& group = UnitSpec().AddUnitGroup(L"Metric");
    group.AddUnitRef(Unit(L"Second"));
    group.AddUnitRef(Nowhere());
    group.AddUnitRef(Unit(L"Metre"));
    m_recorder.VisitUnitGroup(group);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        UnitGroup Metric
          Unit Second
          Unit Metre
        )"));
}

TEST_F(DictionaryDescentsTest, Unit) {
    NMemory::VMemUnit& unit = Unit(L"Metre");
    unit.SetPhysicalDimensionRef(UnitSpec().AddPhysicalDimension(L"Length"));
    m_recorder.VisitUnit(unit);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Unit Metre
          PhysicalDimension Length
        )"));
}

TEST_F(DictionaryDescentsTest, CompuMethod) {
    NMemory::VMemCompuMethod& method = Dop(L"Dop").MakeCompuMethod();
    method.MakeCompuPhysToInternal();
    method.MakeCompuInternalToPhys();
    m_recorder.VisitCompuMethod(method);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuMethod
          CompuInternalToPhys
          CompuPhysToInternal
        )"));
}

TEST_F(DictionaryDescentsTest, CompuInternalToPhysWithScales) {
    NMemory::VMemCompuInternalToPhys& compu = Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys();
    compu.MakeCompuDefaultValue();
    NMemory::VMemCompuScales& scales = compu.MakeCompuScales();
    scales.AddCompuScale();
    scales.AddCompuScale().MakeLowerLimit();
    m_recorder.VisitCompuInternalToPhys(compu);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuInternalToPhys
          CompuScale
          CompuScale
            Limit LOWER-LIMIT
          CompuDefaultValue
        )"));
}

TEST_F(DictionaryDescentsTest, CompuInternalToPhysWithAProgram) {
    NMemory::VMemCompuInternalToPhys& compu = Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys();
    compu.MakeCompuDefaultValue();
    compu.MakeProgCode();
    m_recorder.VisitCompuInternalToPhys(compu);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuInternalToPhys
          ProgCode
          CompuDefaultValue
        )"));
}

TEST_F(DictionaryDescentsTest, CompuPhysToInternal) {
    NMemory::VMemCompuPhysToInternal& compu = Dop(L"Dop").MakeCompuMethod().MakeCompuPhysToInternal();
    compu.MakeProgCode();
    m_recorder.VisitCompuPhysToInternal(compu);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuPhysToInternal
          ProgCode
        )"));
}

TEST_F(DictionaryDescentsTest, CompuScaleWithAConstant) {
    NMemory::VMemCompuScale& scale =
        Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale();
    scale.MakeCompuConst();
    scale.MakeCompuInverseValue();
    scale.MakeUpperLimit();
    scale.MakeLowerLimit();
    m_recorder.VisitCompuScale(scale);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuScale
          Limit LOWER-LIMIT
          Limit UPPER-LIMIT
          CompuInverseValue
          CompuConst
        )"));
}

TEST_F(DictionaryDescentsTest, CompuScaleWithCoefficients) {
    NMemory::VMemCompuScale& scale =
        Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale();
    scale.MakeCompuRationalCoeffs();
    m_recorder.VisitCompuScale(scale);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuScale
          CompuRationalCoeffs
        )"));
}

TEST_F(DictionaryDescentsTest, CompuDefaultValue) {
    NMemory::VMemCompuDefaultValue& value =
        Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuDefaultValue();
    value.MakeVt();
    m_recorder.VisitCompuDefaultValue(value);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuDefaultValue
          Vt
        )"));
}

TEST_F(DictionaryDescentsTest, CompuConst) {
    NMemory::VMemCompuConst& value =
        Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale().MakeCompuConst();
    value.MakeVt();
    m_recorder.VisitCompuConst(value);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompuConst
          Vt
        )"));
}

TEST_F(DictionaryDescentsTest, InternalConstr) {
    NMemory::VMemInternalConstr& constr = Dop(L"Dop").MakeInternalConstr();
    constr.AddScaleConstr();
    constr.AddScaleConstr().MakeLowerLimit();
    constr.MakeUpperLimit();
    constr.MakeLowerLimit();
    m_recorder.VisitInternalConstr(constr);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        InternalConstr
          Limit LOWER-LIMIT
          Limit UPPER-LIMIT
          ScaleConstr
          ScaleConstr
            Limit LOWER-LIMIT
        )"));
}

TEST_F(DictionaryDescentsTest, ScaleConstr) {
    NMemory::VMemScaleConstr& constr = Dop(L"Dop").MakeInternalConstr().AddScaleConstr();
    constr.MakeUpperLimit();
    constr.MakeLowerLimit();
    m_recorder.VisitScaleConstr(constr);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        ScaleConstr
          Limit LOWER-LIMIT
          Limit UPPER-LIMIT
        )"));
}

TEST_F(DictionaryDescentsTest, Sdg) {
    NMemory::VMemSdg& sdg = m_dictionary.AddDtcDop(L"Dop").AddDtc(L"Dtc").AddSdg();
    sdg.AddSd(L"first");
    sdg.AddSdg().AddSd(L"nested");
    sdg.AddSd(L"last");
    sdg.MakeSdgCaption(L"Caption");
    m_recorder.VisitSdg(sdg);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Sdg
          SdgCaption Caption
          Sd first
          Sdg
            Sd nested
          Sd last
        )"));
}

TEST_F(DictionaryDescentsTest, Dtc) {
    NMemory::VMemDtc& dtc = m_dictionary.AddDtcDop(L"Dop").AddDtc(L"Dtc");
    dtc.AddSdg().AddSd(L"first");
    dtc.AddSdg().AddSd(L"second");
    m_recorder.VisitDtc(dtc);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Dtc Dtc
          Sdg
            Sd first
          Sdg
            Sd second
        )"));
}

TEST_F(DictionaryDescentsTest, AdminData) {
    NMemory::VMemAdminData& adminData = m_dictionary.MakeAdminData();
    adminData.AddDocRevision();
    adminData.AddDocRevision().AddModification();
    adminData.AddCompanyDocInfo();
    adminData.AddCompanyDocInfo().AddSdg();
    m_recorder.VisitAdminData(adminData);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        AdminData
          CompanyDocInfo
          CompanyDocInfo
            Sdg
          DocRevision
          DocRevision
            Modification
        )"));
}

TEST_F(DictionaryDescentsTest, DocRevision) {
    NMemory::VMemDocRevision& revision = m_dictionary.MakeAdminData().AddDocRevision();
    revision.AddModification();
    revision.AddModification();
    revision.AddCompanyRevisionInfo();
    revision.SetTeamMemberRef(Company(L"Company").AddTeamMember(L"Author"));
    m_recorder.VisitDocRevision(revision);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DocRevision
          TeamMember Author
          CompanyRevisionInfo
          Modification
          Modification
        )"));
}

TEST_F(DictionaryDescentsTest, CompanyDocInfo) {
    NMemory::VMemCompanyDocInfo& info = m_dictionary.MakeAdminData().AddCompanyDocInfo();
    info.AddSdg();
    info.SetTeamMemberRef(Company(L"Company").AddTeamMember(L"Author"));
    info.SetCompanyDataRef(Company(L"Publisher"));
    m_recorder.VisitCompanyDocInfo(info);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompanyDocInfo
          CompanyData Publisher
          TeamMember Author
          Sdg
        )"));
}

TEST_F(DictionaryDescentsTest, CompanyRevisionInfo) {
    NMemory::VMemCompanyRevisionInfo& info = m_dictionary.MakeAdminData().AddDocRevision().AddCompanyRevisionInfo();
    info.SetCompanyDataRef(Company(L"Publisher"));
    m_recorder.VisitCompanyRevisionInfo(info);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompanyRevisionInfo
          CompanyData Publisher
        )"));
}

TEST_F(DictionaryDescentsTest, CompanyData) {
    NMemory::VMemCompanyData& company = Company(L"Publisher");
    company.MakeCompanySpecificInfo();
    company.AddTeamMember(L"First");
    company.AddTeamMember(L"Second");
    company.AddRole(L"supplier");
    company.AddRole(L"tester");
    m_recorder.VisitCompanyData(company);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompanyData Publisher
          Role supplier
          Role tester
          TeamMember First
          TeamMember Second
          CompanySpecificInfo
        )"));
}

TEST_F(DictionaryDescentsTest, TeamMember) {
    NMemory::VMemTeamMember& member = Company(L"Publisher").AddTeamMember(L"Author");
    member.AddRole(L"writer");
    member.AddRole(L"reviewer");
    m_recorder.VisitTeamMember(member);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TeamMember Author
          Role writer
          Role reviewer
        )"));
}

TEST_F(DictionaryDescentsTest, CompanySpecificInfo) {
    NMemory::VMemCompanySpecificInfo& info = Company(L"Publisher").MakeCompanySpecificInfo();
    info.AddSdg();
    info.AddRelatedDoc();
    info.AddRelatedDoc().MakeXdoc();
    m_recorder.VisitCompanySpecificInfo(info);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CompanySpecificInfo
          RelatedDoc
          RelatedDoc
            Xdoc
          Sdg
        )"));
}

TEST_F(DictionaryDescentsTest, RelatedDoc) {
    NMemory::VMemRelatedDoc& document = Company(L"Publisher").MakeCompanySpecificInfo().AddRelatedDoc();
    document.MakeXdoc().SetShortName(L"Manual");
    m_recorder.VisitRelatedDoc(document);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        RelatedDoc
          Xdoc Manual
        )"));
}

TEST_F(DictionaryDescentsTest, KindsWithoutChildrenHaveNone) {
    NMemory::VMemCompuScale& scale =
        Dop(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale();
    NMemory::VMemCompuInverseValue& inverse = scale.MakeCompuInverseValue();
    inverse.MakeVt(); // the one child that such a kind may hold
    m_recorder.VisitCompuInverseValue(inverse);
    EXPECT_EQ(m_recorder.TakeTranscript(), L"CompuInverseValue\n");
}

TEST_F(DictionaryDescentsTest, AbsentChildrenAndUnresolvableReferencesAreSkipped) {
    NMemory::VMemStructure& params = Structure(L"Params");
    params.AddValue(L"Value").SetDopBaseLink(Nowhere());
    params.AddLengthKey(L"LengthKey").SetDataObjectPropLink(Nowhere());
    params.AddPhysConst(L"PhysConst").SetDataObjectPropLink(Nowhere());
    params.AddSystem(L"System").SetDataObjectPropLink(Nowhere());
    params.AddTableKey(L"KeyOfTable").SetTableRef(Nowhere());
    params.AddTableKey(L"KeyOfRow").SetTableRowRef(Nowhere());
    params.AddTableStruct(L"TableStruct").SetTableKeyRef(Nowhere());
    params.AddTableEntry(L"TableEntry").SetTableRowRef(Nowhere());
    Dop(L"Dop").SetUnitRef(Nowhere());
    m_dictionary.AddStaticField(L"OfStructure").SetBasicStructureRef(Nowhere());
    m_dictionary.AddStaticField(L"OfEnvDataDesc").SetEnvDataDescRef(Nowhere());
    m_dictionary.AddDynamicEndmarkerField(L"Endmarker").SetDataObjectPropRef(Nowhere());
    m_dictionary.AddDynamicLengthField(L"Length").MakeDetermineNumberOfItems().SetDataObjectPropRef(Nowhere());
    NMemory::VMemMux& mux = m_dictionary.AddMux(L"Mux");
    mux.MakeSwitchKey().SetDataObjectPropRef(Nowhere());
    mux.MakeDefaultCase(L"DefaultCase").SetStructureRef(Nowhere());
    mux.AddCase(L"Case").SetStructureRef(Nowhere());
    Unit(L"Unit").SetPhysicalDimensionRef(Nowhere());
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    table.SetKeyDopRef(Nowhere());
    table.AddTableRow(L"Row").SetStructureRef(Nowhere());
    NMemory::VMemAdminData& adminData = m_dictionary.MakeAdminData();
    NMemory::VMemCompanyDocInfo& info = adminData.AddCompanyDocInfo();
    info.SetCompanyDataRef(Nowhere());
    info.SetTeamMemberRef(Nowhere());
    NMemory::VMemDocRevision& revision = adminData.AddDocRevision();
    revision.SetTeamMemberRef(Nowhere());
    revision.AddCompanyRevisionInfo().SetCompanyDataRef(Nowhere());
    m_recorder.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        AdminData
          CompanyDocInfo
          DocRevision
            CompanyRevisionInfo
        Structure Params
          Value Value
          LengthKey LengthKey
          PhysConst PhysConst
          System System
          TableKey KeyOfTable
          TableKey KeyOfRow
          TableStruct TableStruct
          TableEntry TableEntry
        DataObjectProp Dop
        StaticField OfStructure
        StaticField OfEnvDataDesc
        DynamicEndmarkerField Endmarker
        DynamicLengthField Length
          DetermineNumberOfItems
        Mux Mux
          SwitchKey
          DefaultCase DefaultCase
          Case Case
        UnitSpec
          Unit Unit
        Table Table
          TableRow Row
        )"));
}

} // namespace
} // namespace NTest
