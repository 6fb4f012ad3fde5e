// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace NDIAGKIT {

/// A set of addresses, for searches that enter everything once: an open hash table, which allocates nothing for a
/// single entry. `std::unordered_set` costs a search as much as all its other steps together.
class VPointerSet {
public:
    /// Whether the address, which is not null, is new.
    bool Insert(void const* address) {
        if (2 * (m_count + 1) > m_slots.size()) {
            Grow();
        }
        void const*& slot = SlotOf(address);
        if (slot == address) {
            return false;
        }
        slot = address;
        ++m_count;
        return true;
    }

private:
    /// The slot with the address, or the empty one where it belongs.
    void const*& SlotOf(void const* address) {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15; // addresses differ in their middle bits
        std::size_t const mask = m_slots.size() - 1;
        std::uint64_t const hash = reinterpret_cast<std::uintptr_t>(address) * kGoldenRatio;
        std::size_t slot = static_cast<std::size_t>(hash >> 32) & mask;
        while (m_slots[slot] != nullptr && m_slots[slot] != address) {
            slot = (slot + 1) & mask;
        }
        return m_slots[slot];
    }

    void Grow() {
        std::vector<void const*> slots(m_slots.empty() ? 64 : 2 * m_slots.size());
        m_slots.swap(slots);
        for (void const* const address : slots) {
            if (address != nullptr) {
                SlotOf(address) = address;
            }
        }
    }

    std::vector<void const*> m_slots; // their number is a power of two
    std::size_t m_count = 0;
};

} // namespace NDIAGKIT
