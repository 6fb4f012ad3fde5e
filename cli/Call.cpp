// SPDX-License-Identifier: Apache-2.0
#include <cli/Call.h>

#include <algorithm>
#include <utility>

#include <CLI/CLI.hpp>

namespace NCli {
namespace {

bool IsOption(std::string const& word) { return word.size() > 1 && word.front() == '-'; }

/// Whether the next word is the value of this option, of any command.
bool TakesNextWord(std::string const& word, CLI::App const& program) {
    auto const commands = program.get_subcommands(nullptr);
    return std::any_of(commands.begin(), commands.end(), [&word](CLI::App const* command) {
        CLI::Option const* const option = command->get_option_no_throw(word);
        return option != nullptr && !option->get_positional() && option->get_items_expected_max() > 0;
    });
}

/// The position of the command; the end where there is none.
std::vector<std::string>::iterator FindCommand(std::vector<std::string>& words, CLI::App const& program) {
    auto word = words.begin();
    while (word != words.end() && IsOption(*word) && *word != "--") {
        bool const hasValue = TakesNextWord(*word, program) && word + 1 != words.end();
        word += hasValue ? 2 : 1;
    }
    return word;
}

bool IsCommand(std::string const& word, CLI::App const& program) {
    auto const commands = program.get_subcommands(nullptr);
    return std::any_of(commands.begin(), commands.end(),
                       [&word](CLI::App const* command) { return command->get_name() == word; });
}

/// `help [COMMAND]` as the option; a word that is not a command stays, to be reported.
std::vector<std::string> HelpAsOption(std::vector<std::string> words, CLI::App const& program) {
    words.erase(words.begin());
    auto const command = FindCommand(words, program);
    if (command == words.end() || *command == "help") {
        return {"--help"};
    }
    return IsCommand(*command, program) ? std::vector<std::string>{*command, "--help"} : words;
}

} // namespace

std::vector<std::string> CommandFirst(std::vector<std::string> words, CLI::App const& program) {
    auto const command = FindCommand(words, program);
    if (command != words.end() && *command != "--") {
        std::rotate(words.begin(), command, command + 1);
    }
    return !words.empty() && words.front() == "help" ? HelpAsOption(std::move(words), program) : words;
}

} // namespace NCli
