// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Arguments.h>
#include <cli/Output.h>

namespace NCli {

/// The options and commands of the program as JSON, from which `packaging/generate` makes the man page and the
/// completions.
void WriteHelpTable(CLI::App const& program, VArguments const& arguments, VOutput& output);

} // namespace NCli
