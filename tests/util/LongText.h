// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace NTest {

/// A text of 2 GiB and a terminator, of which only one block is physical memory.
class VLongText {
public:
    VLongText();
    ~VLongText();
    VLongText(VLongText const&) = delete;
    VLongText& operator=(VLongText const&) = delete;

    char const* Get() const { return m_text; }

private:
    static constexpr std::size_t kBlock = std::size_t{1} << 24;
    static constexpr std::size_t kLength = std::size_t{1} << 31;

    char* m_text = nullptr;
};

} // namespace NTest
