// SPDX-License-Identifier: Apache-2.0

// Null names and null views: look-ups find nothing, destroying does nothing.

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OdxCategoryInfo.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildProtocolView.h>
#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/SessionView.h>

#include "support/NullReference.h"
#include "tools/ParamTest.h"

namespace NTest {
namespace {

using namespace NDIAGKIT;

constexpr wchar_t const* kNull = nullptr;

template <class View>
bool FindsNothing(View&& view) {
    EXPECT_FALSE(view.IsEmpty());
    return view.Find(kNull) == view.End();
}

/// A layer and jobs with an element of every kind that can be looked for by name.
class NullsTest : public VParamTest {
protected:
    NullsTest() {
        m_library.AddDiagService(L"");
        m_library.AddDiagVariable(L"");
        m_library.MakeDiagDataDictionarySpec().AddDataObjectProp(L"");
        m_library.AddGlobalNegResponse(L"");
        m_container.AddProtocol(L"");
        PosResponse().AddValue(L"");
        m_multipleJob.AddInputParam(L"");
        m_multipleJob.AddOutputParam(L"");
        m_flash.AddEcuMem(L"EcuMem").GetMem().AddSession(L"").AddExpectedIdent(L"");
    }

    NMemory::VMemEcuSharedData& m_library = m_container.AddEcuSharedData(L"Library");
    NMemory::VMemFlash& m_flash = m_database.AddFlash(L"Flash");
};

TEST_F(NullsTest, NoViewFindsANullNameNotEvenWhereOneIsEmpty) {
    EXPECT_TRUE(FindsNothing(VDiagCommView(m_library)));
    EXPECT_TRUE(FindsNothing(VDiagVariableView(m_library)));
    EXPECT_TRUE(FindsNothing(VDopView(m_library)));
    EXPECT_TRUE(FindsNothing(VGlobalNegResponseView(m_library)));
    EXPECT_TRUE(FindsNothing(VProtocolView(m_container)));
    EXPECT_TRUE(FindsNothing(VInParamIfView(m_service)));
    EXPECT_TRUE(FindsNothing(VSessionView(m_flash)));
    EXPECT_TRUE(FindsNothing(VIdentIfView(m_flash)));
}

TEST_F(NullsTest, TheSearchForOutputParametersFindsNone) {
    VOutParamIfView view(m_service, NODX201::VSearchRange::RequestAndResponses);
    ASSERT_FALSE(view.IsEmpty());
    EXPECT_TRUE(view.Find(kNull, m_layer) == view.End());
    NODX201::IOutParamIf* found = &*view.Begin();
    EXPECT_TRUE(view.Find(kNull, found, m_layer) == view.End());
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(view.FindParam(kNull, m_layer), nullptr);
}

TEST_F(NullsTest, TheResolverAnswersNull) {
    VOpResolveSnref resolver;
    EXPECT_EQ(resolver.ResolveDopBaseSnref(kNull, m_library), nullptr);
    EXPECT_EQ(resolver.ResolveDataObjectPropSnref(kNull, m_library), nullptr);
    EXPECT_EQ(resolver.ResolveDiagCommSnref(kNull, m_library), nullptr);
    EXPECT_EQ(resolver.ResolveDiagVariableSnref(kNull, m_library), nullptr);
    EXPECT_EQ(resolver.ResolveIdentIfSnref(kNull, m_flash), nullptr);
    EXPECT_EQ(resolver.ResolveProtocolSnref(kNull, m_container), nullptr);
    EXPECT_EQ(resolver.ResolveSessionSnref(kNull, m_flash), nullptr);
    EXPECT_EQ(resolver.ResolveInParamIfSnref(kNull, m_multipleJob), nullptr);
    EXPECT_EQ(resolver.ResolveInParamIfSnref(kNull, m_service), nullptr);
    EXPECT_EQ(resolver.ResolveOutParamIfSnref(kNull, m_multipleJob, m_library), nullptr);
    EXPECT_EQ(resolver.ResolveOutParamIfSnref(kNull, m_service, m_library, NODX201::VSearchRange::RequestAndResponses),
              nullptr);
}

TEST_F(NullsTest, BuildersDestroyNothing) {
    VOpBuildDiagCommView diagComms;
    CallWithNull(diagComms, &VOpBuildDiagCommView::DestroyDiagCommView);
    VOpBuildDiagVariableView diagVariables;
    CallWithNull(diagVariables, &VOpBuildDiagVariableView::DestroyDiagVariableView);
    VOpBuildDopView dops;
    CallWithNull(dops, &VOpBuildDopView::DestroyDopView);
    VOpBuildGlobalNegResponseView responses;
    CallWithNull(responses, &VOpBuildGlobalNegResponseView::DestroyGlobalNegResponseView);
    VOpBuildProtocolView protocols;
    CallWithNull(protocols, &VOpBuildProtocolView::DestroyProtocolView);
    std::unique_ptr<VDopView> const view(dops.CreateDopView(m_library));
    EXPECT_EQ(view->Count(), 1u) << "and go on";
}

TEST_F(NullsTest, ANullNameOfACategoryIsEmpty) {
    VOdxCategoryInfo info;
    info.SetFileName(L"File");
    info.SetFileName(nullptr);
    info.SetShortName(L"Name");
    info.SetShortName(nullptr);
    EXPECT_EQ(info.GetFileName(), std::wstring());
    EXPECT_EQ(info.GetShortName(), std::wstring());
    std::unique_ptr<VOdxCategoryInfo> const made(&VOdxCategoryInfo::CreateFromFileAndShortName(nullptr, nullptr));
    EXPECT_EQ(made->GetShortName(), std::wstring());
}

} // namespace
} // namespace NTest
