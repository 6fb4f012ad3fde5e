// SPDX-License-Identifier: Apache-2.0

// Units, computations, special data and administrative data. Kinds without children have one test together, at the end.

#include "tools/DictionaryDescentsTest.h"

namespace NTest {
namespace {

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
    inverse.MakeVt(); // the only child that such a kind may have
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
