// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Diagnostic.h>

namespace NReader {

char const* SeverityText(VSeverity severity) { return severity == VSeverity::Error ? "error" : "warning"; }

std::string FormatDiagnostic(VDiagnostic const& diagnostic) {
    std::string text = diagnostic.file;
    if (diagnostic.line != 0) {
        text += ':' + std::to_string(diagnostic.line) + ':' + std::to_string(diagnostic.column);
    }
    return text + ": " + SeverityText(diagnostic.severity) + ": " + diagnostic.message + " [" + diagnostic.code + ']';
}

} // namespace NReader
