// SPDX-License-Identifier: Apache-2.0
#include "reader/FaultyFiles.h"

#include <algorithm>
#include <atomic>

namespace NTest {
namespace {

std::atomic<bool> s_isFaulty{false};
std::atomic<bool> s_hasHappened{false};
std::atomic<std::uint64_t> s_left{0};

} // namespace

VFault::VFault(std::uint64_t bytesBefore) {
    s_left = bytesBefore;
    s_hasHappened = false;
    s_isFaulty = true;
}

VFault::~VFault() { s_isFaulty = false; }

bool VFault::HasHappened() const { return s_hasHappened; }

std::size_t GrantedBytes(std::size_t wanted) {
    if (!s_isFaulty) {
        return wanted;
    }
    std::uint64_t left = s_left;
    std::uint64_t granted = 0;
    do { // two threads may read at the same time
        granted = std::min<std::uint64_t>(wanted, left);
    } while (!s_left.compare_exchange_weak(left, left - granted));
    if (granted == 0 && wanted > 0) {
        s_hasHappened = true;
    }
    return static_cast<std::size_t>(granted);
}

} // namespace NTest
