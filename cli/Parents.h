// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>

namespace NCli {

/// A PARENT-REF and what it names.
struct VParent {
    NODX201::VParentRef* parentRef;
    NODX201::VDiagLayer* layer; ///< null for an unresolved reference
    std::wstring name;          ///< the target's short name, or the ID that an unresolved reference names
    std::string kind; ///< the target's ODX tag, or the one that the reference asks for; "" when it asks for none
};

/// The PARENT-REFs of a layer, in document order.
std::vector<VParent> ParentsOf(NODX201::VDiagLayer& layer);

/// Views merge the parents of a layer in passes over its PARENT-REFs.
inline constexpr int kPasses = 2;

/// The pass in which a layer inherits from a parent; 0 when it does not, because the reference is unresolved or ODX
/// gives such a layer no parents of that kind.
int PassOf(NODX201::VDiagLayer& layer, VParent const& parent);

} // namespace NCli
