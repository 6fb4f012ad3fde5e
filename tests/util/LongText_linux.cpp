// SPDX-License-Identifier: Apache-2.0
#include "util/LongText.h"

#include <cstring>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

namespace NTest {

VLongText::VLongText() {
    // What follows the blocks is zero.
    m_text = static_cast<char*>(
        mmap(nullptr, kLength + kBlock, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    int const file = memfd_create("text", 0);
    EXPECT_EQ(ftruncate(file, kBlock), 0);
    for (std::size_t start = 0; start < kLength; start += kBlock) {
        mmap(m_text + start, kBlock, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0);
    }
    close(file);
    std::memset(m_text, 'x', kBlock);
}

VLongText::~VLongText() { munmap(m_text, kLength + kBlock); }

} // namespace NTest
