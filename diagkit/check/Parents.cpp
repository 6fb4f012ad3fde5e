// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Parents.h>

#include <diagkit/tools/Inheritance.h>

namespace NCheck {

std::vector<std::vector<VParent>> ParentsByRank(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VLayerOfKind const kinded = layer;
    NDIAGKIT::VInheritancePasses const passes = NDIAGKIT::VInheritedDiagComms::kRow.PassesOf(kinded.kind);
    NODX201::VParentRefCollection* const parentRefs = NDIAGKIT::ParentRefsOf(kinded);
    std::vector<std::vector<VParent>> ranks;
    for (NDIAGKIT::VLayerKinds const pass : {passes.first, passes.second}) {
        if (parentRefs == nullptr || pass == NDIAGKIT::VLayerKinds::None) {
            continue;
        }
        std::vector<VParent>& rank = ranks.emplace_back();
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            if (auto const parent = NDIAGKIT::ParentBy(parentRef, pass)) {
                rank.push_back({&parentRef, parent->layer});
            }
        }
    }
    return ranks;
}

VNames ExcludedDiagComms(NODX201::VParentRef& parentRef) {
    VNames names;
    for (NODX201::VNotInheritedDiagComm& exclusion : parentRef.NotInheritedDiagCommCollection()) {
        if (auto const* const snref = dynamic_cast<NODX201::VSnref*>(&exclusion.GetDiagCommSnref().GetLink())) {
            names.insert(snref->GetShortName());
        }
    }
    return names;
}

} // namespace NCheck
