// SPDX-License-Identifier: Apache-2.0
#include <cli/HelpFormatter.h>

#include <cstddef>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace NCli {
namespace {

constexpr std::size_t kHelpWidth = 80;
constexpr std::size_t kOptionColumn = 30; ///< where the descriptions of options begin
constexpr std::size_t kCommandColumn = 12;

/// The text in lines that fit into the column of descriptions; a word that is longer than a line stays whole.
std::vector<std::string> Wrapped(std::string_view text, std::size_t column) {
    std::vector<std::string> lines(1);
    while (!text.empty()) {
        std::size_t const end = text.find(' ');
        std::string_view const word = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        std::string& line = lines.back();
        if (line.empty()) {
            line = word;
        } else if (column + line.size() + 1 + word.size() <= kHelpWidth) {
            line += fmt::format(" {}", word);
        } else {
            lines.emplace_back(word);
        }
    }
    return lines;
}

/// The name of something, with its description to the right, or below a long name.
std::string Row(std::string_view name, std::string_view description, std::size_t column) {
    std::string row = fmt::format("  {:<{}}", name, column - 2);
    bool isBeside = name.size() + 3 < column;
    for (std::string const& line : Wrapped(description, column)) {
        row += isBeside ? line : fmt::format("\n{:<{}}{}", "", column, line);
        isBeside = false;
    }
    row.erase(row.find_last_not_of(' ') + 1);
    return row + "\n";
}

bool IsRepeated(CLI::Option const& option) {
    return option.get_expected_max() == CLI::detail::expected_max_vector_size;
}

/// "-h, --help", "--layer L"
std::string NameOf(CLI::Option const& option) {
    std::string name;
    for (std::string const& letter : option.get_snames()) {
        name += fmt::format("-{}, ", letter);
    }
    name += fmt::format("--{}", option.get_lnames().front());
    if (option.get_items_expected_max() > 0) {
        std::string const type = option.get_type_name();
        name += fmt::format(" {}", type.substr(0, type.find(':'))); // the rest is what the value is checked for
    }
    return name;
}

/// "FILE...", "[NAME]"
std::string UsageOf(CLI::Option const& positional) {
    std::string const name = positional.get_name(true) + (IsRepeated(positional) ? "..." : "");
    return positional.get_required() ? name : fmt::format("[{}]", name);
}

/// The options of a group; those without a name are arguments.
std::vector<CLI::Option const*> OptionsOfGroup(CLI::App const& app, std::string const& group) {
    return app.get_options(
        [&group](CLI::Option const* option) { return option->get_group() == group && option->nonpositional(); });
}

} // namespace

std::string VHelpFormatter::make_help(CLI::App const* app, std::string name, CLI::AppFormatMode mode) const {
    std::string help = fmt::format("{}\n\n{}", app->get_description(), make_usage(app, std::move(name)));
    help += make_positionals(app);
    for (std::string const& group : app->get_groups()) {
        std::vector<CLI::Option const*> const options = OptionsOfGroup(*app, group);
        help += options.empty() ? "" : make_group(group, false, options);
    }
    help += make_subcommands(app, mode);
    return app->get_footer().empty() ? help : fmt::format("{}\n{}\n", help, app->get_footer());
}

std::string VHelpFormatter::make_usage(CLI::App const* app, std::string name) const {
    std::string usage = fmt::format("Usage: {}", name);
    for (CLI::Option const* const option : app->get_options()) {
        usage += option->get_positional() ? fmt::format(" {}", UsageOf(*option)) : "";
    }
    for (CLI::Option const* const option : app->get_options()) {
        bool const isNamed = option->get_required() && !option->get_positional();
        usage += isNamed ? fmt::format(" {}", NameOf(*option)) : "";
    }
    bool const hasCommands = !app->get_subcommands(nullptr).empty();
    return usage + (hasCommands ? " COMMAND [OPTIONS]\n" : " [OPTIONS]\n");
}

std::string VHelpFormatter::make_group(std::string group, bool isPositional,
                                       std::vector<CLI::Option const*> options) const {
    std::string section = fmt::format("\n{}:\n", isPositional ? "Arguments" : group);
    for (CLI::Option const* const option : options) {
        section += make_option(option, isPositional);
    }
    return section;
}

std::string VHelpFormatter::make_subcommand(CLI::App const* command) const {
    return Row(command->get_name(), command->get_description(), kCommandColumn);
}

std::string VHelpFormatter::make_option(CLI::Option const* option, bool isPositional) const {
    std::string const name =
        isPositional ? option->get_name(true) + (IsRepeated(*option) ? "..." : "") : NameOf(*option);
    std::string description = option->get_description();
    if (!option->get_default_str().empty()) {
        description += fmt::format(" (default: {})", option->get_default_str());
    }
    if (option->get_required() && !isPositional) {
        description += " (required)";
    }
    return Row(name, description, kOptionColumn);
}

} // namespace NCli
