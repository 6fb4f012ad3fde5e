// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Arguments.h>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <diagkit/cli/Sizes.h>

namespace NCli {
namespace {

void DeclareSize(CLI::App& command, char const* name, std::uint64_t& size, char const* help) {
    auto const take = [name, &size](std::string const& text) {
        std::optional<std::uint64_t> const taken = SizeIn(text);
        if (!taken.has_value()) {
            throw CLI::ValidationError(name, fmt::format("'{}' is no size such as 512M", text));
        }
        size = *taken;
    };
    command.add_option_function<std::string>(name, take, help)->type_name("SIZE");
}

} // namespace

void DeclareCommonOptions(CLI::App& command, VArguments& arguments) {
    command.add_flag("--json", arguments.isJson, "Answer as JSON on standard output");
    command.add_flag("--strict", arguments.isStrict, "End with status 3 when the files have errors");
    command.add_flag("--quiet", arguments.isQuiet, "No diagnostics and no progress on standard error");
    command.set_version_flag("--version", "diagkit " DIAGKIT_VERSION, "Print the version and exit");
}

CLI::Option& DeclareLayer(CLI::App& command, VArguments& arguments) {
    auto& option = *command.add_option("--layer", arguments.layer, "The layer to look from, by its short name or ID");
    return *option.type_name("L");
}

void DeclareSelections(CLI::App& command, VArguments& arguments) {
    DeclareLayer(command, arguments);
    command.add_option("--container", arguments.container, "A DIAG-LAYER-CONTAINER")->type_name("C");
    command.add_option("--diag-comm", arguments.diagComm, "A service or job visible in the layer")->type_name("D");
    command.add_option("--job", arguments.job, "A MULTIPLE-ECU-JOB")->type_name("J");
    command.add_option("--flash", arguments.flash, "A FLASH")->type_name("F");
    command.add_option("--range", arguments.range, "Which parameters of a service count as output, 0 to 5; default 5")
        ->check(CLI::Range(0, 5))
        ->type_name("N");
}

void DeclareFiles(CLI::App& command, VArguments& arguments) {
    command.add_option("FILE", arguments.files, "ODX documents and PDX packages; together they form one database")
        ->required()
        ->type_name("");
    NReader::VReadOptions& limits = arguments.readOptions;
    DeclareSize(command, "--max-member-size", limits.maxMemberSize,
                "Limit for one unpacked member of a package, such as 512M");
    DeclareSize(command, "--max-package-size", limits.maxPackageSize,
                "Limit for all unpacked members of a package, such as 8G");
}

} // namespace NCli
