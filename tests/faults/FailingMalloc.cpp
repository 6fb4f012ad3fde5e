// SPDX-License-Identifier: Apache-2.0
#include "faults/FailingMalloc.h"

#include <cerrno>
#include <limits>

// The allocator of the C library, and the functions that replace it. On Windows the linker replaces it (--wrap) and
// gives the library's own functions other names; elsewhere those keep these names for programs that replace them.
#ifdef _WIN32
#define LIBRARY_OWN(name) __real_##name
#define IN_PLACE_OF(name) __wrap_##name
#else
#define LIBRARY_OWN(name) __libc_##name
#define IN_PLACE_OF(name) name
#endif

extern "C" {
void* LIBRARY_OWN(malloc)(std::size_t size);
void* LIBRARY_OWN(calloc)(std::size_t count, std::size_t size);
void* LIBRARY_OWN(realloc)(void* block, std::size_t size);
}

namespace NTest {
namespace {

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

// Not thread-local: MinGW would allocate the memory for that with malloc.
std::size_t s_left = kNever; // allocations that still succeed
bool s_hasFailed = false;

bool Fails() {
    if (s_left == kNever) {
        return false;
    }
    if (s_left > 0) {
        --s_left;
        return false;
    }
    s_left = kNever;
    s_hasFailed = true;
    errno = ENOMEM;
    return true;
}

} // namespace

VFailingMalloc::VFailingMalloc(std::size_t after) {
    s_hasFailed = false;
    s_left = after;
}

VFailingMalloc::~VFailingMalloc() { s_left = kNever; }

bool VFailingMalloc::HasFailed() const { return s_hasFailed; }

} // namespace NTest

extern "C" {
void* IN_PLACE_OF(malloc)(std::size_t size) { return NTest::Fails() ? nullptr : LIBRARY_OWN(malloc)(size); }
void* IN_PLACE_OF(calloc)(std::size_t count, std::size_t size) {
    return NTest::Fails() ? nullptr : LIBRARY_OWN(calloc)(count, size);
}
void* IN_PLACE_OF(realloc)(void* block, std::size_t size) {
    return NTest::Fails() ? nullptr : LIBRARY_OWN(realloc)(block, size);
}
}
