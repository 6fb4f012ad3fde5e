// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/ParentRefs.h>

namespace NMemory {

VParentRefKind ParentRefKindOf(NODX201::VDiagLayer& layer) {
    switch (layer.GetOdxTag()) {
#define ODX_PARENT_REF(name, target, value, type)                                                                      \
    case Tag::target:                                                                                                  \
        return VParentRefKind::target;
#include <diagkit/model/facts/Vocabulary.def>

#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/model/facts/Clear.def>
    default:
        return VParentRefKind::Unknown;
    }
}

} // namespace NMemory
