// SPDX-License-Identifier: Apache-2.0

// A search for an output parameter that finds nothing, in a service with N nested parameters, compared with a bare
// recursive walk over the same parameters: two visitors over the same abstract interface that only count.

#include <cstddef>

#include <benchmark/benchmark.h>

#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/OutParamIfView.h>

#include "MakeNestedParams.h"

namespace NBench {
namespace {

/// Counts the VALUE parameters below a parameter, including itself.
class VBareWalk : public NODX201::VParamVisitor, public NODX201::VDopBaseVisitor {
public:
    explicit VBareWalk(NODX201::VDiagLayer& layer) : m_layer(layer) {}

    std::size_t count = 0;

    void VisitValue(NODX201::VValue& param) override {
        ++count;
        if (param.HasDopBaseLink() && param.GetDopBaseLink().HasDopBase(m_layer)) {
            param.GetDopBaseLink().GetDopBase().Accept(*this);
        }
    }
    void VisitStructure(NODX201::VStructure& dop) override {
        for (NODX201::VParam& param : dop.ParamCollection()) {
            param.Accept(*this);
        }
    }
    void VisitEndOfPduField(NODX201::VEndOfPduField& dop) override {
        auto& link = dynamic_cast<NODX201::VBasicStructureLink&>(dop.GetBasicStructureEnvDataDescChoice());
        if (link.HasBasicStructure()) {
            link.GetBasicStructure().Accept(*this);
        }
    }
    void VisitMux(NODX201::VMux& dop) override {
        for (NODX201::VCase& muxCase : dop.CaseCollection()) {
            if (muxCase.HasStructureRef() && muxCase.GetStructureRef().HasStructure()) {
                muxCase.GetStructureRef().GetStructure().Accept(*this);
            }
        }
    }

    void VisitCodedConst(NODX201::VCodedConst&) override {}
    void VisitDynamic(NODX201::VDynamic&) override {}
    void VisitLengthKey(NODX201::VLengthKey&) override {}
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam&) override {}
    void VisitPhysConst(NODX201::VPhysConst&) override {}
    void VisitReserved(NODX201::VReserved&) override {}
    void VisitSystem(NODX201::VSystem&) override {}
    void VisitTableKey(NODX201::VTableKey&) override {}
    void VisitTableStruct(NODX201::VTableStruct&) override {}
    void VisitTableEntry(NODX201::VTableEntry&) override {}
    void VisitEnvData(NODX201::VEnvData&) override {}
    void VisitEnvDataDesc(NODX201::VEnvDataDesc&) override {}
    void VisitStaticField(NODX201::VStaticField&) override {}
    void VisitDynamicLengthField(NODX201::VDynamicLengthField&) override {}
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField&) override {}
    void VisitDataObjectProp(NODX201::VDataObjectProp&) override {}
    void VisitDtcDop(NODX201::VDtcDop&) override {}

private:
    NODX201::VDiagLayer& m_layer;
};

void Search(benchmark::State& state) {
    VNestedParams params(static_cast<std::size_t>(state.range(0)));
    NDIAGKIT::VOutParamIfView view(params.Service(), NODX201::VSearchRange::RequestAndResponses);
    for (auto _ : state) {
        if (view.FindParam(L"Param_absent", params.Layer()) != nullptr) {
            return state.SkipWithError("found what is not there");
        }
    }
}

void Bare(benchmark::State& state) {
    VNestedParams params(static_cast<std::size_t>(state.range(0)));
    NODX201::VResponse& response = *params.Layer().ResponseCollection().Begin();
    for (auto _ : state) {
        VBareWalk walk(params.Layer());
        for (NODX201::VParam& param : response.ParamCollection()) {
            param.Accept(walk);
        }
        if (walk.count != static_cast<std::size_t>(state.range(0))) {
            return state.SkipWithError("not every parameter is reached");
        }
    }
}

BENCHMARK(Search)->Name("out-param-search")->Arg(10000);
BENCHMARK(Bare)->Name("out-param-search-bare")->Arg(10000);

} // namespace
} // namespace NBench
