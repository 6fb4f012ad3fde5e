// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <cli/JsonWriter.h>
#include <diagkit/reader/Diagnostic.h>

namespace NCli {

/// Writes diagnostics as a SARIF 2.1.0 log with one run, whose rules are all codes. What stands in a package has the
/// URI PACKAGE!MEMBER, percent-encoded; absolute paths are file URIs.
void WriteSarif(VJsonWriter& json, std::vector<NReader::VDiagnostic> const& diagnostics);

/// How a log names a file, and how it writes a message: single braces would be placeholders there.
std::string SarifUriOf(std::string const& file);
std::string SarifMessageOf(std::string const& message);

} // namespace NCli
