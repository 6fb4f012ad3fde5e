// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace NReader {

/// An error breaks the rules of ODX or leaves something out; a warning looks odd. A note tells what is worth a look
/// where the data may well be meant so; it counts for nothing.
enum class VSeverity { Note, Warning, Error };

/// A kind of diagnostic.
struct VCode {
    char const* code;   ///< stable, such as "unresolved-reference"
    VSeverity severity; ///< of most of the kind; a single diagnostic may differ
    char const* title;  ///< one line

    /// The kind with the severity of one diagnostic.
    constexpr VCode As(VSeverity one) const { return {code, one, title}; }
};

/// One finding about a user's data. All texts are UTF-8.
struct VDiagnostic {
    std::string file;                      ///< as named by the user; inside a package PACKAGE!MEMBER
    std::uint32_t line = 0;                ///< counts from 1; 0 when the finding has no position
    std::uint32_t column = 0;              ///< counts from 1, in characters; 0 when the finding has no position
    VSeverity severity = VSeverity::Error; ///< whether the data is wrong, looks odd or may be meant so
    std::string code;                      ///< of a `VCode`
    std::string message;                   ///< lower-case start, no full stop
};

char const* SeverityText(VSeverity severity); ///< "error", "warning" or "note"

/// FILE:LINE:COLUMN: SEVERITY: MESSAGE [CODE], without the position where there is none.
std::string FormatDiagnostic(VDiagnostic const& diagnostic);

} // namespace NReader
