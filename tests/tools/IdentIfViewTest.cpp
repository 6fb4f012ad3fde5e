// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/IdentIfView.h>

#include <type_traits>

#include "tools/FlashTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VIdentIfView;

static_assert(std::is_polymorphic_v<VIdentIfView> && std::has_virtual_destructor_v<VIdentIfView>);
static_assert(!std::is_default_constructible_v<VIdentIfView>);
static_assert(std::is_same_v<decltype(*std::declval<VIdentIfView&>().Begin()), NODX201::IIdentIf&>);

class VOpenIdentIfView : public VIdentIfView {
public:
    using VIdentIfView::_Find;
    using VIdentIfView::_Insert;
    using VIdentIfView::_Remove;
    using VIdentIfView::m_collection;
    using VIdentIfView::VIdentIfView;
};

/// An ident that claims to be what the test sets, is none of it, and reports its destruction.
class VMockIdent : public NODX201::IIdentIf {
public:
    explicit VMockIdent(bool isExpected, bool* isDestroyed = nullptr)
        : m_isExpected(isExpected), m_isDestroyed(isDestroyed) {}
    ~VMockIdent() override {
        if (m_isDestroyed != nullptr) {
            *m_isDestroyed = true;
        }
    }
    bool IsExpectedIdent() const override { return m_isExpected; }
    bool IsOwnIdent() const override { return !m_isExpected; }

private:
    bool m_isExpected;
    bool* m_isDestroyed;
};

class IdentIfViewTest : public VFlashTest {};

TEST_F(IdentIfViewTest, AFlashWithoutEcuMemsGivesAnEmptyView) {
    ASSERT_FALSE(m_flash.HasEcuMemCollection());
    EXPECT_TRUE(VIdentIfView(m_flash).IsEmpty());
    m_flash.MakeEcuMemCollection();
    VIdentIfView view(m_flash);
    EXPECT_EQ(view.Count(), 0u);
    EXPECT_TRUE(view.Begin() == view.End());
}

TEST_F(IdentIfViewTest, ExpectedIdentsAreListedEcuMemByEcuMemAndSessionBySession) {
    NMemory::VMemMem& first = AddMem();
    NMemory::VMemMem& second = AddMem();
    NMemory::VMemSession& last = second.AddSession(L"S3");
    NMemory::VMemSession& one = first.AddSession(L"S1");
    NMemory::VMemSession& two = first.AddSession(L"S2");
    last.AddExpectedIdent(L"F");
    last.AddExpectedIdent(L"E");
    two.AddExpectedIdent(L"D");
    one.AddExpectedIdent(L"C");
    one.AddExpectedIdent(L"A");
    first.AddSession(L"Empty");
    VIdentIfView view(m_flash);
    EXPECT_EQ(Names(view), L"C A D F E");
}

TEST_F(IdentIfViewTest, OwnIdentsAreNotCollected) {
    NMemory::VMemMem& mem = AddMem();
    mem.AddDatablock(L"Datablock").AddOwnIdent(L"Own");
    mem.AddSession(L"Session").AddExpectedIdent(L"Expected");
    VIdentIfView view(m_flash);
    EXPECT_EQ(Names(view), L"Expected");
}

TEST_F(IdentIfViewTest, AnOwnIdentAppendedByHandIsFoundByItsName) {
    NMemory::VMemMem& mem = AddMem();
    mem.AddSession(L"Session").AddExpectedIdent(L"Expected");
    NMemory::VMemOwnIdent& own = mem.AddDatablock(L"Datablock").AddOwnIdent(L"Own");
    VIdentIfView view(m_flash);
    EXPECT_TRUE(view.Find(L"Own") == view.End());
    view.Append(own);
    EXPECT_EQ(&*view.Find(L"Own"), &own);
    EXPECT_TRUE(view.Find(own) == view.Find(L"Own"));
}

TEST_F(IdentIfViewTest, AnEntryWhoseCastFailsIsSkipped) {
    NMemory::VMemExpectedIdent& nameless = AddMem().AddSession(L"Session").AddExpectedIdent(L"");
    VOpenIdentIfView view(m_flash);
    VMockIdent lying[] = {VMockIdent(true), VMockIdent(false)};
    view._Insert(view.m_collection.begin(), lying[0]);
    view._Insert(view.m_collection.begin(), lying[1]);
    EXPECT_EQ(&*view.Find(L""), &nameless) << "no name finds the others, not even the empty one";
    view.Remove(nameless);
    EXPECT_TRUE(view.Find(L"") == view.End());
}

TEST_F(IdentIfViewTest, FindByNameFindsTheFirstOfExactlyTheName) {
    NMemory::VMemSession& session = AddMem().AddSession(L"Session");
    NMemory::VMemExpectedIdent& first = session.AddExpectedIdent(L"Ident");
    session.AddExpectedIdent(L"Ident");
    VIdentIfView view(m_flash);
    EXPECT_EQ(&*view.Find(L"Ident"), &first);
    for (wchar_t const* const name : {L"ident", L"Iden", L"Ident ", L""}) {
        EXPECT_TRUE(view.Find(name) == view.End());
    }
}

TEST_F(IdentIfViewTest, RemoveByReferenceLeavesTheElementAlive) {
    NMemory::VMemSession& session = AddMem().AddSession(L"Session");
    NMemory::VMemExpectedIdent& a = session.AddExpectedIdent(L"A");
    session.AddExpectedIdent(L"B");
    VIdentIfView view(m_flash);
    view.Remove(a);
    EXPECT_EQ(Names(view), L"B");
    VIdentIfView again(m_flash);
    EXPECT_EQ(Names(again), L"A B");
}

TEST_F(IdentIfViewTest, RemoveByIteratorDestroysTheElement) {
    NMemory::VMemSession& session = AddMem().AddSession(L"Session");
    session.AddExpectedIdent(L"A");
    session.AddExpectedIdent(L"B");
    VIdentIfView view(m_flash);
    view.Remove(view.Find(L"A"));
    EXPECT_EQ(Names(view), L"B");
    VIdentIfView again(m_flash);
    EXPECT_EQ(Names(again), L"B") << "gone from the model";
    VerifyModel(m_database);
}

TEST_F(IdentIfViewTest, RemoveByIteratorDestroysThroughTheInterface) {
    bool isDestroyed = false;
    VIdentIfView view(m_flash);
    view.Append(*new VMockIdent(true, &isDestroyed));
    view.Remove(view.Begin());
    EXPECT_TRUE(isDestroyed);
    EXPECT_TRUE(view.IsEmpty());
}

TEST_F(IdentIfViewTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    NMemory::VMemMem& mem = AddMem();
    mem.AddSession(L"Session").AddExpectedIdent(L"A");
    NMemory::VMemOwnIdent& stranger = mem.AddDatablock(L"Datablock").AddOwnIdent(L"Own");
    VOpenIdentIfView view(m_flash);
    view.Remove(stranger);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"IdentIfView", 125}}));
    view.Remove(view.End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"IdentIfView", 133},
                                                   {L"iter != m_collection.end()", L"IdentIfView", 234}}));
    view._Remove(view.m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"IdentIfView", 234}}));
    EXPECT_EQ(Names(view), L"A");
}

TEST_F(IdentIfViewTest, ViewsOfTheSameObjectsInTheSameOrderAreEqual) {
    NMemory::VMemSession& session = AddMem().AddSession(L"Session");
    NMemory::VMemExpectedIdent& a = session.AddExpectedIdent(L"A");
    session.AddExpectedIdent(L"B");
    VIdentIfView one(m_flash);
    VIdentIfView two(m_flash);
    EXPECT_TRUE(one == two);
    EXPECT_FALSE(one != two);
    two.Remove(a);
    EXPECT_TRUE(one != two);
    two.Append(a);
    EXPECT_TRUE(one != two) << "another order";
}

} // namespace
} // namespace NTest
