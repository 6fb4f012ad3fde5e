// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildDiagCommView.h>

#include <functional>
#include <type_traits>

#include "support/GraphTest.h"
#include "support/MockElements.h"
#include "support/RecordedLog.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagCommView;
using NDIAGKIT::VOpBuildDiagCommView;

static_assert(std::is_base_of_v<NODX201::VDiagLayerVisitor, VOpBuildDiagCommView>);
static_assert(std::is_convertible_v<VOpBuildDiagCommView*, NODX201::VDiagLayerVisitor*>, "derived publicly");
static_assert(std::has_virtual_destructor_v<VOpBuildDiagCommView>);
static_assert(std::is_copy_constructible_v<VOpBuildDiagCommView> && std::is_copy_assignable_v<VOpBuildDiagCommView>);

VAssertionList const kNoDiagCommView{{L"(mpDiagCommView != 0)", L"OpBuildDiagCommView", 83}};

/// A layer whose Accept does what the test says.
class VScriptedLayer : public VMockEcuVariant {
public:
    explicit VScriptedLayer(std::function<void(NODX201::VDiagLayerVisitor&)> accept) : m_accept(std::move(accept)) {}
    void Accept(NODX201::VDiagLayerVisitor& visitor) override { m_accept(visitor); }

private:
    std::function<void(NODX201::VDiagLayerVisitor&)> m_accept;
};

class OpBuildDiagCommViewTest : public VGraphTest {
protected:
    void SetUp() override {
        Graph(LR"(
            esd  Lib   : Ident
            prot Uds   : Read   < Lib
            func Doors : Open   < Uds
            base Bv    : Start  < Doors
            ecu  Ecu   : Stop   < Bv
        )");
    }

    /// What the builder makes of a layer is what the constructor for that kind makes.
    template <class Kind>
    void ExpectViewOfKind(wchar_t const* name, wchar_t const* print) {
        VOpBuildDiagCommView builder;
        VDiagCommView* const built = builder.CreateDiagCommView(Layer(name));
        ASSERT_NE(built, nullptr);
        VDiagCommView direct(LayerAs<Kind>(name));
        EXPECT_TRUE(*built == direct);
        EXPECT_EQ(Print(*built), print);
        builder.DestroyDiagCommView(*built);
    }

    /// The view that a Visit operation called from a layer's Accept makes.
    std::wstring Visited(std::function<void(NODX201::VDiagLayerVisitor&)> accept) {
        VScriptedLayer layer(std::move(accept));
        return PrintDiagComms(layer);
    }
};

TEST_F(OpBuildDiagCommViewTest, CreateMakesTheViewOfTheLayersKind) {
    ExpectViewOfKind<NODX201::VEcuSharedData>(L"Lib", L"Ident@Lib");
    ExpectViewOfKind<NODX201::VProtocol>(L"Uds", L"Read@Uds Ident@Lib");
    ExpectViewOfKind<NODX201::VFunctionalGroup>(L"Doors", L"Open@Doors Read@Uds Ident@Lib");
    ExpectViewOfKind<NODX201::VBaseVariant>(L"Bv", L"Start@Bv Open@Doors Read@Uds Ident@Lib");
    ExpectViewOfKind<NODX201::VEcuVariant>(L"Ecu", L"Stop@Ecu Start@Bv Open@Doors Read@Uds Ident@Lib");
}

TEST_F(OpBuildDiagCommViewTest, EachVisitOperationMakesTheViewOfItsLayer) {
    // clang-format off
    EXPECT_EQ(Visited([&](auto& visitor) { visitor.VisitEcuSharedData(LayerAs<NODX201::VEcuSharedData>(L"Lib")); }), L"Ident@Lib");
    EXPECT_EQ(Visited([&](auto& visitor) { visitor.VisitProtocol(LayerAs<NODX201::VProtocol>(L"Uds")); }), L"Read@Uds Ident@Lib");
    EXPECT_EQ(Visited([&](auto& visitor) { visitor.VisitFunctionalGroup(LayerAs<NODX201::VFunctionalGroup>(L"Doors")); }), L"Open@Doors Read@Uds Ident@Lib");
    EXPECT_EQ(Visited([&](auto& visitor) { visitor.VisitBaseVariant(LayerAs<NODX201::VBaseVariant>(L"Bv")); }), L"Start@Bv Open@Doors Read@Uds Ident@Lib");
    EXPECT_EQ(Visited([&](auto& visitor) { visitor.VisitEcuVariant(LayerAs<NODX201::VEcuVariant>(L"Ecu")); }), L"Stop@Ecu Start@Bv Open@Doors Read@Uds Ident@Lib");
    // clang-format on
}

TEST_F(OpBuildDiagCommViewTest, DispatchHandsTheLayerToTheVisitOperationOfItsKind) {
    EXPECT_EQ(Visited([&](auto& visitor) { visitor.DispatchDiagLayer(Layer(L"Uds")); }), L"Read@Uds Ident@Lib");
}

// How many blocks are alive is counted in allocations/; here the sanitizers see that nothing leaks or dies twice.

TEST_F(OpBuildDiagCommViewTest, CreateDestroysTheViewThatADirectVisitMade) {
    VOpBuildDiagCommView builder;
    builder.VisitProtocol(LayerAs<NODX201::VProtocol>(L"Uds"));
    VDiagCommView* const view = builder.CreateDiagCommView(Layer(L"Lib"));
    EXPECT_EQ(Print(*view), L"Ident@Lib");
    builder.DestroyDiagCommView(*view);
}

TEST_F(OpBuildDiagCommViewTest, ASecondCreateDestroysTheFirstView) {
    VOpBuildDiagCommView builder;
    builder.CreateDiagCommView(Layer(L"Uds"));
    builder.CreateDiagCommView(Layer(L"Bv"));
    VDiagCommView* const last = builder.CreateDiagCommView(Layer(L"Lib"));
    EXPECT_EQ(Print(*last), L"Ident@Lib");
    builder.DestroyDiagCommView(*last);
}

TEST_F(OpBuildDiagCommViewTest, AViewOutlivesItsBuilder) {
    VDiagCommView* view = nullptr;
    {
        VOpBuildDiagCommView builder;
        view = builder.CreateDiagCommView(Layer(L"Uds"));
    }
    EXPECT_EQ(Print(*view), L"Read@Uds Ident@Lib");
    delete view;
}

TEST_F(OpBuildDiagCommViewTest, AnyBuilderDestroysAnyView) {
    VOpBuildDiagCommView maker;
    VDiagCommView* const view = maker.CreateDiagCommView(Layer(L"Uds"));
    VOpBuildDiagCommView other;
    other.DestroyDiagCommView(*view);
    EXPECT_EQ(PrintDiagComms(Layer(L"Uds")), L"Read@Uds Ident@Lib") << "the elements live on";
}

TEST_F(OpBuildDiagCommViewTest, DestroyGoesThroughTheVirtualDestructor) {
    class VTellingView : public VDiagCommView {
    public:
        VTellingView(NODX201::VEcuSharedData& layer, bool& isDestroyed)
            : VDiagCommView(layer), m_isDestroyed(&isDestroyed) {}
        ~VTellingView() override { *m_isDestroyed = true; }

    private:
        bool* m_isDestroyed;
    };
    bool isDestroyed = false;
    auto* const view = new VTellingView(LayerAs<NODX201::VEcuSharedData>(L"Lib"), isDestroyed);
    VOpBuildDiagCommView().DestroyDiagCommView(*view);
    EXPECT_TRUE(isDestroyed);
}

TEST_F(OpBuildDiagCommViewTest, ACopyRemembersTheSameView) {
    VOpBuildDiagCommView original;
    VDiagCommView* const shared = original.CreateDiagCommView(Layer(L"Uds"));
    VOpBuildDiagCommView copy(original);
    EXPECT_EQ(Print(*shared), L"Read@Uds Ident@Lib") << "copying a builder leaves the view alone";
    VDiagCommView* const last = copy.CreateDiagCommView(Layer(L"Lib")); // destroys the shared view
    EXPECT_EQ(Print(*last), L"Ident@Lib");
    copy.DestroyDiagCommView(*last);
}

TEST_F(OpBuildDiagCommViewTest, AnAssignedBuilderRemembersTheSameView) {
    VOpBuildDiagCommView original;
    VDiagCommView* const shared = original.CreateDiagCommView(Layer(L"Uds"));
    VOpBuildDiagCommView assigned;
    assigned = original;
    EXPECT_EQ(Print(*shared), L"Read@Uds Ident@Lib");
    VDiagCommView* const last = assigned.CreateDiagCommView(Layer(L"Lib")); // destroys the shared view
    EXPECT_EQ(Print(*last), L"Ident@Lib");
    assigned.DestroyDiagCommView(*last);
}

TEST_F(OpBuildDiagCommViewTest, AssigningABuilderDoesNotDestroyTheViewItRemembered) {
    VOpBuildDiagCommView builder;
    VDiagCommView* const first = builder.CreateDiagCommView(Layer(L"Uds"));
    builder = VOpBuildDiagCommView();
    EXPECT_EQ(Print(*first), L"Read@Uds Ident@Lib");
    VDiagCommView* const second = builder.CreateDiagCommView(Layer(L"Lib"));
    EXPECT_EQ(Print(*first), L"Read@Uds Ident@Lib") << "forgotten by the assignment, so not destroyed";
    builder.DestroyDiagCommView(*first);
    builder.DestroyDiagCommView(*second);
}

TEST_F(OpBuildDiagCommViewTest, AcceptThatVisitsNothingLogsAndAssertsOnAFreshBuilder) {
    VRecordedLog log;
    VSilentLayer silent;
    VOpBuildDiagCommView builder;
    EXPECT_EQ(builder.CreateDiagCommView(silent), nullptr);
    EXPECT_EQ(log.Lines(), (std::vector<VRecordedLog::VLine>{{0, L"mpDiagCommView != NULL."}}));
    EXPECT_EQ(m_assertions.Take(), kNoDiagCommView);
}

TEST_F(OpBuildDiagCommViewTest, ABuilderIsUsableAfterAFailure) {
    VSilentLayer silent;
    VOpBuildDiagCommView builder;
    EXPECT_EQ(builder.CreateDiagCommView(silent), nullptr);
    EXPECT_EQ(builder.CreateDiagCommView(silent), nullptr);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{kNoDiagCommView[0], kNoDiagCommView[0]}));
    VDiagCommView* const view = builder.CreateDiagCommView(Layer(L"Lib"));
    EXPECT_EQ(Print(*view), L"Ident@Lib");
    builder.DestroyDiagCommView(*view);
}

std::vector<std::wstring>* s_events = nullptr; // for the assertion handler, which cannot capture

TEST_F(OpBuildDiagCommViewTest, TheFailureIsLoggedBeforeItIsAsserted) {
    std::vector<std::wstring> events;
    s_events = &events;
    class VListener : public NLogging::ILogListener {
        void Log(int, std::wstring const& message) override { s_events->push_back(L"log " + message); }
    } listener;
    NLogging::VSharedLogger::Instance()->SetLogger(&listener);
    {
        NPavonaUtil::VScopedAssertionHandler const handler([](NPavonaUtil::VAssertion const& assertion) {
            s_events->push_back(std::wstring(L"assert ") + assertion.expression);
        });
        VSilentLayer silent;
        VOpBuildDiagCommView().CreateDiagCommView(silent);
    }
    NLogging::VSharedLogger::Instance()->SetLogger(nullptr);
    EXPECT_EQ(events, (std::vector<std::wstring>{L"log mpDiagCommView != NULL.", L"assert (mpDiagCommView != 0)"}));
}

TEST_F(OpBuildDiagCommViewTest, AListenerThatLetsTheBuilderMakeTheViewPreventsTheAssertion) {
    VOpBuildDiagCommView builder;
    VRecordedLog log([&] { builder.CreateDiagCommView(Layer(L"Lib")); });
    VSilentLayer silent;
    VDiagCommView* const view = builder.CreateDiagCommView(silent);
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(Print(*view), L"Ident@Lib");
    builder.DestroyDiagCommView(*view);
}

TEST_F(OpBuildDiagCommViewTest, ADisabledLoggerGetsNoMessage) {
    VRecordedLog log;
    NLogging::VSharedLogger::Instance()->Disable();
    VSilentLayer silent;
    EXPECT_EQ(VOpBuildDiagCommView().CreateDiagCommView(silent), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), kNoDiagCommView);
}

TEST_F(OpBuildDiagCommViewTest, WithoutAListenerTheFailureIsOnlyAsserted) {
    ASSERT_EQ(NLogging::VSharedLogger::Instance()->GetLogger(), nullptr);
    VSilentLayer silent;
    EXPECT_EQ(VOpBuildDiagCommView().CreateDiagCommView(silent), nullptr);
    EXPECT_EQ(m_assertions.Take(), kNoDiagCommView);
}

TEST_F(OpBuildDiagCommViewTest, AViewThatIsMadeIsNeitherLoggedNorAsserted) {
    VRecordedLog log;
    EXPECT_EQ(PrintDiagComms(Layer(L"Lib")), L"Ident@Lib");
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

TEST_F(OpBuildDiagCommViewTest, AcceptThatVisitsNothingReportsNothingOnABuilderThatMadeAView) {
    // The builder still remembers the view that it has just destroyed, so it must not create again after this.
    VRecordedLog log;
    VOpBuildDiagCommView builder;
    builder.CreateDiagCommView(Layer(L"Lib"));
    VSilentLayer silent;
    EXPECT_NE(builder.CreateDiagCommView(silent), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

TEST_F(OpBuildDiagCommViewTest, AnExceptionFromTheModelLeavesTheBuilderEmpty) {
    VScriptedLayer throwing([](NODX201::VDiagLayerVisitor&) { throw std::runtime_error("no layer today"); });
    VOpBuildDiagCommView builder;
    builder.CreateDiagCommView(Layer(L"Lib"));
    EXPECT_THROW(builder.CreateDiagCommView(throwing), std::runtime_error);
    VDiagCommView* const view = builder.CreateDiagCommView(Layer(L"Lib"));
    EXPECT_EQ(Print(*view), L"Ident@Lib");
    builder.DestroyDiagCommView(*view);
}

} // namespace
} // namespace NTest
