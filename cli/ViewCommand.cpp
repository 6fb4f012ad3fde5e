// SPDX-License-Identifier: Apache-2.0
#include <array>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <diagkit/cli/Commands.h>
#include <diagkit/cli/Entry.h>
#include <diagkit/cli/Load.h>
#include <diagkit/cli/Selections.h>
#include <diagkit/cli/Views.h>

namespace NCli {
namespace {

struct VViewKind {
    char const* name;
    VSelectionCheck missing;
    VStatus (*run)(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
};

// clang-format off
constexpr std::array kKinds{
    VViewKind{"diag-comms",           &NeedsLayer,            &ViewDiagComms},
    VViewKind{"diag-variables",       &NeedsLayer,            &ViewDiagVariables},
    VViewKind{"global-neg-responses", &NeedsLayer,            &ViewGlobalNegResponses},
    VViewKind{"dops",                 &NeedsLayer,            &ViewDops},
    VViewKind{"protocols",            &NeedsContainerOrLayer, &ViewProtocols},
    VViewKind{"in-params",            &NeedsDiagComm,         &ViewInParams},
    VViewKind{"out-params",           &NeedsDiagComm,         &ViewOutParams},
    VViewKind{"idents",               &NeedsFlash,            &ViewIdents},
    VViewKind{"sessions",             &NeedsFlash,            &ViewSessions},
};
// clang-format on

} // namespace

void WriteViewAsJson(std::string_view kind, NODX201::VOdxElement const& context,
                     std::vector<NODX201::VOdxElement const*> const& entries, VOutput& output) {
    nlohmann::ordered_json answer;
    answer["view"] = kind;
    answer["context"] = EntryOf(context);
    answer["count"] = entries.size();
    answer["entries"] = nlohmann::ordered_json::array();
    for (NODX201::VOdxElement const* const entry : entries) {
        answer["entries"].push_back(EntryOf(*entry));
    }
    output.WriteJson(answer);
}

void DeclareView(CLI::App& command, VArguments& arguments) {
    DeclareKind(command, arguments, NamesOf(kKinds), "What to view");
    DeclareSelections(command, arguments);
    DeclareFiles(command, arguments);
}

VStatus RunView(VArguments const& arguments, VOutput& output) {
    VViewKind const& kind = KindOf(kKinds, arguments);
    if (char const* const missing = kind.missing(arguments)) {
        output.Complain(fmt::format("view {} needs {}; see --help", kind.name, missing));
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    return kind.run(arguments, *result.database, output);
}

} // namespace NCli
