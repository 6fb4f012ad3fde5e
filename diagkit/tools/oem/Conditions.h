// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NDIAGKIT {

// Collections of the contract have no iterators for the standard algorithms.

/// Whether the condition holds for one of the items at least; asked in order up to the first.
template <class Range, class Condition>
bool AnyOf(Range&& range, Condition condition) {
    for (auto&& item : range) {
        if (condition(item)) {
            return true;
        }
    }
    return false;
}

/// Whether the condition holds for every item; asked in order up to the first for which it does not.
template <class Range, class Condition>
bool AllOf(Range&& range, Condition condition) {
    return !AnyOf(range, [&condition](auto& item) { return !condition(item); });
}

} // namespace NDIAGKIT
