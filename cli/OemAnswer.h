// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <cli/JsonWriter.h>
#include <cli/Output.h>
#include <diagkit/tools/oem/OemReport.h>

/// A report of manufacturer detection, as output of `oem`.

namespace NCli {

/// The result in one line: "Daimler (1)", "Porsche (Pag, 4)"; or why there is none.
std::string LineOf(NDIAGKIT::VOemReport const& report);

/// The result with every heuristic, its rules and why they do not match.
void WriteReport(NDIAGKIT::VOemReport const& report, VOutput& output);

/// The same as members of the object that is being written.
void WriteReportMembers(VJsonWriter& json, NDIAGKIT::VOemReport const& report);

} // namespace NCli
