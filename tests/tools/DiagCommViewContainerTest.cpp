// SPDX-License-Identifier: Apache-2.0

// A view as a container: search, append, both removals, what derived classes may do.

#include <type_traits>

#include <diagkit/tools/DiagCommView.h>

#include "support/GraphTest.h"
#include "support/MockElements.h"
#include "support/RecordedLog.h"
#include "support/VerifyModel.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagCommView;
using NODX201::VOdxTagEnum;

static_assert(std::is_polymorphic_v<VDiagCommView> && std::has_virtual_destructor_v<VDiagCommView>);
static_assert(!std::is_copy_constructible_v<VDiagCommView> && !std::is_copy_assignable_v<VDiagCommView>);
static_assert(!std::is_default_constructible_v<VDiagCommView>);
static_assert(std::is_same_v<decltype(std::declval<VDiagCommView const&>().Count()), unsigned long long>);

/// A view that lets the protected operations be called.
class VOpenDiagCommView : public VDiagCommView {
public:
    using VDiagCommView::_Find;
    using VDiagCommView::_Insert;
    using VDiagCommView::_Remove;
    using VDiagCommView::m_collection;
    using VDiagCommView::VDiagCommView;
};

class DiagCommViewContainerTest : public VGraphTest {
protected:
    void SetUp() override {
        Graph(L"prot Uds : Read Stop \n ecu Ecu : Start Reset! Start Ident");
        m_view = std::make_unique<VOpenDiagCommView>(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    }

    static VAssertionList Raised(std::wstring const& expression, int line) {
        return {{expression, L"DiagCommView", line}};
    }

    std::unique_ptr<VOpenDiagCommView> m_view;
};

TEST_F(DiagCommViewContainerTest, CountIsTheNumberOfEntries) {
    EXPECT_EQ(m_view->Count(), 4u);
    EXPECT_FALSE(m_view->IsEmpty());
    m_view->Append(DiagComm(L"Uds.Read"));
    EXPECT_EQ(m_view->Count(), 5u);
}

TEST_F(DiagCommViewContainerTest, BeginAndEndAndARangeForWalkTheSameEntries) {
    std::vector<NODX201::VDiagComm*> byIterator;
    for (auto iter = m_view->Begin(); iter != m_view->End(); ++iter) {
        byIterator.push_back(&*iter);
    }
    std::vector<NODX201::VDiagComm*> byRange;
    for (NODX201::VDiagComm& diagComm : *m_view) {
        byRange.push_back(&diagComm);
    }
    std::vector<NODX201::VDiagComm*> const expected{&DiagComm(L"Ecu.Start"), &DiagComm(L"Ecu.Reset"),
                                                    &DiagComm(L"Ecu.Start#2"), &DiagComm(L"Ecu.Ident")};
    EXPECT_EQ(byIterator, expected);
    EXPECT_EQ(byRange, expected);
}

TEST_F(DiagCommViewContainerTest, FindByElementFindsThisVeryObject) {
    auto found = m_view->Find(DiagComm(L"Ecu.Start#2"));
    EXPECT_EQ(&*found, &DiagComm(L"Ecu.Start#2"));
    EXPECT_EQ(&*++found, &DiagComm(L"Ecu.Ident"));
    EXPECT_TRUE(m_view->Find(DiagComm(L"Uds.Read")) == m_view->End());
}

TEST_F(DiagCommViewContainerTest, FindByElementFindsTheFirstOfSeveralEntries) {
    m_view->Append(DiagComm(L"Ecu.Start"));
    EXPECT_TRUE(m_view->Find(DiagComm(L"Ecu.Start")) == m_view->Begin());
}

TEST_F(DiagCommViewContainerTest, FindByNameFindsTheFirstOfTheName) {
    EXPECT_EQ(&*m_view->Find(L"Start"), &DiagComm(L"Ecu.Start"));
    EXPECT_EQ(&*m_view->Find(L"Ident"), &DiagComm(L"Ecu.Ident"));
    EXPECT_TRUE(m_view->Find(L"Read") == m_view->End());
    EXPECT_TRUE(m_view->Find(L"Star") == m_view->End());
    EXPECT_TRUE(m_view->Find(L"Start ") == m_view->End());
}

TEST_F(DiagCommViewContainerTest, AppendAddsAtTheEndWithoutADuplicateCheck) {
    m_view->Append(DiagComm(L"Uds.Read"));
    m_view->Append(DiagComm(L"Ecu.Reset"));
    m_view->Append(DiagComm(L"Uds.Read"));
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu Read@Uds Reset@Ecu Read@Uds");
}

TEST_F(DiagCommViewContainerTest, RemoveByReferenceLeavesTheElementAlive) {
    NODX201::VDiagComm& reset = DiagComm(L"Ecu.Reset");
    m_view->Remove(reset);
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Start@Ecu Ident@Ecu");
    EXPECT_EQ(m_view->Count(), 3u);
    EXPECT_EQ(reset.GetShortName(), std::wstring(L"Reset"));
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu") << "the model still has it";
}

TEST_F(DiagCommViewContainerTest, RemoveByReferenceTakesTheFirstEntryOnly) {
    m_view->Append(DiagComm(L"Ecu.Start"));
    m_view->Remove(DiagComm(L"Ecu.Start"));
    EXPECT_EQ(Print(*m_view), L"Reset@Ecu Start@Ecu Ident@Ecu Start@Ecu");
    EXPECT_FALSE(m_view->Find(DiagComm(L"Ecu.Start")) == m_view->End()) << "the later entry stays";
}

TEST_F(DiagCommViewContainerTest, RemoveByReferenceOfWhatIsNotHeldAssertsAndChangesNothing) {
    m_view->Remove(DiagComm(L"Uds.Read"));
    EXPECT_EQ(m_assertions.Take(), Raised(L"false", 348));
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu");
    EXPECT_EQ(Print(DiagComm(L"Uds.Read")), L"Read@Uds");
}

TEST_F(DiagCommViewContainerTest, RemoveByIteratorDestroysTheElement) {
    m_view->Remove(m_view->Find(DiagComm(L"Ecu.Reset")));
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Start@Ecu Ident@Ecu");
    EXPECT_EQ(m_view->Count(), 3u);
    EXPECT_EQ(m_graph->Database().Count(VOdxTagEnum::SingleEcuJob), 0u);
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Start@Ecu Ident@Ecu") << "gone from the model";
    VerifyModel(m_graph->Database());
}

TEST_F(DiagCommViewContainerTest, RemoveByIteratorDestroysThroughTheVirtualDestructor) {
    bool isDestroyed = false;
    m_view->Append(*new VMockDiagService(L"Mock", &isDestroyed));
    m_view->Remove(m_view->Find(L"Mock"));
    EXPECT_TRUE(isDestroyed);
    EXPECT_EQ(m_view->Count(), 4u);
}

TEST_F(DiagCommViewContainerTest, RemoveByIteratorCanEmptyTheView) {
    while (!m_view->IsEmpty()) {
        m_view->Remove(m_view->Begin());
    }
    EXPECT_TRUE(m_view->Begin() == m_view->End());
    EXPECT_EQ(DiagComms(L"Ecu"), L"");
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

TEST_F(DiagCommViewContainerTest, RemoveOfEndRaisesBothAssertionsInOrderAndChangesNothing) {
    m_view->Remove(m_view->End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"DiagCommView", 356},
                                                   {L"iter != m_collection.end()", L"DiagCommView", 433}}));
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu");
}

TEST_F(DiagCommViewContainerTest, RemoveOfANameThatIsNotFoundIsARemoveOfEnd) {
    m_view->Remove(m_view->Find(L"Gone"));
    EXPECT_EQ(m_assertions.Take().size(), 2u);
    EXPECT_EQ(m_view->Count(), 4u);
}

TEST_F(DiagCommViewContainerTest, NothingIsLoggedWhenAContainerIsMisused) {
    VRecordedLog log;
    m_view->Remove(DiagComm(L"Uds.Read"));
    m_view->Remove(m_view->End());
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take().size(), 3u);
}

TEST_F(DiagCommViewContainerTest, InnerFindGivesThePositionOfTheFirstEntryOfTheElement) {
    auto const position = m_view->_Find(DiagComm(L"Ecu.Ident"));
    EXPECT_EQ(std::distance(m_view->m_collection.begin(), position), 3);
    EXPECT_TRUE(m_view->_Find(DiagComm(L"Uds.Read")) == m_view->m_collection.end());
}

TEST_F(DiagCommViewContainerTest, InnerInsertPutsTheElementBeforeThePosition) {
    m_view->_Insert(m_view->_Find(DiagComm(L"Ecu.Reset")), DiagComm(L"Uds.Read"));
    m_view->_Insert(m_view->m_collection.begin(), DiagComm(L"Uds.Stop"));
    m_view->_Insert(m_view->m_collection.end(), DiagComm(L"Uds.Stop"));
    EXPECT_EQ(Print(*m_view), L"Stop@Uds Start@Ecu Read@Uds Reset@Ecu Start@Ecu Ident@Ecu Stop@Uds");
    EXPECT_EQ(m_view->Count(), 7u);
}

TEST_F(DiagCommViewContainerTest, InnerRemoveDestroysTheElement) {
    bool isDestroyed = false;
    m_view->_Insert(m_view->m_collection.begin(), *new VMockDiagService(L"Mock", &isDestroyed));
    m_view->_Remove(m_view->m_collection.begin());
    EXPECT_TRUE(isDestroyed);
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu");
}

TEST_F(DiagCommViewContainerTest, InnerRemoveOfTheEndAssertsAndChangesNothing) {
    m_view->_Remove(m_view->m_collection.end());
    EXPECT_EQ(m_assertions.Take(), Raised(L"iter != m_collection.end()", 433));
    EXPECT_EQ(m_view->Count(), 4u);
}

TEST_F(DiagCommViewContainerTest, UnwrapReachesThePositionBehindAnIterator) {
    m_view->_Insert(m_view->Find(L"Ident").Unwrap(), DiagComm(L"Uds.Read"));
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Reset@Ecu Start@Ecu Read@Uds Ident@Ecu");
}

TEST_F(DiagCommViewContainerTest, DestroyingAViewLeavesItsElementsAlive) {
    m_view.reset();
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu");
}

TEST_F(DiagCommViewContainerTest, AViewIsDestroyedThroughItsVirtualDestructor) {
    class VTellingView : public VDiagCommView {
    public:
        VTellingView(NODX201::VEcuVariant& layer, bool& isDestroyed)
            : VDiagCommView(layer), m_isDestroyed(&isDestroyed) {}
        ~VTellingView() override { *m_isDestroyed = true; }

    private:
        bool* m_isDestroyed;
    };
    bool isDestroyed = false;
    VDiagCommView* const view = new VTellingView(LayerAs<NODX201::VEcuVariant>(L"Ecu"), isDestroyed);
    delete view;
    EXPECT_TRUE(isDestroyed);
}

TEST_F(DiagCommViewContainerTest, AnAssertionHandlerMayThrow) {
    NPavonaUtil::VScopedAssertionHandler const throwing(
        [](NPavonaUtil::VAssertion const& assertion) { throw std::runtime_error(std::to_string(assertion.line)); });
    EXPECT_THROW(m_view->Remove(m_view->End()), std::runtime_error);
    EXPECT_THROW(m_view->Remove(DiagComm(L"Uds.Read")), std::runtime_error);
    EXPECT_THROW(m_view->_Remove(m_view->m_collection.end()), std::runtime_error);
    EXPECT_EQ(Print(*m_view), L"Start@Ecu Reset@Ecu Start@Ecu Ident@Ecu");
}

} // namespace
} // namespace NTest
