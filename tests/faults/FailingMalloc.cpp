// SPDX-License-Identifier: Apache-2.0
#include "faults/FailingMalloc.h"

#include <cerrno>
#include <limits>

// The allocator of the C library under the names that it keeps for programs that replace the usual ones.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace NTest {
namespace {

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

thread_local std::size_t s_left = kNever; // allocations that still succeed
thread_local bool s_hasFailed = false;

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
void* malloc(std::size_t size) { return NTest::Fails() ? nullptr : __libc_malloc(size); }
void* calloc(std::size_t count, std::size_t size) { return NTest::Fails() ? nullptr : __libc_calloc(count, size); }
void* realloc(void* block, std::size_t size) { return NTest::Fails() ? nullptr : __libc_realloc(block, size); }
}
