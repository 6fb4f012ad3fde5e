// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Counts what goes through `operator new` of the whole program, the toolkit's library included. Linking
/// CountedAllocations.cpp replaces it.

namespace NTest {

/// Blocks asked for since the program started.
std::size_t AllocationCount();

/// Blocks that are not released yet.
std::size_t LiveBlocks();

/// As long as it lives, the allocation after so many others fails, and all that follow.
class VFailingAllocations {
public:
    explicit VFailingAllocations(std::size_t after);
    ~VFailingAllocations();
    VFailingAllocations(VFailingAllocations const&) = delete;
    VFailingAllocations& operator=(VFailingAllocations const&) = delete;
};

} // namespace NTest
