// SPDX-License-Identifier: Apache-2.0
#include <array>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/Entry.h>
#include <cli/Load.h>
#include <cli/Selections.h>
#include <cli/Views.h>

namespace NCli {
namespace {

struct VViewKind {
    char const* name;
    VSelectionRule const& selection;
    VStatus (*run)(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
};

// clang-format off
constexpr std::array kViewKinds{
    VViewKind{"diag-comms",           kLayerSelection,            &ViewDiagComms},
    VViewKind{"diag-variables",       kLayerSelection,            &ViewDiagVariables},
    VViewKind{"global-neg-responses", kLayerSelection,            &ViewGlobalNegResponses},
    VViewKind{"dops",                 kLayerSelection,            &ViewDops},
    VViewKind{"protocols",            kContainerOrLayerSelection, &ViewProtocols},
    VViewKind{"in-params",            kDiagCommSelection,         &ViewInParams},
    VViewKind{"out-params",           kOutParamSelection,         &ViewOutParams},
    VViewKind{"idents",               kFlashSelection,            &ViewIdents},
    VViewKind{"sessions",             kFlashSelection,            &ViewSessions},
};
// clang-format on

} // namespace

void WriteViewAsJson(std::string_view kind, NODX201::VOdxElement const& context,
                     std::vector<NODX201::VOdxElement const*> const& entries, VOutput& output) {
    WriteJson(output, [&](VJsonWriter& json) {
        json.Object([&] {
            json.Member("view", kind);
            json.Name("context");
            WriteEntry(json, context);
            json.Member("count", entries.size());
            json.ArrayOf("entries", entries, [&json](NODX201::VOdxElement const* entry) { WriteEntry(json, *entry); });
        });
    });
}

void DeclareView(CLI::App& command, VArguments& arguments) {
    DeclareKind(command, arguments, NamesOf(kViewKinds), "What to view");
    DeclareSelections(command, arguments);
    command.add_flag("--requests", arguments.isWithRequests,
                     "Add the bytes of the request of each service (diag-comms only)");
    DeclareCsv(command, arguments);
    DeclareWide(command, arguments);
    DeclareFiles(command, arguments);
    command.footer(SelectionsOf(kViewKinds) + "\n" + kRangesHelp);
}

VStatus RunView(VArguments const& arguments, VOutput& output) {
    VViewKind const* const kind = FittingKind("view", kViewKinds, arguments, output);
    if (kind == nullptr) {
        return VStatus::Usage;
    }
    if (arguments.isWithRequests && kind->run != &ViewDiagComms) {
        output.Complain(fmt::format("view {} does not take --requests; see --help", arguments.kind));
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    return kind->run(arguments, *result.database, output);
}

} // namespace NCli
