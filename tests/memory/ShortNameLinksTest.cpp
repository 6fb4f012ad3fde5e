// SPDX-License-Identifier: Apache-2.0

// Links by short name: resolved by the database's resolver, in the context in which they are read.

#include <memory>

#include <gtest/gtest.h>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/model/SearchRange.h>

#include "support/FakeResolver.h"

namespace NTest {
namespace {

using NMemory::VReference;

class ShortNameLinksTest : public testing::Test {
protected:
    VReference const kByName = VReference::ByShortName(L"Name");

    VFakeNames m_names; // before the database, whose resolver uses it until the end
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
    NMemory::VMemEcuVariant& m_one = m_container.AddEcuVariant(L"One");
    NMemory::VMemEcuVariant& m_two = m_container.AddEcuVariant(L"Two");

    void UseFakeResolver() { m_database.SetResolverFactory(m_names.Factory()); }

    NMemory::VMemDiagCommLink& AddDiagCommSnref() {
        return m_container.AddProtocol(L"P").AddAccessLevel().SetDiagCommSnref(kByName);
    }
};

TEST_F(ShortNameLinksTest, OneReferenceGivesEachLayerItsOwnAnswer) {
    auto& inOne = m_one.AddDiagService(L"Name");
    auto& inTwo = m_two.AddDiagService(L"Name");
    m_names.diagComms = {{{L"Name", &m_one}, &inOne}, {{L"Name", &m_two}, &inTwo}};
    UseFakeResolver();
    auto& link = AddDiagCommSnref();
    ASSERT_TRUE(link.HasDiagComm(m_one));
    EXPECT_EQ(&link.GetDiagComm(), &inOne);
    ASSERT_TRUE(link.HasDiagComm(m_two));
    EXPECT_EQ(&link.GetDiagComm(), &inTwo);
    ASSERT_TRUE(link.HasDiagComm(m_one));
    EXPECT_EQ(&link.GetDiagComm(), &inOne);
    EXPECT_EQ(m_names.asked,
              (std::vector<std::wstring>{L"DiagComm Name One", L"DiagComm Name Two", L"DiagComm Name One"}));
}

TEST_F(ShortNameLinksTest, ANameThatTheLayerDoesNotShowDoesNotResolve) {
    m_names.diagComms = {{{L"Name", &m_one}, &m_one.AddDiagService(L"Name")}};
    UseFakeResolver();
    auto& link = AddDiagCommSnref();
    EXPECT_TRUE(link.HasDiagComm(m_one));
    EXPECT_FALSE(link.HasDiagComm(m_two));
}

TEST_F(ShortNameLinksTest, WithoutAResolverNothingResolves) {
    auto& service = m_one.AddDiagService(L"Name");
    auto& job = m_database.AddMultipleEcuJobSpec(L"Jobs").AddMultipleEcuJob(L"Job");
    auto& flash = m_database.AddFlash(L"Flash");
    EXPECT_EQ(m_database.GetResolver(), nullptr);
    EXPECT_FALSE(AddDiagCommSnref().HasDiagComm(m_one));
    auto& variable = m_one.AddDiagVariable(L"Variable");
    auto& relation = variable.AddCommRelation();
    EXPECT_FALSE(relation.SetInParamIfSnref(kByName).HasInParamIf(service));
    EXPECT_FALSE(relation.GetInParamIfSnref().HasInParamIf(job));
    EXPECT_FALSE(relation.SetOutParamIfSnref(kByName).HasOutParamIf(service, m_one, NODX201::VSearchRange{}));
    auto& excluded = m_one.AddParentRef(m_container.AddBaseVariant(L"B")).AddNotInheritedVariable(kByName);
    EXPECT_FALSE(excluded.GetDiagVariableSnref().HasDiagVariable(m_one));
    EXPECT_FALSE(service.AddProtocolSnref(kByName).HasProtocol(m_container));
    auto& session = flash.AddEcuMemConnector(L"C").AddSessionDesc(L"S");
    EXPECT_FALSE(session.SetSessionSnref(kByName).HasSession(flash));
}

TEST_F(ShortNameLinksTest, DiagVariablesResolveInTheLayer) {
    auto& variable = m_one.AddDiagVariable(L"Name");
    m_names.diagVariables = {{{L"Name", &m_one}, &variable}};
    UseFakeResolver();
    auto& link = m_two.AddParentRef(m_container.AddBaseVariant(L"B")).AddNotInheritedVariable(kByName);
    ASSERT_TRUE(link.GetDiagVariableSnref().HasDiagVariable(m_one));
    EXPECT_EQ(&link.GetDiagVariableSnref().GetDiagVariable(), &variable);
    EXPECT_FALSE(link.GetDiagVariableSnref().HasDiagVariable(m_two));
}

TEST_F(ShortNameLinksTest, DopsResolveInTheLayer) {
    auto& dictionary = m_one.MakeDiagDataDictionarySpec();
    auto& structure = dictionary.AddStructure(L"Name");
    auto& dop = dictionary.AddDataObjectProp(L"Name");
    m_names.dops = {{{L"Name", &m_one}, &structure}};
    m_names.dataObjectProps = {{{L"Name", &m_one}, &dop}};
    UseFakeResolver();
    auto& request = m_two.AddRequest(L"Request");
    auto& anyDop = request.AddValue(L"Value").SetDopBaseLink(kByName);
    ASSERT_TRUE(anyDop.HasDopBase(m_one));
    EXPECT_EQ(&anyDop.GetDopBase(), &structure);
    EXPECT_FALSE(anyDop.HasDopBase(m_two));
    auto& simpleDop = request.AddPhysConst(L"Const").SetDataObjectPropLink(kByName);
    ASSERT_TRUE(simpleDop.HasDataObjectProp(m_one));
    EXPECT_EQ(&simpleDop.GetDataObjectProp(), &dop);
    EXPECT_FALSE(simpleDop.HasDataObjectProp(m_two));
    EXPECT_EQ(m_names.asked, (std::vector<std::wstring>{L"DopBase Name One", L"DopBase Name Two",
                                                        L"DataObjectProp Name One", L"DataObjectProp Name Two"}));
}

TEST_F(ShortNameLinksTest, ParametersResolveInTheDiagComm) {
    auto& service = m_one.AddDiagService(L"Service");
    auto& job = m_one.AddSingleEcuJob(L"Job");
    auto& in = job.AddInputParam(L"Name");
    auto& out = job.AddOutputParam(L"Name");
    m_names.inParams = {{{L"Name", &job}, &in}};
    m_names.outParams = {{{L"Name", &job}, &out}};
    UseFakeResolver();
    auto& relation = m_one.AddDiagVariable(L"Variable").AddCommRelation();
    auto& inLink = relation.SetInParamIfSnref(kByName);
    ASSERT_TRUE(inLink.HasInParamIf(job));
    EXPECT_EQ(&inLink.GetInParamIf(), &in);
    EXPECT_FALSE(inLink.HasInParamIf(service));
    auto& outLink = relation.SetOutParamIfSnref(kByName);
    ASSERT_TRUE(outLink.HasOutParamIf(job, m_two, static_cast<NODX201::VSearchRange>(3)));
    EXPECT_EQ(&outLink.GetOutParamIf(), &out);
    EXPECT_FALSE(outLink.HasOutParamIf(service, m_one, static_cast<NODX201::VSearchRange>(0)));
    EXPECT_EQ(m_names.asked,
              (std::vector<std::wstring>{L"InParamIf Name Job", L"InParamIf Name Service", L"OutParamIf 3 Two Name Job",
                                         L"OutParamIf 0 One Name Service"}));
}

TEST_F(ShortNameLinksTest, ParametersOfAMultipleEcuJobAreAskedForAsSuch) {
    auto& job = m_database.AddMultipleEcuJobSpec(L"Jobs").AddMultipleEcuJob(L"Job");
    auto& in = job.AddInputParam(L"Name");
    auto& out = job.AddOutputParam(L"Name");
    m_names.inParams = {{{L"Name", &job}, &in}};
    m_names.outParams = {{{L"Name", &job}, &out}};
    UseFakeResolver();
    auto& relation = m_one.AddDiagVariable(L"Variable").AddCommRelation();
    ASSERT_TRUE(relation.SetInParamIfSnref(kByName).HasInParamIf(job));
    EXPECT_EQ(&relation.GetInParamIfSnref().GetInParamIf(), &in);
    ASSERT_TRUE(relation.SetOutParamIfSnref(kByName).HasOutParamIf(job, m_two, static_cast<NODX201::VSearchRange>(3)));
    EXPECT_EQ(&relation.GetOutParamIfSnref().GetOutParamIf(), &out);
    EXPECT_EQ(m_names.asked, (std::vector<std::wstring>{L"InParamIf(job) Name Job", L"OutParamIf(job) Two Name Job"}));
}

TEST_F(ShortNameLinksTest, ProtocolsResolveInTheContainer) {
    auto& protocol = m_container.AddProtocol(L"Name");
    auto& other = m_database.AddDiagLayerContainer(L"Other");
    m_names.protocols = {{{L"Name", &m_container}, &protocol}};
    UseFakeResolver();
    auto& link = m_one.AddDiagService(L"Service").AddProtocolSnref(kByName);
    ASSERT_TRUE(link.HasProtocol(m_container));
    EXPECT_EQ(&link.GetProtocol(), &protocol);
    EXPECT_FALSE(link.HasProtocol(other));
}

TEST_F(ShortNameLinksTest, SessionsAndIdentsResolveInTheFlash) {
    auto& flash = m_database.AddFlash(L"Flash");
    auto& other = m_database.AddFlash(L"Other");
    auto& session = flash.AddEcuMem(L"Memory").GetMem().AddSession(L"Name");
    auto& ident = session.AddExpectedIdent(L"Name");
    m_names.sessions = {{{L"Name", &flash}, &session}};
    m_names.idents = {{{L"Name", &flash}, &ident}};
    UseFakeResolver();
    auto& connector = flash.AddEcuMemConnector(L"Connector");
    auto& sessionLink = connector.AddSessionDesc(L"Session").SetSessionSnref(kByName);
    ASSERT_TRUE(sessionLink.HasSession(flash));
    EXPECT_EQ(&sessionLink.GetSession(), &session);
    EXPECT_FALSE(sessionLink.HasSession(other));
    auto& identLink = connector.AddIdentDesc().SetIdentIfSnref(kByName);
    ASSERT_TRUE(identLink.HasIdentIf(flash));
    EXPECT_EQ(&identLink.GetIdentIf(), &ident);
    EXPECT_FALSE(identLink.HasIdentIf(other));
}

TEST_F(ShortNameLinksTest, ALinkShowsItsFormAsASnref) {
    auto& link = AddDiagCommSnref();
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link.GetLink());
    ASSERT_NE(snref, nullptr);
    EXPECT_STREQ(snref->GetShortName(), L"Name");
    EXPECT_EQ(dynamic_cast<NODX201::VOdxLink const*>(&link.GetLink()), nullptr);
}

TEST_F(ShortNameLinksTest, AReferenceByIdAsksNoResolver) {
    UseFakeResolver();
    auto& service = m_one.AddDiagService(L"Service");
    auto& link = m_container.AddProtocol(L"P").AddAccessLevel().SetDiagCommSnref(service);
    ASSERT_TRUE(link.HasDiagComm(m_two));
    EXPECT_EQ(&link.GetDiagComm(), &service);
    EXPECT_EQ(m_names.started, 0);
}

TEST_F(ShortNameLinksTest, ALinkThatTakesOnlyIdsDoesNotResolveByShortName) {
    m_names.diagComms = {{{L"Name", &m_one}, &m_one.AddDiagService(L"Name")}};
    UseFakeResolver();
    auto& related = m_one.AddDiagService(L"Service").AddRelatedDiagCommRef(kByName);
    EXPECT_FALSE(related.HasDiagComm());
    EXPECT_EQ(m_names.asked, std::vector<std::wstring>{});
}

TEST_F(ShortNameLinksTest, ALinkChangesItsForm) {
    auto& byId = m_one.AddDiagService(L"Other");
    auto& byName = m_one.AddDiagService(L"Name");
    m_names.diagComms = {{{L"Name", &m_one}, &byName}};
    UseFakeResolver();
    auto& link = AddDiagCommSnref();
    ASSERT_TRUE(link.HasDiagComm(m_one));
    link.SetReference(byId);
    ASSERT_TRUE(link.HasDiagComm(m_one));
    EXPECT_EQ(&link.GetDiagComm(), &byId);
    link.SetReference(kByName);
    ASSERT_TRUE(link.HasDiagComm(m_one));
    EXPECT_EQ(&link.GetDiagComm(), &byName);
}

TEST_F(ShortNameLinksTest, TheResolverStartsAtTheFirstQuestionAndIsKept) {
    UseFakeResolver();
    EXPECT_EQ(m_names.started, 0);
    auto& link = AddDiagCommSnref();
    link.HasDiagComm(m_one);
    link.HasDiagComm(m_two);
    EXPECT_EQ(m_names.started, 1);
    EXPECT_EQ(m_names.alive, 1);
}

TEST_F(ShortNameLinksTest, ARemovalStartsANewResolver) {
    UseFakeResolver();
    auto& service = m_one.AddDiagService(L"Service");
    auto& link = AddDiagCommSnref();
    link.HasDiagComm(m_one);
    delete &service;
    link.HasDiagComm(m_one);
    EXPECT_EQ(m_names.started, 2);
    EXPECT_EQ(m_names.alive, 1);
    link.HasDiagComm(m_one);
    EXPECT_EQ(m_names.started, 2);
}

TEST_F(ShortNameLinksTest, RemovingAnOptionalChildStartsANewResolver) {
    UseFakeResolver();
    m_one.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Dop");
    auto& link = AddDiagCommSnref();
    link.HasDiagComm(m_one);
    m_one.RemoveDiagDataDictionarySpec();
    link.HasDiagComm(m_one);
    EXPECT_EQ(m_names.started, 2);
}

TEST_F(ShortNameLinksTest, AResolverCanBeRestartedAndReplaced) {
    UseFakeResolver();
    auto& link = AddDiagCommSnref();
    link.HasDiagComm(m_one);
    m_database.StartNewResolver();
    EXPECT_EQ(m_names.alive, 0);
    link.HasDiagComm(m_one);
    EXPECT_EQ(m_names.started, 2);

    VFakeNames others;
    auto& service = m_one.AddDiagService(L"Name");
    others.diagComms = {{{L"Name", &m_one}, &service}};
    m_database.SetResolverFactory(others.Factory());
    EXPECT_EQ(m_names.alive, 0);
    EXPECT_TRUE(link.HasDiagComm(m_one));
    m_database.SetResolverFactory(nullptr);
    EXPECT_FALSE(link.HasDiagComm(m_one));
    EXPECT_EQ(others.alive, 0);
}

TEST_F(ShortNameLinksTest, TheResolverEndsBeforeTheElementsDo) {
    VFakeNames names;
    {
        NMemory::VDatabase database;
        database.SetResolverFactory(names.Factory());
        ASSERT_NE(database.GetResolver(), nullptr);
        EXPECT_EQ(names.alive, 1);
    }
    EXPECT_EQ(names.alive, 0);
}

TEST_F(ShortNameLinksTest, AskingWhetherAnIdResolvesLeavesTheAnswerToTheName) {
    auto& service = m_one.AddDiagService(L"Name");
    m_names.diagComms = {{{L"Name", &m_one}, &service}};
    UseFakeResolver();
    auto& link = AddDiagCommSnref();
    ASSERT_TRUE(link.HasDiagComm(m_one));
    EXPECT_FALSE(link.ResolvesById());
    EXPECT_EQ(&link.GetDiagComm(), &service);
}

TEST_F(ShortNameLinksTest, RenamingAnElementStartsANewResolver) {
    auto& service = m_one.AddDiagService(L"Name");
    UseFakeResolver();
    m_database.GetResolver();
    EXPECT_EQ(m_names.started, 1);
    m_one.AddDiagService(L"Added");
    m_database.GetResolver();
    EXPECT_EQ(m_names.started, 1) << "adding does not";
    service.SetShortName(L"Renamed");
    m_database.GetResolver();
    EXPECT_EQ(m_names.started, 2);
}

TEST_F(ShortNameLinksTest, DirectingAParentRefAtAnotherLayerStartsANewResolver) {
    auto& first = m_container.AddBaseVariant(L"First");
    auto& second = m_container.AddBaseVariant(L"Second");
    auto& parentRef = dynamic_cast<NMemory::VMemBaseVariantRef&>(m_one.AddParentRef(first).ParentRef());
    UseFakeResolver();
    m_database.GetResolver();
    parentRef.SetReference(second);
    m_database.GetResolver();
    EXPECT_EQ(m_names.started, 2);
    ASSERT_TRUE(parentRef.HasBaseVariant());
    EXPECT_EQ(&parentRef.GetBaseVariant(), &second);
}

TEST_F(ShortNameLinksTest, WhateverLeadsAParentRefToAnotherLayerStartsANewResolver) {
    auto& first = m_container.AddBaseVariant(L"First");
    auto& second = m_container.AddBaseVariant(L"Second");
    second.SetId(L"B");
    auto& import = m_one.AddImportRef(first);
    UseFakeResolver();
    m_database.GetResolver();
    first.SetId(L"Other"); // the ID of a layer
    m_database.GetResolver();
    EXPECT_EQ(m_names.started, 2);
    import.SetReference(second); // the layer where IDs are looked for
    m_database.GetResolver();
    EXPECT_EQ(m_names.started, 3);
}

class SeveredLinksTest : public ShortNameLinksTest {
protected:
    SeveredLinksTest() {
        auto& dop = m_one.MakeDiagDataDictionarySpec().AddStructure(L"Name");
        m_names.dops = {{{L"Name", &m_one}, &dop}, {{L"Name", &m_two}, &dop}};
        UseFakeResolver();
    }

    void SeverIn(NODX201::VDiagLayer& layer) {
        NMemory::VSeveredLayers layers;
        layers.Add(layer);
        m_link.SeverIn(layers);
    }

    NMemory::VMemDopBaseLink& m_link = m_one.AddRequest(L"Request").AddValue(L"Value").SetDopBaseLink(kByName);
};

TEST_F(SeveredLinksTest, ALinkResolvesToNothingWhereItIsSevered) {
    SeverIn(m_one);
    EXPECT_FALSE(m_link.HasDopBase(m_one));
    EXPECT_TRUE(m_link.HasDopBase(m_two));
}

TEST_F(SeveredLinksTest, AnotherReferenceIsNotSevered) {
    SeverIn(m_one);
    m_link.SetReference(kByName);
    EXPECT_TRUE(m_link.HasDopBase(m_one));
}

TEST_F(SeveredLinksTest, ALayerInThePlaceOfADestroyedOneIsAnother) {
    for (int round = 0; round < 100; ++round) { // sooner or later one is created at the address of an earlier one
        auto& layer = m_container.AddEcuVariant(L"Brief");
        ASSERT_FALSE(m_link.IsSeveredIn(layer));
        SeverIn(layer);
        ASSERT_TRUE(m_link.IsSeveredIn(layer));
        delete &layer;
    }
}

TEST_F(SeveredLinksTest, ALinkIsSeveredInAllLayersOfItsGroupsAndInNoOthers) {
    NMemory::VSeveredLayers first;
    NMemory::VSeveredLayers second;
    NMemory::VSeveredLayers third;
    auto& layer = m_container.AddEcuVariant(L"Layer");
    first.Add(m_one);
    second.Add(m_two);
    third.Add(layer);
    m_link.SeverIn(third);
    m_link.SeverIn(first);
    EXPECT_TRUE(m_link.IsSeveredIn(m_one));
    EXPECT_FALSE(m_link.IsSeveredIn(m_two));
    EXPECT_TRUE(m_link.IsSeveredIn(layer));
    first.Add(m_two);
    EXPECT_TRUE(m_link.IsSeveredIn(m_two));
}

} // namespace
} // namespace NTest
