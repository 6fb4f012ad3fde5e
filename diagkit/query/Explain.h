// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/query/InheritedKind.h>
#include <diagkit/tools/InheritanceNotes.h>

/// Why a short name has its meaning in a layer, or none.

namespace NQuery {

/// All elements of the database with a short name, as seen from one layer. Everything points into the database.
struct VExplanation {
    /// The visible element, with the way on which it came; none when nothing is visible. It is present even if its way
    /// is not among the candidates.
    std::optional<NDIAGKIT::VWay> visible;

    /// Every element of the name on every way to the layer, in the order of `VInheritanceNotes::WaysOf`.
    std::vector<NDIAGKIT::VWay> candidates;

    /// How many candidates there are beyond those given; see `VWays`.
    std::optional<std::uint64_t> leftOut = 0;

    /// The elements of the name in layers to which no PARENT-REF leads from here, in document order. The target of a
    /// reference is listed in its own layer, and not at all when it is among the candidates.
    std::vector<NODX201::VOdxElement*> elsewhere;
};

/// Explains a short name, which is compared exactly and may be empty. The time is proportional to the database's
/// elements of this kind and its PARENT-REFs, however many ways there are.
VExplanation Explain(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, VInheritedKind kind,
                     std::wstring_view shortName, std::size_t mostCandidates = NDIAGKIT::kMostWays);

} // namespace NQuery
