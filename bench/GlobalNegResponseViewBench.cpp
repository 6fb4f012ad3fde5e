// SPDX-License-Identifier: Apache-2.0

// Building the GLOBAL-NEG-RESPONSE view of an ECU-VARIANT over a stack of all five kinds of layer, by visible entries,
// compared with the bare loop of ListViewBench.h.

#include <diagkit/model/Responses.h>
#include <diagkit/tools/GlobalNegResponseView.h>

#include "ListViewBench.h"
#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VGlobalNegResponseView;

void View(benchmark::State& state) {
    VGlobalNegResponseStack stack(static_cast<std::size_t>(state.range(0)));
    BenchView<VGlobalNegResponseView>(state, *stack.ecuVariant);
}

void Bare(benchmark::State& state) {
    VGlobalNegResponseStack stack(static_cast<std::size_t>(state.range(0)));
    auto const shared = ElementsOf(VGlobalNegResponseView(*stack.ecuSharedData));
    auto const protocol = ElementsOf(VGlobalNegResponseView(*stack.protocol));
    BenchBareLists<NODX201::VGlobalNegResponse>(
        state, {shared, protocol, ElementsOf(VGlobalNegResponseView(*stack.functionalGroup)), shared, protocol,
                ElementsOf(VGlobalNegResponseView(*stack.baseVariant)),
                ElementsOf(VGlobalNegResponseView(*stack.ecuVariant))});
}

BENCHMARK(View)->Name("global-neg-response-view")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(Bare)->Name("global-neg-response-view-bare")->RangeMultiplier(10)->Range(1000, 100000);

} // namespace
} // namespace NBench
