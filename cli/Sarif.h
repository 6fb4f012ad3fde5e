// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <nlohmann/json_fwd.hpp>

#include <diagkit/reader/Diagnostic.h>

namespace NCli {

/// Diagnostics as a SARIF 2.1.0 log with one run, whose rules are all codes. What stands in a package has the URI
/// PACKAGE!MEMBER, percent-encoded; absolute paths are file URIs.
nlohmann::ordered_json SarifOf(std::vector<NReader::VDiagnostic> const& diagnostics);

} // namespace NCli
