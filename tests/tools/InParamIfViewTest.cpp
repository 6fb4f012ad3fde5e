// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/InParamIfView.h>

#include <type_traits>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VInParamIfView;

static_assert(std::is_polymorphic_v<VInParamIfView> && std::has_virtual_destructor_v<VInParamIfView>);
static_assert(!std::is_default_constructible_v<VInParamIfView>);
static_assert(std::is_same_v<decltype(*std::declval<VInParamIfView&>().Begin()), NODX201::IInParamIf&>);

class VOpenInParamIfView : public VInParamIfView {
public:
    using VInParamIfView::_Find;
    using VInParamIfView::_Insert;
    using VInParamIfView::_Remove;
    using VInParamIfView::m_collection;
    using VInParamIfView::VInParamIfView;
};

class InParamIfViewTest : public VParamTest {};

TEST_F(InParamIfViewTest, AServiceWhoseRequestAloneHasValuesYieldsAnEmptyView) {
    Request().AddValue(L"InRequest");
    PosResponse().AddCodedConst(L"Sid");
    NegResponse();
    VInParamIfView view(m_service);
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_EQ(view.Count(), 0u);
    EXPECT_TRUE(view.Begin() == view.End());
}

TEST_F(InParamIfViewTest, TheValuesOfPositiveResponsesComeBeforeThoseOfNegativeOnes) {
    NegResponse().AddValue(L"B");
    PosResponse().AddValue(L"A");
    VInParamIfView view(m_service);
    EXPECT_EQ(PrintParams(view), L"A B");
}

TEST_F(InParamIfViewTest, ResponsesAreTakenInLinkOrderAndTheirParametersInOrder) {
    NMemory::VMemPosResponse& second = m_layer.AddPosResponse(L"Second");
    second.AddValue(L"C");
    NMemory::VMemPosResponse& first = PosResponse();
    first.AddValue(L"B");
    first.AddValue(L"A");
    m_service.AddPosResponseRef(second);
    NegResponse().AddValue(L"E");
    NegResponse().AddValue(L"D");
    VInParamIfView view(m_service);
    EXPECT_EQ(PrintParams(view), L"B A C E D");
}

TEST_F(InParamIfViewTest, AParameterThatIsNoValueIsNotInTheView) {
    NMemory::VMemPosResponse& response = PosResponse();
    response.AddCodedConst(L"CodedConst");
    response.AddDynamic(L"Dynamic");
    response.AddLengthKey(L"LengthKey");
    response.AddMatchingRequestParam(L"MatchingRequestParam");
    response.AddPhysConst(L"PhysConst");
    response.AddReserved(L"Reserved");
    response.AddSystem(L"System");
    response.AddTableKey(L"TableKey");
    response.AddTableStruct(L"TableStruct");
    response.AddTableEntry(L"TableEntry");
    response.AddValue(L"Value");
    VInParamIfView view(m_service);
    EXPECT_EQ(PrintParams(view), L"Value");
}

TEST_F(InParamIfViewTest, AParameterThatTwoResponsesShareIsListedTwice) {
    NMemory::VMemPosResponse& shared = PosResponse();
    shared.AddValue(L"A");
    shared.AddValue(L"B");
    m_service.AddPosResponseRef(shared);
    VInParamIfView view(m_service);
    EXPECT_EQ(PrintParams(view), L"A B A B");
    EXPECT_TRUE(view.Find(L"A") == view.Begin()) << "the first of them";
}

TEST_F(InParamIfViewTest, TheEmptyNameFindsAnEntryWhoseCastFails) {
    PosResponse().AddValue(L"A");
    VInParamIfView view(m_service);
    EXPECT_TRUE(view.Find(L"") == view.End());
    for (bool const isValue : {true, false}) {
        VMockInParam lying(isValue);
        view.Append(lying);
        EXPECT_TRUE(view.Find(L"") == view.Find(lying));
        EXPECT_EQ(&*view.Find(L""), &lying);
        view.Remove(lying);
    }
}

TEST_F(InParamIfViewTest, RemoveByIteratorDestroysTheElement) {
    PosResponse().AddValue(L"A");
    NegResponse().AddValue(L"B");
    VInParamIfView view(m_service);
    view.Remove(view.Find(L"A"));
    EXPECT_EQ(PrintParams(view), L"B");
    EXPECT_EQ(m_database.Count(NODX201::VOdxTagEnum::Value), 1u);
    VInParamIfView again(m_service);
    EXPECT_EQ(PrintParams(again), L"B") << "gone from the model";
    VerifyModel(m_database);
}

TEST_F(InParamIfViewTest, RemoveByReferenceLeavesTheElementAlive) {
    NMemory::VMemPosResponse& shared = PosResponse();
    NMemory::VMemValue& value = shared.AddValue(L"A");
    shared.AddValue(L"B");
    m_service.AddPosResponseRef(shared);
    VInParamIfView view(m_service);
    view.Remove(value);
    EXPECT_EQ(PrintParams(view), L"B A B") << "the first entry alone";
    EXPECT_EQ(value.GetShortName(), std::wstring(L"A"));
}

TEST_F(InParamIfViewTest, LinksWithoutAResponseAndAbsentCollectionsContributeNothing) {
    m_service.AddPosResponseRef(NMemory::VReference::ById(L"Gone"));
    PosResponse().AddValue(L"A");
    m_service.AddNegResponseRef(NMemory::VReference::ById(L"Gone"));
    NMemory::VMemDiagService& bare = m_layer.AddDiagService(L"Bare");
    ASSERT_FALSE(bare.HasPosResponseLinkCollection() || bare.HasNegResponseLinkCollection());
    ASSERT_FALSE(m_singleJob.HasInputParamCollection() || m_multipleJob.HasInputParamCollection());
    VInParamIfView view(m_service);
    EXPECT_EQ(PrintParams(view), L"A");
    EXPECT_TRUE(VInParamIfView(bare).IsEmpty());
    EXPECT_TRUE(VInParamIfView(m_singleJob).IsEmpty());
    EXPECT_TRUE(VInParamIfView(m_multipleJob).IsEmpty());
}

TEST_F(InParamIfViewTest, AJobsInputParamsAreListedInOrder) {
    m_singleJob.AddInputParam(L"B");
    m_singleJob.AddInputParam(L"A");
    m_singleJob.AddOutputParam(L"Out");
    m_multipleJob.AddInputParam(L"D");
    m_multipleJob.AddInputParam(L"C");
    VInParamIfView single(m_singleJob);
    EXPECT_EQ(PrintParams(single), L"B A");
    EXPECT_EQ(single.Find(L"A").Unwrap(), std::next(single.Begin().Unwrap()));
    VInParamIfView multiple(m_multipleJob);
    EXPECT_EQ(PrintParams(multiple), L"D C");
    EXPECT_TRUE(multiple.Find(L"A") == multiple.End());
}

TEST_F(InParamIfViewTest, FindByNameMatchesExactly) {
    NMemory::VMemValue& speed = PosResponse().AddValue(L"Speed");
    VInParamIfView view(m_service);
    EXPECT_EQ(&*view.Find(L"Speed"), &speed);
    for (wchar_t const* const name : {L"speed", L"Spee", L"Speed1", L" Speed", L""}) {
        EXPECT_TRUE(view.Find(name) == view.End()) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(InParamIfViewTest, AppendAndInnerInsertLookForNoDuplicates) {
    NMemory::VMemValue& a = PosResponse().AddValue(L"A");
    NMemory::VMemInputParam& b = m_singleJob.AddInputParam(L"B");
    VOpenInParamIfView view(m_service);
    view.Append(b);
    view.Append(a);
    view._Insert(view._Find(b), a);
    EXPECT_EQ(PrintParams(view), L"A A B A");
    EXPECT_EQ(std::distance(view.m_collection.begin(), view._Find(b)), 2);
}

TEST_F(InParamIfViewTest, ViewsOfTheSameObjectsInTheSameOrderAreEqual) {
    NMemory::VMemPosResponse& response = PosResponse();
    NMemory::VMemValue& a = response.AddValue(L"A");
    response.AddValue(L"B");
    VInParamIfView one(m_service);
    VInParamIfView two(m_service);
    EXPECT_TRUE(one == two);
    EXPECT_FALSE(one != two);
    two.Remove(a);
    EXPECT_TRUE(one != two);
    two.Append(a);
    EXPECT_TRUE(one != two) << "the same objects in another order";
}

TEST_F(InParamIfViewTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    PosResponse().AddValue(L"A");
    NMemory::VMemInputParam& stranger = m_singleJob.AddInputParam(L"B");
    VOpenInParamIfView view(m_service);
    view.Remove(stranger);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"InParamIfView", 178}}));
    view.Remove(view.End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"InParamIfView", 186},
                                                   {L"iter != m_collection.end()", L"InParamIfView", 282}}));
    view._Remove(view.m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"InParamIfView", 282}}));
    EXPECT_EQ(PrintParams(view), L"A");
}

TEST_F(InParamIfViewTest, RemoveByIteratorDestroysThroughTheInterface) {
    bool isDestroyed = false;
    VInParamIfView view(m_service);
    view.Append(*new VMockInParam(true, &isDestroyed));
    view.Remove(view.Begin());
    EXPECT_TRUE(isDestroyed);
    EXPECT_TRUE(view.IsEmpty());
}

TEST_F(InParamIfViewTest, DestroyingAViewDestroysNoParameter) {
    NMemory::VMemValue& a = PosResponse().AddValue(L"A");
    { VInParamIfView view(m_service); }
    EXPECT_EQ(a.GetShortName(), std::wstring(L"A"));
    EXPECT_EQ(m_database.Count(NODX201::VOdxTagEnum::Value), 1u);
}

} // namespace
} // namespace NTest
