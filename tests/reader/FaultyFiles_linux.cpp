// SPDX-License-Identifier: Apache-2.0
#undef _FORTIFY_SOURCE // it would make these functions inline
#include "reader/FaultyFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void* buffer, size_t count) {
    std::size_t const granted = NTest::GrantedBytes(count);
    if (granted == 0 && count > 0) {
        errno = EIO;
        return -1;
    }
    return syscall(SYS_read, file, buffer, granted);
}

extern "C" __attribute__((visibility("default"))) size_t fread(void* buffer, size_t size, size_t count, FILE* stream) {
    using VFread = size_t (*)(void*, size_t, size_t, FILE*);
    static auto const real = reinterpret_cast<VFread>(dlsym(RTLD_NEXT, "fread"));
    std::size_t const granted = NTest::GrantedBytes(size * count);
    if (granted == 0 && size * count > 0) {
        fputc(0, stream); // this fails on a stream that is only read, and leaves it failed
        errno = EIO;
        return 0;
    }
    return real(buffer, 1, granted, stream) / std::max<std::size_t>(size, 1);
}

namespace NTest {

std::string TextOfPackageFault() { return std::strerror(EIO); }

int const kErrorOfUnreadableFile = EIO;

// A process may read its own memory, and there is none at address 0.
std::shared_ptr<void> MakeUnreadableFile(std::string const& path) {
    std::filesystem::create_symlink("/proc/self/mem", path);
    return nullptr;
}

} // namespace NTest
