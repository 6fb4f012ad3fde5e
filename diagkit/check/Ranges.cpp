// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Ranges.h>

#include <algorithm>
#include <string_view>

#include <diagkit/check/Numbers.h>

namespace NCheck {

bool TakeLimit(NMemory::VMemLimit& limit, double& value, bool& isOpen) {
    std::wstring_view const interval = limit.GetIntervalType();
    if (interval == L"INFINITE") {
        return true;
    }
    auto const number = NumberIn(limit.GetText());
    if (number.has_value()) {
        value = *number;
        isOpen = interval == L"OPEN";
    }
    return number.has_value();
}

std::vector<VNeighbours> NeighboursIn(std::vector<VRange>& ranges) {
    std::stable_sort(ranges.begin(), ranges.end(), [](VRange const& a, VRange const& b) { return a.lower < b.lower; });
    std::vector<VNeighbours> all;
    VRange const* furthest = nullptr;
    for (VRange const& range : ranges) {
        if (furthest != nullptr) {
            all.push_back({furthest, &range});
        }
        bool const reachesFurther = furthest == nullptr || range.upper > furthest->upper ||
                                    (range.upper == furthest->upper && furthest->isUpperOpen);
        furthest = reachesFurther ? &range : furthest;
    }
    return all;
}

bool Overlap(VNeighbours const& neighbours, bool touches) {
    VRange const& before = *neighbours.before;
    VRange const& after = *neighbours.after;
    bool const areClosed = !before.isUpperOpen && !after.isLowerOpen;
    return after.lower < before.upper || (touches && after.lower == before.upper && areClosed) ||
           (after.lower == before.lower && after.upper == before.upper && areClosed);
}

bool HaveGap(VNeighbours const& neighbours, bool isWhole) {
    VRange const& before = *neighbours.before;
    VRange const& after = *neighbours.after;
    if (isWhole) {
        return after.FirstWhole() - before.LastWhole() > 1;
    }
    return after.lower > before.upper || (after.lower == before.upper && before.isUpperOpen && after.isLowerOpen);
}

} // namespace NCheck
