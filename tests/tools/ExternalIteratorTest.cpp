// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ExternalIterator.h>

#include <list>
#include <map>
#include <string>
#include <type_traits>

#include <diagkit/model/ExternalIterator.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/StringContainer.h>

#include "support/GraphTest.h"

namespace NTest {
namespace {

using VListIterator = NDIAGKIT::VExternalIterator<std::list<int*>::iterator, int&>;
using VSetIterator = NDIAGKIT::VExternalIterator<std::set<std::wstring*>::const_iterator, std::wstring const&>;
using VIntMap = std::map<std::wstring, int*>;
using VMapIterator = NDIAGKIT::VMapExternalIterator<VIntMap::iterator, int&>;

template <class T, class = void>
constexpr bool kHasPostfixIncrement = false;
template <class T>
constexpr bool kHasPostfixIncrement<T, std::void_t<decltype(std::declval<T&>()++)>> = true;
template <class T, class = void>
constexpr bool kHasDecrement = false;
template <class T>
constexpr bool kHasDecrement<T, std::void_t<decltype(--std::declval<T&>())>> = true;

/// What both forms promise of their type.
template <class T, class Iter, class Ref>
constexpr bool KeepsTheProtocol() {
    return std::is_polymorphic_v<T> && std::has_virtual_destructor_v<T> && std::is_default_constructible_v<T> &&
           std::is_copy_constructible_v<T> && std::is_copy_assignable_v<T> && std::is_constructible_v<T, Iter const&> &&
           std::is_same_v<decltype(*std::declval<T&>()), Ref> && std::is_same_v<decltype(++std::declval<T&>()), T&> &&
           std::is_same_v<decltype(std::declval<T&>().Unwrap()), Iter&> &&
           std::is_same_v<decltype(std::declval<T const&>() == std::declval<T const&>()), bool> &&
           std::is_same_v<decltype(std::declval<T const&>() != std::declval<T const&>()), bool> &&
           !kHasPostfixIncrement<T> && !kHasDecrement<T>;
}

static_assert(KeepsTheProtocol<VListIterator, std::list<int*>::iterator, int&>());
static_assert(KeepsTheProtocol<VSetIterator, std::set<std::wstring*>::const_iterator, std::wstring const&>());
static_assert(KeepsTheProtocol<VMapIterator, VIntMap::iterator, int&>());
static_assert(sizeof(VListIterator) == 2 * sizeof(void*), "a table pointer and one position");

// The iterators of the toolkit.
static_assert(
    std::is_same_v<NDIAGKIT::VDiagCommView::Iterator,
                   NDIAGKIT::VExternalIterator<std::list<NODX201::VDiagComm*>::iterator, NODX201::VDiagComm&>>);
static_assert(std::is_same_v<NDIAGKIT::VStringContainer::Iterator, VSetIterator>);
static_assert(!std::is_same_v<VListIterator, NODX201::VExternalIterator<std::list<int*>::iterator, int&>>,
              "the model's iterator is a type of its own");

class ExternalIteratorTest : public testing::Test {
protected:
    int m_one = 1;
    int m_two = 2;
    int m_three = 3;
    std::list<int*> m_list{&m_two, &m_one, &m_three};
    VIntMap m_map{{L"b", &m_two}, {L"a", &m_one}, {L"c", &m_three}};
};

TEST_F(ExternalIteratorTest, DefaultConstructedIteratorsAreNullPositions) {
    EXPECT_TRUE(VListIterator() == VListIterator());
    EXPECT_TRUE(VSetIterator() == VSetIterator());
    EXPECT_TRUE(VMapIterator() == VMapIterator());
    EXPECT_FALSE(VListIterator() == VListIterator(m_list.begin()));
    VListIterator iter;
    iter = VListIterator(m_list.begin());
    EXPECT_EQ(&*iter, &m_two);
}

TEST_F(ExternalIteratorTest, TwoBeginsAreEqualUntilOneIsIncremented) {
    VListIterator one(m_list.begin());
    VListIterator const two(m_list.begin());
    EXPECT_TRUE(one == two);
    EXPECT_FALSE(one != two);
    ++one;
    EXPECT_FALSE(one == two);
    EXPECT_TRUE(one != two);
}

TEST_F(ExternalIteratorTest, EqualElementsAtTwoPositionsAreNotEqualPositions) {
    m_list.push_back(&m_two);
    EXPECT_EQ(&*VListIterator(m_list.begin()), &*VListIterator(--m_list.end()));
    EXPECT_FALSE(VListIterator(m_list.begin()) == VListIterator(--m_list.end()));
}

TEST_F(ExternalIteratorTest, DereferencingGivesTheObjectItself) {
    VListIterator const iter(m_list.begin());
    EXPECT_EQ(&*iter, &m_two);
    *iter = 20;
    EXPECT_EQ(m_two, 20);
}

TEST_F(ExternalIteratorTest, PrefixIncrementReturnsTheIteratorItself) {
    VListIterator iter(m_list.begin());
    VListIterator& incremented = ++iter;
    EXPECT_EQ(&incremented, &iter);
    EXPECT_EQ(&*iter, &m_one);
    EXPECT_EQ(&*++iter, &m_three);
    EXPECT_TRUE(++iter == VListIterator(m_list.end()));
}

TEST_F(ExternalIteratorTest, CopiesAndAssignmentsTakeThePosition) {
    VListIterator original(m_list.begin());
    VListIterator copy(original);
    VListIterator assigned;
    assigned = original;
    ++original;
    EXPECT_EQ(&*copy, &m_two);
    EXPECT_EQ(&*assigned, &m_two);
}

TEST_F(ExternalIteratorTest, SelfAssignmentLeavesTheIteratorUnchanged) {
    VListIterator iter(m_list.begin());
    VListIterator& itself = iter;
    iter = itself;
    EXPECT_EQ(&*iter, &m_two);
    VMapIterator mapped(m_map.begin());
    VMapIterator& mappedItself = mapped;
    mapped = mappedItself;
    EXPECT_EQ(&*mapped, &m_one);
}

TEST_F(ExternalIteratorTest, UnwrapGivesTheWrappedPositionForChange) {
    VListIterator iter(m_list.begin());
    EXPECT_TRUE(iter.Unwrap() == m_list.begin());
    ++iter.Unwrap();
    EXPECT_EQ(&*iter, &m_one);
}

TEST_F(ExternalIteratorTest, AnIteratorIsDestroyedThroughABasePointer) {
    class VTelling : public VListIterator {
    public:
        explicit VTelling(bool& isDestroyed) : m_isDestroyed(&isDestroyed) {}
        ~VTelling() override { *m_isDestroyed = true; }

    private:
        bool* m_isDestroyed;
    };
    bool isDestroyed = false;
    VListIterator* const iter = new VTelling(isDestroyed);
    delete iter;
    EXPECT_TRUE(isDestroyed);
}

TEST_F(ExternalIteratorTest, TheMapFormHandsOutTheMappedObjectsInTheOrderOfTheNames) {
    VMapIterator iter(m_map.begin());
    VMapIterator const end(m_map.end());
    EXPECT_EQ(&*iter, &m_one);
    VMapIterator& incremented = ++iter;
    EXPECT_EQ(&incremented, &iter);
    EXPECT_EQ(&*iter, &m_two);
    EXPECT_EQ(&*++iter, &m_three);
    EXPECT_TRUE(iter != end);
    EXPECT_TRUE(++iter == end);
}

TEST_F(ExternalIteratorTest, TheMapFormCopiesAndUnwrapsItsPosition) {
    VMapIterator original(m_map.begin());
    VMapIterator copy(original);
    VMapIterator assigned;
    assigned = original;
    EXPECT_TRUE(copy == original && assigned == original);
    EXPECT_TRUE(original.Unwrap() == m_map.begin());
    ++original.Unwrap();
    EXPECT_EQ(&*original, &m_two);
    EXPECT_EQ(&*copy, &m_one);
    EXPECT_EQ(&*assigned, &m_one);
}

TEST_F(ExternalIteratorTest, TheSetFormHandsOutTheText) {
    std::wstring text(L"Read");
    std::set<std::wstring*> const texts{&text};
    VSetIterator iter(texts.begin());
    EXPECT_EQ(&*iter, &text);
    EXPECT_TRUE(++iter == VSetIterator(texts.end()));
}

class ExternalIteratorOfAViewTest : public VGraphTest {};

TEST_F(ExternalIteratorOfAViewTest, TwoBeginsOfAViewAreEqualUntilOneIsIncremented) {
    Graph(L"ecu Ecu : Read Start");
    NDIAGKIT::VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    auto one = view.Begin();
    auto const two = view.Begin();
    EXPECT_TRUE(one == two);
    EXPECT_TRUE(++one != two);
}

TEST_F(ExternalIteratorOfAViewTest, IteratorsStayValidAcrossAppendAndRemovalOfOthers) {
    Graph(L"prot Uds : Ident \n ecu Ecu : Read Start Stop");
    NDIAGKIT::VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    auto const start = view.Find(L"Start");
    view.Append(DiagComm(L"Uds.Ident"));
    view.Remove(DiagComm(L"Ecu.Read"));
    view.Remove(view.Find(L"Stop"));
    EXPECT_EQ(&*start, &DiagComm(L"Ecu.Start"));
    EXPECT_TRUE(start == view.Begin());
    auto next = start;
    EXPECT_EQ(&*++next, &DiagComm(L"Uds.Ident"));
    EXPECT_TRUE(++next == view.End());
}

TEST_F(ExternalIteratorOfAViewTest, EndStaysTheEndAcrossAppend) {
    Graph(L"prot Uds : Ident \n ecu Ecu : Read");
    NDIAGKIT::VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    auto const end = view.End();
    view.Append(DiagComm(L"Uds.Ident"));
    EXPECT_TRUE(end == view.End());
}

} // namespace
} // namespace NTest
