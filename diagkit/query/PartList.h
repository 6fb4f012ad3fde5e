// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <diagkit/query/Content.h>

/// The parts of one element, to be asked for by their names. For the sources of this folder.

namespace NQuery {

class VPartList {
public:
    explicit VPartList(NODX201::VOdxElement& element);

    /// An attribute or text of the element itself; "" without one.
    wchar_t const* Text(wchar_t const* tag) const;
    /// A child element; null without one.
    NODX201::VOdxElement* Element(wchar_t const* tag) const;
    /// The first reference of this name, or the first of all; null without one.
    NODX201::VLink* Reference(wchar_t const* tag) const;
    NODX201::VLink* Reference() const;

    std::vector<VContentPart>::const_iterator begin() const { return m_parts.begin(); }
    std::vector<VContentPart>::const_iterator end() const { return m_parts.end(); }

private:
    std::vector<VContentPart> m_parts;
};

/// Whether two names are the same.
bool IsTag(wchar_t const* tag, wchar_t const* other);

/// A number of digits alone, or nothing. What is beyond `kLargestNumber` is that.
std::optional<std::uint64_t> NumberIn(wchar_t const* text);

constexpr std::uint64_t kLargestNumber = std::uint64_t{1} << 53; // what JSON readers take exactly

} // namespace NQuery
