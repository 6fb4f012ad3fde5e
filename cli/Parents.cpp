// SPDX-License-Identifier: Apache-2.0
#include <cli/Parents.h>

#include <string_view>

#include <cli/Text.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>

namespace NCli {
namespace {

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

VNamedParent Named(NDIAGKIT::VLayerOfKind const& heir, NODX201::VParentRef& parentRef) {
    auto const parent = NDIAGKIT::ParentBy(parentRef);
    if (parent.has_value()) {
        NODX201::VDiagLayer& layer = *parent->layer;
        return {&layer, layer.GetShortName(), TagTextOf(layer), NDIAGKIT::InheritsFrom(heir.kind, parent->kind)};
    }
    auto* const untyped = dynamic_cast<NMemory::VMemParentRef*>(&parentRef);
    if (untyped != nullptr && untyped->HasDiagLayer()) {
        NODX201::VDiagLayer& layer = untyped->GetDiagLayer();
        return {&layer, layer.GetShortName(), TagTextOf(layer), false};
    }
    return {nullptr, NameIn(parentRef.GetLink()), KindAskedFor(parentRef), false};
}

} // namespace

std::vector<VNamedParent> NamedParentsOf(NODX201::VDiagLayer& layer) {
    std::vector<VNamedParent> parents;
    NDIAGKIT::VLayerOfKind const heir(layer);
    if (NODX201::VParentRefCollection* const parentRefs = NDIAGKIT::ParentRefsOf(heir)) {
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            parents.push_back(Named(heir, parentRef));
        }
    }
    return parents;
}

} // namespace NCli
