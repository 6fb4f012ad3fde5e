// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NDIAGKIT {

// Collections of the contract have no iterators for the standard algorithms.

/// Whether the condition is true for at least one item; evaluated in order up to the first.
template <class Range, class Condition>
bool AnyOf(Range&& range, Condition condition) {
    for (auto&& item : range) {
        if (condition(item)) {
            return true;
        }
    }
    return false;
}

/// Whether the condition is true for every item; evaluated in order up to the first for which it is not.
template <class Range, class Condition>
bool AllOf(Range&& range, Condition condition) {
    return !AnyOf(range, [&condition](auto& item) { return !condition(item); });
}

} // namespace NDIAGKIT
