// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <optional>

#include <diagkit/query/MessageLayout.h>
#include <diagkit/query/PartList.h>

/// Reckoning with numbers that depend on data. Numbers stop at `kLargestNumber`, so no data makes them wrap. For the
/// sources of this folder.

namespace NQuery {

inline std::uint64_t Plus(std::uint64_t a, std::uint64_t b) { return std::min(a + b, kLargestNumber); }

inline std::uint64_t Times(std::uint64_t a, std::uint64_t b) {
    return b != 0 && a > kLargestNumber / b ? kLargestNumber : a * b;
}

/// Of two numbers that may have no limit, what comes out; no limit where one has none.
template <class Combine>
std::optional<std::uint64_t> Both(std::optional<std::uint64_t> a, std::optional<std::uint64_t> b, Combine combine) {
    return a.has_value() && b.has_value() ? std::optional<std::uint64_t>(combine(*a, *b)) : std::nullopt;
}

inline VExtent Plus(VExtent const& a, VExtent const& b) {
    return {Plus(a.least, b.least), Both(a.most, b.most, [](auto one, auto other) { return Plus(one, other); })};
}

inline VExtent Times(VExtent const& a, VExtent const& b) {
    return {Times(a.least, b.least), Both(a.most, b.most, [](auto one, auto other) { return Times(one, other); })};
}

/// Where two things end.
inline VExtent Larger(VExtent const& a, VExtent const& b) {
    return {std::max(a.least, b.least),
            Both(a.most, b.most, [](auto one, auto other) { return std::max(one, other); })};
}

/// One of several things.
inline void Widen(std::optional<VExtent>& all, VExtent const& one) {
    all = !all.has_value() ? one
                           : VExtent{std::min(all->least, one.least),
                                     Both(all->most, one.most, [](auto a, auto b) { return std::max(a, b); })};
}

/// Whole bytes around bits.
inline VExtent BytesOf(VExtent const& bits) {
    return {(bits.least + 7) / 8, bits.most.has_value() ? std::optional((*bits.most + 7) / 8) : std::nullopt};
}

inline VExtent BitsOf(VExtent const& bytes) { return Times(bytes, VExtent{8, 8}); }

} // namespace NQuery
