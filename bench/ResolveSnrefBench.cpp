// SPDX-License-Identifier: Apache-2.0

// Short-name resolution in an ECU-VARIANT over a stack of all five kinds of layer. By names, with 10,000 DOPs visible:
//
//     resolve-dop/N                   N names, each visible one equally often, in mixed order, through a new resolver,
//                                     which builds and releases its view
//     resolve-data-object-prop/N      the same names, where only a DATA-OBJECT-PROP is accepted
//     resolve-dop-bare/N and so on    the same names in a map of the same entries
//
// By visible entries:
//
//     resolve-diag-comm/N             one name of the middle
//     resolve-diag-comm-bare/N        building the view, one search, releasing the view
//     resolve-diag-variable/N, resolve-diag-variable-bare/N
//                                     the same

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/DiagVariableView.h>
#include <diagkit/tools/DopView.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VDopView;
using NDIAGKIT::VOpResolveSnref;

constexpr std::size_t kVisibleDops = 10000;

std::vector<wchar_t const*> NamesIn(VDopView&& view, std::size_t count) {
    std::vector<wchar_t const*> names;
    while (names.size() < count) {
        for (NODX201::VDopBase& dop : view) {
            names.push_back(dop.GetShortName());
        }
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

/// Calls `resolve` with a new resolver, each name and the layer.
template <class Resolve>
void BenchNames(benchmark::State& state, Resolve resolve) {
    VDopStack stack(kVisibleDops);
    std::vector<wchar_t const*> const names =
        NamesIn(VDopView(*stack.ecuVariant), static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        VOpResolveSnref resolver;
        for (wchar_t const* const name : names) {
            benchmark::DoNotOptimize(resolve(resolver, name, *stack.ecuVariant));
        }
    }
}

void ResolveDop(benchmark::State& state) {
    BenchNames(state, [](VOpResolveSnref& resolver, wchar_t const* name, NODX201::VDiagLayer& layer) {
        return resolver.ResolveDopBaseSnref(name, layer);
    });
}

void ResolveDataObjectProp(benchmark::State& state) {
    BenchNames(state, [](VOpResolveSnref& resolver, wchar_t const* name, NODX201::VDiagLayer& layer) {
        return resolver.ResolveDataObjectPropSnref(name, layer);
    });
}

void ResolveDopBare(benchmark::State& state) {
    VDopStack stack(kVisibleDops);
    std::vector<wchar_t const*> const names =
        NamesIn(VDopView(*stack.ecuVariant), static_cast<std::size_t>(state.range(0)));
    std::map<std::wstring, NODX201::VDopBase*> dops;
    VDopView view(*stack.ecuVariant);
    for (NODX201::VDopBase& dop : view) {
        dops.emplace(dop.GetShortName(), &dop);
    }
    for (auto _ : state) {
        for (wchar_t const* const name : names) {
            benchmark::DoNotOptimize(dops.find(name)->second);
        }
    }
}

template <class View>
std::wstring MiddleNameIn(View&& view) {
    auto middle = view.Begin();
    for (unsigned long long number = 0; number < view.Count() / 2; ++number) {
        ++middle;
    }
    return (*middle).GetShortName();
}

/// Calls `resolve` with one resolver, a name of the middle of the view and the layer.
template <class Stack, class View, class Resolve>
void BenchOneName(benchmark::State& state, Resolve resolve) {
    Stack stack(static_cast<std::size_t>(state.range(0)));
    std::wstring const name = MiddleNameIn(View(*stack.ecuVariant));
    VOpResolveSnref resolver;
    for (auto _ : state) {
        benchmark::DoNotOptimize(resolve(resolver, name.c_str(), *stack.ecuVariant));
    }
}

template <class Stack, class View>
void OneNameBare(benchmark::State& state) {
    BenchOneName<Stack, View>(
        state, [](VOpResolveSnref&, wchar_t const* name, auto& layer) { return &*View(layer).Find(name); });
}

void ResolveDiagComm(benchmark::State& state) {
    BenchOneName<VDiagCommStack, NDIAGKIT::VDiagCommView>(
        state, [](VOpResolveSnref& resolver, wchar_t const* name, NODX201::VDiagLayer& layer) {
            return resolver.ResolveDiagCommSnref(name, layer);
        });
}

void ResolveDiagVariable(benchmark::State& state) {
    BenchOneName<VDiagVariableStack, NDIAGKIT::VDiagVariableView>(
        state, [](VOpResolveSnref& resolver, wchar_t const* name, NODX201::VDiagLayer& layer) {
            return resolver.ResolveDiagVariableSnref(name, layer);
        });
}

// clang-format off
BENCHMARK(ResolveDop)->Name("resolve-dop")->Arg(100000)->Arg(1000000);
BENCHMARK(ResolveDopBare)->Name("resolve-dop-bare")->Arg(100000)->Arg(1000000);
BENCHMARK(ResolveDataObjectProp)->Name("resolve-data-object-prop")->Arg(1000000);
BENCHMARK(ResolveDopBare)->Name("resolve-data-object-prop-bare")->Arg(1000000);
BENCHMARK(ResolveDiagComm)->Name("resolve-diag-comm")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK_TEMPLATE(OneNameBare, VDiagCommStack, NDIAGKIT::VDiagCommView)->Name("resolve-diag-comm-bare")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(ResolveDiagVariable)->Name("resolve-diag-variable")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK_TEMPLATE(OneNameBare, VDiagVariableStack, NDIAGKIT::VDiagVariableView)->Name("resolve-diag-variable-bare")->RangeMultiplier(10)->Range(1000, 100000);
// clang-format on

} // namespace
} // namespace NBench
