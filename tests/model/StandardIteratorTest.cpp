// SPDX-License-Identifier: Apache-2.0

// Collections of the model and the standard library.

#include <diagkit/model/StandardIterator.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <diagkit/model/Collections.h>
#include <diagkit/model/DiagComms.h>

#include "support/MockElements.h"

namespace NTest {
namespace {

using VComms = NODX201::VDiagCommProxyCollection;

template <class Iterator, class Value, class Reference>
constexpr bool HasTraits() {
    using VTraits = std::iterator_traits<Iterator>;
    return std::is_same_v<typename VTraits::iterator_category, std::forward_iterator_tag> &&
           std::is_same_v<typename VTraits::value_type, Value> &&
           std::is_same_v<typename VTraits::reference, Reference> &&
           std::is_same_v<typename VTraits::pointer, std::remove_reference_t<Reference>*> &&
           std::is_same_v<typename VTraits::difference_type, std::ptrdiff_t>;
}

using VProxy = NODX201::IDiagCommProxy;
using VText = NODX201::VStringCollection;
static_assert(HasTraits<VComms::Iterator, VProxy, VProxy&>());
static_assert(HasTraits<VComms::ConstIterator, VProxy, VProxy&>());
static_assert(HasTraits<VComms::iterator, VProxy, VProxy&>());
static_assert(HasTraits<VComms::const_iterator, VProxy, VProxy&>());
static_assert(HasTraits<VText::iterator, std::wstring, std::wstring const&>());

// The contract's operations return what they did; the standard library's return what has all that it asks for.
static_assert(std::is_same_v<decltype(std::declval<VComms&>().Begin()), VComms::Iterator>);
static_assert(std::is_same_v<decltype(std::begin(std::declval<VComms&>())), VComms::iterator>);
static_assert(std::is_same_v<decltype(std::end(std::declval<VComms const&>())), VComms::const_iterator>);
static_assert(std::is_same_v<decltype(std::declval<VComms::iterator&>()++), VComms::iterator>);
static_assert(std::is_same_v<decltype(++std::declval<VComms::iterator&>()), VComms::iterator&>);
static_assert(std::is_convertible_v<VComms::iterator, VComms::Iterator> &&
              std::is_convertible_v<VComms::Iterator, VComms::iterator>);

class StandardIteratorTest : public testing::Test {
protected:
    StandardIteratorTest() {
        m_comms.Add(&m_start);
        m_comms.Add(&m_link);
        m_comms.Add(&m_read);
    }

    VMockDiagService m_start{L"Start"};
    VMockDiagService m_read{L"Read"};
    VMockDiagCommLink m_link{nullptr};
    VMockCollection<NODX201::VDiagCommProxyCollection> m_comms;
    VMockCollection<NODX201::VDiagCommProxyCollection> const& m_constant = m_comms;
};

bool IsService(VProxy const& proxy) { return proxy.IsDiagService(); }

TEST_F(StandardIteratorTest, AlgorithmsTakeEitherPairOfPositions) {
    EXPECT_EQ(std::count_if(m_comms.begin(), m_comms.end(), IsService), 2);
    EXPECT_EQ(std::count_if(m_comms.Begin(), m_comms.End(), IsService), 2);
    EXPECT_EQ(std::distance(m_comms.begin(), m_comms.end()), 3);
    auto const link = std::find_if_not(m_comms.begin(), m_comms.end(), IsService);
    EXPECT_EQ(&*link, &m_link);
    EXPECT_EQ(&*std::next(link), &m_read);
}

TEST_F(StandardIteratorTest, AConstantCollectionHandsOutTheSameElements) {
    EXPECT_EQ(std::count_if(m_constant.begin(), m_constant.end(), IsService), 2);
    EXPECT_EQ(std::count_if(m_constant.Begin(), m_constant.End(), IsService), 2);
    std::vector<VProxy*> entries;
    for (VProxy& proxy : m_constant) {
        entries.push_back(&proxy);
    }
    EXPECT_EQ(entries, (std::vector<VProxy*>{&m_start, &m_link, &m_read}));
}

TEST_F(StandardIteratorTest, PostfixIncrementReturnsWhereItWas) {
    auto iter = m_comms.begin();
    auto const before = iter++;
    EXPECT_EQ(&*before, &m_start);
    EXPECT_EQ(&*iter, &m_link);
    EXPECT_TRUE(before == m_comms.begin() && iter != m_comms.begin());
}

TEST_F(StandardIteratorTest, TheArrowReachesTheElement) {
    auto iter = m_comms.begin();
    EXPECT_TRUE(iter->IsDiagService());
    EXPECT_TRUE((++iter)->IsDiagCommLink());
}

TEST_F(StandardIteratorTest, BothKindsOfPositionCompareAndConvert) {
    EXPECT_TRUE(m_comms.begin() == m_comms.Begin());
    EXPECT_TRUE(m_comms.End() == m_comms.end());
    EXPECT_TRUE(m_comms.Begin() != m_comms.end());
    VComms::iterator iter;
    iter = m_comms.Begin();
    EXPECT_EQ(&*iter, &m_start);
    VComms::Iterator const position = ++iter;
    EXPECT_EQ(&*position, &m_link);
}

TEST_F(StandardIteratorTest, AnEmptyCollectionHasNothingToCount) {
    VMockCollection<NODX201::VDiagCommProxyCollection> const empty;
    EXPECT_EQ(std::count_if(empty.begin(), empty.end(), IsService), 0);
    EXPECT_TRUE(empty.begin() == empty.end());
}

} // namespace
} // namespace NTest
