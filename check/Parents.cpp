// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Parents.h>

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/ParentPass.h>

namespace NCheck {
namespace {

struct VRanks : NODX201::VDiagLayerVisitor {
    std::vector<std::vector<VParent>> ranks;

    void VisitProtocol(NODX201::VProtocol& layer) override { Add<NODX201::VEcuSharedDataRef>(layer); }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override {
        Add<NODX201::VProtocolRef>(layer);
        Add<NODX201::VEcuSharedDataRef>(layer);
    }
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override {
        Add<NODX201::VProtocolRef, NODX201::VFunctionalGroupRef>(layer);
        Add<NODX201::VEcuSharedDataRef>(layer);
    }
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override {
        Add<NODX201::VBaseVariantRef>(layer);
        Add<NODX201::VEcuSharedDataRef>(layer);
    }
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override {}

private:
    template <class... Refs, class Layer>
    void Add(Layer& layer) {
        std::vector<VParent> rank;
        NODX201::VParentRef* current = nullptr;
        NDIAGKIT::ParentPass<Refs...>(
            layer.ParentRefCollection(), [&current](NODX201::VParentRef& parentRef) { current = &parentRef; },
            [&](NODX201::VDiagLayer& parent) {
                rank.push_back({current, &parent});
            });
        ranks.push_back(std::move(rank));
    }
};

} // namespace

std::vector<std::vector<VParent>> ParentsByRank(NODX201::VDiagLayer& layer) {
    VRanks ranks;
    layer.Accept(ranks);
    return std::move(ranks.ranks);
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
