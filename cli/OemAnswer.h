// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <cli/JsonWriter.h>
#include <cli/Output.h>
#include <diagkit/tools/oem/OemReport.h>

/// A report of manufacturer detection, as `oem` gives it.

namespace NCli {

/// The answer in a line: "Daimler (1)", "Porsche (Pag, 4)"; or why nobody can be named.
std::string LineOf(NDIAGKIT::VOemReport const& report);

/// The answer with every heuristic, its rules and why they say no.
void WriteReport(NDIAGKIT::VOemReport const& report, VOutput& output);

/// The same as members of the object that is being written.
void WriteReportMembers(VJsonWriter& json, NDIAGKIT::VOemReport const& report);

} // namespace NCli
