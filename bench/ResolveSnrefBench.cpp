// SPDX-License-Identifier: Apache-2.0

// Short-name resolution in an ECU-VARIANT over a stack of all five kinds of layer, by visible entries:
//
//     resolve-dop/N               100,000 names, each visible one alike often, in mixed order, through a new resolver,
//                                 which builds and releases its view
//     resolve-dop-bare/N          the same names in a map of the same entries
//     resolve-diag-comm/N         one name of the middle
//     resolve-diag-comm-bare/N    building the view, one search, releasing the view

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Dops.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/DopView.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VDopView;
using NDIAGKIT::VOpResolveSnref;

constexpr std::size_t kNames = 100000;

std::vector<wchar_t const*> NamesIn(VDopView&& view) {
    std::vector<wchar_t const*> names;
    while (names.size() < kNames) {
        for (NODX201::VDopBase& dop : view) {
            names.push_back(dop.GetShortName());
        }
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

void ResolveDop(benchmark::State& state) {
    VDopStack stack(static_cast<std::size_t>(state.range(0)));
    std::vector<wchar_t const*> const names = NamesIn(VDopView(*stack.ecuVariant));
    for (auto _ : state) {
        VOpResolveSnref resolver;
        for (wchar_t const* const name : names) {
            benchmark::DoNotOptimize(resolver.ResolveDopBaseSnref(name, *stack.ecuVariant));
        }
    }
}

void ResolveDopBare(benchmark::State& state) {
    VDopStack stack(static_cast<std::size_t>(state.range(0)));
    std::vector<wchar_t const*> const names = NamesIn(VDopView(*stack.ecuVariant));
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

std::wstring MiddleNameIn(NDIAGKIT::VDiagCommView&& view) {
    auto middle = view.Begin();
    for (unsigned long long number = 0; number < view.Count() / 2; ++number) {
        ++middle;
    }
    return (*middle).GetShortName();
}

void ResolveDiagComm(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    std::wstring const name = MiddleNameIn(NDIAGKIT::VDiagCommView(*stack.ecuVariant));
    VOpResolveSnref resolver;
    for (auto _ : state) {
        benchmark::DoNotOptimize(resolver.ResolveDiagCommSnref(name.c_str(), *stack.ecuVariant));
    }
}

void ResolveDiagCommBare(benchmark::State& state) {
    VDiagCommStack stack(static_cast<std::size_t>(state.range(0)));
    std::wstring const name = MiddleNameIn(NDIAGKIT::VDiagCommView(*stack.ecuVariant));
    for (auto _ : state) {
        NDIAGKIT::VDiagCommView view(*stack.ecuVariant);
        benchmark::DoNotOptimize(&*view.Find(name.c_str()));
    }
}

BENCHMARK(ResolveDop)->Name("resolve-dop")->Arg(10000);
BENCHMARK(ResolveDopBare)->Name("resolve-dop-bare")->Arg(10000);
BENCHMARK(ResolveDiagComm)->Name("resolve-diag-comm")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(ResolveDiagCommBare)->Name("resolve-diag-comm-bare")->RangeMultiplier(10)->Range(1000, 100000);

} // namespace
} // namespace NBench
