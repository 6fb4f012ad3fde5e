// SPDX-License-Identifier: Apache-2.0
#include <cli/Selections.h>

#include <array>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace NCli {
namespace {

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

struct VGivenSelection {
    VSelection selection;
    char const* name;
    bool isGiven;
};

std::array<VGivenSelection, 6> GivenIn(VArguments const& arguments) {
    return {{{kLayer, "--layer", !arguments.layer.empty()},
             {kContainer, "--container", !arguments.container.empty()},
             {kDiagComm, "--diag-comm", !arguments.diagComm.empty()},
             {kJob, "--job", !arguments.job.empty()},
             {kFlash, "--flash", !arguments.flash.empty()},
             {kRange, "--range", arguments.range.has_value()}}};
}

} // namespace

// clang-format off
VSelectionRule const kLayerSelection            {kLayer, &NeedsLayer, "--layer L"};
VSelectionRule const kContainerSelection        {kContainer, &NeedsContainer, "--container C"};
VSelectionRule const kContainerOrLayerSelection {kContainer | kLayer, &NeedsContainerOrLayer, "--container C, or --layer of a BASE-VARIANT"};
VSelectionRule const kDiagCommSelection         {kLayer | kDiagComm | kJob, &NeedsDiagComm, "--layer L --diag-comm D, or --job J"};
VSelectionRule const kOutParamSelection         {kLayer | kDiagComm | kJob | kRange, &NeedsDiagComm, "--layer L --diag-comm D, or --job J; --range N"};
VSelectionRule const kOutParamSelectionInLayer  {kLayer | kDiagComm | kJob | kRange, &NeedsDiagCommInLayer, "--layer L --diag-comm D, or --layer L --job J; --range N"};
VSelectionRule const kFlashSelection            {kFlash, &NeedsFlash, "--flash F"};
// clang-format on

char const* const kRangesHelp = "Output parameters of a DIAG-SERVICE by --range (a job has only its own):\n"
                                "  0  positive and negative responses\n"
                                "  1  request and negative responses\n"
                                "  2  nothing\n"
                                "  3  request\n"
                                "  4  positive responses\n"
                                "  5  request, positive and negative responses (default)\n";

std::string WrongSelection(VSelectionRule const& rule, VArguments const& arguments) {
    for (VGivenSelection const& given : GivenIn(arguments)) {
        if (given.isGiven && (rule.taken & given.selection) == 0) {
            return fmt::format("takes no {}", given.name);
        }
    }
    char const* const missing = rule.missing(arguments);
    return missing != nullptr ? fmt::format("requires {}", missing) : "";
}

void DeclareKind(CLI::App& command, VArguments& arguments, std::vector<std::string> const& names, char const* help) {
    auto* const kind = command.add_option("KIND", arguments.kind, fmt::format("{}: {}", help, fmt::join(names, ", ")));
    DeclareOneOf(*kind->required()->type_name(""), arguments, "kind", names);
}

} // namespace NCli
