// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/ParentRefs.h>

namespace NMemory {

VParentRefKind ParentRefKindOf(NODX201::VDiagLayer& layer) {
    switch (layer.GetOdxTag()) {
    case Tag::Protocol:
        return VParentRefKind::Protocol;
    case Tag::FunctionalGroup:
        return VParentRefKind::FunctionalGroup;
    case Tag::BaseVariant:
        return VParentRefKind::BaseVariant;
    case Tag::EcuSharedData:
        return VParentRefKind::EcuSharedData;
    default:
        return VParentRefKind::Unknown;
    }
}

} // namespace NMemory
