// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace NCli {

/// The words of a call in the order that its command expects: options may come before the command, and `help [COMMAND]`
/// is equivalent to --help.
std::vector<std::string> CommandFirst(std::vector<std::string> words, CLI::App const& program);

} // namespace NCli
