// SPDX-License-Identifier: Apache-2.0

// Building and releasing, one after the other, the DIAG-COMM views of all ECU-VARIANTs over one shared stack of 2,000
// services, each with ten of its own. N is the number of ECU-VARIANTs; every one returns the same number of entries, so
// the time for each N shows whether the work is linear in them. For comparison, the bare loop of ListViewBench.h for
// each.

#include <vector>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/DiagCommView.h>

#include "ListViewBench.h"
#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VDiagCommView;

constexpr std::size_t kSharedServices = 2000;
constexpr std::size_t kOwnServices = 10;

void View(benchmark::State& state) {
    VVariants variants(kSharedServices, static_cast<std::size_t>(state.range(0)), kOwnServices);
    for (auto _ : state) {
        for (NMemory::VMemEcuVariant* const variant : variants.ecuVariants) {
            VDiagCommView view(*variant);
            benchmark::DoNotOptimize(view.Count());
        }
    }
}

void Bare(benchmark::State& state) {
    VVariants variants(kSharedServices, static_cast<std::size_t>(state.range(0)), kOwnServices);
    auto const shared = ElementsOf(VDiagCommView(*variants.ecuSharedData));
    auto const protocol = ElementsOf(VDiagCommView(*variants.protocol));
    auto const group = ElementsOf(VDiagCommView(*variants.functionalGroup));
    auto const base = ElementsOf(VDiagCommView(*variants.baseVariant));
    std::vector<std::vector<NODX201::VDiagComm*>> views;
    for (NMemory::VMemEcuVariant* const variant : variants.ecuVariants) {
        views.insert(views.end(),
                     {shared, protocol, group, shared, protocol, base, ElementsOf(VDiagCommView(*variant))});
    }
    BenchBareLists(state, views);
}

BENCHMARK(View)->Name("variant-views")->Arg(250)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(Bare)->Name("variant-views-bare")->Arg(250)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace NBench
