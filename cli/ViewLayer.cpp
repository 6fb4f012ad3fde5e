// SPDX-License-Identifier: Apache-2.0

// The views of a layer that are told by where their entries stand: DOPs, DIAG-VARIABLEs, global negative responses.

#include <memory>

#include <fmt/format.h>

#include <diagkit/cli/ElementFinder.h>
#include <diagkit/cli/ViewText.h>
#include <diagkit/cli/Views.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>

namespace NCli {
namespace {

template <class View>
std::vector<NODX201::VOdxElement const*> EntriesOf(View& view) {
    std::vector<NODX201::VOdxElement const*> entries;
    for (auto& element : view) {
        entries.push_back(&element);
    }
    return entries;
}

std::vector<NODX201::VOdxElement const*> Dops(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDopView builder;
    return EntriesOf(*std::unique_ptr<NDIAGKIT::VDopView>(builder.CreateDopView(layer)));
}

std::vector<NODX201::VOdxElement const*> DiagVariables(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagVariableView builder;
    return EntriesOf(*std::unique_ptr<NDIAGKIT::VDiagVariableView>(builder.CreateDiagVariableView(layer)));
}

std::vector<NODX201::VOdxElement const*> GlobalNegResponses(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildGlobalNegResponseView builder;
    return EntriesOf(*std::unique_ptr<NDIAGKIT::VGlobalNegResponseView>(builder.CreateGlobalNegResponseView(layer)));
}

VStatus ViewLayer(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output, char const* title,
                  std::vector<NODX201::VOdxElement const*> (*entriesOf)(NODX201::VDiagLayer& layer)) {
    NODX201::VDiagLayer* const layer = FindLayer(database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    std::vector<NODX201::VOdxElement const*> const entries = entriesOf(*layer);
    if (arguments.isJson) {
        WriteViewAsJson(arguments.kind, *layer, entries, output);
    } else {
        WriteEntriesByOrigin(title, *layer, entries, output);
    }
    return VStatus::Done;
}

} // namespace

VStatus ViewDops(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewLayer(arguments, database, output, "DOPs", &Dops);
}

VStatus ViewDiagVariables(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewLayer(arguments, database, output, "DIAG-VARIABLEs", &DiagVariables);
}

VStatus ViewGlobalNegResponses(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewLayer(arguments, database, output, "GLOBAL-NEG-RESPONSEs", &GlobalNegResponses);
}

} // namespace NCli
