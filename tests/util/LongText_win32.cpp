// SPDX-License-Identifier: Apache-2.0
#include "util/LongText.h"

#include <cstring>

#include <gtest/gtest.h>

#include <windows.h>

namespace NTest {

VLongText::VLongText() {
    // Its parts are mapped one after the other where there is room for all of it; the terminator is zero initially.
    m_text = static_cast<char*>(VirtualAlloc(nullptr, kLength + kBlock, MEM_RESERVE, PAGE_NOACCESS));
    VirtualFree(m_text, 0, MEM_RELEASE);
    HANDLE const block = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, kBlock, nullptr);
    for (std::size_t start = 0; start < kLength; start += kBlock) {
        EXPECT_EQ(MapViewOfFileEx(block, FILE_MAP_WRITE, 0, 0, kBlock, m_text + start), m_text + start);
    }
    CloseHandle(block);
    EXPECT_EQ(VirtualAlloc(m_text + kLength, kBlock, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE), m_text + kLength);
    std::memset(m_text, 'x', kBlock);
}

VLongText::~VLongText() {
    for (std::size_t start = 0; start < kLength; start += kBlock) {
        UnmapViewOfFile(m_text + start);
    }
    VirtualFree(m_text + kLength, 0, MEM_RELEASE);
}

} // namespace NTest
