// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// Makes the malloc of the whole program fail, including the C libraries. Linking FailingMalloc.cpp replaces it. For
/// one thread: no other may allocate in the meantime.

namespace NTest {

/// While it exists, the allocation after the given number of others fails, and only that one.
class VFailingMalloc {
public:
    explicit VFailingMalloc(std::size_t after);
    ~VFailingMalloc();
    VFailingMalloc(VFailingMalloc const&) = delete;
    VFailingMalloc& operator=(VFailingMalloc const&) = delete;

    bool HasFailed() const; ///< whether there were that many
};

} // namespace NTest
