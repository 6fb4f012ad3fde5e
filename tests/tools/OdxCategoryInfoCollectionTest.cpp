// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OdxCategoryInfoCollection.h>

#include <memory>
#include <type_traits>

#include "support/GraphTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOdxCategoryInfo;
using NDIAGKIT::VOdxCategoryInfoCollection;

static_assert(std::has_virtual_destructor_v<VOdxCategoryInfoCollection>);
static_assert(std::is_default_constructible_v<VOdxCategoryInfoCollection>);
static_assert(std::is_constructible_v<VOdxCategoryInfoCollection, VOdxCategoryInfoCollection&>);
static_assert(!std::is_constructible_v<VOdxCategoryInfoCollection, VOdxCategoryInfoCollection const&>);

class VOpenCollection : public VOdxCategoryInfoCollection {
public:
    using VOdxCategoryInfoCollection::_Find;
    using VOdxCategoryInfoCollection::_Insert;
    using VOdxCategoryInfoCollection::_Remove;
    using VOdxCategoryInfoCollection::m_collection;
};

/// A record that counts how many of its kind are alive.
class VCountedInfo : public VOdxCategoryInfo {
public:
    VCountedInfo(int& alive, wchar_t const* fileName, wchar_t const* shortName) : m_alive(&alive) {
        SetFileName(fileName);
        SetShortName(shortName);
        ++*m_alive;
    }
    ~VCountedInfo() override { --*m_alive; }

private:
    int* m_alive;
};

class OdxCategoryInfoCollectionTest : public testing::Test {
protected:
    VOdxCategoryInfo& Add(wchar_t const* fileName, wchar_t const* shortName) {
        auto& info = *new VCountedInfo(m_alive, fileName, shortName);
        m_collection->Append(info);
        return info;
    }

    /// `file/name file/name`, in order.
    static std::wstring Print(VOdxCategoryInfoCollection& collection) {
        std::wstring text;
        for (VOdxCategoryInfo& info : collection) {
            text += (text.empty() ? L"" : L" ") + std::wstring(info.GetFileName()) + L"/" + info.GetShortName();
        }
        return text;
    }

    VRecordedAssertions m_assertions;
    int m_alive = 0;
    std::unique_ptr<VOpenCollection> m_collection = std::make_unique<VOpenCollection>();
};

TEST_F(OdxCategoryInfoCollectionTest, ContainsOfASharedShortNameReturnsTheEarlierRecord) {
    Add(L"0.odx", L"Windows");
    VOdxCategoryInfo& first = Add(L"1.odx", L"Doors");
    Add(L"2.odx", L"Doors");
    EXPECT_EQ(&*m_collection->Contains(L"Doors"), &first);
    for (wchar_t const* const name : {L"doors", L"Door", L"Doors ", L"", L"1.odx"}) {
        EXPECT_TRUE(m_collection->Contains(name) == m_collection->End());
    }
}

TEST_F(OdxCategoryInfoCollectionTest, RemoveByReferenceHandsTheRecordBackToTheCaller) {
    VOdxCategoryInfo& kept = Add(L"1.odx", L"Doors");
    Add(L"2.odx", L"Windows");
    m_collection->Remove(kept);
    EXPECT_EQ(m_alive, 2);
    EXPECT_EQ(Print(*m_collection), L"2.odx/Windows");
    m_collection.reset();
    EXPECT_EQ(m_alive, 1);
    EXPECT_EQ(kept.GetShortName(), std::wstring(L"Doors"));
    delete &kept;
    EXPECT_EQ(m_alive, 0);
}

TEST_F(OdxCategoryInfoCollectionTest, RemoveByIteratorDeletesTheRecord) {
    Add(L"1.odx", L"Doors");
    Add(L"2.odx", L"Windows");
    m_collection->Remove(m_collection->Find(L"1.odx"));
    EXPECT_EQ(m_alive, 1);
    EXPECT_EQ(Print(*m_collection), L"2.odx/Windows");
    m_collection->_Remove(m_collection->m_collection.begin());
    EXPECT_EQ(m_alive, 0);
    EXPECT_TRUE(m_collection->IsEmpty());
}

TEST_F(OdxCategoryInfoCollectionTest, ACloneHasAsManyRecordsButIsUnequal) {
    Add(L"1.odx", L"Doors");
    Add(L"2.odx", L"Windows");
    std::unique_ptr<VOdxCategoryInfoCollection> const clone(&m_collection->Clone());
    EXPECT_EQ(clone->Count(), 2u);
    EXPECT_FALSE(*clone == *m_collection);
    EXPECT_TRUE(*clone != *m_collection);
    EXPECT_TRUE(*m_collection == *m_collection);
    EXPECT_TRUE(VOdxCategoryInfoCollection() == VOdxCategoryInfoCollection()) << "two empty ones";
}

TEST_F(OdxCategoryInfoCollectionTest, FindMatchesFileNamesExactly) {
    VOdxCategoryInfo& first = Add(L"Doors.odx", L"1");
    Add(L"Doors.odx", L"2");
    EXPECT_EQ(&*m_collection->Find(L"Doors.odx"), &first);
    for (wchar_t const* const name : {L"doors.odx", L"Doors.ODX", L"Doors", L"Doors.odx ", L"", L"1"}) {
        EXPECT_TRUE(m_collection->Find(name) == m_collection->End());
    }
    EXPECT_TRUE(m_collection->Find(std::wstring(L"Doors.odx\0", 10)) == m_collection->End()) << "the same length";
}

TEST_F(OdxCategoryInfoCollectionTest, RecordsStandInTheOrderOfInsertion) {
    EXPECT_TRUE(m_collection->IsEmpty());
    EXPECT_TRUE(m_collection->Begin() == m_collection->End());
    Add(L"2.odx", L"B");
    Add(L"1.odx", L"A");
    Add(L"3.odx", L"B");
    EXPECT_EQ(m_collection->Count(), 3u);
    EXPECT_FALSE(m_collection->IsEmpty());
    EXPECT_EQ(Print(*m_collection), L"2.odx/B 1.odx/A 3.odx/B");
}

TEST_F(OdxCategoryInfoCollectionTest, ACopyIsDeepAndKeepsTheOrder) {
    VOdxCategoryInfo& b = Add(L"2.odx", L"B");
    Add(L"1.odx", L"A");
    VOdxCategoryInfoCollection copy(*m_collection);
    std::unique_ptr<VOdxCategoryInfoCollection> const clone(&m_collection->Clone());
    b.SetShortName(L"Changed");
    m_collection.reset();
    EXPECT_EQ(m_alive, 0);
    EXPECT_EQ(Print(copy), L"2.odx/B 1.odx/A");
    EXPECT_EQ(Print(*clone), L"2.odx/B 1.odx/A");
}

TEST_F(OdxCategoryInfoCollectionTest, ClearAndDestructionDeleteEveryRecord) {
    Add(L"1.odx", L"A");
    Add(L"2.odx", L"B");
    m_collection->Clear();
    EXPECT_EQ(m_alive, 0);
    EXPECT_TRUE(m_collection->IsEmpty());
    Add(L"3.odx", L"C");
    EXPECT_EQ(m_alive, 1) << "usable afterwards";
    m_collection.reset();
    EXPECT_EQ(m_alive, 0);
}

TEST_F(OdxCategoryInfoCollectionTest, InnerOperationsWorkOnPositions) {
    VOdxCategoryInfo& a = Add(L"1.odx", L"A");
    m_collection->_Insert(m_collection->_Find(a), *new VCountedInfo(m_alive, L"0.odx", L"Z"));
    EXPECT_EQ(Print(*m_collection), L"0.odx/Z 1.odx/A");
    VOdxCategoryInfo stranger;
    EXPECT_TRUE(m_collection->_Find(stranger) == m_collection->m_collection.end());
}

TEST_F(OdxCategoryInfoCollectionTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    Add(L"1.odx", L"A");
    VOdxCategoryInfo twin;
    twin.SetFileName(L"1.odx");
    twin.SetShortName(L"A");
    m_collection->Remove(twin);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"OdxCategoryInfoCollection", 145}}));
    m_collection->Remove(m_collection->End());
    EXPECT_EQ(m_assertions.Take(),
              (VAssertionList{{L"iter != End()", L"OdxCategoryInfoCollection", 153},
                              {L"iter != m_collection.end()", L"OdxCategoryInfoCollection", 228}}));
    m_collection->_Remove(m_collection->m_collection.end());
    EXPECT_EQ(m_assertions.Take(),
              (VAssertionList{{L"iter != m_collection.end()", L"OdxCategoryInfoCollection", 228}}));
    EXPECT_EQ(Print(*m_collection), L"1.odx/A");
    EXPECT_EQ(m_alive, 1);
}

} // namespace
} // namespace NTest
