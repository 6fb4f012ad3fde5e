// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>

/// Numbers as the texts of a database write them. Nothing comes of what is no number.

namespace NCheck {

/// A finite decimal number, blanks around it left out.
std::optional<double> NumberIn(wchar_t const* text);

/// A sign and an amount: every whole number that ODX's types can hold, in decimal digits or, after 0x, hexadecimal
/// ones.
struct VWhole {
    bool isNegative = false;
    std::uint64_t amount = 0;
};
std::optional<VWhole> WholeIn(wchar_t const* text);

/// A length or a position. None of a message is as large as a gigabyte, so sums and products of these stay exact; what
/// is larger counts as unknown.
std::optional<std::uint64_t> LengthIn(wchar_t const* text);

} // namespace NCheck
