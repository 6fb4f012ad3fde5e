// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Selections.h>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <diagkit/cli/NearNames.h>
#include <diagkit/cli/Text.h>

namespace NCli {

char const* NeedsLayer(VArguments const& arguments) { return arguments.layer.empty() ? "--layer" : nullptr; }

char const* NeedsContainer(VArguments const& arguments) {
    return arguments.container.empty() ? "--container" : nullptr;
}

char const* NeedsContainerOrLayer(VArguments const& arguments) {
    return arguments.container.empty() == arguments.layer.empty() ? "either --container or --layer" : nullptr;
}

char const* NeedsDiagComm(VArguments const& arguments) {
    bool const isInLayer = !arguments.layer.empty() && !arguments.diagComm.empty() && arguments.job.empty();
    bool const isJob = !arguments.job.empty() && arguments.diagComm.empty();
    return isInLayer || isJob ? nullptr : "either --layer with --diag-comm, or --job";
}

char const* NeedsDiagCommInLayer(VArguments const& arguments) {
    bool const isOne = arguments.diagComm.empty() != arguments.job.empty();
    return isOne && !arguments.layer.empty() ? nullptr : "--layer, and either --diag-comm or --job";
}

char const* NeedsFlash(VArguments const& arguments) { return arguments.flash.empty() ? "--flash" : nullptr; }

void DeclareKind(CLI::App& command, VArguments& arguments, std::vector<std::string> const& names, char const* help) {
    auto const check = [names](std::string const& word) -> std::string {
        bool const isKind = std::find(names.begin(), names.end(), word) != names.end();
        return isKind ? "" : fmt::format("no kind '{}'{}", Shown(word), NearOrAllNote(word, names));
    };
    command.add_option("KIND", arguments.kind, fmt::format("{}: {}", help, fmt::join(names, ", ")))
        ->required()
        ->check(check)
        ->type_name("");
}

} // namespace NCli
