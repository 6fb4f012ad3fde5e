// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/SessionView.h>

#include <type_traits>

#include "tools/FlashTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VSessionView;

static_assert(std::is_polymorphic_v<VSessionView> && std::has_virtual_destructor_v<VSessionView>);
static_assert(!std::is_default_constructible_v<VSessionView>);
static_assert(std::is_same_v<decltype(*std::declval<VSessionView&>().Begin()), NODX201::VSession&>);

class VOpenSessionView : public VSessionView {
public:
    using VSessionView::_Find;
    using VSessionView::_Insert;
    using VSessionView::_Remove;
    using VSessionView::m_collection;
    using VSessionView::VSessionView;
};

class SessionViewTest : public VFlashTest {};

TEST_F(SessionViewTest, AFlashWithoutEcuMemsGivesAnEmptyView) {
    ASSERT_FALSE(m_flash.HasEcuMemCollection());
    EXPECT_TRUE(VSessionView(m_flash).IsEmpty());
    m_flash.MakeEcuMemCollection();
    VSessionView view(m_flash);
    EXPECT_EQ(view.Count(), 0u);
    EXPECT_TRUE(view.Begin() == view.End());
}

TEST_F(SessionViewTest, SessionsAreListedEcuMemByEcuMem) {
    NMemory::VMemMem& first = AddMem();
    AddMem();
    NMemory::VMemMem& last = AddMem();
    last.AddSession(L"D");
    first.AddSession(L"C");
    last.AddSession(L"B");
    first.AddSession(L"A");
    first.AddSession(L"C");
    VSessionView view(m_flash);
    EXPECT_EQ(Names(view), L"C A C D B");
    EXPECT_EQ(view.Count(), 5u);
}

TEST_F(SessionViewTest, FindByNameFindsTheFirstOfExactlyTheName) {
    NMemory::VMemMem& mem = AddMem();
    NMemory::VMemSession& first = mem.AddSession(L"Flash");
    NMemory::VMemSession& second = mem.AddSession(L"Flash");
    VSessionView view(m_flash);
    EXPECT_EQ(&*view.Find(L"Flash"), &first);
    EXPECT_EQ(&*view.Find(second), &second);
    for (wchar_t const* const name : {L"flash", L"Flas", L"Flash ", L""}) {
        EXPECT_TRUE(view.Find(name) == view.End());
    }
}

TEST_F(SessionViewTest, RemoveByReferenceLeavesTheElementAlive) {
    NMemory::VMemMem& mem = AddMem();
    NMemory::VMemSession& a = mem.AddSession(L"A");
    mem.AddSession(L"B");
    VSessionView view(m_flash);
    view.Remove(a);
    EXPECT_EQ(Names(view), L"B");
    VSessionView again(m_flash);
    EXPECT_EQ(Names(again), L"A B");
}

TEST_F(SessionViewTest, RemoveByIteratorDestroysTheElement) {
    NMemory::VMemMem& mem = AddMem();
    mem.AddSession(L"A").AddExpectedIdent(L"Ident");
    mem.AddSession(L"B");
    VSessionView view(m_flash);
    view.Remove(view.Find(L"A"));
    EXPECT_EQ(Names(view), L"B");
    VSessionView again(m_flash);
    EXPECT_EQ(Names(again), L"B") << "gone from the model";
    EXPECT_EQ(m_database.Count(NODX201::VOdxTagEnum::ExpectedIdent), 0u) << "with all that was in it";
    VerifyModel(m_database);
}

TEST_F(SessionViewTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    AddMem().AddSession(L"A");
    NMemory::VMemSession& stranger =
        m_database.AddFlash(L"Another").AddEcuMem(L"EcuMem").GetMem().AddSession(L"Stranger");
    VOpenSessionView view(m_flash);
    view.Remove(stranger);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"SessionView", 115}}));
    view.Remove(view.End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"SessionView", 123},
                                                   {L"iter != m_collection.end()", L"SessionView", 201}}));
    view._Remove(view.m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"SessionView", 201}}));
    EXPECT_EQ(Names(view), L"A");
}

TEST_F(SessionViewTest, AppendAndInnerInsertLookForNoDuplicatesAndEqualityIsOfObjectsInOrder) {
    NMemory::VMemMem& mem = AddMem();
    NMemory::VMemSession& a = mem.AddSession(L"A");
    NMemory::VMemSession& b = mem.AddSession(L"B");
    VOpenSessionView view(m_flash);
    VSessionView twin(m_flash);
    EXPECT_TRUE(view == twin);
    EXPECT_FALSE(view != twin);
    view.Append(a);
    EXPECT_TRUE(view != twin);
    view._Insert(view._Find(b), b);
    EXPECT_EQ(Names(view), L"A B B A");
}

} // namespace
} // namespace NTest
