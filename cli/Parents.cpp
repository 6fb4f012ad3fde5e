// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Parents.h>

#include <array>
#include <string_view>

#include <diagkit/cli/Text.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>

namespace NCli {
namespace {

using NODX201::VOdxTagEnum;

/// Finds the PARENT-REFS of a layer: null for an ECU-SHARED-DATA, which has none.
struct VParentRefsFinder : NODX201::VDiagLayerVisitor {
    NODX201::VParentRefCollection* parentRefs = nullptr;

    void VisitProtocol(NODX201::VProtocol& layer) override { parentRefs = &layer.ParentRefCollection(); }
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override { parentRefs = &layer.ParentRefCollection(); }
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override { parentRefs = &layer.ParentRefCollection(); }
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override { parentRefs = &layer.ParentRefCollection(); }
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override {}
};

/// Of a reference without a kind as well.
NODX201::VDiagLayer* TargetOf(NODX201::VParentRef& parentRef) {
    if (auto const parent = NDIAGKIT::ParentBy(parentRef)) {
        return parent->layer;
    }
    auto* const ref = dynamic_cast<NMemory::VMemParentRef*>(&parentRef);
    return ref != nullptr && ref->HasDiagLayer() ? &ref->GetDiagLayer() : nullptr;
}

std::wstring NameIn(NODX201::ILink& link) {
    if (auto const* const byId = dynamic_cast<NODX201::VOdxLink*>(&link)) {
        return byId->GetIdRef();
    }
    auto const* const snref = dynamic_cast<NODX201::VSnref*>(&link);
    return snref != nullptr ? snref->GetShortName() : L"";
}

/// "PROTOCOL" for a PARENT-REF of the type PROTOCOL-REF; "" for one without a type.
std::string KindAskedFor(NODX201::VParentRef const& parentRef) {
    constexpr std::wstring_view kEnding = L"-REF";
    std::wstring_view type = NODX201::OdxTypeText(parentRef.GetOdxTag());
    if (!type.empty()) {
        type.remove_suffix(kEnding.size());
    }
    return NReader::ToUtf8(type);
}

VParent ParentBy(NODX201::VParentRef& parentRef) {
    if (NODX201::VDiagLayer* const target = TargetOf(parentRef)) {
        return {&parentRef, target, target->GetShortName(), TagTextOf(*target)};
    }
    return {&parentRef, nullptr, NameIn(parentRef.GetLink()), KindAskedFor(parentRef)};
}

struct VPassRow {
    VOdxTagEnum layer;
    VOdxTagEnum parentRef;
    int pass;
};

// clang-format off
constexpr std::array kPassRows{
    VPassRow{VOdxTagEnum::Protocol,        VOdxTagEnum::EcuSharedDataRef,   1},
    VPassRow{VOdxTagEnum::FunctionalGroup, VOdxTagEnum::ProtocolRef,        1},
    VPassRow{VOdxTagEnum::FunctionalGroup, VOdxTagEnum::EcuSharedDataRef,   2},
    VPassRow{VOdxTagEnum::BaseVariant,     VOdxTagEnum::ProtocolRef,        1},
    VPassRow{VOdxTagEnum::BaseVariant,     VOdxTagEnum::FunctionalGroupRef, 1},
    VPassRow{VOdxTagEnum::BaseVariant,     VOdxTagEnum::EcuSharedDataRef,   2},
    VPassRow{VOdxTagEnum::EcuVariant,      VOdxTagEnum::BaseVariantRef,     1},
    VPassRow{VOdxTagEnum::EcuVariant,      VOdxTagEnum::EcuSharedDataRef,   2},
};
// clang-format on

} // namespace

std::vector<VParent> ParentsOf(NODX201::VDiagLayer& layer) {
    VParentRefsFinder finder;
    layer.Accept(finder);
    std::vector<VParent> parents;
    if (finder.parentRefs == nullptr) {
        return parents;
    }
    for (NODX201::VParentRef& parentRef : *finder.parentRefs) {
        parents.push_back(ParentBy(parentRef));
    }
    return parents;
}

int PassOf(NODX201::VDiagLayer const& layer, VParent const& parent) {
    if (parent.layer == nullptr) {
        return 0;
    }
    for (VPassRow const& row : kPassRows) {
        if (row.layer == layer.GetOdxTag() && row.parentRef == parent.parentRef->GetOdxTag()) {
            return row.pass;
        }
    }
    return 0;
}

} // namespace NCli
