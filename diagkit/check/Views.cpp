// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Views.h>

#include <memory>

#include <diagkit/model/Layers.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>

namespace NCheck {
namespace {

template <class Element, class View>
std::vector<Element*> EntriesOf(View& view) {
    std::vector<Element*> entries;
    for (Element& element : view) {
        entries.push_back(&element);
    }
    return entries;
}

} // namespace

std::vector<NODX201::VDiagComm*> DiagCommsIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagCommView builder;
    std::unique_ptr<NDIAGKIT::VDiagCommView> const view(builder.CreateDiagCommView(layer));
    return EntriesOf<NODX201::VDiagComm>(*view);
}

std::vector<NODX201::VDopBase*> DopsIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDopView builder;
    std::unique_ptr<NDIAGKIT::VDopView> const view(builder.CreateDopView(layer));
    return EntriesOf<NODX201::VDopBase>(*view);
}

std::vector<NODX201::VDiagVariable*> DiagVariablesIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagVariableView builder;
    std::unique_ptr<NDIAGKIT::VDiagVariableView> const view(builder.CreateDiagVariableView(layer));
    return EntriesOf<NODX201::VDiagVariable>(*view);
}

std::vector<NODX201::VGlobalNegResponse*> GlobalNegResponsesIn(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VGlobalNegResponseView view(layer);
    return EntriesOf<NODX201::VGlobalNegResponse>(view);
}

template <class Kind>
using Inheritance = NDIAGKIT::VInheritance<Kind>;

// clang-format off
std::vector<NODX201::VDiagComm*>          OwnDiagComms         (NODX201::VDiagLayer& layer) { return Inheritance<NDIAGKIT::VInheritedDiagComms>::OwnOf(layer); }
std::vector<NODX201::VDopBase*>           OwnDops              (NODX201::VDiagLayer& layer) { return Inheritance<NDIAGKIT::VInheritedDops>::OwnOf(layer); }
std::vector<NODX201::VDiagVariable*>      OwnDiagVariables     (NODX201::VDiagLayer& layer) { return Inheritance<NDIAGKIT::VInheritedDiagVariables>::OwnOf(layer); }
std::vector<NODX201::VGlobalNegResponse*> OwnGlobalNegResponses(NODX201::VDiagLayer& layer) { return Inheritance<NDIAGKIT::VInheritedGlobalNegResponses>::OwnOf(layer); }
// clang-format on

} // namespace NCheck
