// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <new>

#include <gtest/gtest.h>

#include "allocations/CountedAllocations.h"

namespace NTest {

/// Runs `action` with its first allocation failing, then its second, and so on until it succeeds: each time it must
/// throw std::bad_alloc and leave as many blocks as there were. `reset` clears what may be remembered from an earlier
/// run. Returns the number of allocations of the run that succeeds.
template <class Reset, class Action>
std::size_t FailEverywhere(Reset reset, Action action) {
    for (std::size_t after = 0;; ++after) {
        reset();
        std::size_t const before = LiveBlocks();
        bool isDone = false;
        try {
            VFailingAllocations const failing(after);
            action();
            isDone = true;
        } catch (std::bad_alloc const&) {
        }
        reset();
        if (isDone) {
            return after;
        }
        if (LiveBlocks() != before) {
            ADD_FAILURE() << "after " << after << " allocations: " << before << " blocks before, " << LiveBlocks()
                          << " after the failure";
            return after;
        }
    }
}

/// The same for an action that remembers nothing.
template <class Action>
std::size_t FailEverywhere(Action action) {
    return FailEverywhere([] {}, action);
}

} // namespace NTest
