// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include <diagkit/reader/Diagnostic.h>

namespace NCheck {

/// A kind of finding, of the reader or of `CheckDatabase`. All texts are UTF-8.
struct VCode {
    char const* code;            ///< stable, such as "unresolved-reference"
    NReader::VSeverity severity; ///< of most findings of the kind; the finding itself decides
    char const* title;           ///< one line
};

/// Every code, in alphabetical order.
std::vector<VCode> const& Codes();

/// The row of a code; null for a text that is none.
VCode const* FindCode(std::string_view code);

} // namespace NCheck
