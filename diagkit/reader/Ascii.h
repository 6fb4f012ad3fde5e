// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NReader {

/// A letter of ASCII in lower case, in every locale; any other character as it is.
constexpr char Lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

} // namespace NReader
