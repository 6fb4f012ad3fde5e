// SPDX-License-Identifier: Apache-2.0

// The cost of reasons, in an ECU-VARIANT over a stack of all five kinds of layer, by visible entries:
//
//     view-reasons/N    its DIAG-COMMs with the way of each, and what is hidden and excluded
//     explain/N         one DIAG-COMM, which comes from the far end of the stack
//
// each compared with the plain view of the layer.

#include <benchmark/benchmark.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/query/Explain.h>
#include <diagkit/query/LayerView.h>
#include <diagkit/tools/DiagCommView.h>

#include "ListViewBench.h"
#include "MakeStack.h"

namespace NBench {
namespace {

void PlainView(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    BenchView<NDIAGKIT::VDiagCommView>(state, *stack.ecuVariant);
}

void ViewReasons(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(NQuery::ViewOf(*stack.ecuVariant, NQuery::VInheritedKind::DiagComm).entries.size());
    }
}

void Explain(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    auto const shared = ElementsOf(NDIAGKIT::VDiagCommView(*stack.ecuSharedData));
    std::wstring const name = shared.back()->GetShortName();
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            NQuery::Explain(stack.database, *stack.ecuVariant, NQuery::VInheritedKind::DiagComm, name)
                .candidates.size());
    }
}

BENCHMARK(ViewReasons)->Name("view-reasons")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(PlainView)->Name("view-reasons-bare")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(Explain)->Name("explain")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(PlainView)->Name("explain-bare")->RangeMultiplier(10)->Range(1000, 100000);

} // namespace
} // namespace NBench
