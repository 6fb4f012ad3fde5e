// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Call.h>
#include <cli/Commands.h>
#include <cli/HelpTable.h>
#include <cli/NearNames.h>
#include <cli/Platform.h>
#include <cli/Selections.h>
#include <cli/Text.h>
#include <diagkit/Version.h>

namespace NCli {
namespace {

struct VCommand {
    char const* name;
    char const* help;
    void (*declare)(CLI::App& command, VArguments& arguments);
    VStatus (*run)(VArguments const& arguments, VOutput& output);
};

// clang-format off
constexpr std::array kCommands{
    VCommand{"info",     "Documents, model versions and how many elements of each kind", &DeclareFiles,    &RunInfo},
    VCommand{"layers",   "The diagnostic layers and what they inherit from",             &DeclareFiles,    &RunLayers},
    VCommand{"graph",    "A picture of what inherits from what",                         &DeclareGraph,    &RunGraph},
    VCommand{"view",     "What is visible in a layer, with the layer it comes from",     &DeclareView,     &RunView},
    VCommand{"resolve",  "What a short name means in a layer, service, job or flash",    &DeclareResolve,  &RunResolve},
    VCommand{"explain",  "Why a short name means what it means in a layer, or nothing",  &DeclareExplain,  &RunExplain},
    VCommand{"show",     "What is inside: messages byte by byte, DOPs, tables, jobs",     &DeclareShow,     &RunShow},
    VCommand{"traverse", "All that a layer holds and refers to, as a tree",              &DeclareTraverse, &RunTraverse},
    VCommand{"oem",      "Whose habits a database shows, and why no other's",             &DeclareOem,      &RunOem},
    VCommand{"enums",    "The literals of the ODX enumerations and their values",        &DeclareEnums,    &RunEnums},
    VCommand{"check",    "Everything that is wrong with the files, or looks like it",    &DeclareCheck,    &RunCheck},
    VCommand{"uses",     "The references that lead to an element, or what none leads to",   &DeclareUses,     &RunUses},
    VCommand{"diff",     "What changed between two databases, as seen from each layer",  &DeclareDiff,     &RunDiff},
};
// clang-format on

void Declare(CLI::App& program, VArguments& arguments) {
    program.set_version_flag("-V,--version", "diagkit " DIAGKIT_VERSION, "Print the version and exit");
    program.require_subcommand(1);
    program.allow_windows_style_options(false); // a path may begin with '/' everywhere
    program.get_formatter()->label("SUBCOMMAND", "COMMAND");
    for (VCommand const& row : kCommands) {
        CLI::App& command = *program.add_subcommand(row.name, row.help)->group("Commands");
        row.declare(command, arguments);
        DeclareCommonOptions(command, arguments);
    }
}

VStatus RunCommand(CLI::App const& program, VArguments const& arguments, VOutput& output) {
    std::string const name = program.get_subcommands().front()->get_name();
    auto const row = std::find_if(kCommands.begin(), kCommands.end(),
                                  [&name](VCommand const& candidate) { return name == candidate.name; });
    return row->run(arguments, output);
}

/// The options of the command that is called, or of the program without one.
std::vector<std::string> OptionsOf(CLI::App const& program) {
    auto const commands = program.get_subcommands();
    CLI::App const& called = commands.empty() ? program : *commands.front();
    std::vector<std::string> names;
    for (CLI::Option const* const option : called.get_options()) {
        for (std::string const& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    return names;
}

bool IsOptionOfACommand(CLI::App const& program, std::string const& word) {
    auto const commands = program.get_subcommands(nullptr);
    return std::any_of(commands.begin(), commands.end(), [&word](CLI::App const* command) {
        return command->get_option_no_throw(word.substr(0, word.find('='))) != nullptr;
    });
}

/// What CLI11 says, where it is about how many values an option has, in this program's words.
std::string ValueMessage(CLI::ParseError const& error) {
    std::string const text = error.what();
    bool const isAboutCount = dynamic_cast<CLI::ArgumentMismatch const*>(&error) != nullptr;
    std::string const option = text.substr(0, text.find(':'));
    if (isAboutCount && text.find("missing") != std::string::npos) {
        return option + " requires an argument";
    }
    if (isAboutCount && text.find("At Most 1") != std::string::npos) {
        return option + " is given more than once";
    }
    return Shown(std::string_view(text));
}

/// What is wrong with a call that could not be understood, with near names for what may be misspelt in it.
std::string UsageMessage(CLI::App const& program, CLI::ParseError const& error) {
    std::vector<std::string> const left = program.remaining(true);
    auto const parsed = program.get_subcommands();
    auto const isOption = [](std::string const& word) { return word.size() > 1 && word.front() == '-'; };
    auto const option = std::find_if(left.begin(), left.end(), isOption);
    auto const word = std::find_if_not(left.begin(), left.end(), isOption);
    if (parsed.empty() && word != left.end()) {
        return fmt::format("unknown command '{}'{}", Shown(*word), NearOrAllNote(*word, NamesOf(kCommands)));
    }
    if (option != left.end() && parsed.empty() && IsOptionOfACommand(program, *option)) {
        return fmt::format("a command is required{}", NearOrAllNote("", NamesOf(kCommands)));
    }
    if (option != left.end()) {
        return fmt::format("unknown option '{}'{}", Shown(*option), NearOrAllNote(*option, OptionsOf(program)));
    }
    if (word != left.end()) {
        return fmt::format("unexpected argument '{}'", Shown(*word));
    }
    return parsed.empty() ? fmt::format("a command is required{}", NearOrAllNote("", NamesOf(kCommands)))
                          : ValueMessage(error);
}

VStatus Run(std::vector<std::string> words, VOutput& output) {
    CLI::App program("Answers questions about ODX 2.0.1 diagnostic data", "diagkit");
    VArguments arguments;
    Declare(program, arguments);
    if (words == std::vector<std::string>{"--help-table"}) { // for packaging/generate, so --help keeps silent about it
        WriteHelpTable(program, arguments, output);
        return VStatus::Done;
    }
    try {
        words = CommandFirst(std::move(words), program);
        std::reverse(words.begin(), words.end()); // CLI11 takes the last word first
        program.parse(std::move(words));
    } catch (CLI::CallForHelp const&) {
        output.Write(program.help());
        return VStatus::Done;
    } catch (CLI::CallForVersion const& version) {
        output.Write(fmt::format("{}\n", version.what()));
        return VStatus::Done;
    } catch (CLI::ParseError const& error) {
        output.Complain(fmt::format("{}; see --help", UsageMessage(program, error)));
        return VStatus::Usage;
    }
    return RunCommand(program, arguments, output);
}

/// The call with a message for whatever ends it before its time, but for a lack of memory.
VStatus RunAndTell(int count, char** words, VOutput& output) {
    try {
        PreparePlatform();
        return Run(ArgumentsInUtf8(count, words), output);
    } catch (std::bad_alloc const&) {
        throw;
    } catch (std::exception const& exception) {
        output.Complain(Shown(std::string_view(exception.what())));
        return VStatus::Unreadable;
    }
}

int Main(int count, char** words) {
    VOutput output;
    VStatus status = VStatus::Unreadable;
    try {
        status = RunAndTell(count, words, output);
        status = output.Finish() ? status : VStatus::Unreadable;
    } catch (std::bad_alloc const&) { // messages may take memory, too
        output.ComplainOfNoMemory();
        status = VStatus::Unreadable;
    }
    return static_cast<int>(status);
}

} // namespace
} // namespace NCli

int main(int count, char** words) { return NCli::Main(count, words); }
