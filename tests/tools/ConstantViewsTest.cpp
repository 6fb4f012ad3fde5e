// SPDX-License-Identifier: Apache-2.0

// Views that nobody changes, and views and the standard library.

#include <algorithm>
#include <iterator>
#include <string>
#include <type_traits>

#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/DopView.h>
#include <diagkit/tools/OdxCategoryInfoCollection.h>
#include <diagkit/tools/SessionView.h>
#include <diagkit/tools/StringContainer.h>

#include "support/GraphTest.h"
#include "tools/FlashTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagCommView;
using NDIAGKIT::VDopView;

template <class Container, class Reference>
constexpr bool IsARangeOf() {
    using VMutable = std::iterator_traits<decltype(std::declval<Container&>().begin())>;
    using VConstant = std::iterator_traits<decltype(std::declval<Container const&>().begin())>;
    using VPosition = std::iterator_traits<decltype(std::declval<Container&>().Begin())>;
    return std::is_same_v<typename VMutable::reference, Reference> &&
           std::is_same_v<typename VConstant::reference, Reference> &&
           std::is_same_v<typename VPosition::reference, Reference> &&
           std::is_same_v<typename VMutable::iterator_category, std::forward_iterator_tag> &&
           std::is_same_v<typename VPosition::iterator_category, std::forward_iterator_tag>;
}

static_assert(IsARangeOf<VDiagCommView, NODX201::VDiagComm&>());
static_assert(IsARangeOf<VDopView, NODX201::VDopBase&>());
static_assert(IsARangeOf<NDIAGKIT::VSessionView, NODX201::VSession&>());
static_assert(IsARangeOf<NDIAGKIT::VOdxCategoryInfoCollection, NDIAGKIT::VOdxCategoryInfo&>());
static_assert(IsARangeOf<NDIAGKIT::VStringContainer, std::wstring const&>());

template <class Named>
bool BeginsWithR(Named const& element) {
    return element.GetShortName()[0] == L'R';
}

class ConstantViewsTest : public VGraphTest {};

TEST_F(ConstantViewsTest, AlgorithmsTakeAView) {
    Graph(L"prot Uds : Ident Reset \n base Bv : Read Start < Uds");
    VDiagCommView view(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    EXPECT_EQ(std::count_if(view.begin(), view.end(), BeginsWithR<NODX201::VDiagComm>), 2);
    EXPECT_EQ(std::count_if(view.Begin(), view.End(), BeginsWithR<NODX201::VDiagComm>), 2);
    EXPECT_EQ(std::distance(view.Begin(), view.Find(L"Ident")), 2);
}

TEST_F(ConstantViewsTest, WhatAnAlgorithmFindsCanBeRemoved) {
    Graph(L"ecu Ecu : Read Start Reset");
    VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    view.Remove(*std::find_if_not(view.begin(), view.end(), BeginsWithR<NODX201::VDiagComm>));
    EXPECT_EQ(Print(view), L"Read@Ecu Reset@Ecu");
    view.Remove(view.begin());
    EXPECT_EQ(Print(view), L"Reset@Ecu");
}

TEST_F(ConstantViewsTest, AConstantViewIsWalkedAndSearched) {
    Graph(L"prot Uds : Ident \n base Bv : Read < Uds");
    VDiagCommView const view(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    std::wstring names;
    for (NODX201::VDiagComm& diagComm : view) { // elements are handed out as by any view
        names += diagComm.GetShortName();
    }
    EXPECT_EQ(names, L"ReadIdent");
    EXPECT_EQ(&*view.Find(L"Ident"), &DiagComm(L"Uds.Ident"));
    EXPECT_TRUE(view.Find(L"ident") == view.End());
    EXPECT_TRUE(view.Find(static_cast<wchar_t const*>(nullptr)) == view.End());
    EXPECT_TRUE(view.Find(DiagComm(L"Bv.Read")) == view.Begin());
}

TEST(ConstantDopViewTest, AConstantViewIsWalkedAndSearched) {
    NMemory::VDatabase database;
    auto& layer = database.AddDiagLayerContainer(L"Doors").AddEcuSharedData(L"Lib");
    auto& volt = layer.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Volt");
    layer.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Rpm");
    auto& stranger = database.AddDiagLayerContainer(L"Seats").AddEcuSharedData(L"Seat");
    auto& other = stranger.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Volt");
    VDopView const view(layer);
    EXPECT_EQ(std::count_if(view.begin(), view.end(), BeginsWithR<NODX201::VDopBase>), 1);
    EXPECT_EQ(std::count_if(view.Begin(), view.End(), BeginsWithR<NODX201::VDopBase>), 1);
    EXPECT_STREQ(view.begin()->GetShortName(), L"Rpm");
    EXPECT_EQ(&*view.Find(L"Volt"), &volt);
    EXPECT_TRUE(view.Find(volt) == view.Find(L"Volt"));
    EXPECT_TRUE(view.Find(other) == view.End());
    EXPECT_TRUE(view.Find(L"Current") == view.End());
    EXPECT_TRUE(view.Find(static_cast<wchar_t const*>(nullptr)) == view.End());
}

class ConstantFlashViewsTest : public VFlashTest {};

TEST_F(ConstantFlashViewsTest, AConstantViewIsWalkedAndSearched) {
    NODX201::VSession& boot = AddMem().AddSession(L"Boot");
    AddMem().AddSession(L"Application");
    NDIAGKIT::VSessionView const view(m_flash);
    EXPECT_EQ(Names(view), L"Boot Application");
    EXPECT_TRUE(view.Find(boot) == view.Begin());
    EXPECT_EQ(&*view.Find(L"Boot"), &boot);
}

TEST(ConstantContainersTest, AConstantListOfCategoriesIsSearched) {
    NDIAGKIT::VOdxCategoryInfoCollection infos;
    infos.Append(NDIAGKIT::VOdxCategoryInfo::CreateFromFileAndShortName(L"a.odx-d", L"A"));
    infos.Append(NDIAGKIT::VOdxCategoryInfo::CreateFromFileAndShortName(L"b.odx-d", L"B"));
    NDIAGKIT::VOdxCategoryInfoCollection const& constant = infos;
    EXPECT_TRUE(constant.Find(L"a.odx-d") == constant.Begin());
    EXPECT_STREQ((*constant.Contains(L"B")).GetFileName(), L"b.odx-d");
    EXPECT_TRUE(constant.Find(L"A") == constant.End());
    EXPECT_TRUE(constant.Contains(L"b.odx-d") == constant.End());
}

TEST(ConstantContainersTest, AlgorithmsTakeTexts) {
    NDIAGKIT::VStringContainer texts;
    texts.AddCopy(L"Read");
    texts.AddCopy(L"Write");
    texts.AddCopy(L"Read");
    EXPECT_EQ(std::count(texts.begin(), texts.end(), L"Read"), 2);
    EXPECT_EQ(texts.begin()->size(), (*texts.Begin()).size());
}

} // namespace
} // namespace NTest
