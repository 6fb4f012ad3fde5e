// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Lets the malloc of the whole program fail, the C libraries included. Linking FailingMalloc.cpp replaces it. For one
/// thread: no other may allocate in the meantime.

namespace NTest {

/// As long as it lives, the allocation after so many others fails, and only that one.
class VFailingMalloc {
public:
    explicit VFailingMalloc(std::size_t after);
    ~VFailingMalloc();
    VFailingMalloc(VFailingMalloc const&) = delete;
    VFailingMalloc& operator=(VFailingMalloc const&) = delete;

    bool HasFailed() const; ///< whether there were so many
};

} // namespace NTest
