// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/PlaceIndex.h>

#include <algorithm>

namespace NMemory {
namespace {

constexpr std::size_t kFew = 8;

bool IsLayer(Tag tag) {
    return tag == Tag::Protocol || tag == Tag::FunctionalGroup || tag == Tag::BaseVariant || tag == Tag::EcuVariant ||
           tag == Tag::EcuSharedData;
}

bool IsDocument(Tag tag) {
    return tag == Tag::DiagLayerContainer || tag == Tag::ComparamSpec || tag == Tag::Flash ||
           tag == Tag::MultipleEcuJobSpec;
}

/// Calls `take` with every place that an element stands in.
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

/// The first of the elements for which the test holds, or null.
template <class Test>
NODX201::VReferencable* FirstOf(std::vector<NODX201::VReferencable*> const& elements, Test test) {
    auto const found = std::find_if(elements.begin(), elements.end(), test);
    return found != elements.end() ? *found : nullptr;
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
    if (entry.others.size() < kFew) {
        auto const fits = [&](NODX201::VReferencable* element) {
            return expect(*element) && StandsIn(*element, place);
        };
        return fits(entry.first) ? entry.first : FirstOf(entry.others, fits);
    }
    if (m_generation != generation) {
        m_sorted.clear();
        m_generation = generation;
    }
    auto const [sorted, isNew] = m_sorted.try_emplace(&entry);
    if (isNew) {
        sorted->second = Sort(entry);
    }
    auto const group = sorted->second.find(place);
    if (group == sorted->second.end()) {
        return nullptr;
    }
    auto const [answer, isFirst] = group->second.firstOfClass.try_emplace(expect, nullptr);
    if (isFirst) {
        answer->second = FirstOf(group->second.elements, [expect](auto* element) { return expect(*element); });
    }
    return answer->second;
}

VPlaceIndex::VGroups VPlaceIndex::Sort(VIdIndex::VEntry const& entry) {
    VGroups groups;
    auto const add = [&groups](NODX201::VReferencable* element) {
        ForEachPlaceOf(*element, [&](VSearchPlace const& place) { groups[place].elements.push_back(element); });
    };
    add(entry.first);
    std::for_each(entry.others.begin(), entry.others.end(), add);
    return groups;
}

} // namespace NMemory
