// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/Layers.h>

namespace NCli {

/// A PARENT-REF and its target.
struct VNamedParent {
    NODX201::VDiagLayer* layer; ///< null for an unresolved reference
    std::wstring name;          ///< the target's short name, or the ID in an unresolved reference
    std::string kind; ///< the target's ODX tag, or the one that the reference asks for; "" when it asks for none
    bool isFollowed;  ///< whether the layer inherits from it: the reference is resolved, and ODX gives such a layer
                      ///< parents of that kind
};

/// The PARENT-REFs of a layer, in document order.
std::vector<VNamedParent> NamedParentsOf(NODX201::VDiagLayer& layer);

} // namespace NCli
