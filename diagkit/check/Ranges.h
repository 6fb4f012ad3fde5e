// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include <diagkit/memory/Compu.h>

namespace NCheck {

/// What lies between two limits.
struct VRange {
    NODX201::VOdxElement* element = nullptr; ///< that has the limits
    double lower = -std::numeric_limits<double>::infinity();
    double upper = std::numeric_limits<double>::infinity();
    bool isLowerOpen = false;
    bool isUpperOpen = false;

    bool IsReversed() const { return lower > upper; }
    double FirstWhole() const { return isLowerOpen ? std::floor(lower) + 1 : std::ceil(lower); }
    double LastWhole() const { return isUpperOpen ? std::ceil(upper) - 1 : std::floor(upper); }
};

/// What a limit that is not there stands for.
enum class VAbsentLimit { Unknown, SameAsOther, Infinite };

/// Reads one limit into `value`, which is unchanged for an infinite one; false if it is not a number, or too large to
/// be exact.
bool TakeLimit(NMemory::VMemLimit& limit, double& value, bool& isOpen);

/// Between the LOWER-LIMIT and UPPER-LIMIT of an element; nothing where that cannot be said in numbers.
template <class Element>
std::optional<VRange> RangeOf(Element& element, VAbsentLimit absent) {
    VRange range{&element};
    bool const hasLower = element.HasLowerLimit();
    bool const hasUpper = element.HasUpperLimit();
    bool const isKnown = (!hasLower || TakeLimit(element.GetLowerLimit(), range.lower, range.isLowerOpen)) &&
                         (!hasUpper || TakeLimit(element.GetUpperLimit(), range.upper, range.isUpperOpen));
    if (!isKnown || ((!hasLower || !hasUpper) && absent == VAbsentLimit::Unknown)) {
        return std::nullopt;
    }
    if (absent == VAbsentLimit::SameAsOther && hasLower != hasUpper) {
        (hasLower ? range.upper : range.lower) = hasLower ? range.lower : range.upper;
    }
    return range;
}

/// Two ranges that are neighbours in the order of their lower limits.
struct VNeighbours {
    VRange const* before; ///< of those before, the one that reaches furthest
    VRange const* after;
};

/// Each range with what reaches furthest before it. Sorts the ranges by their lower limits.
std::vector<VNeighbours> NeighboursIn(std::vector<VRange>& ranges);

/// Whether ranges share values; where `touches`, one limit that both have is enough.
bool Overlap(VNeighbours const& neighbours, bool touches);

/// Whether values lie between; of whole numbers where `isWhole`.
bool HaveGap(VNeighbours const& neighbours, bool isWhole);

} // namespace NCheck
