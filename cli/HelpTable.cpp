// SPDX-License-Identifier: Apache-2.0
#include <cli/HelpTable.h>

#include <CLI/CLI.hpp>

#include <cli/JsonWriter.h>

namespace NCli {
namespace {

/// The placeholder for the value of an option, without what it is checked for; "" for a flag.
std::string ValueOf(CLI::Option const& option) {
    std::string const type = option.get_type_name();
    return option.get_items_expected_max() == 0 ? "" : type.substr(0, type.find(':'));
}

void WriteOption(VJsonWriter& json, CLI::Option const& option, VArguments const& arguments) {
    auto const found = arguments.choices.find(&option);
    json.Object([&] {
        json.Member("name", option.get_positional() ? option.get_name(true) : "--" + option.get_lnames().front());
        json.Member("text", option.get_description());
        json.Member("value", ValueOf(option));
        json.Member("default", option.get_default_str());
        json.Member("group", option.get_group() == "Options" ? "" : option.get_group());
        json.Member("isRequired", option.get_required());
        json.Member("isRepeated", option.get_items_expected_max() > 1);
        json.ArrayOf("choices", found != arguments.choices.end() ? found->second : std::vector<std::string>(),
                     [&json](std::string const& choice) { json.Value(choice); });
    });
}

/// The options of the program or a command, or its positional arguments.
void WriteOptions(VJsonWriter& json, CLI::App const& app, bool isPositional, VArguments const& arguments) {
    json.Array(isPositional ? "positionals" : "options", [&] {
        for (CLI::Option const* const option : app.get_options()) {
            if (option->get_positional() == isPositional) {
                WriteOption(json, *option, arguments);
            }
        }
    });
}

} // namespace

void WriteHelpTable(CLI::App const& program, VArguments const& arguments, VOutput& output) {
    WriteJson(output, [&](VJsonWriter& json) {
        json.Object([&] {
            WriteOptions(json, program, false, arguments);
            json.ArrayOf("commands", program.get_subcommands(nullptr), [&](CLI::App const* command) {
                json.Object([&] {
                    json.Member("name", command->get_name());
                    json.Member("text", command->get_description());
                    WriteOptions(json, *command, true, arguments);
                    WriteOptions(json, *command, false, arguments);
                    json.Member("notes", command->get_footer());
                });
            });
        });
    });
}

} // namespace NCli
