// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpResolveSnref.h>

#include <random>
#include <type_traits>

#include <diagkit/memory/Flash.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

#include "support/RandomGraph.h"
#include "support/Slots.h"
#include "tools/ContentGraph.h"
#include "tools/MockDop.h"
#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOpResolveSnref;
using NMemory::VReference;
using NODX201::VSearchRange;

static_assert(std::is_convertible_v<VOpResolveSnref*, NODX201::VAbstractSnrefResolver*>, "derived publicly");
static_assert(std::has_virtual_destructor_v<VOpResolveSnref>);
static_assert(!std::is_copy_constructible_v<VOpResolveSnref> && !std::is_copy_assignable_v<VOpResolveSnref>);

class OpResolveSnrefTest : public VParamTest {
protected:
    void StartNewResolver() { m_resolverInUse = std::make_unique<VOpResolveSnref>(); }
    VOpResolveSnref& Resolver() { return *m_resolverInUse; }

private:
    std::unique_ptr<VOpResolveSnref> m_resolverInUse = std::make_unique<VOpResolveSnref>();
};

TEST_F(OpResolveSnrefTest, OneDopViewIsBuiltForEachLayer) {
    VCountingLayer one;
    VCountingLayer two;
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", one), nullptr);
        EXPECT_EQ(Resolver().ResolveDataObjectPropSnref(L"Amp", one), nullptr);
    }
    EXPECT_EQ(one.m_timesAsked, 1);
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", two), nullptr);
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", one), nullptr);
    EXPECT_EQ(one.m_timesAsked, 1);
    EXPECT_EQ(two.m_timesAsked, 1);
    VOpResolveSnref another;
    EXPECT_EQ(another.ResolveDopBaseSnref(L"Volt", one), nullptr);
    EXPECT_EQ(one.m_timesAsked, 2) << "resolvers share nothing";
    // The sanitizers check that both views are destroyed with their resolver.
}

TEST_F(OpResolveSnrefTest, ADopAddedAfterTheFirstResolutionIsSeenByANewResolverOnly) {
    NMemory::VMemBaseVariant& parent = m_container.AddBaseVariant(L"Parent");
    m_layer.AddParentRef(parent);
    NODX201::VDopBase* const volt = &m_dictionary.AddDataObjectProp(L"Volt");
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", m_layer), volt);
    NODX201::VDopBase* const amp = &m_dictionary.AddDataObjectProp(L"Amp");
    NODX201::VDopBase* const ohm = &parent.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Ohm");
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Amp", m_layer), nullptr);
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Ohm", m_layer), nullptr);
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Ohm", parent), ohm) << "not asked before in that layer";
    VOpResolveSnref fresh;
    EXPECT_EQ(fresh.ResolveDopBaseSnref(L"Amp", m_layer), amp);
    EXPECT_EQ(fresh.ResolveDopBaseSnref(L"Ohm", m_layer), ohm);
}

TEST_F(OpResolveSnrefTest, OnlyDopViewsAreKept) {
    EXPECT_EQ(Resolver().ResolveDiagCommSnref(L"New", m_layer), nullptr);
    EXPECT_EQ(Resolver().ResolveDiagVariableSnref(L"New", m_layer), nullptr);
    EXPECT_EQ(Resolver().ResolveProtocolSnref(L"New", m_container), nullptr);
    NODX201::VDiagComm* const diagComm = &m_layer.AddDiagService(L"New");
    NODX201::VDiagVariable* const diagVariable = &m_layer.AddDiagVariable(L"New");
    NODX201::VProtocol* const protocol = &m_container.AddProtocol(L"New");
    EXPECT_EQ(Resolver().ResolveDiagCommSnref(L"New", m_layer), diagComm);
    EXPECT_EQ(Resolver().ResolveDiagVariableSnref(L"New", m_layer), diagVariable);
    EXPECT_EQ(Resolver().ResolveProtocolSnref(L"New", m_container), protocol);
}

TEST_F(OpResolveSnrefTest, AResolverOutlivesEditsAndTheDatabase) {
    auto database = std::make_unique<NMemory::VDatabase>();
    NMemory::VMemDiagLayerContainer& container = database->AddDiagLayerContainer(L"Edited");
    NMemory::VMemEcuVariant& one = container.AddEcuVariant(L"One");
    NMemory::VMemEcuVariant& two = container.AddEcuVariant(L"Two");
    NMemory::VMemDiagDataDictionarySpec& dictionary = one.MakeDiagDataDictionarySpec();
    NODX201::VDopBase* const volt = &dictionary.AddDataObjectProp(L"Volt");
    NODX201::VDopBase* const amp = &dictionary.AddDataObjectProp(L"Amp");
    NMemory::VMemDiagService& read = one.AddDiagService(L"Read");
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", one), volt);
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", two), nullptr);
    EXPECT_EQ(Resolver().ResolveDiagCommSnref(L"Read", one), &read);

    delete amp;
    delete &two; // a layer whose view is kept
    delete &read;
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", one), volt);
    EXPECT_EQ(Resolver().ResolveDiagCommSnref(L"Read", one), nullptr);
    database.reset();
    StartNewResolver(); // destroys the kept views after all elements that they contained
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Volt", m_layer), nullptr);
}

TEST_F(OpResolveSnrefTest, ADopOfAnotherKindIsNoDataObjectProp) {
    NODX201::VDataObjectProp* const prop = &m_dictionary.AddDataObjectProp(L"Prop");
    NODX201::VDopBase* const others[] = {&m_dictionary.AddStructure(L"Structure"), &m_dictionary.AddDtcDop(L"DtcDop"),
                                         &m_dictionary.AddEndOfPduField(L"EndOfPduField"), &m_dictionary.AddMux(L"Mux"),
                                         &m_dictionary.AddEnvDataDesc(L"EnvDataDesc")};
    EXPECT_EQ(Resolver().ResolveDataObjectPropSnref(L"Prop", m_layer), prop);
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"Prop", m_layer), prop);
    for (NODX201::VDopBase* const other : others) {
        EXPECT_EQ(Resolver().ResolveDopBaseSnref(other->GetShortName(), m_layer), other);
        EXPECT_EQ(Resolver().ResolveDataObjectPropSnref(other->GetShortName(), m_layer), nullptr);
    }
    EXPECT_EQ(Resolver().ResolveDataObjectPropSnref(L"Gone", m_layer), nullptr);
}

/// Asks every operation for the name; the operations that answered, by their numbers.
class OpResolveSnrefMatchTest : public OpResolveSnrefTest {
protected:
    void SetUp() override { AddAll(L"Name"); }

    void AddAll(wchar_t const* name) {
        m_dictionary.AddDataObjectProp(name);
        m_layer.AddDiagService(name);
        m_layer.AddDiagVariable(name);
        m_session.SetShortName(name);
        m_session.AddExpectedIdent(name);
        m_container.AddProtocol(name);
        NMemory::VMemPosResponse& response = PosResponse();
        response.AddValue(name);
        m_multipleJob.AddInputParam(name);
        m_multipleJob.AddOutputParam(name);
        m_singleJob.AddInputParam(name);
        m_singleJob.AddOutputParam(name);
    }

    std::wstring Answering(wchar_t const* name) {
        bool const answers[] = {
            Resolver().ResolveDopBaseSnref(name, m_layer) != nullptr,
            Resolver().ResolveDataObjectPropSnref(name, m_layer) != nullptr,
            Resolver().ResolveDiagCommSnref(name, m_layer) != nullptr,
            Resolver().ResolveDiagVariableSnref(name, m_layer) != nullptr,
            Resolver().ResolveIdentIfSnref(name, m_flash) != nullptr,
            Resolver().ResolveProtocolSnref(name, m_container) != nullptr,
            Resolver().ResolveSessionSnref(name, m_flash) != nullptr,
            Resolver().ResolveInParamIfSnref(name, m_multipleJob) != nullptr,
            Resolver().ResolveInParamIfSnref(name, m_singleJob) != nullptr,
            Resolver().ResolveInParamIfSnref(name, m_service) != nullptr,
            Resolver().ResolveOutParamIfSnref(name, m_multipleJob, m_layer) != nullptr,
            Resolver().ResolveOutParamIfSnref(name, m_singleJob, m_layer, VSearchRange::Nothing) != nullptr,
            Resolver().ResolveOutParamIfSnref(name, m_service, m_layer, VSearchRange::Responses) != nullptr,
        };
        std::wstring text;
        for (bool const answer : answers) {
            text += answer ? L'1' : L'0';
        }
        return text;
    }

    NMemory::VMemFlash& m_flash = m_database.AddFlash(L"Flash");
    NMemory::VMemSession& m_session = m_flash.AddEcuMem(L"EcuMem").GetMem().AddSession(L"Session");
};

constexpr wchar_t const* kAll = L"1111111111111";
constexpr wchar_t const* kNone = L"0000000000000";

TEST_F(OpResolveSnrefMatchTest, AShortNameMatchesExactly) {
    EXPECT_EQ(Answering(L"Name"), kAll);
    for (wchar_t const* const name : {L"name", L"NAME", L"Nam", L"Names", L" Name", L"Name "}) {
        EXPECT_EQ(Answering(name), kNone) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(OpResolveSnrefMatchTest, AnEmptyShortNameMatchesAnElementWithoutAName) {
    EXPECT_EQ(Answering(L""), kNone);
    AddAll(L"");
    StartNewResolver(); // the one that keeps its DOP view does not see the edit
    EXPECT_EQ(Answering(L""), kAll);
}

TEST_F(OpResolveSnrefMatchTest, NothingIsLoggedOrAssertedWhenNothingMatches) {
    VRecordedLog log;
    EXPECT_EQ(Answering(L"Gone"), kNone);
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"Name", MultipleJobAsDiagComm()), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

TEST_F(OpResolveSnrefMatchTest, AMultipleEcuJobAsADiagCommFindsNothing) {
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"Name", MultipleJobAsDiagComm()), nullptr);
    EXPECT_EQ(Resolver().ResolveOutParamIfSnref(L"Name", MultipleJobAsDiagComm(), m_layer, VSearchRange::Responses),
              nullptr);
}

TEST_F(OpResolveSnrefTest, OfTwoIdentsOfOneNameTheFirstInTheViewIsReturned) {
    NMemory::VMemFlash& flash = m_database.AddFlash(L"Flash");
    NMemory::VMemMem& mem = flash.AddEcuMem(L"EcuMem").GetMem();
    mem.AddSession(L"Empty");
    NMemory::VMemSession& session = mem.AddSession(L"Session");
    NODX201::IIdentIf* const first = &session.AddExpectedIdent(L"Ident");
    mem.AddSession(L"Session").AddExpectedIdent(L"Ident");
    NMemory::VMemSession& later = flash.AddEcuMem(L"Later").GetMem().AddSession(L"Later");
    later.AddExpectedIdent(L"Ident");
    EXPECT_EQ(Resolver().ResolveIdentIfSnref(L"Ident", flash), first);
    EXPECT_EQ(Resolver().ResolveSessionSnref(L"Session", flash), &session);
}

TEST_F(OpResolveSnrefTest, OwnIdentsAreNotFound) {
    NMemory::VMemFlash& flash = m_database.AddFlash(L"Flash");
    NMemory::VMemMem& mem = flash.AddEcuMem(L"EcuMem").GetMem();
    mem.AddSession(L"Session");
    mem.AddDatablock(L"Datablock").AddOwnIdent(L"Ident");
    EXPECT_EQ(Resolver().ResolveIdentIfSnref(L"Ident", flash), nullptr);
}

TEST_F(OpResolveSnrefTest, AnOutParamInsideAStructureIsFoundWhenNoneAtTheTopBearsTheName) {
    NMemory::VMemStructure& structure = m_dictionary.AddStructure(L"Structure");
    NODX201::IOutParamIf* const nested = &structure.AddValue(L"X");
    NMemory::VMemPosResponse& response = PosResponse();
    response.AddValue(L"Top").SetDopBaseLink(structure);
    EXPECT_EQ(Resolver().ResolveOutParamIfSnref(L"X", m_service, m_layer, VSearchRange::Responses), nested);
    NODX201::IOutParamIf* const top = &NegResponse().AddValue(L"X");
    EXPECT_EQ(Resolver().ResolveOutParamIfSnref(L"X", m_service, m_layer, VSearchRange::Responses), top);
}

TEST_F(OpResolveSnrefTest, TheSearchRangeDecidesForAServiceAndHasNoEffectForAJob) {
    NODX201::IOutParamIf* const request = &Request().AddValue(L"X");
    NODX201::IOutParamIf* const positive = &PosResponse().AddValue(L"X");
    NODX201::IOutParamIf* const negative = &NegResponse().AddValue(L"X");
    NODX201::IOutParamIf* const ofService[] = {positive, request, nullptr, request, positive, request, nullptr};
    NODX201::IOutParamIf* const ofJob = &m_singleJob.AddOutputParam(L"X");
    for (int range = 0; range < 7; ++range) {
        auto const searchRange = static_cast<VSearchRange>(range);
        EXPECT_EQ(Resolver().ResolveOutParamIfSnref(L"X", m_service, m_layer, searchRange), ofService[range]);
        EXPECT_EQ(Resolver().ResolveOutParamIfSnref(L"X", m_singleJob, m_layer, searchRange), ofJob);
    }
    m_service.SetRequestRef(VReference::ById(L"Gone"));
    EXPECT_EQ(Resolver().ResolveOutParamIfSnref(L"X", m_service, m_layer, VSearchRange::RequestAndNegResponses),
              negative);
}

TEST_F(OpResolveSnrefTest, InParamsAreThoseOfTheResponsesOrOfTheJob) {
    Request().AddValue(L"OfRequest");
    NODX201::IInParamIf* const negative = &NegResponse().AddValue(L"X");
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"X", m_service), negative);
    NODX201::IInParamIf* const positive = &PosResponse().AddValue(L"X");
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"X", m_service), positive);
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"OfRequest", m_service), nullptr);
    NODX201::IInParamIf* const single = &m_singleJob.AddInputParam(L"X");
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"X", m_singleJob), single);
    NODX201::IInParamIf* const multiple = &m_multipleJob.AddInputParam(L"X");
    EXPECT_EQ(Resolver().ResolveInParamIfSnref(L"X", m_multipleJob), multiple);
}

TEST_F(OpResolveSnrefTest, DataObjectPropsAreResolvedThroughTheOverridableOperation) {
    class VOverriding : public VOpResolveSnref {
    public:
        explicit VOverriding(NODX201::VDopBase* answer) : m_answer(answer) {}
        NODX201::VDopBase* ResolveDopBaseSnref(wchar_t const*, NODX201::VDiagLayer&) override { return m_answer; }
        NODX201::VDopBase* m_answer;
    };
    NMemory::VMemDataObjectProp& prop = m_dictionary.AddDataObjectProp(L"Prop");
    VOverriding overriding(&prop);
    EXPECT_EQ(overriding.ResolveDataObjectPropSnref(L"Anything", m_layer), &prop);
    overriding.m_answer = &m_dictionary.AddStructure(L"Structure");
    EXPECT_EQ(overriding.ResolveDataObjectPropSnref(L"Prop", m_layer), nullptr);
}

TEST_F(OpResolveSnrefTest, ALayerThatYieldsNoViewIsReportedByTheBuilderAtEveryCall) {
    VSilentLayer silent;
    VRecordedLog log;
    EXPECT_EQ(Resolver().ResolveDopBaseSnref(L"X", silent), nullptr);
    EXPECT_EQ(Resolver().ResolveDataObjectPropSnref(L"X", silent), nullptr);
    EXPECT_EQ(Resolver().ResolveDiagCommSnref(L"X", silent), nullptr);
    EXPECT_EQ(Resolver().ResolveDiagVariableSnref(L"X", silent), nullptr);
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"(mpDopView != 0)", L"OpBuildDopView", 85},
                                                   {L"(mpDopView != 0)", L"OpBuildDopView", 85},
                                                   {L"(mpDiagCommView != 0)", L"OpBuildDiagCommView", 83},
                                                   {L"(mpDiagVariableView != 0)", L"OpBuildDiagVariableView", 83}}));
    EXPECT_EQ(log.Lines().size(), 4u);
}

TEST_F(OpResolveSnrefTest, AnInheritedServiceMeansEachEcuVariantsOwnDop) {
    m_database.SetResolverFactory([] { return std::make_unique<VOpResolveSnref>(); });
    NMemory::VMemBaseVariant& base = m_container.AddBaseVariant(L"Base");
    NODX201::VDopBase* const ofBase = &base.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Volt");
    NMemory::VMemDiagService& service = base.AddDiagService(L"Read");
    NMemory::VMemPosResponse& response = base.AddPosResponse(L"Response");
    service.AddPosResponseRef(response);
    NMemory::VMemDopBaseLink& link = response.AddValue(L"Value").SetDopBaseLink(VReference::ByShortName(L"Volt"));
    auto const addVariant = [&](wchar_t const* name) -> NMemory::VMemEcuVariant& {
        NMemory::VMemEcuVariant& variant = m_container.AddEcuVariant(name);
        variant.AddParentRef(base);
        return variant;
    };
    NMemory::VMemEcuVariant& one = addVariant(L"One");
    NMemory::VMemEcuVariant& two = addVariant(L"Two");
    NMemory::VMemEcuVariant& plain = addVariant(L"Plain");
    NODX201::VDopBase* const ofOne = &one.MakeDiagDataDictionarySpec().AddDataObjectProp(L"Volt");
    NODX201::VDopBase* const ofTwo = &two.MakeDiagDataDictionarySpec().AddStructure(L"Volt");

    auto const meaning = [&](NODX201::VDiagLayer& layer) {
        return link.HasDopBase(layer) ? &link.GetDopBase() : nullptr;
    };
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(meaning(one), ofOne);
        EXPECT_EQ(meaning(two), ofTwo);
        EXPECT_EQ(meaning(plain), ofBase);
        EXPECT_EQ(meaning(base), ofBase);
        EXPECT_EQ(meaning(m_layer), nullptr) << "a layer that does not inherit from there";
    }
    EXPECT_EQ(m_database.GetResolver()->ResolveDiagCommSnref(L"Read", one), &service);
}

TEST_F(OpResolveSnrefTest, AnEntryOfALayerGivenAShortNameLaterIsLeftOutOfTheViewItWouldAsk) {
    m_database.SetResolverFactory([] { return std::make_unique<VOpResolveSnref>(); });
    m_layer.AddDiagCommRef(m_service).SetReference(VReference::ByShortName(L"Service"));
    NMemory::VMemDiagVariable& variable = m_layer.AddDiagVariable(L"Speed");
    m_layer.AddDiagVariableRef(variable).SetReference(VReference::ByShortName(L"Speed"));
    NDIAGKIT::VDiagCommView diagComms(m_layer);
    EXPECT_EQ(diagComms.Count(), 2u) << "the service and the job of the fixture";
    NDIAGKIT::VDiagVariableView diagVariables(m_layer);
    EXPECT_EQ(diagVariables.Count(), 1u);
    EXPECT_EQ(Resolver().ResolveDiagCommSnref(L"Service", m_layer), &m_service);
}

#ifdef DIAGKIT_TEST_SLOTS
TEST_F(OpResolveSnrefTest, TheOperationsStandInTheOrderOfTheInterface) {
    using NODX201::IInParamIf;
    using NODX201::IOutParamIf;
    using VInOfJob = IInParamIf* (VOpResolveSnref::*)(wchar_t const*, NODX201::VMultipleEcuJob&);
    using VInOfDiagComm = IInParamIf* (VOpResolveSnref::*)(wchar_t const*, NODX201::VDiagComm&);
    using VOutOfJob =
        IOutParamIf* (VOpResolveSnref::*)(wchar_t const*, NODX201::VMultipleEcuJob&, NODX201::VDiagLayer&);
    using VOutOfDiagComm =
        IOutParamIf* (VOpResolveSnref::*)(wchar_t const*, NODX201::VDiagComm&, NODX201::VDiagLayer&, VSearchRange);
    EXPECT_EQ(SlotsOf(&VOpResolveSnref::ResolveDopBaseSnref, &VOpResolveSnref::ResolveDataObjectPropSnref,
                      &VOpResolveSnref::ResolveDiagCommSnref, &VOpResolveSnref::ResolveDiagVariableSnref,
                      &VOpResolveSnref::ResolveIdentIfSnref, &VOpResolveSnref::ResolveProtocolSnref,
                      &VOpResolveSnref::ResolveSessionSnref,
                      static_cast<VInOfJob>(&VOpResolveSnref::ResolveInParamIfSnref),
                      static_cast<VInOfDiagComm>(&VOpResolveSnref::ResolveInParamIfSnref),
                      static_cast<VOutOfJob>(&VOpResolveSnref::ResolveOutParamIfSnref),
                      static_cast<VOutOfDiagComm>(&VOpResolveSnref::ResolveOutParamIfSnref)),
              SlotsAfterDestructor(11));
}
#endif

// Each operation compared with a linear search of its view. Those for parameters are in RandomParamsTest.

constexpr wchar_t const* kSearched[] = {L"a", L"b", L"c", L"d", L"e", L"A", L"B", L"", L"L1", L"L3", L"absent"};

template <class View>
auto FirstOfName(View& view, std::wstring const& name) {
    using Element = std::remove_reference_t<decltype(*view.Begin())>;
    for (Element& element : view) {
        if (dynamic_cast<NODX201::VOdxElement&>(element).GetShortName() == name) {
            return &element;
        }
    }
    return static_cast<Element*>(nullptr);
}

TEST(OpResolveSnrefRandomTest, OperationsOnLayersAgreeWithALinearSearchOfTheirViews) {
    int found = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        VGraph diagComms(plan);
        auto const dops = MakeContentGraph(plan, VContent::Dops);
        auto const diagVariables = MakeContentGraph(plan, VContent::DiagVariables);
        VOpResolveSnref resolver;
        for (VLayerPlan const& planned : plan.layers) {
            NDIAGKIT::VOpBuildDiagCommView diagCommBuilder;
            NDIAGKIT::VOpBuildDopView dopBuilder;
            NDIAGKIT::VOpBuildDiagVariableView diagVariableBuilder;
            NODX201::VDiagLayer& diagCommLayer = diagComms.Layer(planned.name);
            NODX201::VDiagLayer& dopLayer = dops->Layer(planned.name);
            NODX201::VDiagLayer& diagVariableLayer = diagVariables->Layer(planned.name);
            std::unique_ptr<NDIAGKIT::VDiagCommView> const diagCommView(
                diagCommBuilder.CreateDiagCommView(diagCommLayer));
            std::unique_ptr<NDIAGKIT::VDopView> const dopView(dopBuilder.CreateDopView(dopLayer));
            std::unique_ptr<NDIAGKIT::VDiagVariableView> const diagVariableView(
                diagVariableBuilder.CreateDiagVariableView(diagVariableLayer));
            for (wchar_t const* const name : kSearched) {
                NODX201::VDopBase* const dop = FirstOfName(*dopView, name);
                ASSERT_EQ(resolver.ResolveDopBaseSnref(name, dopLayer), dop) << "seed " << seed;
                ASSERT_EQ(resolver.ResolveDataObjectPropSnref(name, dopLayer),
                          dynamic_cast<NODX201::VDataObjectProp*>(dop))
                    << "seed " << seed;
                ASSERT_EQ(resolver.ResolveDiagCommSnref(name, diagCommLayer), FirstOfName(*diagCommView, name))
                    << "seed " << seed;
                ASSERT_EQ(resolver.ResolveDiagVariableSnref(name, diagVariableLayer),
                          FirstOfName(*diagVariableView, name))
                    << "seed " << seed;
                found += dop != nullptr ? 1 : 0;
            }
        }
        NDIAGKIT::VProtocolView protocolView(diagComms.Container());
        for (VLayerPlan const& planned : plan.layers) {
            ASSERT_EQ(resolver.ResolveProtocolSnref(planned.name.c_str(), diagComms.Container()),
                      FirstOfName(protocolView, planned.name))
                << "seed " << seed;
        }
    }
    EXPECT_GT(found, 1000);
}

TEST(OpResolveSnrefRandomTest, OperationsOnFlashesAgreeWithALinearSearchOfTheirViews) {
    int found = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        std::mt19937 random(seed);
        auto const below = [&random](std::uint32_t limit) { return static_cast<std::uint32_t>(random() % limit); };
        NMemory::VDatabase database;
        NMemory::VMemFlash& flash = database.AddFlash(L"Flash");
        for (std::uint32_t ecuMems = below(4); ecuMems > 0; --ecuMems) {
            NMemory::VMemMem& mem = flash.AddEcuMem(L"EcuMem").GetMem();
            for (std::uint32_t sessions = below(4); sessions > 0; --sessions) {
                NMemory::VMemSession& session = mem.AddSession(kSearched[below(8)]);
                for (std::uint32_t idents = below(4); idents > 0; --idents) {
                    session.AddExpectedIdent(kSearched[below(8)]);
                }
            }
        }
        VOpResolveSnref resolver;
        NDIAGKIT::VIdentIfView idents(flash);
        NDIAGKIT::VSessionView sessions(flash);
        for (wchar_t const* const name : kSearched) {
            NODX201::IIdentIf* const ident = FirstOfName(idents, name);
            ASSERT_EQ(resolver.ResolveIdentIfSnref(name, flash), ident) << "seed " << seed;
            ASSERT_EQ(resolver.ResolveSessionSnref(name, flash), FirstOfName(sessions, name)) << "seed " << seed;
            found += ident != nullptr ? 1 : 0;
        }
    }
    EXPECT_GT(found, 300);
}

} // namespace
} // namespace NTest
