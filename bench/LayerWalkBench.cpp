// SPDX-License-Identifier: Apache-2.0

// Walking a whole layer, by visits to elements:
//
//     layer-walk/N         a VDiagLayerTraverser whose hooks are empty
//     layer-walk-bare/N    the minimum: recursive functions that make the same calls to the same elements
//                          through the contract's interface, and do nothing with the results
//     layer-walk-guarded/N a VGuardedDiagLayerTraverser whose hooks are empty, compared with the same
//     dictionary-walk/N, dictionary-walk-bare/N
//                          a VDiagDataDictionarySpecTraverser in a layer that has only a dictionary

#include <stdexcept>

#include <benchmark/benchmark.h>

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/TraverserKinds.h>

#include "MakeWalk.h"

namespace NBench {
namespace {

/// The recursion. It knows the kinds of element in the layer of the benchmark and refuses every other.
class VRecursion final : public NODX201::VDiagLayerVisitor,
                         public NODX201::VDiagCommVisitor,
                         public NODX201::VDopBaseVisitor,
                         public NODX201::VParamVisitor {
public:
    explicit VRecursion(NODX201::VDiagLayer& layer) : m_layer(layer) {}

    std::size_t Walk() {
        m_visits = 0;
        m_layer.Accept(*this);
        return m_visits;
    }

    std::size_t WalkDictionary() {
        m_visits = 0;
        Dictionary(m_layer.GetDiagDataDictionarySpec());
        return m_visits;
    }

private:
    // clang-format off
#define CHILD(name)        if (x.Has##name()) { Visit(x.Get##name()); }
#define NO_CHILD(name)     Refuse(x.Has##name());
#define LIST(name)         for (auto& entry : x.name##Collection()) { Visit(entry); }
#define NO_LIST(name)      Refuse(x.name##Collection().Count() > 0);
#define TARGET(link, name) if (x.Has##link() && x.Get##link().Has##name()) { Visit(x.Get##link().Get##name()); }
#define TARGETS(name)      for (auto& link : x.name##LinkCollection()) { if (link.Has##name()) { Visit(link.Get##name()); } }

    void Dictionary(NODX201::VDiagDataDictionarySpec& x) { NO_CHILD(AdminData) LIST(DopBase) NO_LIST(EnvDataProxy) CHILD(UnitSpec) NO_LIST(Table) }

    void Visit(NODX201::VEcuVariant& x) {
        ++m_visits; NO_CHILD(AdminData) NO_LIST(CompanyData) LIST(FunctClass)
        if (x.HasDiagDataDictionarySpec()) { Dictionary(x.GetDiagDataDictionarySpec()); }
        LIST(DiagCommProxy) LIST(Request) LIST(Response) NO_LIST(DiagVariableProxy) NO_LIST(VariableGroup)
        NO_LIST(EcuVariantPattern) NO_LIST(AutMethod) NO_CHILD(DynDefinedSpec) NO_LIST(AccessLevel)
    }
    void Visit(NODX201::VDiagService& x) {
        ++m_visits; NO_CHILD(AdminData) NO_LIST(Sdg) NO_LIST(ComparamRef) TARGETS(FunctClass) CHILD(Audience) NO_LIST(RelatedDiagCommRef)
        TARGET(RequestRef, Request) if (x.HasPosResponseLinkCollection()) { TARGETS(PosResponse) } NO_CHILD(NegResponseLinkCollection)
    }
    void Visit(NODX201::IDiagCommProxy& x)       { Visit(As<NODX201::VDiagService>(x.IsDiagService() && !x.IsSingleEcuJob() && !x.IsDiagCommLink(), x)); }
    void Visit(NODX201::VDopBase& x)             { x.Accept(*this); }
    void Visit(NODX201::VParam& x)               { x.Accept(*this); }
    void Visit(NODX201::VOdxElement&)            { ++m_visits; } // without children
    void Visit(NODX201::VFunctClass& x)          { ++m_visits; NO_CHILD(AdminData) }
    void Visit(NODX201::VRequest& x)             { ++m_visits; NO_CHILD(AdminData) LIST(Param) }
    void Visit(NODX201::VResponse& x)            { ++m_visits; NO_CHILD(AdminData) LIST(Param) }
    void Visit(NODX201::VStructure& x)           { ++m_visits; NO_CHILD(AdminData) LIST(Param) }
    void Visit(NODX201::VCodedConst& x)          { ++m_visits; CHILD(DiagCodedType) }
    void Visit(NODX201::VReserved& x)            { ++m_visits; CHILD(DiagCodedType) }
    void Visit(NODX201::VMatchingRequestParam&)  { ++m_visits; }
    void Visit(NODX201::VValue& x)               { ++m_visits; if (x.HasDopBaseLink() && x.GetDopBaseLink().HasDopBase(m_layer)) { Visit(x.GetDopBaseLink().GetDopBase()); } }
    void Visit(NODX201::VDataObjectProp& x)      { ++m_visits; NO_CHILD(AdminData) CHILD(CompuMethod) CHILD(DiagCodedType) CHILD(PhysicalType) NO_CHILD(InternalConstr) TARGET(UnitRef, Unit) }
    void Visit(NODX201::VCompuMethod& x)         { ++m_visits; CHILD(CompuInternalToPhys) NO_CHILD(CompuPhysToInternal) }
    void Visit(NODX201::VCompuInternalToPhys& x) { ++m_visits; CHILD(CompuScalesProgCodeChoice) NO_CHILD(CompuDefaultValue) }
    void Visit(NODX201::ICompuScalesProgCodeChoice& x) { for (auto& scale : As<NODX201::VCompuScaleCollection>(x.IsCompuScales() && !x.IsProgCode(), x)) { Visit(scale); } }
    void Visit(NODX201::VCompuScale& x)          { ++m_visits; CHILD(LowerLimit) CHILD(UpperLimit) NO_CHILD(CompuInverseValue) CHILD(CompuConstCompuRationalCoeffsChoice) }
    void Visit(NODX201::ICompuConstCompuRationalCoeffsChoice& x) { Visit(As<NODX201::VCompuConst>(x.IsCompuConst() && !x.IsCompuRationalCoeffs(), x)); }
    void Visit(NODX201::VCompuConst& x)          { ++m_visits; CHILD(Vt) }
    void Visit(NODX201::VUnitSpec& x)            { ++m_visits; NO_CHILD(AdminData) NO_LIST(UnitGroup) LIST(Unit) LIST(PhysicalDimension) }
    void Visit(NODX201::VUnit& x)                { ++m_visits; TARGET(PhysicalDimensionRef, PhysicalDimension) }

#undef TARGETS
#undef TARGET
#undef NO_LIST
#undef LIST
#undef NO_CHILD
#undef CHILD

#define VISITED(kind) void Visit##kind(NODX201::V##kind& x) override { Visit(x); }
    VISITED(EcuVariant) VISITED(DiagService) VISITED(CodedConst) VISITED(Reserved) VISITED(Value) VISITED(MatchingRequestParam)
    VISITED(Structure) VISITED(DataObjectProp)
#undef VISITED
#define REFUSED(kind) void Visit##kind(NODX201::V##kind&) override { Refuse(true); }
    REFUSED(BaseVariant) REFUSED(Protocol) REFUSED(FunctionalGroup) REFUSED(EcuSharedData) REFUSED(SingleEcuJob)
    REFUSED(Dynamic) REFUSED(LengthKey) REFUSED(PhysConst) REFUSED(System) REFUSED(TableKey) REFUSED(TableStruct)
    REFUSED(TableEntry) REFUSED(EnvData) REFUSED(EnvDataDesc) REFUSED(StaticField) REFUSED(DynamicLengthField)
    REFUSED(DynamicEndmarkerField) REFUSED(EndOfPduField) REFUSED(Mux) REFUSED(DtcDop)
#undef REFUSED
        // clang-format on

        template <class Alternative, class Interface>
        static Alternative& As(bool isAlternative, Interface& choice) {
        Refuse(!isAlternative);
        return dynamic_cast<Alternative&>(choice);
    }

    static void Refuse(bool isThere) {
        if (isThere) {
            throw std::logic_error("the recursion does not know this kind of element");
        }
    }

    NODX201::VDiagLayer& m_layer;
    std::size_t m_visits = 0;
};

class VCounting : public NDIAGKIT::VDiagLayerTraverser {
public:
    using VDiagLayerTraverser::VDiagLayerTraverser;

    std::size_t Walk() {
        TraverseDiagLayer();
        return m_visits;
    }

    std::size_t WalkDictionary(NODX201::VDiagLayer& layer) {
        TraverseDiagDataDictionarySpec(layer.GetDiagDataDictionarySpec());
        return m_visits;
    }

protected:
    void DefaultVisit(NODX201::VOdxElement&) override { ++m_visits; }

private:
    std::size_t m_visits = 0;
};

/// The two ways through a layer: all of it, or only its dictionary.
struct VWholeLayer : VServiceLayer {
    using VServiceLayer::VServiceLayer;
    std::size_t Count() { return VCounting(*layer).Walk(); }
    static std::size_t WalkBare(VRecursion& bare) { return bare.Walk(); }
    void Traverse(NDIAGKIT::VDiagLayerTraverser& traverser) const { traverser.TraverseDiagLayer(); }
};

struct VDictionaryAlone : VDictionaryLayer {
    using VDictionaryLayer::VDictionaryLayer;
    std::size_t Count() { return VCounting(*layer).WalkDictionary(*layer); }
    static std::size_t WalkBare(VRecursion& bare) { return bare.WalkDictionary(); }
    void Traverse(NDIAGKIT::VDiagDataDictionarySpecTraverser& traverser) const {
        traverser.TraverseDiagDataDictionarySpec(layer->GetDiagDataDictionarySpec());
    }
};

/// The walk to measure, after its links have remembered their targets, and after a check that all visit the same.
template <class Way>
struct VMeasuredWalk : Way {
    explicit VMeasuredWalk(benchmark::State& state) : Way(static_cast<std::size_t>(state.range(0))) {
        VRecursion bare(*this->layer);
        std::size_t const visits = this->Count();
        if (visits != Way::WalkBare(bare) || visits < static_cast<std::size_t>(state.range(0))) {
            throw std::logic_error("the walks differ, or are too short");
        }
        state.counters["visits"] = static_cast<double>(visits);
    }
};

template <class Way>
void BareWalk(benchmark::State& state) {
    VMeasuredWalk<Way> walk(state);
    VRecursion bare(*walk.layer);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Way::WalkBare(bare));
    }
}

template <class Way, class Traverser>
void Walk(benchmark::State& state) {
    VMeasuredWalk<Way> walk(state);
    Traverser traverser(*walk.layer);
    for (auto _ : state) {
        walk.Traverse(traverser);
    }
}

// clang-format off
BENCHMARK(Walk<VWholeLayer, NDIAGKIT::VDiagLayerTraverser>)->Name("layer-walk")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareWalk<VWholeLayer>)->Name("layer-walk-bare")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Walk<VWholeLayer, NDIAGKIT::VGuardedDiagLayerTraverser>)->Name("layer-walk-guarded")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareWalk<VWholeLayer>)->Name("layer-walk-guarded-bare")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Walk<VDictionaryAlone, NDIAGKIT::VDiagDataDictionarySpecTraverser>)->Name("dictionary-walk")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareWalk<VDictionaryAlone>)->Name("dictionary-walk-bare")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
// clang-format on

} // namespace
} // namespace NBench
