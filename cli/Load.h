// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Arguments.h>
#include <cli/Output.h>
#include <cli/Status.h>

namespace NCli {

/// Reads the files of the call into `result`, with diagnostics and progress on standard error. The command continues
/// only with `Done`, and then has a database.
VStatus Load(VArguments const& arguments, VOutput const& output, NReader::VReadResult& result);

/// The same with every element kept, for a command that looks at all of them.
VStatus LoadElements(VArguments const& arguments, VOutput const& output, NReader::VReadResult& result);

/// The same for a command whose output contains the diagnostics. They go to standard error only if there is no output:
/// when the format is text and the command does not continue.
VStatus LoadToCheck(VArguments const& arguments, VOutput const& output, NReader::VReadResult& result);

std::string LineOf(NReader::VDiagnostic const& diagnostic); ///< one, whatever the data holds

/// How many elements found no place in the model; what stands in them is not counted.
std::size_t CountWithoutPlace(NReader::VReadResult const& result);

std::size_t CountOf(NReader::VSeverity severity, std::vector<NReader::VDiagnostic> const& diagnostics);
std::size_t CountErrors(std::vector<NReader::VDiagnostic> const& diagnostics);

} // namespace NCli
