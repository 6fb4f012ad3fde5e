// SPDX-License-Identifier: Apache-2.0

// Walking a whole layer, by visits to elements:
//
//     layer-walk/N         a VDiagLayerTraverser whose hooks are empty
//     layer-walk-bare/N    what it costs at least: recursive functions that ask the same questions of the same elements
//                          through the contract's interface, and do nothing with them
//     layer-walk-guarded/N a VGuardedDiagLayerTraverser whose hooks are empty, beside the same
//     dictionary-walk/N, dictionary-walk-bare/N
//                          a VDiagDataDictionarySpecTraverser in a layer that has nothing but a dictionary

#include <stdexcept>

#include <benchmark/benchmark.h>

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/Alternative.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/TraverserKinds.h>

#include "MakeWalk.h"

namespace NBench {
namespace {

using NDIAGKIT::As;

/// The bare walk. It knows the kinds of element that the layer of the benchmark holds and refuses every other.
class VBareWalk final : public NODX201::VDiagLayerVisitor,
                        public NODX201::VDiagCommVisitor,
                        public NODX201::VDopBaseVisitor,
                        public NODX201::VParamVisitor {
public:
    explicit VBareWalk(NODX201::VDiagLayer& layer) : m_layer(layer) {}

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
    void VisitEcuVariant(NODX201::VEcuVariant& x) override {
        ++m_visits;
        Layer(x);
        for (NODX201::IDiagVariableProxy& proxy : x.DiagVariableProxyCollection()) { Refuse(proxy.IsDiagVariable()); }
        for (NODX201::VVariableGroup& group : x.VariableGroupCollection())         { Refuse(group.GetShortName() != nullptr); }
        Refuse(x.EcuVariantPatternCollection().Count() > 0);
        Refuse(x.AutMethodCollection().Count() > 0);
        Refuse(x.HasDynDefinedSpec());
        Refuse(x.AccessLevelCollection().Count() > 0);
    }
    void VisitBaseVariant(NODX201::VBaseVariant&) override           { Refuse(true); }
    void VisitProtocol(NODX201::VProtocol&) override                 { Refuse(true); }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup&) override   { Refuse(true); }
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override       { Refuse(true); }

    void Layer(NODX201::VDiagLayer& x) {
        Refuse(x.HasAdminData());
        Refuse(x.CompanyDataCollection().Count() > 0);
        for (NODX201::VFunctClass& functClass : x.FunctClassCollection()) { Visit(functClass); }
        if (x.HasDiagDataDictionarySpec())                                { Dictionary(x.GetDiagDataDictionarySpec()); }
        for (NODX201::IDiagCommProxy& proxy : x.DiagCommProxyCollection()) {
            if (auto* const service = As<NODX201::VDiagService>(proxy.IsDiagService(), proxy)) { VisitDiagService(*service); }
            Refuse(proxy.IsSingleEcuJob());
            Refuse(proxy.IsDiagCommLink());
        }
        for (NODX201::VRequest& request : x.RequestCollection())    { Visit(request); }
        for (NODX201::VResponse& response : x.ResponseCollection()) { Visit(response); }
    }

    void Dictionary(NODX201::VDiagDataDictionarySpec& x) {
        Refuse(x.HasAdminData());
        for (NODX201::VDopBase& dop : x.DopBaseCollection())              { dop.Accept(*this); }
        for (NODX201::IEnvDataProxy& proxy : x.EnvDataProxyCollection())  { Refuse(proxy.IsEnvData()); }
        if (x.HasUnitSpec())                                              { Visit(x.GetUnitSpec()); }
        Refuse(x.TableCollection().Count() > 0);
    }

    void Visit(NODX201::VFunctClass& x) {
        ++m_visits;
        Refuse(x.HasAdminData());
    }

    void VisitDiagService(NODX201::VDiagService& x) override {
        ++m_visits;
        Refuse(x.HasAdminData());
        Refuse(x.SdgCollection().Count() > 0);
        Refuse(x.ComparamRefCollection().Count() > 0);
        for (NODX201::VFunctClassLink& link : x.FunctClassLinkCollection()) {
            if (link.HasFunctClass()) { Visit(link.GetFunctClass()); }
        }
        if (x.HasAudience()) { ++m_visits; }
        Refuse(x.RelatedDiagCommRefCollection().Count() > 0);
        if (x.HasRequestRef() && x.GetRequestRef().HasRequest()) { Visit(x.GetRequestRef().GetRequest()); }
        if (x.HasPosResponseLinkCollection()) {
            for (NODX201::VPosResponseLink& link : x.PosResponseLinkCollection()) {
                if (link.HasPosResponse()) { Visit(link.GetPosResponse()); }
            }
        }
        Refuse(x.HasNegResponseLinkCollection());
    }
    void VisitSingleEcuJob(NODX201::VSingleEcuJob&) override { Refuse(true); }

    void Visit(NODX201::VRequest& x) {
        ++m_visits;
        Refuse(x.HasAdminData());
        Params(x.ParamCollection());
    }
    void Visit(NODX201::VResponse& x) {
        ++m_visits;
        Refuse(x.HasAdminData());
        Params(x.ParamCollection());
    }

    void Params(NODX201::VParamCollection& params) {
        for (NODX201::VParam& param : params) { param.Accept(*this); }
    }

    void VisitCodedConst(NODX201::VCodedConst& x) override {
        ++m_visits;
        if (x.HasDiagCodedType()) { Leaf(x.GetDiagCodedType()); }
    }
    void VisitReserved(NODX201::VReserved& x) override {
        ++m_visits;
        if (x.HasDiagCodedType()) { Leaf(x.GetDiagCodedType()); }
    }
    void VisitValue(NODX201::VValue& x) override {
        ++m_visits;
        if (x.HasDopBaseLink() && x.GetDopBaseLink().HasDopBase(m_layer)) { x.GetDopBaseLink().GetDopBase().Accept(*this); }
    }
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam&) override { ++m_visits; }
    void VisitDynamic(NODX201::VDynamic&) override                           { Refuse(true); }
    void VisitLengthKey(NODX201::VLengthKey&) override                       { Refuse(true); }
    void VisitPhysConst(NODX201::VPhysConst&) override                       { Refuse(true); }
    void VisitSystem(NODX201::VSystem&) override                             { Refuse(true); }
    void VisitTableKey(NODX201::VTableKey&) override                         { Refuse(true); }
    void VisitTableStruct(NODX201::VTableStruct&) override                   { Refuse(true); }
    void VisitTableEntry(NODX201::VTableEntry&) override                     { Refuse(true); }

    void VisitStructure(NODX201::VStructure& x) override {
        ++m_visits;
        Refuse(x.HasAdminData());
        Params(x.ParamCollection());
    }
    void VisitDataObjectProp(NODX201::VDataObjectProp& x) override {
        ++m_visits;
        Refuse(x.HasAdminData());
        if (x.HasCompuMethod())                         { Visit(x.GetCompuMethod()); }
        if (x.HasDiagCodedType())                       { Leaf(x.GetDiagCodedType()); }
        if (x.HasPhysicalType())                        { Leaf(x.GetPhysicalType()); }
        Refuse(x.HasInternalConstr());
        if (x.HasUnitRef() && x.GetUnitRef().HasUnit()) { Visit(x.GetUnitRef().GetUnit()); }
    }
    void VisitEnvData(NODX201::VEnvData&) override                               { Refuse(true); }
    void VisitEnvDataDesc(NODX201::VEnvDataDesc&) override                       { Refuse(true); }
    void VisitStaticField(NODX201::VStaticField&) override                       { Refuse(true); }
    void VisitDynamicLengthField(NODX201::VDynamicLengthField&) override         { Refuse(true); }
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField&) override   { Refuse(true); }
    void VisitEndOfPduField(NODX201::VEndOfPduField&) override                   { Refuse(true); }
    void VisitMux(NODX201::VMux&) override                                       { Refuse(true); }
    void VisitDtcDop(NODX201::VDtcDop&) override                                 { Refuse(true); }

    void Visit(NODX201::VCompuMethod& x) {
        ++m_visits;
        if (x.HasCompuInternalToPhys()) { Visit(x.GetCompuInternalToPhys()); }
        Refuse(x.HasCompuPhysToInternal());
    }
    void Visit(NODX201::VCompuInternalToPhys& x) {
        ++m_visits;
        if (x.HasCompuScalesProgCodeChoice()) {
            NODX201::ICompuScalesProgCodeChoice& choice = x.GetCompuScalesProgCodeChoice();
            if (auto* const scales = As<NODX201::VCompuScaleCollection>(choice.IsCompuScales(), choice)) {
                for (NODX201::VCompuScale& scale : *scales) { Visit(scale); }
            }
            Refuse(choice.IsProgCode());
        }
        Refuse(x.HasCompuDefaultValue());
    }
    void Visit(NODX201::VCompuScale& x) {
        ++m_visits;
        if (x.HasLowerLimit()) { Leaf(x.GetLowerLimit()); }
        if (x.HasUpperLimit()) { Leaf(x.GetUpperLimit()); }
        Refuse(x.HasCompuInverseValue());
        if (x.HasCompuConstCompuRationalCoeffsChoice()) {
            NODX201::ICompuConstCompuRationalCoeffsChoice& choice = x.GetCompuConstCompuRationalCoeffsChoice();
            if (auto* const constant = As<NODX201::VCompuConst>(choice.IsCompuConst(), choice)) { Visit(*constant); }
            Refuse(choice.IsCompuRationalCoeffs());
        }
    }
    void Visit(NODX201::VCompuConst& x) {
        ++m_visits;
        if (x.HasVt()) { Leaf(x.GetVt()); }
    }

    void Visit(NODX201::VUnitSpec& x) {
        ++m_visits;
        Refuse(x.HasAdminData());
        Refuse(x.UnitGroupCollection().Count() > 0);
        for (NODX201::VUnit& unit : x.UnitCollection())                                { Visit(unit); }
        for (NODX201::VPhysicalDimension& dimension : x.PhysicalDimensionCollection()) { Leaf(dimension); }
    }
    void Visit(NODX201::VUnit& x) {
        ++m_visits;
        if (x.HasPhysicalDimensionRef() && x.GetPhysicalDimensionRef().HasPhysicalDimension()) {
            Leaf(x.GetPhysicalDimensionRef().GetPhysicalDimension());
        }
    }
    // clang-format on

    void Leaf(NODX201::VOdxElement&) { ++m_visits; }

    static void Refuse(bool isThere) {
        if (isThere) {
            throw std::logic_error("the bare walk does not know this kind of element");
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

/// The two ways through a layer: all of it, or its dictionary alone.
struct VWholeLayer : VWalk {
    using VWalk::VWalk;
    std::size_t Count() { return VCounting(*layer).Walk(); }
    static std::size_t WalkBare(VBareWalk& bare) { return bare.Walk(); }
    void Traverse(NDIAGKIT::VDiagLayerTraverser& traverser) const { traverser.TraverseDiagLayer(); }
};

struct VDictionaryAlone : VDictionaryWalk {
    using VDictionaryWalk::VDictionaryWalk;
    std::size_t Count() { return VCounting(*layer).WalkDictionary(*layer); }
    static std::size_t WalkBare(VBareWalk& bare) { return bare.WalkDictionary(); }
    void Traverse(NDIAGKIT::VDiagDataDictionarySpecTraverser& traverser) const {
        traverser.TraverseDiagDataDictionarySpec(layer->GetDiagDataDictionarySpec());
    }
};

/// The walk to measure, once what its links remember is the same for all, and all visit the same.
template <class Way>
struct VMeasuredWalk : Way {
    explicit VMeasuredWalk(benchmark::State& state) : Way(static_cast<std::size_t>(state.range(0))) {
        VBareWalk bare(*this->layer);
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
    VBareWalk bare(*walk.layer);
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
