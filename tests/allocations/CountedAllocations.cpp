// SPDX-License-Identifier: Apache-2.0
#include "allocations/CountedAllocations.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace NTest {
namespace {

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

std::size_t s_count = 0;
std::size_t s_live = 0;
std::size_t s_left = kNever; // allocations that still succeed

void* Allocate(std::size_t size) {
    if (s_left == 0) {
        throw std::bad_alloc();
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    if (s_left != kNever) {
        --s_left;
    }
    ++s_count;
    ++s_live;
    return block;
}

void* AllocateOrNull(std::size_t size) noexcept {
    try {
        return Allocate(size);
    } catch (std::bad_alloc const&) {
        return nullptr;
    }
}

void Release(void* block) noexcept {
    if (block != nullptr) {
        --s_live;
        std::free(block);
    }
}

} // namespace

std::size_t AllocationCount() { return s_count; }

std::size_t LiveBlocks() { return s_live; }

VFailingAllocations::VFailingAllocations(std::size_t after) { s_left = after; }

VFailingAllocations::~VFailingAllocations() { s_left = kNever; }

} // namespace NTest

void* operator new(std::size_t size) { return NTest::Allocate(size); }
void* operator new[](std::size_t size) { return NTest::Allocate(size); }
// The standard one calls the operator above; a sanitizer's does not, and ours would release the block.
void* operator new(std::size_t size, std::nothrow_t const&) noexcept { return NTest::AllocateOrNull(size); }
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept { return NTest::AllocateOrNull(size); }
void operator delete(void* block) noexcept { NTest::Release(block); }
void operator delete[](void* block) noexcept { NTest::Release(block); }
void operator delete(void* block, std::size_t) noexcept { NTest::Release(block); }
void operator delete[](void* block, std::size_t) noexcept { NTest::Release(block); }
