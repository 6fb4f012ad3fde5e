// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

/// Reading that fails, as on a medium that is broken. The functions with which the standard library and libzip read
/// files are replaced in the whole program, which therefore holds nothing but tests of such faults.

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

/// What the system calls the fault that libzip meets; the standard library meets EIO.
std::string TextOfPackageFault();

/// Makes a file that is there and cannot be read, as long as what is returned lives.
[[nodiscard]] std::shared_ptr<void> MakeUnreadableFile(std::string const& path);

/// The errno of reading it.
extern int const kErrorOfUnreadableFile;

/// For the functions in the place of the system's: how many of the bytes wanted can be had. 0, with the fault noted,
/// when reading is to fail.
std::size_t GrantedBytes(std::size_t wanted);

} // namespace NTest
