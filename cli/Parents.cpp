// SPDX-License-Identifier: Apache-2.0
#include <cli/Parents.h>

#include <string_view>

#include <cli/Text.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>

namespace NCli {
namespace {

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

} // namespace

std::vector<VParent> ParentsOf(NODX201::VDiagLayer& layer) {
    std::vector<VParent> parents;
    if (NODX201::VParentRefCollection* const parentRefs = NDIAGKIT::ParentRefsOf(layer)) {
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            parents.push_back(ParentBy(parentRef));
        }
    }
    return parents;
}

int PassOf(NODX201::VDiagLayer& layer, VParent const& parent) {
    NDIAGKIT::VLayerOfKind const heir(layer);
    NDIAGKIT::VInheritancePasses const passes = NDIAGKIT::VInheritedDiagComms::kRow.PassesOf(heir.kind);
    if (NDIAGKIT::ParentBy(*parent.parentRef, passes.first).has_value()) {
        return 1;
    }
    return NDIAGKIT::ParentBy(*parent.parentRef, passes.second).has_value() ? 2 : 0;
}

} // namespace NCli
