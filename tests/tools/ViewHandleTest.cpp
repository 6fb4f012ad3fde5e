// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ViewHandle.h>

#include <string>
#include <type_traits>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Params.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/ParamViewBuilders.h>

#include "support/GraphTest.h"
#include "support/MockElements.h"

namespace NTest {
namespace {

using namespace NDIAGKIT;

static_assert(!std::is_abstract_v<VInParamIfViewBuilder> && !std::is_abstract_v<VOutParamIfViewBuilder>);
static_assert(sizeof(VViewHandle<VDiagCommView>) == sizeof(void*), "a handle is no larger than its pointer");

template <class View>
std::wstring NamesIn(View& view) {
    std::wstring names;
    for (auto& entry : view) {
        names += (names.empty() ? L"" : L" ") + std::wstring(dynamic_cast<NODX201::VOdxElement&>(entry).GetShortName());
    }
    return names;
}

class ViewHandleTest : public testing::Test {
protected:
    ViewHandleTest() {
        m_service.AddPosResponseRef(m_response);
        m_response.AddValue(L"Angle");
        m_protocol.AddGlobalNegResponse(L"Busy");
        m_group.AddDiagVariable(L"Speed");
        m_group.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Volt");
        m_group.AddParentRef(m_protocol);
        m_base.AddParentRef(m_group);
        m_ecu.AddParentRef(m_base);
        m_shared.AddDiagService(L"Reset");
    }

    VRecordedAssertions m_assertions;
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Doors");
    NMemory::VMemProtocol& m_protocol = m_container.AddProtocol(L"Uds");
    NMemory::VMemFunctionalGroup& m_group = m_container.AddFunctionalGroup(L"Group");
    NMemory::VMemBaseVariant& m_base = m_container.AddBaseVariant(L"Base");
    NMemory::VMemEcuVariant& m_ecu = m_container.AddEcuVariant(L"Ecu");
    NMemory::VMemEcuSharedData& m_shared = m_container.AddEcuSharedData(L"Lib");
    NMemory::VMemDiagService& m_service = m_protocol.AddDiagService(L"Read");
    NMemory::VMemPosResponse& m_response = m_protocol.AddPosResponse(L"ReadResponse");
};

TEST_F(ViewHandleTest, TheKindOfTheLayerDecides) {
    for (NODX201::VDiagLayer* const layer :
         {static_cast<NODX201::VDiagLayer*>(&m_protocol), static_cast<NODX201::VDiagLayer*>(&m_group),
          static_cast<NODX201::VDiagLayer*>(&m_base), static_cast<NODX201::VDiagLayer*>(&m_ecu)}) {
        EXPECT_EQ(NamesIn(*MakeDiagCommView(*layer)), L"Read") << layer->GetShortName();
        EXPECT_EQ(NamesIn(*MakeGlobalNegResponseView(*layer)), L"Busy") << layer->GetShortName();
    }
    EXPECT_EQ(NamesIn(*MakeDiagCommView(m_shared)), L"Reset");
    EXPECT_EQ(NamesIn(*MakeDiagVariableView(m_ecu)), L"Speed");
    EXPECT_EQ(NamesIn(*MakeDiagVariableView(m_protocol)), L"");
    EXPECT_EQ(NamesIn(*MakeDopView(m_ecu)), L"Volt");
    EXPECT_EQ(NamesIn(*MakeDopView(m_shared)), L"");
}

TEST_F(ViewHandleTest, ProtocolsAreThoseOfAContainerOrOfABaseVariant) {
    m_container.AddProtocol(L"Kwp");
    EXPECT_EQ(NamesIn(*MakeProtocolView(m_container)), L"Uds Kwp");
    EXPECT_EQ(NamesIn(*MakeProtocolView(m_base)), L"Uds");
}

TEST_F(ViewHandleTest, TheKindOfTheDiagCommDecides) {
    auto& single = m_protocol.AddSingleEcuJob(L"Job");
    single.AddInputParam(L"In");
    single.AddOutputParam(L"Out");
    auto& multiple = m_database.AddMultipleEcuJobSpec(L"Jobs").AddMultipleEcuJob(L"Flash");
    multiple.AddInputParam(L"File");
    multiple.AddOutputParam(L"State");
    NODX201::VSearchRange const range = NODX201::VSearchRange::Responses;
    EXPECT_EQ(NamesIn(*MakeInParamIfView(m_service)), L"Angle");
    EXPECT_EQ(NamesIn(*MakeInParamIfView(single)), L"In");
    EXPECT_EQ(NamesIn(*MakeInParamIfView(multiple)), L"File");
    EXPECT_EQ(NamesIn(*MakeOutParamIfView(m_service, range)), L"Angle");
    EXPECT_EQ(NamesIn(*MakeOutParamIfView(single, range)), L"Out");
    EXPECT_EQ(NamesIn(*MakeOutParamIfView(multiple, range)), L"State");
}

TEST_F(ViewHandleTest, TheRangeSaysWhichParametersOfAServiceCount) {
    EXPECT_EQ(NamesIn(*MakeOutParamIfView(m_service, NODX201::VSearchRange::Request)), L"");
}

TEST_F(ViewHandleTest, AFlashHasSessionsAndIdents) {
    auto& session = m_database.AddFlash(L"Flash").AddEcuMem(L"Memory").GetMem().AddSession(L"Boot");
    session.AddExpectedIdent(L"Hardware");
    auto& flash = *m_database.FlashCollection().begin();
    EXPECT_EQ(NamesIn(*MakeSessionView(flash)), L"Boot");
    EXPECT_EQ(NamesIn(*MakeIdentIfView(flash)), L"Hardware");
}

/// A view that tells when it is destroyed.
template <class View>
class VViewThatTells : public View {
public:
    template <class Subject>
    VViewThatTells(Subject& subject, bool& isDestroyed) : View(subject), m_isDestroyed(&isDestroyed) {}
    ~VViewThatTells() override { *m_isDestroyed = true; }

private:
    bool* m_isDestroyed;
};

template <class View, class Subject>
bool IsDestroyedByItsHandle(Subject& subject) {
    bool isDestroyed = false;
    VViewHandle<View>(new VViewThatTells<View>(subject, isDestroyed)).reset();
    return isDestroyed;
}

TEST_F(ViewHandleTest, AHandleDestroysItsView) {
    NMemory::VMemFlash& flash = m_database.AddFlash(L"Flash");
    NMemory::VMemSingleEcuJob& job = m_protocol.AddSingleEcuJob(L"Job");
    EXPECT_TRUE((IsDestroyedByItsHandle<VDiagCommView, NODX201::VProtocol>(m_protocol)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VDiagVariableView, NODX201::VProtocol>(m_protocol)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VGlobalNegResponseView, NODX201::VProtocol>(m_protocol)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VDopView, NODX201::VProtocol>(m_protocol)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VProtocolView, NODX201::VBaseVariant>(m_base)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VInParamIfView, NODX201::VSingleEcuJob>(job)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VOutParamIfView, NODX201::VSingleEcuJob>(job)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VSessionView, NODX201::VFlash>(flash)));
    EXPECT_TRUE((IsDestroyedByItsHandle<VIdentIfView, NODX201::VFlash>(flash)));
}

TEST_F(ViewHandleTest, AHandleTakesOverWhatABuilderMade) {
    VOpBuildDiagCommView builder;
    VViewHandle<VDiagCommView> const view(builder.CreateDiagCommView(m_ecu));
    EXPECT_EQ(NamesIn(*view), L"Read");
}

class VSilentLayer : public VMockLayer<NODX201::VEcuSharedData> {
public:
    void Accept(NODX201::VDiagLayerVisitor&) override {}
};

TEST_F(ViewHandleTest, ALayerThatCallsBackNothingHasNoView) {
    VSilentLayer layer;
    EXPECT_EQ(MakeDiagCommView(layer), nullptr);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"(mpDiagCommView != 0)", L"OpBuildDiagCommView", 83}}));
    EXPECT_EQ(NamesIn(*MakeGlobalNegResponseView(layer)), L"");
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

TEST_F(ViewHandleTest, ABuilderOfParameterViewsDoesNothingWithLayers) {
    VInParamIfViewBuilder builder;
    VOutParamIfViewBuilder otherBuilder;
    for (NODX201::VDiagLayer& layer : m_container.DiagLayerCollection()) {
        layer.Accept(builder);
        layer.Accept(otherBuilder);
    }
    VViewHandle<VInParamIfView> const in(builder.CreateInParamIfView(m_service));
    VViewHandle<VOutParamIfView> const out(
        otherBuilder.CreateOutParamIfView(m_service, NODX201::VSearchRange::Responses));
    EXPECT_EQ(NamesIn(*in), L"Angle");
    EXPECT_EQ(NamesIn(*out), L"Angle");
}

} // namespace
} // namespace NTest
