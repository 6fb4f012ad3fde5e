// SPDX-License-Identifier: Apache-2.0

// Properties of the model's collections, iterators and elements on which the toolkit relies.

#include <diagkit/model/Collections.h>

#include <type_traits>

#include <gtest/gtest.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Responses.h>

#include "support/MockElements.h"

namespace NTest {
namespace {

using VIterator = NODX201::VDiagCommProxyCollection::Iterator;

static_assert(std::is_same_v<VIterator, NODX201::VExternalIterator<std::list<NODX201::IDiagCommProxy*>::iterator,
                                                                   NODX201::IDiagCommProxy&>>);
static_assert(std::is_default_constructible_v<VIterator> && std::has_virtual_destructor_v<VIterator>);
static_assert(std::is_same_v<decltype(*std::declval<VIterator&>()), NODX201::IDiagCommProxy&>);
static_assert(std::is_same_v<decltype(++std::declval<VIterator&>()), VIterator&>);
static_assert(sizeof(std::declval<NODX201::VStringCollection&>().Count()) == 8, "counts have 64 bits");

// Views that destroy by position use a virtual destructor.
static_assert(std::has_virtual_destructor_v<NODX201::VDiagComm>);
static_assert(std::has_virtual_destructor_v<NODX201::VDiagVariable>);
static_assert(std::has_virtual_destructor_v<NODX201::VProtocol>);
static_assert(std::has_virtual_destructor_v<NODX201::VGlobalNegResponse>);
static_assert(std::has_virtual_destructor_v<NODX201::VSession>);
static_assert(std::has_virtual_destructor_v<NODX201::IInParamIf>);
static_assert(std::has_virtual_destructor_v<NODX201::IOutParamIf>);
static_assert(std::has_virtual_destructor_v<NODX201::IIdentIf>);

// The kinds of DIAG-COMM and of layer, as the toolkit casts between them.
static_assert(std::is_base_of_v<NODX201::VDiagComm, NODX201::VDiagService>);
static_assert(std::is_base_of_v<NODX201::VDiagComm, NODX201::VSingleEcuJob>);
static_assert(std::is_base_of_v<NODX201::VDiagComm, NODX201::VMultipleEcuJob>);
static_assert(!std::is_base_of_v<NODX201::IDiagCommProxy, NODX201::VMultipleEcuJob>);
static_assert(std::is_base_of_v<NODX201::IDiagCommProxy, NODX201::VDiagCommLink>);
static_assert(std::is_polymorphic_v<NODX201::IDiagCommProxy> && std::is_polymorphic_v<NODX201::ILink>);

class CollectionsTest : public testing::Test {
protected:
    VMockDiagService m_read{L"Read"};
    VMockDiagService m_start{L"Start"};
    VMockCollection<NODX201::VDiagCommProxyCollection> m_comms;
};

TEST_F(CollectionsTest, AnEmptyCollectionBeginsAtItsEnd) {
    EXPECT_EQ(m_comms.Count(), 0u);
    EXPECT_FALSE(m_comms.Begin() != m_comms.End());
    EXPECT_TRUE(m_comms.Begin() == m_comms.End());
}

TEST_F(CollectionsTest, ElementsStandInTheOrderInWhichTheyWereAdded) {
    m_comms.Add(&m_start);
    m_comms.Add(&m_read);
    m_comms.Add(&m_start);
    EXPECT_EQ(m_comms.Count(), 3u);
    std::vector<NODX201::IDiagCommProxy*> byIterator;
    for (auto iter = m_comms.Begin(); iter != m_comms.End(); ++iter) {
        byIterator.push_back(&*iter);
    }
    std::vector<NODX201::IDiagCommProxy*> byRange;
    for (NODX201::IDiagCommProxy& proxy : m_comms) {
        byRange.push_back(&proxy);
    }
    std::vector<NODX201::IDiagCommProxy*> const expected{&m_start, &m_read, &m_start};
    EXPECT_EQ(byIterator, expected);
    EXPECT_EQ(byRange, expected);
}

TEST_F(CollectionsTest, PrefixIncrementReturnsTheIteratorItself) {
    m_comms.Add(&m_start);
    auto iter = m_comms.Begin();
    auto& incremented = ++iter;
    EXPECT_EQ(&incremented, &iter);
    EXPECT_TRUE(iter == m_comms.End());
}

TEST_F(CollectionsTest, AnEntrySaysOneThingOfItself) {
    NODX201::IDiagCommProxy& service = m_read;
    EXPECT_TRUE(service.IsDiagService());
    EXPECT_FALSE(service.IsSingleEcuJob());
    EXPECT_FALSE(service.IsDiagCommLink());
    VMockDiagCommLink mock(nullptr);
    NODX201::IDiagCommProxy& link = mock;
    EXPECT_FALSE(link.IsDiagService());
    EXPECT_FALSE(link.IsSingleEcuJob());
    EXPECT_TRUE(link.IsDiagCommLink());
}

} // namespace
} // namespace NTest
