// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/PlaceIndex.h>

#include <algorithm>

#include <diagkit/memory/References.h>

namespace NMemory {
namespace {

constexpr std::size_t kFew = 8;

bool IsLayer(Tag tag) {
    return tag == Tag::Protocol || tag == Tag::FunctionalGroup || tag == Tag::BaseVariant || tag == Tag::EcuVariant ||
           tag == Tag::EcuSharedData;
}

bool IsDocument(Tag tag) {
    return tag == Tag::DiagLayerContainer || tag == Tag::ComparamSpec || tag == Tag::Flash ||
           tag == Tag::MultipleEcuJobSpec || tag == Tag::VehicleInfoSpec;
}

/// Calls `take` with every place that contains an element.
template <class Take>
void ForEachPlaceOf(NODX201::VOdxElement& element, Take take) {
    VScope const scope = ScopeOf(element);
    take(VSearchPlace{});
    if (scope.layer != nullptr) {
        take(VSearchPlace{VPlaceKind::Element, scope.layer});
        take(VSearchPlace{VPlaceKind::NamedLayer, nullptr, scope.layer->GetShortName()});
        take(VSearchPlace{VPlaceKind::Named, nullptr, scope.layer->GetShortName()});
    }
    if (scope.document != nullptr) {
        std::wstring_view const shortName = scope.document->GetShortName();
        take(VSearchPlace{VPlaceKind::Element, scope.document});
        take(VSearchPlace{VPlaceKind::NamedDocument, nullptr, shortName, scope.document->GetOdxTag()});
        take(VSearchPlace{VPlaceKind::Named, nullptr, shortName});
    }
}

bool StandsIn(NODX201::VOdxElement& element, VSearchPlace const& place) {
    bool stands = false;
    ForEachPlaceOf(element, [&](VSearchPlace const& other) { stands = stands || other == place; });
    return stands;
}

/// The layer or document around an element that puts it into a place given by short names.
NODX201::VOdxElement const* NamedIn(NODX201::VOdxElement& element, VSearchPlace const& place) {
    VScope const scope = ScopeOf(element);
    bool const isByLayer = scope.layer != nullptr && place.kind != VPlaceKind::NamedDocument &&
                           place.shortName == scope.layer->GetShortName();
    return isByLayer ? scope.layer : scope.document;
}

} // namespace

VScope ScopeOf(NODX201::VOdxElement& element) {
    VScope scope;
    for (NODX201::VOdxObject* object = &element; object != nullptr; object = object->GetOwner()) {
        auto* const candidate = dynamic_cast<NODX201::VOdxElement*>(object);
        if (candidate == nullptr) {
            continue; // the collection of a container's layers
        }
        if (IsLayer(candidate->GetOdxTag())) {
            scope.layer = candidate;
        } else if (IsDocument(candidate->GetOdxTag())) {
            scope.document = candidate;
        }
    }
    return scope;
}

NODX201::VReferencable* VPlaceIndex::Find(VIdIndex::VEntry const& entry, VExpect expect, VSearchPlace const& place,
                                          std::uint64_t generation) {
    if (entry.Count() <= kFew) {
        return entry.FirstOf(
            [&](NODX201::VReferencable& element) { return expect(element) && StandsIn(element, place); });
    }
    VGroup* const group = GroupOf(entry, place, generation);
    if (group == nullptr) {
        return nullptr;
    }
    auto const [answer, isFirst] = group->firstOfClass.try_emplace(expect, nullptr);
    if (isFirst) {
        auto const found = std::find_if(group->elements.begin(), group->elements.end(),
                                        [expect](auto* held) { return expect(*held); });
        answer->second = found != group->elements.end() ? *found : nullptr;
    }
    return answer->second;
}

NODX201::VReferencable* VPlaceIndex::FindOther(VIdIndex::VEntry const& entry, VExpect expect, VSearchPlace const& place,
                                               std::uint64_t generation) {
    NODX201::VReferencable* const first = Find(entry, expect, place, generation);
    if (first == nullptr) {
        return nullptr;
    }
    NODX201::VOdxElement const* const named = NamedIn(*first, place);
    auto const isOther = [&](NODX201::VReferencable& element) {
        return expect(element) && StandsIn(element, place) && NamedIn(element, place) != named;
    };
    if (entry.Count() <= kFew) {
        return entry.FirstOf(isOther);
    }
    VGroup& group = *GroupOf(entry, place, generation);
    auto const [answer, isNew] = group.otherOfClass.try_emplace(expect, nullptr);
    if (isNew) {
        auto const found = std::find_if(group.elements.begin(), group.elements.end(),
                                        [&isOther](auto* held) { return isOther(*held); });
        answer->second = found != group.elements.end() ? *found : nullptr;
    }
    return answer->second;
}

/// Null when no element of the ID is in the place.
VPlaceIndex::VGroup* VPlaceIndex::GroupOf(VIdIndex::VEntry const& entry, VSearchPlace const& place,
                                          std::uint64_t generation) {
    ForgetOld(generation);
    auto sorted = m_sorted.find(&entry);
    if (sorted == m_sorted.end()) {
        sorted = m_sorted.emplace(&entry, Sort(entry)).first;
    }
    auto const group = sorted->second.find(place);
    return group != sorted->second.end() ? &group->second : nullptr;
}

NODX201::VReferencable* VPlaceIndex::FindInImports(VIdIndex::VEntry const& entry, VExpect expect,
                                                   NODX201::VOdxElement& layer, std::uint64_t generation) {
    ForgetOld(generation);
    auto known = m_imports.find(&layer);
    if (known == m_imports.end()) {
        // Looking for imports uses this index.
        VImports imports = ImportsOf(layer);
        known = m_imports.emplace(&layer, std::move(imports)).first;
    }
    VImports& imports = known->second;
    if (imports.layers.empty()) {
        return nullptr;
    }
    auto answer = imports.found.find({&entry, expect});
    if (answer == imports.found.end()) {
        NODX201::VReferencable* const first = FirstImported(entry, expect, imports, generation);
        answer = imports.found.emplace(std::pair(&entry, expect), first).first;
    }
    return answer->second;
}

VPlaceIndex::VImports VPlaceIndex::ImportsOf(NODX201::VOdxElement& layer) {
    VImports imports;
    auto* const importing = dynamic_cast<IMemLayer*>(&layer);
    if (importing == nullptr) {
        return imports;
    }
    for (VMemImportRef& import : importing->ImportRefCollection()) {
        if (import.HasDiagLayer() && imports.ranks.try_emplace(&import.GetDiagLayer(), imports.ranks.size()).second) {
            imports.layers.push_back(&import.GetDiagLayer());
        }
    }
    return imports;
}

/// Searches the smaller set: the imported layers, or the elements of the ID.
NODX201::VReferencable* VPlaceIndex::FirstImported(VIdIndex::VEntry const& entry, VExpect expect,
                                                   VImports const& imports, std::uint64_t generation) {
    if (imports.layers.size() <= entry.Count()) {
        for (NODX201::VOdxElement const* const layer : imports.layers) {
            if (auto* const found = Find(entry, expect, {VPlaceKind::Element, layer}, generation)) {
                return found;
            }
        }
        return nullptr;
    }
    NODX201::VReferencable* found = nullptr;
    std::size_t best = imports.layers.size();
    entry.ForEach([&](NODX201::VReferencable& element) {
        auto const rank = imports.ranks.find(ScopeOf(element).layer);
        if (rank != imports.ranks.end() && rank->second < best && expect(element)) {
            best = rank->second;
            found = &element;
        }
    });
    return found;
}

void VPlaceIndex::ForgetOld(std::uint64_t generation) {
    if (m_generation != generation) {
        m_sorted.clear();
        m_imports.clear();
        m_generation = generation;
    }
}

VPlaceIndex::VGroups VPlaceIndex::Sort(VIdIndex::VEntry const& entry) {
    VGroups groups;
    entry.ForEach([&groups](NODX201::VReferencable& element) {
        ForEachPlaceOf(element, [&](VSearchPlace const& place) { groups[place].elements.push_back(&element); });
    });
    return groups;
}

} // namespace NMemory
