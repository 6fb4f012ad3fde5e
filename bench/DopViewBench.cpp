// SPDX-License-Identifier: Apache-2.0

// Building the DOP view of an ECU-VARIANT over a stack of all five kinds of layer, by visible entries, compared with a
// bare loop: for every entry of every view that the passes build, one insertion into a map of the same kind, in the
// order in which the view gets it, own DOPs first.

#include <unordered_set>

#include <diagkit/memory/Dops.h>
#include <diagkit/tools/DopView.h>

#include "ListViewBench.h"
#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VDopView;
using VDops = std::vector<NODX201::VDopBase*>;

template <class Layer>
VDops EntriesOf(Layer& layer) {
    VDops entries = ElementsOf(layer.GetDiagDataDictionarySpec().DopBaseCollection());
    std::unordered_set<NODX201::VDopBase*> const own(entries.begin(), entries.end());
    for (NODX201::VDopBase* const dop : ElementsOf(VDopView(layer))) {
        if (own.count(dop) == 0) {
            entries.push_back(dop);
        }
    }
    return entries;
}

void View(benchmark::State& state) {
    VDopStack stack(static_cast<std::size_t>(state.range(0)));
    BenchView<VDopView>(state, *stack.ecuVariant);
}

void Bare(benchmark::State& state) {
    VDopStack stack(static_cast<std::size_t>(state.range(0)));
    VDops const shared = EntriesOf(*stack.ecuSharedData);
    VDops const protocol = EntriesOf(*stack.protocol);
    std::vector<VDops> const views{shared,
                                   protocol,
                                   EntriesOf(*stack.functionalGroup),
                                   shared,
                                   protocol,
                                   EntriesOf(*stack.baseVariant),
                                   EntriesOf(*stack.ecuVariant)};
    for (auto _ : state) {
        for (VDops const& dops : views) {
            VDopView::Map map;
            for (NODX201::VDopBase* const dop : dops) {
                map.emplace(dop->GetShortName(), dop);
            }
            benchmark::DoNotOptimize(map.size());
        }
    }
}

BENCHMARK(View)->Name("dop-view")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(Bare)->Name("dop-view-bare")->RangeMultiplier(10)->Range(1000, 100000);

} // namespace
} // namespace NBench
