// SPDX-License-Identifier: Apache-2.0

// Building the DIAG-VARIABLE view of an ECU-VARIANT, by visible entries, compared with the bare loop of
// ListViewBench.h.

#include <diagkit/model/DiagVariables.h>
#include <diagkit/tools/DiagVariableView.h>

#include "ListViewBench.h"
#include "MakeStack.h"

namespace NBench {
namespace {

using NDIAGKIT::VDiagVariableView;

void View(benchmark::State& state) {
    VDiagVariableStack stack(static_cast<std::size_t>(state.range(0)));
    BenchView<VDiagVariableView>(state, *stack.ecuVariant);
}

void Bare(benchmark::State& state) {
    VDiagVariableStack stack(static_cast<std::size_t>(state.range(0)));
    auto const shared = ElementsOf(VDiagVariableView(*stack.ecuSharedData));
    BenchBareLists<NODX201::VDiagVariable>(state, {shared, ElementsOf(VDiagVariableView(*stack.functionalGroup)),
                                                   shared, ElementsOf(VDiagVariableView(*stack.baseVariant)),
                                                   ElementsOf(VDiagVariableView(*stack.ecuVariant))});
}

BENCHMARK(View)->Name("diag-variable-view")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(Bare)->Name("diag-variable-view-bare")->RangeMultiplier(10)->Range(1000, 100000);

} // namespace
} // namespace NBench
