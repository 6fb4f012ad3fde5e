// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ParentTargets.h>

#include <diagkit/model/Layers.h>

namespace NReader {

NODX201::VDiagLayer* TargetOf(NODX201::VParentRef& parentRef) {
    if (auto* const ref = dynamic_cast<NODX201::VProtocolRef*>(&parentRef)) {
        return ref->HasProtocol() ? &ref->GetProtocol() : nullptr;
    }
    if (auto* const ref = dynamic_cast<NODX201::VFunctionalGroupRef*>(&parentRef)) {
        return ref->HasFunctionalGroup() ? &ref->GetFunctionalGroup() : nullptr;
    }
    if (auto* const ref = dynamic_cast<NODX201::VBaseVariantRef*>(&parentRef)) {
        return ref->HasBaseVariant() ? &ref->GetBaseVariant() : nullptr;
    }
    if (auto* const ref = dynamic_cast<NODX201::VEcuSharedDataRef*>(&parentRef)) {
        return ref->HasEcuSharedData() ? &ref->GetEcuSharedData() : nullptr;
    }
    return nullptr;
}

} // namespace NReader
