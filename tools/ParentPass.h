// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>

namespace NDIAGKIT {

// The target of a parent reference, or null when it has none.
// clang-format off
inline NODX201::VProtocol*        TargetOf(NODX201::VProtocolRef& ref)        { return ref.HasProtocol()        ? &ref.GetProtocol()        : nullptr; }
inline NODX201::VFunctionalGroup* TargetOf(NODX201::VFunctionalGroupRef& ref) { return ref.HasFunctionalGroup() ? &ref.GetFunctionalGroup() : nullptr; }
inline NODX201::VBaseVariant*     TargetOf(NODX201::VBaseVariantRef& ref)     { return ref.HasBaseVariant()     ? &ref.GetBaseVariant()     : nullptr; }
inline NODX201::VEcuSharedData*   TargetOf(NODX201::VEcuSharedDataRef& ref)   { return ref.HasEcuSharedData()   ? &ref.GetEcuSharedData()   : nullptr; }
// clang-format on

/// Calls `inherit` with the reference's target when the reference is of this kind and the target exists.
template <class Ref, class Inherit>
void InheritIfKind(NODX201::VParentRef& parentRef, Inherit& inherit) {
    auto* const ref = dynamic_cast<Ref*>(&parentRef);
    if (ref == nullptr) {
        return;
    }
    if (auto* const target = TargetOf(*ref)) {
        inherit(*target);
    }
}

/// One pass over PARENT-REFS in document order: for every reference of the kinds `Refs`, `inherit` is called with the
/// target. References of other kinds and references without a target are skipped. `enter` sees every reference first,
/// whatever its kind.
template <class... Refs, class Enter, class Inherit>
void ParentPass(NODX201::VParentRefCollection& parentRefs, Enter enter, Inherit inherit) {
    for (NODX201::VParentRef& parentRef : parentRefs) {
        enter(parentRef);
        (InheritIfKind<Refs>(parentRef, inherit), ...);
    }
}

template <class... Refs, class Inherit>
void ParentPass(NODX201::VParentRefCollection& parentRefs, Inherit inherit) {
    ParentPass<Refs...>(
        parentRefs, [](NODX201::VParentRef&) {}, inherit);
}

} // namespace NDIAGKIT
