// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/IdIndex.h>

#include <gtest/gtest.h>

#include "support/MockElements.h"

namespace NTest {
namespace {

class IdIndexTest : public testing::Test {
protected:
    using VElements = std::vector<NODX201::VReferencable const*>;

    VElements Under(wchar_t const* id) const {
        NMemory::VIdIndex::VEntry const* const entry = m_index.Find(id);
        if (entry == nullptr) {
            return {};
        }
        VElements elements;
        entry->ForEach([&elements](NODX201::VReferencable& element) { elements.push_back(&element); });
        return elements;
    }

    VMockDiagService m_a{L"a"};
    VMockDiagService m_b{L"b"};
    VMockDiagService m_c{L"c"};
    NMemory::VIdIndex m_index;
};

TEST_F(IdIndexTest, AnIdThatNoElementHasIsNotFound) {
    EXPECT_EQ(m_index.Find(L"X"), nullptr);
    m_index.Add(L"X", m_a);
    EXPECT_EQ(m_index.Find(L"x"), nullptr);
    EXPECT_EQ(m_index.Find(L""), nullptr);
}

TEST_F(IdIndexTest, SeveralElementsOfOneIdStandInLoadOrder) {
    m_index.Add(L"X", m_b);
    m_index.Add(L"X", m_a);
    m_index.Add(L"Y", m_c);
    EXPECT_EQ(Under(L"X"), (VElements{&m_b, &m_a}));
    EXPECT_EQ(Under(L"Y"), VElements{&m_c});
}

TEST_F(IdIndexTest, RemovalOfTheFirstLetsTheNextTakeItsPlace) {
    m_index.Add(L"X", m_a);
    m_index.Add(L"X", m_b);
    m_index.Add(L"X", m_c);
    m_index.Remove(L"X", m_a);
    EXPECT_EQ(Under(L"X"), (VElements{&m_b, &m_c}));
    m_index.Remove(L"X", m_b);
    EXPECT_EQ(Under(L"X"), VElements{&m_c});
    m_index.Remove(L"X", m_c);
    EXPECT_EQ(m_index.Find(L"X"), nullptr);
}

TEST_F(IdIndexTest, RemovalOfALaterOneKeepsTheOrderOfTheOthers) {
    m_index.Add(L"X", m_a);
    m_index.Add(L"X", m_b);
    m_index.Add(L"X", m_c);
    m_index.Remove(L"X", m_b);
    EXPECT_EQ(Under(L"X"), (VElements{&m_a, &m_c}));
}

TEST_F(IdIndexTest, RemovalOfWhatIsNotThereChangesNothing) {
    m_index.Add(L"X", m_a);
    m_index.Remove(L"X", m_b);
    m_index.Remove(L"Y", m_a);
    EXPECT_EQ(Under(L"X"), VElements{&m_a});
}

} // namespace
} // namespace NTest
