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
    std::size_t const granted = static_cast<std::size_t>(std::min<std::uint64_t>(wanted, s_left));
    s_left -= granted;
    s_hasHappened = s_hasHappened || (granted == 0 && wanted > 0);
    return granted;
}

} // namespace NTest
