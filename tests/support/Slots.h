// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstring>
#include <vector>

/// The places of virtual operations in their class's table, read out of pointers to members. The Itanium C++ ABI, which
/// GCC and Clang follow on x86-64, keeps the place there; other compilers do not, and the tests are left out.
#if defined(__x86_64__) && defined(__GXX_ABI_VERSION)
#define DIAGKIT_TEST_SLOTS

namespace NTest {

/// From 0. A virtual destructor takes two places.
template <class Operation>
std::ptrdiff_t SlotOf(Operation operation) {
    static_assert(sizeof(Operation) == 2 * sizeof(std::ptrdiff_t));
    std::ptrdiff_t word = 0;
    std::memcpy(&word, &operation, sizeof word);
    // One more than the offset for a virtual operation; an address, which is even, for any other.
    return (word & 1) != 0 ? (word - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) : -1;
}

template <class... Operations>
std::vector<std::ptrdiff_t> SlotsOf(Operations... operations) {
    return {SlotOf(operations)...};
}

/// The places of the given number of operations that follow the destructor, which comes first.
inline std::vector<std::ptrdiff_t> SlotsAfterDestructor(std::size_t count) {
    std::vector<std::ptrdiff_t> slots;
    for (std::size_t slot = 0; slot < count; ++slot) {
        slots.push_back(static_cast<std::ptrdiff_t>(slot) + 2);
    }
    return slots;
}

} // namespace NTest

#endif
