// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace NCli {

/// The words of a call as its command takes them: options may stand before the command, and `help [COMMAND]` is the
/// --help of it.
std::vector<std::string> CommandFirst(std::vector<std::string> words, CLI::App const& program);

} // namespace NCli
