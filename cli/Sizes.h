// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace NCli {

/// A number of bytes: digits and one of K, M, G, T (powers of 1024) or none, then B, iB or nothing, in upper or lower
/// case. Nothing for any other text, and for a number that does not fit into 64 bits.
std::optional<std::uint64_t> SizeIn(std::string_view text);

/// The reverse, in the largest unit that leaves a whole number: "512M".
std::string SizeText(std::uint64_t size);

} // namespace NCli
