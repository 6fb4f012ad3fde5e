// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Call.h>
#include <cli/Commands.h>
#include <cli/HelpFormatter.h>
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
    VCommand{"info",     "Show documents, model versions and element counts",                 &DeclareFiles,    &RunInfo},
    VCommand{"layers",   "List the diagnostic layers and what they inherit from",             &DeclareFiles,    &RunLayers},
    VCommand{"graph",    "Draw the inheritance graph",                                        &DeclareGraph,    &RunGraph},
    VCommand{"view",     "List what is visible in a layer, and the layer it comes from",      &DeclareView,     &RunView},
    VCommand{"resolve",  "Find what a short name means in a layer, service, job or flash",    &DeclareResolve,  &RunResolve},
    VCommand{"explain",  "Explain why a short name is visible in a layer, or why not",        &DeclareExplain,  &RunExplain},
    VCommand{"traverse", "Print the tree of what a layer holds and refers to",                &DeclareTraverse, &RunTraverse},
    VCommand{"oem",      "Detect the manufacturer whose tools wrote the database",            &DeclareOem,      &RunOem},
    VCommand{"enums",    "List the literals and values of the ODX enumerations",              &DeclareEnums,    &RunEnums},
    VCommand{"check",    "Report errors and questionable data in the files",                  &DeclareCheck,    &RunCheck},
    VCommand{"uses",     "List the references to an element, or all unused elements",         &DeclareUses,     &RunUses},
    VCommand{"diff",     "Compare two databases as each layer sees them",                     &DeclareDiff,     &RunDiff},
};
// clang-format on

void Declare(CLI::App& program, VArguments& arguments) {
    program.set_version_flag("-V,--version", "diagkit " DIAGKIT_VERSION, "Print the version and exit");
    program.require_subcommand(1);
    program.allow_windows_style_options(false); // a path may begin with '/' everywhere
    program.formatter(std::make_shared<VHelpFormatter>());
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

/// The options of the given command, or of the program without one.
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

/// An error of CLI11 about the number of values of an option, in this program's words.
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

/// The message for a call with wrong usage, with near names for what may be misspelled in it.
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
        return fmt::format("unknown option '{}'{}", Shown(*option), NearNote(*option, OptionsOf(program)));
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
    if (words == std::vector<std::string>{"--help-table"}) { // for packaging/generate, so --help does not mention it
        WriteHelpTable(program, arguments, output);
        return VStatus::Done;
    }
    try {
        words = CommandFirst(std::move(words), program);
        std::reverse(words.begin(), words.end()); // CLI11 expects the words in reverse order
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

/// Runs the call, with a message for every exception except a lack of memory.
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
    } catch (std::bad_alloc const&) { // messages may need memory, too
        output.ComplainOfNoMemory();
        status = VStatus::Unreadable;
    }
    return static_cast<int>(status);
}

} // namespace
} // namespace NCli

int main(int count, char** words) { return NCli::Main(count, words); }
