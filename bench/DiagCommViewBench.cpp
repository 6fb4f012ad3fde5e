// SPDX-License-Identifier: Apache-2.0

// Building the DIAG-COMM view of an ECU-VARIANT over a stack of all five kinds of layer, by visible entries:
//
//     diag-comm-view/N          the toolkit's implementation
//     diag-comm-view-bare/N     the minimum: for every entry of every view that the passes build, one
//                               insertion of its name into a set and one addition to a list
//     diag-comm-view-naive/N    a literal implementation of the rule: every name of a parent is searched in the list
//
// Each measurement includes the final release.

#include <algorithm>
#include <list>
#include <string_view>

#include <benchmark/benchmark.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/DiagCommView.h>

#include "ListViewBench.h"
#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VDiagCommView;

void View(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    BenchView<VDiagCommView>(state, *stack.ecuVariant);
}

void Bare(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    auto const shared = ElementsOf(VDiagCommView(*stack.ecuSharedData));
    auto const protocol = ElementsOf(VDiagCommView(*stack.protocol));
    BenchBareLists<NODX201::VDiagComm>(state, {shared, protocol, ElementsOf(VDiagCommView(*stack.functionalGroup)),
                                               shared, protocol, ElementsOf(VDiagCommView(*stack.baseVariant)),
                                               ElementsOf(VDiagCommView(*stack.ecuVariant))});
}

std::list<NODX201::VDiagComm*> Own(NODX201::VDiagLayer& layer) {
    std::list<NODX201::VDiagComm*> list;
    for (NODX201::IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
        list.push_back(dynamic_cast<NODX201::VDiagComm*>(&proxy));
    }
    return list;
}

std::list<NODX201::VDiagComm*> Merged(std::list<NODX201::VDiagComm*> list,
                                      std::list<NODX201::VDiagComm*> const& parent) {
    for (NODX201::VDiagComm* const inherited : parent) {
        std::wstring_view const name = inherited->GetShortName();
        auto const isOfName = [name](NODX201::VDiagComm* held) { return name == held->GetShortName(); };
        if (std::find_if(list.begin(), list.end(), isOfName) == list.end()) {
            list.push_back(inherited);
        }
    }
    return list;
}

std::list<NODX201::VDiagComm*> NaiveProtocol(VStack& stack) {
    return Merged(Own(*stack.protocol), Own(*stack.ecuSharedData));
}

void Naive(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        auto const group = Merged(Own(*stack.functionalGroup), NaiveProtocol(stack));
        auto const base = Merged(Merged(Own(*stack.baseVariant), group), NaiveProtocol(stack));
        auto const ecu = Merged(Own(*stack.ecuVariant), base);
        benchmark::DoNotOptimize(ecu.size());
    }
}

BENCHMARK(View)->Name("diag-comm-view")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(Bare)->Name("diag-comm-view-bare")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(Naive)->Name("diag-comm-view-naive")->RangeMultiplier(10)->Range(1000, 10000);

} // namespace
} // namespace NBench
