// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Counts calls of `operator new` of the whole program, including the toolkit's library. Linking CountedAllocations.cpp
/// replaces it.

namespace NTest {

/// The number of blocks allocated since the program started.
std::size_t AllocationCount();

/// The number of blocks that are not released yet.
std::size_t LiveBlocks();

/// While it exists, the allocation after the given number of others fails, and all that follow.
class VFailingAllocations {
public:
    explicit VFailingAllocations(std::size_t after);
    ~VFailingAllocations();
    VFailingAllocations(VFailingAllocations const&) = delete;
    VFailingAllocations& operator=(VFailingAllocations const&) = delete;
};

} // namespace NTest
