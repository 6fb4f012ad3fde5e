// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/StringContainer.h>

#include <type_traits>

#include <gtest/gtest.h>

#include "support/NullReference.h"
#include "support/RecordedAssertions.h"

namespace NTest {
namespace {

using NDIAGKIT::VStringContainer;

static_assert(std::is_polymorphic_v<VStringContainer> && std::has_virtual_destructor_v<VStringContainer>);
static_assert(!std::is_copy_constructible_v<VStringContainer> && !std::is_copy_assignable_v<VStringContainer>);
static_assert(std::is_same_v<decltype(std::declval<VStringContainer const&>().Count()), std::size_t>);

/// A container that lets the protected operations be called and reports its destruction.
class VOpenContainer : public VStringContainer {
public:
    explicit VOpenContainer(bool* isDestroyed = nullptr) : m_isDestroyed(isDestroyed) {}
    ~VOpenContainer() override {
        if (m_isDestroyed != nullptr) {
            *m_isDestroyed = true;
        }
    }
    using VStringContainer::_Insert;
    using VStringContainer::_Remove;

private:
    bool* m_isDestroyed;
};

class StringContainerTest : public testing::Test {
protected:
    /// The texts, sorted: the order of iteration is unspecified.
    std::multiset<std::wstring> Texts() const { return Texts(m_container); }

    static std::multiset<std::wstring> Texts(VStringContainer const& container) {
        std::multiset<std::wstring> texts;
        for (std::wstring const& text : container) {
            texts.insert(text);
        }
        return texts;
    }

    using VTexts = std::multiset<std::wstring>;
    using VAssertions = std::vector<VRecordedAssertion>;

    VRecordedAssertions m_assertions;
    VOpenContainer m_container;
};

TEST_F(StringContainerTest, AddingATextTwiceHoldsItTwice) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Read");
    EXPECT_EQ(m_container.Count(), 2u);
    EXPECT_EQ(Texts(), (VTexts{L"Read", L"Read"}));
}

TEST_F(StringContainerTest, RemoveTakesTheFirstOfSeveralEqualTexts) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Start");
    m_container.AddCopy(L"Read");
    std::wstring const* const first = &*m_container.Find(L"Read");
    std::wstring const* other = nullptr;
    for (std::wstring const& text : m_container) {
        if (&text != first && text == L"Read") {
            other = &text;
        }
    }
    m_container.Remove(L"Read");
    EXPECT_EQ(Texts(), (VTexts{L"Read", L"Start"}));
    EXPECT_EQ(&*m_container.Find(L"Read"), other);
}

TEST_F(StringContainerTest, RemoveOfAnAbsentTextAssertsAndChangesNothing) {
    m_container.AddCopy(L"Read");
    m_container.Remove(L"Start");
    EXPECT_EQ(m_assertions.Take(), (VAssertions{{L"false", L"StringContainer", 94}}));
    EXPECT_EQ(Texts(), VTexts{L"Read"});
}

TEST_F(StringContainerTest, ContainersFilledSeparatelyAreUnequalAndAContainerEqualsItself) {
    VStringContainer other;
    m_container.AddCopy(L"Read");
    other.AddCopy(L"Read");
    EXPECT_FALSE(m_container == other);
    EXPECT_TRUE(m_container != other);
    EXPECT_TRUE(m_container == m_container);
    EXPECT_FALSE(m_container != m_container);
}

TEST_F(StringContainerTest, EmptyContainersAreEqual) {
    VStringContainer other;
    EXPECT_TRUE(m_container == other);
    EXPECT_FALSE(m_container != other);
    other.AddCopy(L"Read");
    EXPECT_FALSE(m_container == other);
    other.Clear();
    EXPECT_TRUE(m_container == other);
}

TEST_F(StringContainerTest, FindIsExactAndCaseSensitive) {
    m_container.AddCopy(L"READ");
    m_container.AddCopy(L"Read ");
    EXPECT_TRUE(m_container.Find(L"read") == m_container.End());
    EXPECT_TRUE(m_container.Find(L"Read") == m_container.End());
    EXPECT_TRUE(m_container.Find(L"REA") == m_container.End());
    EXPECT_TRUE(m_container.Find(L"READS") == m_container.End());
    ASSERT_FALSE(m_container.Find(L"READ") == m_container.End());
    EXPECT_EQ(*m_container.Find(L"READ"), L"READ");
}

TEST_F(StringContainerTest, FindGivesTheFirstInTheOrderOfIteration) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Read");
    EXPECT_TRUE(m_container.Find(L"Read") == m_container.Begin());
}

TEST_F(StringContainerTest, ANewContainerIsEmpty) {
    EXPECT_EQ(m_container.Count(), 0u);
    EXPECT_TRUE(m_container.IsEmpty());
    EXPECT_TRUE(m_container.Begin() == m_container.End());
    EXPECT_TRUE(m_container.Find(L"") == m_container.End());
}

TEST_F(StringContainerTest, AddCopyKeepsACopy) {
    wchar_t text[] = L"Read";
    m_container.AddCopy(text);
    text[0] = L'B';
    EXPECT_EQ(Texts(), VTexts{L"Read"});
    EXPECT_NE((*m_container.Begin()).c_str(), text);
}

TEST_F(StringContainerTest, TheEmptyTextIsATextLikeAnyOther) {
    m_container.AddCopy(L"");
    EXPECT_EQ(m_container.Count(), 1u);
    EXPECT_FALSE(m_container.IsEmpty());
    EXPECT_EQ(*m_container.Find(L""), L"");
    m_container.Remove(L"");
    EXPECT_TRUE(m_container.IsEmpty());
}

TEST_F(StringContainerTest, BeginToEndWalksEveryEntryOnce) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Start");
    m_container.AddCopy(L"Stop");
    VTexts texts;
    for (auto iter = m_container.Begin(); iter != m_container.End(); ++iter) {
        texts.insert(*iter);
    }
    EXPECT_EQ(texts, (VTexts{L"Read", L"Start", L"Stop"}));
    EXPECT_EQ(Texts(), texts) << "a range-for walks the same";
}

TEST_F(StringContainerTest, IteratorsStayValidAcrossAdditionAndRemovalOfOthers) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Start");
    auto const read = m_container.Find(L"Read");
    m_container.AddCopy(L"Stop");
    m_container.Remove(L"Start");
    EXPECT_EQ(*read, L"Read");
    EXPECT_TRUE(read == m_container.Find(L"Read"));
}

TEST_F(StringContainerTest, RemoveByIteratorTakesThatEntry) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Start");
    m_container.Remove(m_container.Find(L"Start"));
    EXPECT_EQ(Texts(), VTexts{L"Read"});
    EXPECT_EQ(m_container.Count(), 1u);
}

TEST_F(StringContainerTest, RemoveOfEndRaisesBothAssertionsInOrderAndChangesNothing) {
    m_container.AddCopy(L"Read");
    m_container.Remove(m_container.End());
    EXPECT_EQ(m_assertions.Take(), (VAssertions{{L"iter != End()", L"StringContainer", 102},
                                                {L"iter != m_collection.end()", L"StringContainer", 166}}));
    EXPECT_EQ(Texts(), VTexts{L"Read"});
}

TEST_F(StringContainerTest, InnerRemoveOfTheEndAssertsAndChangesNothing) {
    m_container.AddCopy(L"Read");
    auto end = m_container.End();
    m_container._Remove(end.Unwrap());
    EXPECT_EQ(m_assertions.Take(), (VAssertions{{L"iter != m_collection.end()", L"StringContainer", 166}}));
    EXPECT_EQ(Texts(), VTexts{L"Read"});
}

TEST_F(StringContainerTest, InnerRemoveTakesTheEntryAtThePosition) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Start");
    auto read = m_container.Find(L"Read");
    m_container._Remove(read.Unwrap());
    EXPECT_EQ(Texts(), VTexts{L"Start"});
}

TEST_F(StringContainerTest, InnerInsertAddsACopyWhereverTheHintPoints) {
    wchar_t text[] = L"Read";
    auto begin = m_container.Begin();
    m_container._Insert(begin.Unwrap(), text);
    text[0] = L'B';
    auto end = m_container.End();
    m_container._Insert(end.Unwrap(), text);
    auto first = m_container.Begin();
    m_container._Insert(first.Unwrap(), L"Start");
    EXPECT_EQ(Texts(), (VTexts{L"Read", L"Bead", L"Start"}));
}

TEST_F(StringContainerTest, ClearRemovesEverything) {
    m_container.AddCopy(L"Read");
    m_container.AddCopy(L"Start");
    m_container.Clear();
    EXPECT_TRUE(m_container.IsEmpty());
    EXPECT_TRUE(m_container.Begin() == m_container.End());
    m_container.AddCopy(L"Stop");
    EXPECT_EQ(Texts(), VTexts{L"Stop"});
}

TEST_F(StringContainerTest, DestroyDeletesThroughTheVirtualDestructor) {
    bool isDestroyed = false;
    VStringContainer* const container = new VOpenContainer(&isDestroyed);
    container->AddCopy(L"Read");
    container->Destroy();
    EXPECT_TRUE(isDestroyed);
}

DIAGKIT_TEST_NULLS void DestroyNull() {
    VStringContainer* const volatile nothing = nullptr;
    nothing->VStringContainer::Destroy();
}

TEST_F(StringContainerTest, DestroyOnANullObjectDoesNothing) { DestroyNull(); }

TEST_F(StringContainerTest, NullIsNoText) {
    m_container.AddCopy(nullptr);
    EXPECT_TRUE(m_container.IsEmpty()) << "nothing is added";
    m_container.AddCopy(L"");
    EXPECT_TRUE(m_container.Find(nullptr) == m_container.End()) << "not even an empty text is found";
    m_container.Remove(nullptr);
    EXPECT_EQ(m_assertions.Take(), (VAssertions{{L"false", L"StringContainer", 94}}));
    EXPECT_EQ(m_container.Count(), 1u);
}

} // namespace
} // namespace NTest
