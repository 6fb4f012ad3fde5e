// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/TextTable.h>

namespace NMemory {

std::uint32_t HashOf(std::wstring_view text) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = text.size();
    auto const mix = [&hash](std::uint64_t value) {
        hash = (hash ^ value) * kFactor;
        hash ^= hash >> 29;
    };
    std::size_t index = 0;
    for (; index + 1 < text.size(); index += 2) {
        mix(static_cast<std::uint64_t>(text[index]) | static_cast<std::uint64_t>(text[index + 1]) << 32);
    }
    if (index < text.size()) {
        mix(static_cast<std::uint64_t>(text[index]));
    }
    return static_cast<std::uint32_t>(hash * kFactor >> 32);
}

} // namespace NMemory
