// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Arguments.h>
#include <cli/Output.h>
#include <cli/Status.h>

/// The commands, each in the source of its name: what it takes beyond the common options, and what it does. It
/// returns the exit status.

namespace NCli {

void DeclareInfo(CLI::App& command, VArguments& arguments);
VStatus RunInfo(VArguments const& arguments, VOutput& output);

void DeclareLayers(CLI::App& command, VArguments& arguments);
VStatus RunLayers(VArguments const& arguments, VOutput& output);

void DeclareGraph(CLI::App& command, VArguments& arguments);
VStatus RunGraph(VArguments const& arguments, VOutput& output);

void DeclareView(CLI::App& command, VArguments& arguments);
VStatus RunView(VArguments const& arguments, VOutput& output);

void DeclareResolve(CLI::App& command, VArguments& arguments);
VStatus RunResolve(VArguments const& arguments, VOutput& output);

void DeclareExplain(CLI::App& command, VArguments& arguments);
VStatus RunExplain(VArguments const& arguments, VOutput& output);

void DeclareTraverse(CLI::App& command, VArguments& arguments);
VStatus RunTraverse(VArguments const& arguments, VOutput& output);

void DeclareEnums(CLI::App& command, VArguments& arguments);
VStatus RunEnums(VArguments const& arguments, VOutput& output);

void DeclareOem(CLI::App& command, VArguments& arguments);
VStatus RunOem(VArguments const& arguments, VOutput& output);

void DeclareCheck(CLI::App& command, VArguments& arguments);
VStatus RunCheck(VArguments const& arguments, VOutput& output);

void DeclareUses(CLI::App& command, VArguments& arguments);
VStatus RunUses(VArguments const& arguments, VOutput& output);

void DeclareFind(CLI::App& command, VArguments& arguments);
VStatus RunFind(VArguments const& arguments, VOutput& output);

void DeclareShow(CLI::App& command, VArguments& arguments);
VStatus RunShow(VArguments const& arguments, VOutput& output);

void DeclareDiff(CLI::App& command, VArguments& arguments);
VStatus RunDiff(VArguments const& arguments, VOutput& output);

} // namespace NCli
