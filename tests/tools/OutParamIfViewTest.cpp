// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OutParamIfView.h>

#include <string>
#include <type_traits>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOutParamIfView;
using NODX201::VSearchRange;

static_assert(std::is_polymorphic_v<VOutParamIfView> && std::has_virtual_destructor_v<VOutParamIfView>);
static_assert(!std::is_default_constructible_v<VOutParamIfView>);
static_assert(std::is_same_v<decltype(*std::declval<VOutParamIfView&>().Begin()), NODX201::IOutParamIf&>);

class VOpenOutParamIfView : public VOutParamIfView {
public:
    using VOutParamIfView::_Find;
    using VOutParamIfView::_Insert;
    using VOutParamIfView::_Remove;
    using VOutParamIfView::m_collection;
    using VOutParamIfView::VOutParamIfView;
};

class OutParamIfViewTest : public VParamTest {
protected:
    std::wstring Params(int range) {
        VOutParamIfView view(m_service, static_cast<VSearchRange>(range));
        return PrintParams(view);
    }

    /// A STRUCTURE with one VALUE in it.
    NMemory::VMemStructure& StructureOf(wchar_t const* value) {
        NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
        structure.AddValue(value);
        return structure;
    }
};

TEST_F(OutParamIfViewTest, EverySearchRangeSelectsItsSources) {
    NegResponse().AddValue(L"Neg");
    PosResponse().AddValue(L"Pos");
    Request().AddValue(L"Req");
    EXPECT_EQ(Params(0), L"Pos Neg");
    EXPECT_EQ(Params(1), L"Req Neg");
    EXPECT_EQ(Params(2), L"");
    EXPECT_EQ(Params(3), L"Req");
    EXPECT_EQ(Params(4), L"Pos");
    EXPECT_EQ(Params(5), L"Req Pos Neg");
    EXPECT_EQ(Params(6), L"") << "any other value selects nothing";
    EXPECT_EQ(Params(-1), L"");
}

/// Otherwise the search takes twice as long with each level, and would not end here.
TEST_F(OutParamIfViewTest, AStructureThatManyShareIsSearchedOnce) {
    NMemory::VMemStructure* inner = &StructureOf(L"Innermost");
    for (int level = 0; level < 40; ++level) {
        NMemory::VMemStructure& outer = m_dictionary.AddStructure((L"Level" + std::to_wstring(level)).c_str());
        outer.AddValue(L"Left").SetDopBaseLink(*inner);
        outer.AddValue(L"Right").SetDopBaseLink(*inner);
        inner = &outer;
    }
    Request().AddValue(L"Top").SetDopBaseLink(*inner);
    VOutParamIfView view(m_service, VSearchRange::Request);
    EXPECT_EQ(view.FindParam(L"Nowhere", m_layer), nullptr);
    EXPECT_NE(view.FindParam(L"Innermost", m_layer), nullptr);
}

TEST_F(OutParamIfViewTest, TheSearchRangeSelectsTheSearchRootsAsWell) {
    Request().AddValue(L"Req").SetDopBaseLink(StructureOf(L"InReq"));
    PosResponse().AddValue(L"Pos").SetDopBaseLink(StructureOf(L"InPos"));
    NegResponse().AddValue(L"Neg").SetDopBaseLink(StructureOf(L"InNeg"));
    auto const found = [this](int range) {
        std::wstring text;
        for (wchar_t const* const name : {L"InReq", L"InPos", L"InNeg"}) {
            VOutParamIfView view(m_service, static_cast<VSearchRange>(range));
            text += view.FindParam(name, m_layer) != nullptr ? std::wstring(L" ") + name : L"";
        }
        return text;
    };
    EXPECT_EQ(found(0), L" InPos InNeg");
    EXPECT_EQ(found(1), L" InReq InNeg");
    EXPECT_EQ(found(2), L"");
    EXPECT_EQ(found(3), L" InReq");
    EXPECT_EQ(found(4), L" InPos");
    EXPECT_EQ(found(5), L" InReq InPos InNeg");
    EXPECT_EQ(found(6), L"");
}

TEST_F(OutParamIfViewTest, ARequestWithoutValuesGivesSearchRootsAlone) {
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    table.AddTableRow(L"Row").SetStructureRef(StructureOf(L"Deep"));
    NMemory::VMemRequest& request = Request();
    NMemory::VMemTableKey& key = request.AddTableKey(L"Key");
    key.SetTableRef(table);
    request.AddTableStruct(L"TableStruct").SetTableKeyRef(key);
    VOutParamIfView view(m_service, VSearchRange::Request);
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_NE(view.FindParam(L"Deep", m_layer), nullptr);
    EXPECT_EQ(PrintParams(view), L"Deep");
}

TEST_F(OutParamIfViewTest, NestedMatchGrowsTheView) {
    NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
    NMemory::VMemValue& b = structure.AddValue(L"B");
    PosResponse().AddValue(L"A").SetDopBaseLink(structure);
    VOutParamIfView view(m_service, VSearchRange::PosResponses);
    ASSERT_EQ(view.Count(), 1u);
    EXPECT_EQ(view.FindParam(L"B", m_layer), &b);
    EXPECT_EQ(view.Count(), 2u);
    EXPECT_EQ(PrintParams(view), L"A B");
    EXPECT_EQ(view.FindParam(L"B", m_layer), &b);
    EXPECT_EQ(view.Count(), 2u) << "found among the entries the second time";
    EXPECT_EQ(view.FindParam(L"C", m_layer), nullptr);
    EXPECT_EQ(view.Count(), 2u) << "a failed search leaves the view alone";
}

TEST_F(OutParamIfViewTest, AJobViewNeverFindsNestedParameters) {
    NMemory::VMemStructure& structure = StructureOf(L"Nested");
    NMemory::VMemOutputParam& single = m_singleJob.AddOutputParam(L"Single");
    single.SetDopBaseRef(structure);
    NMemory::VMemOutputParam& multiple = m_multipleJob.AddOutputParam(L"Multiple");
    multiple.SetDopBaseRef(structure);
    VOutParamIfView ofSingle(m_singleJob);
    EXPECT_EQ(ofSingle.FindParam(L"Nested", m_layer), nullptr);
    EXPECT_EQ(ofSingle.FindParam(L"Single", m_layer), &single);
    VOutParamIfView ofMultiple(m_multipleJob);
    EXPECT_EQ(ofMultiple.FindParam(L"Nested", m_layer), nullptr);
    EXPECT_EQ(ofMultiple.FindParam(L"Multiple", m_layer), &multiple);
}

TEST_F(OutParamIfViewTest, ATableStructsOwnNameIsNeverAMatch) {
    NMemory::VMemRequest& request = Request();
    request.AddTableStruct(L"TableStruct").SetTableKeyRef(request.AddTableKey(L"TableKey"));
    request.AddCodedConst(L"CodedConst");
    VOutParamIfView view(m_service, VSearchRange::Request);
    for (wchar_t const* const name : {L"TableStruct", L"TableKey", L"CodedConst"}) {
        EXPECT_EQ(view.FindParam(name, m_layer), nullptr);
    }
}

TEST_F(OutParamIfViewTest, ADeepMatchInAnEarlierRootBeatsAShallowOneInALaterRoot) {
    NMemory::VMemStructure& inner = m_dictionary.AddStructure(L"Inner");
    NMemory::VMemValue& deep = inner.AddValue(L"X");
    NMemory::VMemStructure& outer = m_dictionary.AddStructure(L"Outer");
    outer.AddValue(L"Step").SetDopBaseLink(inner);
    NMemory::VMemStructure& shallow = m_dictionary.AddStructure(L"Shallow");
    shallow.AddValue(L"X");
    NMemory::VMemPosResponse& response = PosResponse();
    response.AddValue(L"First").SetDopBaseLink(outer);
    response.AddValue(L"Second").SetDopBaseLink(shallow);
    VOutParamIfView view(m_service, VSearchRange::PosResponses);
    EXPECT_EQ(view.FindParam(L"X", m_layer), &deep);
}

TEST_F(OutParamIfViewTest, AnEntryOfTheNameBeatsADeepMatchInAnEarlierRoot) {
    NMemory::VMemPosResponse& response = PosResponse();
    response.AddValue(L"First").SetDopBaseLink(StructureOf(L"X"));
    NMemory::VMemValue& entry = response.AddValue(L"X");
    VOutParamIfView view(m_service, VSearchRange::PosResponses);
    EXPECT_EQ(view.FindParam(L"X", m_layer), &entry);
    EXPECT_EQ(view.Count(), 2u);
}

TEST_F(OutParamIfViewTest, TheThreeSearchesAgree) {
    NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
    NMemory::VMemValue& b = structure.AddValue(L"B");
    NMemory::VMemValue& a = PosResponse().AddValue(L"A");
    a.SetDopBaseLink(structure);
    VOutParamIfView view(m_service, VSearchRange::PosResponses);

    NODX201::IOutParamIf* found = &b;
    EXPECT_TRUE(view.Find(L"C", found, m_layer) == view.End());
    EXPECT_EQ(found, nullptr) << "whatever it was before";
    EXPECT_TRUE(view.Find(L"C", m_layer) == view.End());
    EXPECT_EQ(view.FindParam(L"C", m_layer), nullptr);

    EXPECT_TRUE(view.Find(L"A", found, m_layer) == view.Begin());
    EXPECT_EQ(found, &a);
    EXPECT_TRUE(view.Find(L"A", m_layer) == view.Begin());
    EXPECT_EQ(view.FindParam(L"A", m_layer), &a);

    auto const nested = view.Find(L"B", found, m_layer);
    EXPECT_TRUE(nested == view.Find(b));
    EXPECT_EQ(found, &b);
    EXPECT_EQ(&*view.Find(L"B", m_layer), &b);
    EXPECT_EQ(view.FindParam(L"B", m_layer), &b);
    EXPECT_EQ(PrintParams(view), L"A B");
}

TEST_F(OutParamIfViewTest, EntriesAreComparedByTheNamesThatTheyHaveAtTheTime) {
    NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
    NMemory::VMemValue& b = structure.AddValue(L"B");
    PosResponse().AddValue(L"A").SetDopBaseLink(structure);
    VOutParamIfView view(m_service, VSearchRange::PosResponses);
    EXPECT_EQ(&*view.Find(L"B", m_layer), &b);
    b.SetShortName(L"C");
    EXPECT_EQ(view.FindParam(L"B", m_layer), nullptr);
    auto const renamed = view.Find(L"C", m_layer);
    EXPECT_TRUE(renamed == view.Find(b));
    EXPECT_EQ(view.Count(), 2u);
}

TEST_F(OutParamIfViewTest, SearchMatchesExactly) {
    PosResponse().AddValue(L"Speed").SetDopBaseLink(StructureOf(L"Torque"));
    VOutParamIfView view(m_service, VSearchRange::PosResponses);
    for (wchar_t const* const name : {L"speed", L"Spee", L"Speed1", L"torque", L"Torque ", L""}) {
        EXPECT_EQ(view.FindParam(name, m_layer), nullptr) << testing::PrintToString(std::wstring(name));
    }
    EXPECT_NE(view.FindParam(L"Torque", m_layer), nullptr);
}

TEST_F(OutParamIfViewTest, AnEntryWhoseCastFailsBearsTheEmptyName) {
    VOutParamIfView view(m_singleJob);
    for (bool const isValue : {true, false}) {
        VMockOutParam lying(isValue);
        view.Append(lying);
        EXPECT_EQ(view.FindParam(L"", m_layer), &lying);
        view.Remove(lying);
    }
    EXPECT_EQ(view.FindParam(L"", m_layer), nullptr);
}

TEST_F(OutParamIfViewTest, LinksWithoutAResponseAndAbsentPartsContributeNothing) {
    m_service.SetRequestRef(NMemory::VReference::ById(L"Gone"));
    m_service.AddPosResponseRef(NMemory::VReference::ById(L"Gone"));
    PosResponse().AddValue(L"A");
    m_service.AddNegResponseRef(NMemory::VReference::ById(L"Gone"));
    EXPECT_EQ(Params(5), L"A");
    NMemory::VMemDiagService& bare = m_layer.AddDiagService(L"Bare");
    EXPECT_TRUE(VOutParamIfView(bare, VSearchRange::RequestAndResponses).IsEmpty());
    ASSERT_FALSE(m_singleJob.HasOutputParamCollection() || m_multipleJob.HasOutputParamCollection());
    EXPECT_TRUE(VOutParamIfView(m_singleJob).IsEmpty());
    EXPECT_TRUE(VOutParamIfView(m_multipleJob).IsEmpty());
}

TEST_F(OutParamIfViewTest, AJobsOutputParamsAreListedInOrder) {
    m_singleJob.AddOutputParam(L"B");
    m_singleJob.AddOutputParam(L"A");
    m_singleJob.AddInputParam(L"In");
    m_singleJob.AddNegOutputParam(L"Neg");
    m_multipleJob.AddOutputParam(L"D");
    m_multipleJob.AddOutputParam(L"C");
    VOutParamIfView single(m_singleJob);
    EXPECT_EQ(PrintParams(single), L"B A");
    VOutParamIfView multiple(m_multipleJob);
    EXPECT_EQ(PrintParams(multiple), L"D C");
}

TEST_F(OutParamIfViewTest, RemoveByIteratorDestroysTheElement) {
    PosResponse().AddValue(L"A");
    NegResponse().AddValue(L"B");
    VOutParamIfView view(m_service, VSearchRange::Responses);
    view.Remove(view.Begin());
    EXPECT_EQ(PrintParams(view), L"B");
    EXPECT_EQ(Params(0), L"B") << "gone from the model";
    VerifyModel(m_database);
}

TEST_F(OutParamIfViewTest, AParameterThatRemoveByIteratorDestroyedIsNoSearchRootAnyMore) {
    NMemory::VMemPosResponse& response = PosResponse();
    response.AddValue(L"A").SetDopBaseLink(StructureOf(L"InA"));
    response.AddValue(L"B").SetDopBaseLink(StructureOf(L"InB"));
    VOpenOutParamIfView view(m_service, VSearchRange::Responses);
    view.Remove(view.Begin());
    EXPECT_EQ(view.FindParam(L"InA", m_layer), nullptr);
    EXPECT_NE(view.FindParam(L"InB", m_layer), nullptr);
    view._Remove(view.m_collection.begin());
    EXPECT_EQ(view.FindParam(L"B", m_layer), nullptr);
    EXPECT_EQ(PrintParams(view), L"InB");
}

TEST_F(OutParamIfViewTest, RemoveByReferenceLeavesTheElementAliveAndASearchRoot) {
    NMemory::VMemValue& a = PosResponse().AddValue(L"A");
    VOutParamIfView view(m_service, VSearchRange::Responses);
    view.Remove(a);
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_EQ(a.GetShortName(), std::wstring(L"A"));
    EXPECT_EQ(view.FindParam(L"A", m_layer), &a) << "found again below the roots";
    EXPECT_EQ(PrintParams(view), L"A");
}

TEST_F(OutParamIfViewTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    PosResponse().AddValue(L"A");
    NMemory::VMemOutputParam& stranger = m_singleJob.AddOutputParam(L"B");
    VOpenOutParamIfView view(m_service, VSearchRange::Responses);
    view.Remove(stranger);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"OutParamIfView", 205}}));
    view.Remove(view.End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"OutParamIfView", 213},
                                                   {L"iter != m_collection.end()", L"OutParamIfView", 514}}));
    view._Remove(view.m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"OutParamIfView", 514}}));
    EXPECT_EQ(PrintParams(view), L"A");
}

TEST_F(OutParamIfViewTest, RemoveByIteratorDestroysThroughTheInterface) {
    bool isDestroyed = false;
    VOutParamIfView view(m_singleJob);
    view.Append(*new VMockOutParam(true, &isDestroyed));
    view.Remove(view.Begin());
    EXPECT_TRUE(isDestroyed);
}

TEST_F(OutParamIfViewTest, AppendInsertAndFindByElementAreThoseOfAList) {
    NMemory::VMemPosResponse& shared = PosResponse();
    NMemory::VMemValue& a = shared.AddValue(L"A");
    m_service.AddPosResponseRef(shared);
    NMemory::VMemOutputParam& b = m_singleJob.AddOutputParam(L"B");
    VOpenOutParamIfView view(m_service, VSearchRange::Responses);
    EXPECT_EQ(PrintParams(view), L"A A") << "two links to one response";
    EXPECT_TRUE(view.Find(a) == view.Begin());
    EXPECT_TRUE(view.Find(b) == view.End());
    view.Append(b);
    view._Insert(view._Find(b), b);
    EXPECT_EQ(PrintParams(view), L"A A B B");
    EXPECT_EQ(view.Count(), 4u);
}

TEST_F(OutParamIfViewTest, ViewsOfTheSameObjectsInTheSameOrderAreEqual) {
    PosResponse().AddValue(L"A").SetDopBaseLink(StructureOf(L"B"));
    VOutParamIfView one(m_service, VSearchRange::PosResponses);
    VOutParamIfView two(m_service, VSearchRange::Responses);
    EXPECT_TRUE(one == two) << "the search roots play no part";
    EXPECT_FALSE(one != two);
    EXPECT_NE(two.FindParam(L"B", m_layer), nullptr);
    EXPECT_TRUE(one != two) << "a search has grown one of them";
}

} // namespace
} // namespace NTest
