// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

/// Failing reads, as on broken media. The functions with which the standard library and libzip read files are replaced
/// in the whole program, which therefore contains only tests of such faults.

namespace NTest {

/// While it exists, reading fails once the given number of bytes has been read.
class VFault {
public:
    explicit VFault(std::uint64_t bytesBefore);
    ~VFault();
    VFault(VFault const&) = delete;
    VFault& operator=(VFault const&) = delete;

    bool HasHappened() const;
};

/// The system's text for the fault as libzip gets it; the standard library gets EIO.
std::string TextOfPackageFault();

/// Makes a file that exists and cannot be read, as long as the returned object exists.
[[nodiscard]] std::shared_ptr<void> MakeUnreadableFile(std::string const& path);

/// The errno of reading it.
extern int const kErrorOfUnreadableFile;

/// For the replacements of the system's functions: how many of the requested bytes can be read. 0, with the fault
/// recorded, when reading is to fail.
std::size_t GrantedBytes(std::size_t wanted);

} // namespace NTest
