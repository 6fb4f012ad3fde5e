// SPDX-License-Identifier: Apache-2.0
#undef _FORTIFY_SOURCE // which would have these functions inline
#include "reader/FaultyFiles.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<bool> g_isFaulty{false};
std::atomic<bool> g_hasHappened{false};
std::atomic<std::uint64_t> g_left{0};

/// How many of the bytes wanted can be had; 0, with the fault noted, when there are none.
std::size_t Granted(std::size_t wanted) {
    if (!g_isFaulty) {
        return wanted;
    }
    std::size_t const granted = static_cast<std::size_t>(std::min<std::uint64_t>(wanted, g_left));
    g_left -= granted;
    g_hasHappened = g_hasHappened || (granted == 0 && wanted > 0);
    return granted;
}

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void* buffer, size_t count) {
    std::size_t const granted = Granted(count);
    if (granted == 0 && count > 0) {
        errno = EIO;
        return -1;
    }
    return syscall(SYS_read, file, buffer, granted);
}

extern "C" __attribute__((visibility("default"))) size_t fread(void* buffer, size_t size, size_t count, FILE* stream) {
    using VFread = size_t (*)(void*, size_t, size_t, FILE*);
    static auto const real = reinterpret_cast<VFread>(dlsym(RTLD_NEXT, "fread"));
    std::size_t const granted = Granted(size * count);
    if (granted == 0 && size * count > 0) {
        fputc(0, stream); // on a stream that is only read this fails, and leaves it failed
        errno = EIO;
        return 0;
    }
    return real(buffer, 1, granted, stream) / std::max<std::size_t>(size, 1);
}

namespace NTest {

VFault::VFault(std::uint64_t bytesBefore) {
    g_left = bytesBefore;
    g_hasHappened = false;
    g_isFaulty = true;
}

VFault::~VFault() { g_isFaulty = false; }

bool VFault::HasHappened() const { return g_hasHappened; }

} // namespace NTest
