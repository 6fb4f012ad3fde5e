// SPDX-License-Identifier: Apache-2.0
#include "support/GraphPlan.h"

namespace NTest {

VLayerPlan const* VGraphPlan::Find(std::wstring const& name) const {
    for (VLayerPlan const& layer : layers) {
        if (layer.name == name) {
            return &layer;
        }
    }
    return nullptr;
}

VParentPlan::VRefKind RefKindFor(VKind kind) {
    switch (kind) {
    case VKind::EcuSharedData:
        return VParentPlan::VRefKind::EcuSharedData;
    case VKind::Protocol:
        return VParentPlan::VRefKind::Protocol;
    case VKind::FunctionalGroup:
        return VParentPlan::VRefKind::FunctionalGroup;
    case VKind::BaseVariant:
        return VParentPlan::VRefKind::BaseVariant;
    case VKind::EcuVariant:
        break;
    }
    return VParentPlan::VRefKind::NoKind;
}

} // namespace NTest
