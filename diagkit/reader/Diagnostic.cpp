// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Diagnostic.h>

namespace NReader {

char const* SeverityText(VSeverity severity) {
    constexpr char const* kTexts[] = {"note", "warning", "error"};
    return kTexts[static_cast<std::size_t>(severity)];
}

std::string FormatDiagnostic(VDiagnostic const& diagnostic) {
    std::string text = diagnostic.file;
    if (diagnostic.line != 0) {
        text += ':' + std::to_string(diagnostic.line) + ':' + std::to_string(diagnostic.column);
    }
    return text + ": " + SeverityText(diagnostic.severity) + ": " + diagnostic.message + " [" + diagnostic.code + ']';
}

} // namespace NReader
