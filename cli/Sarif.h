// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <cli/JsonWriter.h>
#include <diagkit/reader/Diagnostic.h>

namespace NCli {

/// Writes diagnostics as a SARIF 2.1.0 log with one run, whose rules are all codes. Files in a package have the URI
/// PACKAGE!MEMBER, percent-encoded; absolute paths are file URIs.
void WriteSarif(VJsonWriter& json, std::vector<NReader::VDiagnostic> const& diagnostics);

/// The form of a file name, and of a message, in a log: single braces would be placeholders there.
std::string SarifUriOf(std::string const& file);
std::string SarifMessageOf(std::string const& message);

} // namespace NCli
