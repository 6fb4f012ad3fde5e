// SPDX-License-Identifier: Apache-2.0
#include <functional>
#include <stdexcept>
#include <type_traits>

#include "support/RecordedLog.h"
#include "support/Slots.h"
#include "tools/BuilderRows.h"

namespace NTest {
namespace {

using VLines = std::vector<VRecordedLog::VLine>;

template <class Builder>
constexpr bool kIsLayerVisitor = std::is_base_of_v<NODX201::VDiagLayerVisitor, Builder>;

// Every builder. allocations/ counts the blocks that are alive; here the sanitizers check that nothing leaks or is
// destroyed twice.

template <class Row>
class OpBuildViewTest : public Row {
protected:
    using typename Row::VBuilder;
    using typename Row::VView;

    static_assert(std::has_virtual_destructor_v<VBuilder>);
    static_assert(std::is_copy_constructible_v<VBuilder> && std::is_copy_assignable_v<VBuilder>);
    static_assert(kIsLayerVisitor<VBuilder> == !std::is_same_v<Row, VProtocolRow>);
    static_assert(kIsLayerVisitor<VBuilder> == std::is_convertible_v<VBuilder*, NODX201::VDiagLayerVisitor*>,
                  "publicly");

    VView* First(VBuilder& builder) { return Row::Create(builder, Row::Subject()); }
    std::unique_ptr<VView> Other(VBuilder& builder) {
        return std::unique_ptr<VView>(Row::Create(builder, Row::OtherSubject()));
    }
    VView* None(VBuilder& builder) { return Row::Create(builder, Row::SubjectWithoutView()); }
};

static_assert(std::is_abstract_v<NDIAGKIT::VOpBuildInParamIfView>);
static_assert(std::is_abstract_v<NDIAGKIT::VOpBuildOutParamIfView>);

using VAllRows = testing::Types<VDiagCommRow, VDiagVariableRow, VDopRow, VGlobalNegResponseRow, VInParamIfRow,
                                VOutParamIfRow, VProtocolRow>;
TYPED_TEST_SUITE(OpBuildViewTest, VAllRows, VRowNames);

TYPED_TEST(OpBuildViewTest, AViewThatIsMadeIsNeitherLoggedNorAsserted) {
    VRecordedLog log;
    EXPECT_EQ(this->Print(*this->Other(this->m_builder)), this->kOtherPrint);
    EXPECT_EQ(log.Lines(), VLines{});
    EXPECT_EQ(this->m_assertions.Take(), VAssertionList{});
}

TYPED_TEST(OpBuildViewTest, ASecondCreateDestroysTheFirstView) {
    this->First(this->m_builder);
    this->First(this->m_builder);
    EXPECT_EQ(this->Print(*this->Other(this->m_builder)), this->kOtherPrint);
}

TYPED_TEST(OpBuildViewTest, AViewOutlivesItsBuilder) {
    auto builder = std::make_unique<typename TestFixture::VBuilder>();
    std::unique_ptr<typename TestFixture::VView> const view(this->First(*builder));
    builder.reset();
    EXPECT_EQ(this->Print(*view), this->kPrint);
}

TYPED_TEST(OpBuildViewTest, ACopyRemembersTheSameView) {
    auto* const shared = this->First(this->m_builder);
    auto copy = this->m_builder;
    EXPECT_EQ(this->Print(*shared), this->kPrint) << "copying a builder leaves the view alone";
    auto const last = this->Other(copy); // destroys the shared view
    EXPECT_EQ(this->Print(*last), this->kOtherPrint);
}

TYPED_TEST(OpBuildViewTest, AnAssignedBuilderRemembersTheSameView) {
    auto* const shared = this->First(this->m_builder);
    typename TestFixture::VBuilder assigned;
    assigned = this->m_builder;
    EXPECT_EQ(this->Print(*shared), this->kPrint);
    auto const last = this->Other(assigned); // destroys the shared view
    EXPECT_EQ(this->Print(*last), this->kOtherPrint);
}

TYPED_TEST(OpBuildViewTest, AssigningABuilderDoesNotDestroyTheViewItRemembered) {
    std::unique_ptr<typename TestFixture::VView> const first(this->First(this->m_builder));
    this->m_builder = typename TestFixture::VBuilder();
    EXPECT_EQ(this->Print(*first), this->kPrint);
    auto const second = this->Other(this->m_builder);
    EXPECT_EQ(this->Print(*first), this->kPrint) << "forgotten by the assignment, so not destroyed";
}

// Those that destroy views as well.

template <class Row>
class OpBuildDestroyTest : public OpBuildViewTest<Row> {};

using VDestroyingRows = testing::Types<VDiagCommRow, VDiagVariableRow, VDopRow, VGlobalNegResponseRow, VProtocolRow>;
TYPED_TEST_SUITE(OpBuildDestroyTest, VDestroyingRows, VRowNames);

TYPED_TEST(OpBuildDestroyTest, AnyBuilderDestroysAnyView) {
    auto* const view = this->First(this->m_builder);
    typename TestFixture::VBuilder other;
    this->Destroy(other, *view);
    std::unique_ptr<typename TestFixture::VView> const again(this->First(other));
    EXPECT_EQ(this->Print(*again), this->kPrint) << "the elements live on";
}

/// A view that reports its destruction.
template <class View>
class VTellingView : public View {
public:
    template <class Subject>
    VTellingView(Subject& subject, bool& isDestroyed) : View(subject), m_isDestroyed(&isDestroyed) {}
    ~VTellingView() override { *m_isDestroyed = true; }

private:
    bool* m_isDestroyed;
};

/// The argument with which a view can be constructed.
NODX201::VFunctionalGroup& ForView(NODX201::VDiagLayer& layer) {
    return dynamic_cast<NODX201::VFunctionalGroup&>(layer);
}
NODX201::VDiagLayerContainer& ForView(NODX201::VDiagLayerContainer& container) { return container; }

TYPED_TEST(OpBuildDestroyTest, DestroyGoesThroughTheVirtualDestructor) {
    bool isDestroyed = false;
    this->Destroy(this->m_builder,
                  *new VTellingView<typename TestFixture::VView>(ForView(this->Subject()), isDestroyed));
    EXPECT_TRUE(isDestroyed);
}

// Those that report that they made no view.

template <class Row>
class OpBuildWithoutViewTest : public OpBuildViewTest<Row> {};

using VReportingRows = testing::Types<VDiagCommRow, VDiagVariableRow, VDopRow, VInParamIfRow, VOutParamIfRow>;
TYPED_TEST_SUITE(OpBuildWithoutViewTest, VReportingRows, VRowNames);

TYPED_TEST(OpBuildWithoutViewTest, AcceptThatVisitsNothingLogsAndAssertsOnAFreshBuilder) {
    VRecordedLog log;
    EXPECT_EQ(this->None(this->m_builder), nullptr);
    EXPECT_EQ(log.Lines(), (VLines{{0, this->kLogged}}));
    EXPECT_EQ(this->m_assertions.Take(), this->NoView());
}

TYPED_TEST(OpBuildWithoutViewTest, ABuilderIsUsableAfterAFailure) {
    EXPECT_EQ(this->None(this->m_builder), nullptr);
    EXPECT_EQ(this->None(this->m_builder), nullptr);
    EXPECT_EQ(this->m_assertions.Take(), (VAssertionList{this->NoView()[0], this->NoView()[0]}));
    EXPECT_EQ(this->Print(*this->Other(this->m_builder)), this->kOtherPrint);
}

std::vector<std::wstring>* s_events = nullptr; // for the assertion handler, which cannot capture

TYPED_TEST(OpBuildWithoutViewTest, TheFailureIsLoggedBeforeItIsAsserted) {
    std::vector<std::wstring> events;
    s_events = &events;
    class VListener : public NLogging::ILogListener {
        void Log(int, std::wstring const& message) override { s_events->push_back(message); }
    } listener;
    NLogging::VSharedLogger::Instance()->SetLogger(&listener);
    {
        NPavonaUtil::VScopedAssertionHandler const handler(
            [](NPavonaUtil::VAssertion const& assertion) { s_events->push_back(assertion.expression); });
        this->None(this->m_builder);
    }
    NLogging::VSharedLogger::Instance()->SetLogger(nullptr);
    EXPECT_EQ(events, (std::vector<std::wstring>{this->kLogged, this->NoView()[0].expression}));
}

TYPED_TEST(OpBuildWithoutViewTest, AListenerThatLetsTheBuilderMakeTheViewPreventsTheAssertion) {
    VRecordedLog log([&] { this->First(this->m_builder); });
    std::unique_ptr<typename TestFixture::VView> const view(this->None(this->m_builder));
    EXPECT_EQ(this->m_assertions.Take(), VAssertionList{});
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(this->Print(*view), this->kPrint);
}

TYPED_TEST(OpBuildWithoutViewTest, ADisabledLoggerGetsNoMessage) {
    VRecordedLog log;
    NLogging::VSharedLogger::Instance()->Disable();
    EXPECT_EQ(this->None(this->m_builder), nullptr);
    EXPECT_EQ(log.Lines(), VLines{});
    EXPECT_EQ(this->m_assertions.Take(), this->NoView());
}

TYPED_TEST(OpBuildWithoutViewTest, WithoutAListenerTheFailureIsOnlyAsserted) {
    ASSERT_EQ(NLogging::VSharedLogger::Instance()->GetLogger(), nullptr);
    EXPECT_EQ(this->None(this->m_builder), nullptr);
    EXPECT_EQ(this->m_assertions.Take(), this->NoView());
}

using OpBuildGlobalNegResponseViewTest = OpBuildViewTest<VGlobalNegResponseRow>;

TEST_F(OpBuildGlobalNegResponseViewTest, BuilderWithoutViewIsSilent) {
    VRecordedLog log;
    EXPECT_EQ(None(m_builder), nullptr);
    EXPECT_EQ(log.Lines(), VLines{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    EXPECT_EQ(Print(*Other(m_builder)), kOtherPrint) << "the builder is usable afterwards";
}

// Those of layers.

/// A layer whose Accept does what the test sets.
class VScriptedLayer : public VMockEcuVariant {
public:
    explicit VScriptedLayer(std::function<void(NODX201::VDiagLayerVisitor&)> accept) : m_accept(std::move(accept)) {}
    void Accept(NODX201::VDiagLayerVisitor& visitor) override { m_accept(visitor); }

private:
    std::function<void(NODX201::VDiagLayerVisitor&)> m_accept;
};

template <class Row>
class OpBuildLayerViewTest : public OpBuildViewTest<Row> {
protected:
    using typename Row::VBuilder;
    using typename Row::VView;

    /// The view that the builder makes of a layer is the one that the constructor for that kind makes.
    template <class Kind>
    void ExpectViewOfKind(wchar_t const* name, wchar_t const* print) {
        VBuilder builder;
        std::unique_ptr<VView> const built(Row::Create(builder, Row::Layer(name)));
        ASSERT_NE(built, nullptr);
        VView direct(Row::template LayerAs<Kind>(name));
        EXPECT_TRUE(*built == direct);
        EXPECT_EQ(Row::Print(*built), print);
    }

    /// The view that a Visit operation called from a layer's Accept makes.
    std::wstring Visited(std::function<void(NODX201::VDiagLayerVisitor&)> accept) {
        VScriptedLayer layer(std::move(accept));
        VBuilder builder;
        return Row::Print(*std::unique_ptr<VView>(Row::Create(builder, layer)));
    }
};

using VLayerRows = testing::Types<VDiagCommRow, VDiagVariableRow, VDopRow, VGlobalNegResponseRow>;
TYPED_TEST_SUITE(OpBuildLayerViewTest, VLayerRows, VRowNames);

TYPED_TEST(OpBuildLayerViewTest, CreateMakesTheViewOfTheLayersKind) {
    this->template ExpectViewOfKind<NODX201::VEcuSharedData>(L"Lib", this->kRow.lib);
    this->template ExpectViewOfKind<NODX201::VProtocol>(L"Uds", this->kRow.uds);
    this->template ExpectViewOfKind<NODX201::VFunctionalGroup>(L"Doors", this->kRow.doors);
    this->template ExpectViewOfKind<NODX201::VBaseVariant>(L"Bv", this->kRow.bv);
    this->template ExpectViewOfKind<NODX201::VEcuVariant>(L"Ecu", this->kRow.ecu);
}

TYPED_TEST(OpBuildLayerViewTest, EachVisitOperationMakesTheViewOfItsLayer) {
    // clang-format off
    EXPECT_EQ(this->Visited([&](auto& visitor) { visitor.VisitEcuSharedData(this->template LayerAs<NODX201::VEcuSharedData>(L"Lib")); }), this->kRow.lib);
    EXPECT_EQ(this->Visited([&](auto& visitor) { visitor.VisitProtocol(this->template LayerAs<NODX201::VProtocol>(L"Uds")); }), this->kRow.uds);
    EXPECT_EQ(this->Visited([&](auto& visitor) { visitor.VisitFunctionalGroup(this->template LayerAs<NODX201::VFunctionalGroup>(L"Doors")); }), this->kRow.doors);
    EXPECT_EQ(this->Visited([&](auto& visitor) { visitor.VisitBaseVariant(this->template LayerAs<NODX201::VBaseVariant>(L"Bv")); }), this->kRow.bv);
    EXPECT_EQ(this->Visited([&](auto& visitor) { visitor.VisitEcuVariant(this->template LayerAs<NODX201::VEcuVariant>(L"Ecu")); }), this->kRow.ecu);
    // clang-format on
}

TYPED_TEST(OpBuildLayerViewTest, DispatchHandsTheLayerToTheVisitOperationOfItsKind) {
    EXPECT_EQ(this->Visited([&](auto& visitor) { visitor.DispatchDiagLayer(this->Layer(L"Uds")); }), this->kRow.uds);
}

#ifdef DIAGKIT_TEST_SLOTS
TYPED_TEST(OpBuildLayerViewTest, TheVisitOperationsKeepTheVisitorsPlaces) {
    using Builder = typename TestFixture::VBuilder;
    EXPECT_EQ(SlotsOf(&Builder::VisitBaseVariant, &Builder::VisitProtocol, &Builder::VisitFunctionalGroup,
                      &Builder::VisitEcuVariant, &Builder::VisitEcuSharedData, &Builder::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}
#endif

TYPED_TEST(OpBuildLayerViewTest, ADirectVisitMakesAViewThatTheNextCreateDestroys) {
    this->m_builder.VisitProtocol(this->template LayerAs<NODX201::VProtocol>(L"Uds"));
    EXPECT_EQ(this->Print(*this->Other(this->m_builder)), this->kOtherPrint);
}

TYPED_TEST(OpBuildLayerViewTest, AcceptThatVisitsNothingReportsNothingOnABuilderThatMadeAView) {
    // What it returns has been destroyed, so it must neither be used nor followed by another Create.
    VRecordedLog log;
    this->First(this->m_builder);
    EXPECT_NE(this->None(this->m_builder), nullptr);
    EXPECT_EQ(log.Lines(), VLines{});
    EXPECT_EQ(this->m_assertions.Take(), VAssertionList{});
}

TYPED_TEST(OpBuildLayerViewTest, AnExceptionFromTheModelLeavesTheBuilderEmpty) {
    VScriptedLayer throwing([](NODX201::VDiagLayerVisitor&) { throw std::runtime_error("no layer today"); });
    this->First(this->m_builder);
    EXPECT_THROW(this->Create(this->m_builder, throwing), std::runtime_error);
    EXPECT_EQ(this->Print(*this->Other(this->m_builder)), this->kOtherPrint);
}

// Those of parameters.

template <class Row>
class OpBuildParamViewTest : public OpBuildViewTest<Row> {};

using VParamRows = testing::Types<VInParamIfRow, VOutParamIfRow>;
TYPED_TEST_SUITE(OpBuildParamViewTest, VParamRows, VRowNames);

TYPED_TEST(OpBuildParamViewTest, CreateMakesTheViewOfTheDiagCommsKind) {
    EXPECT_EQ(this->Print(*this->Create(this->m_builder, this->m_service)), L"OfService");
    EXPECT_EQ(this->Print(*this->Create(this->m_builder, this->m_singleJob)), L"OfSingleJob");
    std::unique_ptr<typename TestFixture::VView> const last(this->Create(this->m_builder, this->m_multipleJob));
    EXPECT_EQ(this->Print(*last), L"OfMultipleJob");
}

TYPED_TEST(OpBuildParamViewTest, AMultipleEcuJobAsADiagCommIsLoggedAndAsserted) {
    VRecordedLog log;
    this->First(this->m_builder);
    EXPECT_EQ(this->None(this->m_builder), nullptr) << "the earlier view is gone as well";
    EXPECT_EQ(log.Lines(), (VLines{{0, this->kLogged}}));
    EXPECT_EQ(this->m_assertions.Take(), this->NoView());
}

TYPED_TEST(OpBuildParamViewTest, TheTagDecidesWhatADiagCommIsTakenFor) {
    VMockDiagService untagged(L"Untagged"); // a service without the tag of one
    EXPECT_EQ(this->Create(this->m_builder, untagged), nullptr);
    EXPECT_EQ(this->m_assertions.Take(), this->NoView());
}

using OpBuildOutParamIfViewTest = OpBuildViewTest<VOutParamIfRow>;

TEST_F(OpBuildOutParamIfViewTest, TheRangeIsPassedOnForAServiceAndIgnoredForAJob) {
    wchar_t const* const ofService[] = {L"OfResponse", L"OfService",  L"",
                                        L"OfService",  L"OfResponse", L"OfService OfResponse"};
    NDIAGKIT::VOutParamIfView* last = nullptr;
    for (int number = 0; number < 6; ++number) {
        auto const range = static_cast<NODX201::VSearchRange>(number);
        EXPECT_EQ(Print(*m_builder.CreateOutParamIfView(m_service, range)), ofService[number]);
        last = m_builder.CreateOutParamIfView(m_singleJob, range);
        EXPECT_EQ(Print(*last), L"OfSingleJob");
    }
    delete last; // all earlier views were destroyed in the next Create
}

// The one of containers.

using OpBuildProtocolViewTest = OpBuildViewTest<VProtocolRow>;

TEST_F(OpBuildProtocolViewTest, CreateMakesTheViewOfTheContainer) {
    std::unique_ptr<VView> const view(First(m_builder));
    EXPECT_TRUE(*view == VView(Subject()));
    EXPECT_EQ(Print(*view), kPrint);
}

TEST_F(OpBuildProtocolViewTest, AnExceptionFromTheModelLeavesTheBuilderEmpty) {
    class VThrowingLayer : public VMockEcuVariant {
    public:
        void Accept(NODX201::VDiagLayerVisitor&) override { throw std::runtime_error("no layer today"); }
    } throwing;
    class VContainer : public VMockElement<NODX201::VDiagLayerContainer> {
    public:
        wchar_t const* GetId() const override { return L""; }
        NODX201::VDiagLayerCollection& DiagLayerCollection() override { return m_layers; }
        class VLayers : public NODX201::VDiagLayerCollection {
        public:
            NODX201::VOdxObject* GetOwner() const override { return nullptr; }
            void Add(NODX201::VDiagLayer& layer) { m_elements.push_back(&layer); }
        } m_layers;
    } container;
    container.m_layers.Add(throwing);
    First(m_builder);
    EXPECT_THROW(m_builder.CreateProtocolView(container), std::runtime_error);
    EXPECT_EQ(Print(*Other(m_builder)), kOtherPrint);
}

} // namespace
} // namespace NTest
