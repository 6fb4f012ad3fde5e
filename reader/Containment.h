// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/reader/Types.h>

namespace NReader {

/// A way from one DOP into another: by a reference, or by standing inside it.
struct VEdge {
    NODX201::VDopBase* target;
    NMemory::VMemNode* node = nullptr;             ///< the reference; null where the target stands inside
    std::function<void()> sever{};                 ///< of a reference by ID
    NMemory::VMemDopBaseLink* shortName = nullptr; ///< of a reference by short name
};
using VEdges = std::vector<VEdge>;

/// The DOPs that a reference by short name is to be followed to.
using VShortNameTargets = std::function<std::vector<NODX201::VDopBase*>(NMemory::VMemDopBaseLink& link)>;

/// The ways out of a DOP through its parameters, fields, multiplexers and environment data, in document order. The
/// references of VALUE parameters are the only ones among them that may be by short name.
VEdges EdgesOf(NODX201::VDopBase& dop, VShortNameTargets const& shortNameTargets);

} // namespace NReader
