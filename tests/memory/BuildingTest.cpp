// SPDX-License-Identifier: Apache-2.0

// Building a database by hand: order, presence, owners, texts.

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Odx.h>

#include "support/PrintView.h"
#include "support/VerifyModel.h"

namespace NTest {
namespace {

using NMemory::VReference;

template <class Collection>
std::wstring Names(Collection& collection) {
    std::wstring names;
    for (auto& element : collection) {
        names += (names.empty() ? L"" : L" ") + std::wstring(element.GetShortName());
    }
    return names;
}

class BuildingTest : public testing::Test {
protected:
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Doors");
};

TEST_F(BuildingTest, AFewLinesMakeADatabaseWithInheritance) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    protocol.AddDiagService(L"ReadIdent");
    protocol.AddSingleEcuJob(L"Reset");
    auto& door = m_container.AddBaseVariant(L"Door");
    door.AddParentRef(protocol).ExcludeDiagComm(L"ReadIdent");
    door.AddDiagService(L"Open");
    VerifyModel(m_database);
    EXPECT_EQ(PrintDiagComms(door), L"Open@Door Reset@UDS");
}

TEST_F(BuildingTest, DocumentsStandInTheOrderInWhichTheyWereAdded) {
    m_database.AddDiagLayerContainer(L"Windows");
    m_database.AddComparamSpec(L"Can");
    m_database.AddComparamSpec(L"Kline");
    m_database.AddFlash(L"One");
    m_database.AddFlash(L"Two");
    m_database.AddMultipleEcuJobSpec(L"Jobs");
    m_database.AddVehicleInfoSpec(L"Van");
    m_database.AddVehicleInfoSpec(L"Bus");
    EXPECT_EQ(Names(m_database.GetOdx().DiagLayerContainerCollection()), L"Doors Windows");
    EXPECT_EQ(Names(m_database.GetOdx().ComparamSpecCollection()), L"Can Kline");
    EXPECT_EQ(Names(m_database.FlashCollection()), L"One Two");
    EXPECT_EQ(Names(m_database.MultipleEcuJobSpecCollection()), L"Jobs");
    EXPECT_EQ(Names(m_database.VehicleInfoSpecCollection()), L"Van Bus");
}

TEST_F(BuildingTest, LayersOfAllKindsStandInTheOrderInWhichTheyWereAdded) {
    m_container.AddEcuVariant(L"E");
    m_container.AddEcuSharedData(L"S");
    m_container.AddProtocol(L"P");
    m_container.AddBaseVariant(L"B");
    m_container.AddFunctionalGroup(L"F");
    EXPECT_EQ(Names(m_container.DiagLayerCollection()), L"E S P B F");
    EXPECT_EQ(m_container.DiagLayerCollection().Count(), 5u);
}

TEST_F(BuildingTest, ResponsesOfAllKindsStandInOneCollection) {
    auto& layer = m_container.AddProtocol(L"UDS");
    layer.AddNegResponse(L"Neg");
    layer.AddGlobalNegResponse(L"Global");
    layer.AddPosResponse(L"Pos");
    EXPECT_EQ(Names(layer.ResponseCollection()), L"Neg Global Pos");
}

TEST_F(BuildingTest, ProcessingInstructionsStandInTheOrderInWhichTheyWereAdded) {
    m_database.AddProcessingInstruction(L"Tool", L"made by hand");
    m_database.AddProcessingInstruction(L"Other", L"");
    std::wstring print;
    for (NODX201::VProcessingInstruction& instruction : m_database.GetOdx().ProcessingInstructionCollection()) {
        print += std::wstring(instruction.GetName()) + L"=" + instruction.GetContent() + L";";
    }
    EXPECT_EQ(print, L"Tool=made by hand;Other=;");
}

TEST_F(BuildingTest, AnAbsentWrapperIsAbsentAndEmpty) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    EXPECT_FALSE(protocol.HasDiagCommProxyCollection());
    EXPECT_EQ(protocol.DiagCommProxyCollection().Count(), 0u);
    EXPECT_FALSE(protocol.HasParentRefCollection());
    EXPECT_EQ(protocol.ParentRefCollection().Count(), 0u);
    auto& service = protocol.AddDiagService(L"Read");
    EXPECT_FALSE(service.HasPosResponseLinkCollection());
    EXPECT_EQ(service.PosResponseLinkCollection().Count(), 0u);
    EXPECT_FALSE(service.HasNegResponseLinkCollection());
    EXPECT_EQ(service.NegResponseLinkCollection().Count(), 0u);
    auto& job = protocol.AddSingleEcuJob(L"Reset");
    EXPECT_FALSE(job.HasInputParamCollection());
    EXPECT_EQ(job.InputParamCollection().Count(), 0u);
    EXPECT_FALSE(job.HasOutputParamCollection());
    EXPECT_EQ(job.OutputParamCollection().Count(), 0u);
    auto& parentRef = m_container.AddBaseVariant(L"Door").AddParentRef(protocol).ParentRef();
    EXPECT_FALSE(parentRef.HasNotInheritedDiagCommCollection());
    EXPECT_EQ(parentRef.NotInheritedDiagCommCollection().Count(), 0u);
    EXPECT_FALSE(parentRef.HasNotInheritedVariableCollection());
    EXPECT_EQ(parentRef.NotInheritedVariableCollection().Count(), 0u);
    auto& flash = m_database.AddFlash(L"Flash");
    EXPECT_FALSE(flash.HasEcuMemCollection());
    EXPECT_EQ(flash.EcuMemCollection().Count(), 0u);
}

TEST_F(BuildingTest, AnEmptyWrapperIsPresentAndEmpty) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    protocol.MakeDiagCommProxyCollection();
    EXPECT_TRUE(protocol.HasDiagCommProxyCollection());
    EXPECT_EQ(protocol.DiagCommProxyCollection().Count(), 0u);
    protocol.MakeParentRefCollection();
    EXPECT_TRUE(protocol.HasParentRefCollection());
    EXPECT_EQ(protocol.ParentRefCollection().Count(), 0u);
    auto& service = protocol.AddDiagService(L"Read");
    service.MakePosResponseLinkCollection();
    EXPECT_TRUE(service.HasPosResponseLinkCollection());
    service.MakeNegResponseLinkCollection();
    EXPECT_TRUE(service.HasNegResponseLinkCollection());
    auto& job = protocol.AddSingleEcuJob(L"Reset");
    job.MakeInputParamCollection();
    EXPECT_TRUE(job.HasInputParamCollection());
    job.MakeOutputParamCollection();
    EXPECT_TRUE(job.HasOutputParamCollection());
    auto& parentRef = m_container.AddBaseVariant(L"Door").AddParentRef(protocol);
    parentRef.MakeNotInheritedDiagCommCollection();
    EXPECT_TRUE(parentRef.ParentRef().HasNotInheritedDiagCommCollection());
    EXPECT_EQ(parentRef.ParentRef().NotInheritedDiagCommCollection().Count(), 0u);
    parentRef.MakeNotInheritedVariableCollection();
    EXPECT_TRUE(parentRef.ParentRef().HasNotInheritedVariableCollection());
    auto& flash = m_database.AddFlash(L"Flash");
    flash.MakeEcuMemCollection();
    EXPECT_TRUE(flash.HasEcuMemCollection());
    VerifyModel(m_database);
}

TEST_F(BuildingTest, AWrapperWithAnItemIsPresent) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    auto& service = protocol.AddDiagService(L"Read");
    EXPECT_TRUE(protocol.HasDiagCommProxyCollection());
    EXPECT_EQ(protocol.DiagCommProxyCollection().Count(), 1u);
    service.AddPosResponseRef(protocol.AddPosResponse(L"Pos"));
    EXPECT_TRUE(service.HasPosResponseLinkCollection());
    auto& job = protocol.AddSingleEcuJob(L"Reset");
    job.AddOutputParam(L"Result");
    EXPECT_TRUE(job.HasOutputParamCollection());
    EXPECT_FALSE(job.HasInputParamCollection());
}

TEST_F(BuildingTest, WhatIsAbsentInOneElementStaysAbsentInOthers) {
    auto& one = m_container.AddProtocol(L"One");
    auto& two = m_container.AddProtocol(L"Two");
    EXPECT_EQ(one.DiagCommProxyCollection().Count(), 0u);
    two.AddDiagService(L"Read");
    EXPECT_EQ(one.DiagCommProxyCollection().Count(), 0u);
    EXPECT_FALSE(one.HasDiagCommProxyCollection());
}

TEST_F(BuildingTest, AnOptionalChildIsMadeOnceAndRemoved) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    EXPECT_FALSE(protocol.HasAdminData());
    auto& adminData = protocol.MakeAdminData();
    EXPECT_TRUE(protocol.HasAdminData());
    EXPECT_EQ(&protocol.GetAdminData(), &adminData);
    EXPECT_EQ(&protocol.MakeAdminData(), &adminData);
    protocol.RemoveAdminData();
    EXPECT_FALSE(protocol.HasAdminData());
    EXPECT_EQ(m_database.Count(NODX201::VOdxTagEnum::AdminData), 0u);
}

TEST_F(BuildingTest, AReferenceElementIsPresentWhetherOrNotItResolves) {
    auto& service = m_container.AddProtocol(L"UDS").AddDiagService(L"Read");
    EXPECT_FALSE(service.HasRequestRef());
    service.SetRequestRef(VReference::ById(L"Gone"));
    EXPECT_TRUE(service.HasRequestRef());
    EXPECT_FALSE(service.GetRequestRef().HasRequest());
}

TEST_F(BuildingTest, ALayersOwnerIsTheCollectionWhoseOwnerIsTheContainer) {
    auto& layer = m_container.AddProtocol(L"UDS");
    auto* const collection = dynamic_cast<NODX201::VDiagLayerCollection*>(layer.GetOwner());
    ASSERT_NE(collection, nullptr);
    EXPECT_EQ(collection, &m_container.DiagLayerCollection());
    EXPECT_EQ(collection->GetOwner(), &m_container);
    EXPECT_EQ(m_container.GetOwner(), &m_database.GetOdx());
    EXPECT_EQ(m_database.GetOdx().GetOwner(), nullptr);
}

TEST_F(BuildingTest, ATeamMembersOwnerIsTheCompanyData) {
    auto& company = m_container.AddProtocol(L"UDS").AddCompanyData(L"Acme");
    EXPECT_EQ(company.AddTeamMember(L"Ann").GetOwner(), &company);
}

TEST_F(BuildingTest, EveryElementIsOwnedByTheElementAroundIt) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    auto& service = protocol.AddDiagService(L"Read");
    auto& parentRef = m_container.AddBaseVariant(L"Door").AddParentRef(protocol);
    auto& excluded = parentRef.AddNotInheritedDiagComm(VReference::ByShortName(L"Read"));
    EXPECT_EQ(service.GetOwner(), &protocol);
    EXPECT_EQ(service.SetRequestRef(VReference::ById(L"Gone")).GetOwner(), &service);
    EXPECT_EQ(protocol.MakeAdminData().GetOwner(), &protocol);
    EXPECT_EQ(protocol.AddCompanyData(L"Acme").GetOwner(), &protocol);
    EXPECT_EQ(m_container.AddCompanyData(L"Acme").GetOwner(), &m_container);
    EXPECT_EQ(excluded.GetOwner(), &parentRef.ParentRef());
    EXPECT_EQ(excluded.GetDiagCommSnref().GetOwner(), &excluded);
    auto& dictionary = protocol.MakeDiagDataDictionarySpec();
    EXPECT_EQ(dictionary.AddDataObjectProp(L"Voltage").GetOwner(), &dictionary);
    auto& memory = m_database.AddFlash(L"Flash").AddEcuMem(L"Eeprom");
    auto& session = memory.GetMem().AddSession(L"All");
    EXPECT_EQ(session.GetOwner(), &memory.GetMem());
    EXPECT_EQ(memory.GetMem().GetOwner(), &memory);
    EXPECT_EQ(session.AddExpectedIdent(L"Serial").GetOwner(), &session);
}

TEST_F(BuildingTest, TextsAreCopied) {
    wchar_t name[] = L"UDS";
    auto& layer = m_container.AddProtocol(name);
    wchar_t id[] = L"P.1";
    layer.SetId(id);
    wchar_t longName[] = L"Unified";
    layer.SetLongName(longName);
    name[0] = id[0] = longName[0] = L'?';
    EXPECT_STREQ(layer.GetShortName(), L"UDS");
    EXPECT_STREQ(layer.GetId(), L"P.1");
    EXPECT_STREQ(layer.GetLongName().GetBaseMember(), L"Unified");
}

TEST_F(BuildingTest, AbsentTextsAreEmpty) {
    auto& service = m_container.AddProtocol(L"UDS").AddDiagService(L"Read");
    EXPECT_STREQ(service.GetId(), L"");
    EXPECT_STREQ(service.GetOid(), L"");
    EXPECT_FALSE(service.HasOid());
    EXPECT_STREQ(service.GetDesc(), L"");
    EXPECT_FALSE(service.HasLongName());
    service.SetOid(L"1.2.3");
    EXPECT_TRUE(service.HasOid());
    service.SetOid(L"");
    EXPECT_FALSE(service.HasOid()) << "an empty @OID counts as none";
}

TEST_F(BuildingTest, DiagCommsTakeReferencesByIdOnly) {
    auto& layer = m_container.AddEcuVariant(L"Ecu");
    EXPECT_THROW(layer.AddDiagCommRef(VReference::ByShortName(L"Read")), std::invalid_argument);
    EXPECT_EQ(layer.DiagCommProxyCollection().Count(), 0u);
    EXPECT_THROW(layer.AddDiagVariableRef(VReference::ByShortName(L"Speed")), std::invalid_argument);
    EXPECT_EQ(layer.DiagVariableProxyCollection().Count(), 0u);
    EXPECT_EQ(m_database.Count(NODX201::VOdxTagEnum::DiagCommRef), 0u);
    VerifyModel(m_database);
}

TEST_F(BuildingTest, PositionsNameTheirDocument) {
    auto& layer = m_container.AddProtocol(L"UDS");
    EXPECT_EQ(m_database.GetDocumentName(layer.GetPosition()), "");
    auto const first = m_database.AddDocumentName("a.odx-d");
    auto const second = m_database.AddDocumentName("b.odx-d");
    layer.SetPosition({second, 12, 5});
    EXPECT_EQ(m_database.GetDocumentName(layer.GetPosition()), "b.odx-d");
    EXPECT_EQ(layer.GetPosition().line, 12u);
    EXPECT_EQ(layer.GetPosition().column, 5u);
    EXPECT_EQ(m_database.GetDocumentName({first, 1, 1}), "a.odx-d");
}

TEST_F(BuildingTest, AParentRefKeepsReferenceExclusionsAndPlaceWhenItsKindChanges) {
    auto& library = m_container.AddEcuSharedData(L"Lib");
    library.AddDiagService(L"Read");
    library.AddDiagService(L"Start");
    auto& door = m_container.AddBaseVariant(L"Door");
    auto& unknown = door.AddParentRef(NMemory::VParentRefKind::Unknown, library);
    unknown.ExcludeDiagComm(L"Read").ExcludeVariable(L"Speed");
    unknown.Node().SetPosition({0, 7, 3});
    door.AddParentRef(NMemory::VParentRefKind::Protocol, VReference::ById(L"Gone"));
    EXPECT_EQ(PrintDiagComms(door), L"");

    NMemory::IMemParentRef& changed = door.ChangeParentRefKind(unknown, NMemory::VParentRefKind::EcuSharedData);

    EXPECT_EQ(PrintDiagComms(door), L"Start@Lib");
    ASSERT_EQ(door.ParentRefCollection().Count(), 2u);
    EXPECT_EQ(&*door.ParentRefCollection().Begin(), &changed.ParentRef());
    EXPECT_EQ(changed.ParentRef().NotInheritedVariableCollection().Count(), 1u);
    EXPECT_EQ(changed.Node().GetPosition().line, 7u);
    VerifyModel(m_database);
}

TEST_F(BuildingTest, AParentRefKeepsItsEmptyExclusionsWhenItsKindChanges) {
    auto& library = m_container.AddEcuSharedData(L"Lib");
    auto& door = m_container.AddBaseVariant(L"Door");
    auto& bare = door.AddParentRef(NMemory::VParentRefKind::Unknown, library);
    auto& wrapped = door.AddParentRef(NMemory::VParentRefKind::Unknown, library);
    wrapped.MakeNotInheritedDiagCommCollection();
    wrapped.MakeNotInheritedVariableCollection();
    auto& changedBare = door.ChangeParentRefKind(bare, NMemory::VParentRefKind::EcuSharedData).ParentRef();
    auto& changedWrapped = door.ChangeParentRefKind(wrapped, NMemory::VParentRefKind::EcuSharedData).ParentRef();
    EXPECT_FALSE(changedBare.HasNotInheritedDiagCommCollection());
    EXPECT_FALSE(changedBare.HasNotInheritedVariableCollection());
    EXPECT_TRUE(changedWrapped.HasNotInheritedDiagCommCollection());
    EXPECT_TRUE(changedWrapped.HasNotInheritedVariableCollection());
}

TEST_F(BuildingTest, AReferenceToAnElementWithoutAnIdGivesItOne) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    auto& request = protocol.AddRequest(L"Request");
    auto& service = protocol.AddDiagService(L"Read");
    EXPECT_STREQ(request.GetId(), L"");
    service.SetRequestRef(request);
    EXPECT_STRNE(request.GetId(), L"");
    ASSERT_TRUE(service.GetRequestRef().HasRequest());
    EXPECT_EQ(&service.GetRequestRef().GetRequest(), &request);
}

TEST_F(BuildingTest, AMadeIdIsOneThatNoElementHas) {
    auto& protocol = m_container.AddProtocol(L"UDS");
    std::wstring const made = protocol.AddRequest(L"One").EnsureId();
    EXPECT_FALSE(m_database.GetIdIndex().Find(made)->IsRepeated());
    NMemory::VDatabase other;
    auto& layer = other.AddDiagLayerContainer(L"Doors").AddProtocol(L"UDS");
    layer.AddRequest(L"Taken").SetId(made.c_str());
    EXPECT_NE(layer.AddRequest(L"Two").EnsureId(), made);
}

TEST_F(BuildingTest, EnsureIdKeepsAnId) {
    auto& request = m_container.AddProtocol(L"UDS").AddRequest(L"Request");
    request.SetId(L"RQ");
    EXPECT_STREQ(request.EnsureId(), L"RQ");
}

} // namespace
} // namespace NTest
