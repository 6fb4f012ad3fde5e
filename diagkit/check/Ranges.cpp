// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Ranges.h>

#include <algorithm>
#include <cmath>
#include <string_view>

#include <diagkit/check/Numbers.h>

namespace NCheck {

namespace {

constexpr double kLargestExact = 9007199254740992; // 2^53; larger whole numbers are rounded

bool IsWhole(double number) { return std::floor(number) == number; }

} // namespace

bool TakeLimit(NMemory::VMemLimit& limit, double& value, bool& isOpen) {
    std::wstring_view const interval = limit.GetIntervalType();
    if (interval == L"INFINITE") {
        return true;
    }
    auto const number = NumberIn(limit.GetText());
    if (!number.has_value() || std::abs(*number) > kLargestExact) {
        return false;
    }
    value = *number;
    isOpen = interval == L"OPEN";
    return true;
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
    if (!areClosed && IsWhole(before.upper) && IsWhole(after.lower)) {
        return after.FirstWhole() <= before.LastWhole(); // between 9 and 10 there may be nothing
    }
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
