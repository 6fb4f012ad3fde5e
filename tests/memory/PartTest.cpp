// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Database.h>
#include <diagkit/memory/Odx.h>

#include <gtest/gtest.h>

namespace NTest {
namespace {

using NMemory::Tag;

/// A database, and a container made detached from it.
class VPartTest : public testing::Test {
protected:
    VPartTest() : m_part(std::make_unique<NMemory::VPart>(m_database)) {
        m_container = m_database.GetMemOdx().MakeDetached<NMemory::VMemDiagLayerContainer>(*m_part);
        m_layer = &m_container->AddBaseVariant(L"Door");
        m_layer->SetId(L"ID");
    }

    void Adopt() {
        m_database.Adopt(std::move(m_part));
        m_database.GetMemOdx().Adopt(std::move(m_container));
    }

    NODX201::VReferencable* First() const {
        NMemory::VIdIndex::VEntry const* const entry = m_database.GetIdIndex().Find(L"ID");
        return entry != nullptr ? entry->first : nullptr;
    }

    NMemory::VDatabase m_database;
    std::unique_ptr<NMemory::VPart> m_part;
    std::unique_ptr<NMemory::VMemDiagLayerContainer> m_container;
    NMemory::VMemBaseVariant* m_layer;
};

TEST_F(VPartTest, WhatIsDetachedIsNotInTheDatabase) {
    std::uint64_t const generation = m_database.GetGeneration();
    m_layer->AddDiagService(L"Read").SetId(L"Other");
    EXPECT_EQ(First(), nullptr);
    EXPECT_EQ(m_database.Count(Tag::BaseVariant), 0U);
    EXPECT_EQ(m_database.GetOdx().DiagLayerContainerCollection().Count(), 0U);
    EXPECT_EQ(m_database.GetGeneration(), generation);
}

TEST_F(VPartTest, WhatIsAdoptedIsAsIfMadeThere) {
    Adopt();
    EXPECT_EQ(First(), m_layer);
    EXPECT_EQ(m_database.Count(Tag::BaseVariant), 1U);
    ASSERT_EQ(m_database.GetOdx().DiagLayerContainerCollection().Count(), 1U);
    NODX201::VDiagLayerContainer& container = *m_database.GetOdx().DiagLayerContainerCollection().Begin();
    EXPECT_EQ(container.GetOwner(), &m_database.GetOdx());
    delete &container;
    EXPECT_EQ(First(), nullptr);
    EXPECT_EQ(m_database.Count(Tag::BaseVariant), 0U);
    EXPECT_EQ(m_database.GetOdx().DiagLayerContainerCollection().Count(), 0U);
}

TEST_F(VPartTest, TheOrderOfAdoptionDecidesWhichIdIsTheFirst) {
    NMemory::VMemBaseVariant& later = m_database.AddDiagLayerContainer(L"Later").AddBaseVariant(L"Window");
    later.SetId(L"ID");
    Adopt();
    EXPECT_EQ(First(), &later);
    EXPECT_EQ(m_database.Count(Tag::BaseVariant), 2U);
    delete &later;
    EXPECT_EQ(First(), m_layer);
}

TEST_F(VPartTest, IdsThatChangeOrLeaveBeforeAreForgotten) {
    NMemory::VMemDiagService& service = m_layer->AddDiagService(L"Read");
    service.SetId(L"Service");
    m_layer->SetId(L"New");
    delete &service;
    Adopt();
    EXPECT_EQ(First(), nullptr);
    EXPECT_EQ(m_database.GetIdIndex().Find(L"Service"), nullptr);
    EXPECT_NE(m_database.GetIdIndex().Find(L"New"), nullptr);
    EXPECT_EQ(m_database.Count(Tag::DiagService), 0U);
}

TEST_F(VPartTest, WhatIsNotAdoptedLeavesNothingBehind) {
    m_part->Close();
    m_container.reset();
    m_part.reset();
    EXPECT_EQ(First(), nullptr);
    EXPECT_EQ(m_database.Count(Tag::BaseVariant), 0U);
}

TEST_F(VPartTest, TextsOutliveTheReading) {
    m_layer->AddDiagService(L"Read");
    m_part->Complete();
    Adopt();
    EXPECT_STREQ(m_layer->GetShortName(), L"Door");
    NMemory::VMemDiagService& added = m_layer->AddDiagService(L"Write");
    added.SetId(L"Added");
    EXPECT_STREQ(added.GetShortName(), L"Write");
    EXPECT_NE(m_database.GetIdIndex().Find(L"Added"), nullptr);
}

TEST(PartAdoptionTest, ADatabaseAdoptsDetachedPartsOfItsOwnAlone) {
    NMemory::VDatabase database;
    NMemory::VDatabase other;
    auto foreign = std::make_unique<NMemory::VPart>(other);
    EXPECT_THROW(database.Adopt(std::move(foreign)), std::invalid_argument);
    EXPECT_THROW(database.Adopt(nullptr), std::invalid_argument);
    auto document = other.GetMemOdx().MakeDetached<NMemory::VMemDiagLayerContainer>(*foreign);
    EXPECT_THROW(database.GetMemOdx().Adopt(std::move(document)), std::invalid_argument);
    EXPECT_EQ(database.GetOdx().DiagLayerContainerCollection().Count(), 0u);
}

} // namespace
} // namespace NTest
