// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

/// Reading that fails in the middle, as on a medium that is broken. The functions with which the standard library and
/// libzip read files are replaced in the whole program, which therefore holds nothing but tests of such faults.

namespace NTest {

/// While it lives, reading fails once so many bytes have been read.
class VFault {
public:
    explicit VFault(std::uint64_t bytesBefore);
    ~VFault();
    VFault(VFault const&) = delete;
    VFault& operator=(VFault const&) = delete;

    bool HasHappened() const;
};

} // namespace NTest
