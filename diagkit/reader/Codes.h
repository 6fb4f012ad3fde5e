// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/Diagnostic.h>

/// The diagnostics of the reader, each kind a `VCode` of its name.
namespace NReader::NCode {

#define DIAGNOSTIC(name, code, severity, title) inline constexpr VCode name{code, VSeverity::severity, title};
#include <diagkit/reader/Codes.def>

} // namespace NReader::NCode
