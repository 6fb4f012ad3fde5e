// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/ContentHashes.h>

#include <algorithm>

#include <diagkit/query/ContentTable.h>
#include <diagkit/tools/Inheritance.h>

namespace NQuery {
namespace {

VHash HashOfPlace(NODX201::VOdxElement const& element) { return HashOf(reinterpret_cast<std::uintptr_t>(&element)); }

} // namespace

VContentHashes::VKnown VContentHashes::Of(NODX201::VOdxElement& element, VSeenFrom& from) {
    if (auto const known = Find(element, from); known.has_value()) {
        return *known;
    }
    Evaluate(element, from);
    return *Find(element, from);
}

std::optional<VContentHashes::VKnown> VContentHashes::Find(NODX201::VOdxElement& element, VSeenFrom& from) {
    auto const known = m_known.find(&element);
    if (known == m_known.end()) {
        return std::nullopt;
    }
    if (!known->second.dependsOnLayer) {
        return known->second;
    }
    auto const inLayer = m_inLayers.find(Mixed(HashOfPlace(element), from.Meaning()));
    if (inLayer == m_inLayers.end()) {
        return std::nullopt;
    }
    return VKnown{inLayer->second, known->second.owner, true};
}

void VContentHashes::Store(NODX201::VOdxElement& element, VSeenFrom& from, VHash const& hash, bool dependsOnLayer) {
    auto const [known, isNew] = m_known.try_emplace(&element, VKnown{hash, nullptr, dependsOnLayer});
    if (isNew) {
        known->second.owner = NDIAGKIT::LayerOf(element);
    }
    if (dependsOnLayer) {
        m_inLayers.insert_or_assign(Mixed(HashOfPlace(element), from.Meaning()), hash);
    }
}

// References are followed depth first, with a separate stack, however long their chains are. Elements that lead to each
// other are found by Tarjan's algorithm for strongly connected components. An element is walked over once if everything
// that it leads to is known, and otherwise a second time later.
void VContentHashes::Evaluate(NODX201::VOdxElement& element, VSeenFrom& from) {
    m_frames.clear();
    m_stack.clear();
    m_open.clear();
    Open(element, from);
    while (!m_frames.empty()) {
        VFrame& frame = m_frames.back();
        if (frame.next < frame.wanted.size()) {
            NODX201::VOdxElement& wanted = *frame.wanted[frame.next++];
            if (auto const open = m_open.find(&wanted); open != m_open.end()) {
                frame.low = std::min(frame.low, open->second);
            } else if (!Find(wanted, from).has_value()) {
                Open(wanted, from);
            }
            continue;
        }
        VFrame const done = std::move(frame);
        m_frames.pop_back();
        if (done.low == done.index) {
            Close(done, from);
        } else {
            m_frames.back().low = std::min(m_frames.back().low, done.low);
        }
    }
}

void VContentHashes::Open(NODX201::VOdxElement& element, VSeenFrom& from) {
    m_wanted.clear();
    VHash const hash = Walk(element, from);
    if (m_wanted.empty()) {
        Store(element, from, hash, m_dependsOnLayer);
        return;
    }
    std::size_t const index = m_open.size();
    m_open.emplace(&element, index);
    m_stack.push_back(&element);
    m_frames.push_back({&element, index, index, std::move(m_wanted)});
}

void VContentHashes::Close(VFrame const& frame, VSeenFrom& from) {
    auto const first = std::find(m_stack.rbegin(), m_stack.rend(), frame.element).base() - 1;
    VElements const members(first, m_stack.end());
    m_stack.erase(first, m_stack.end());
    bool const leadsToItself = std::find(frame.wanted.begin(), frame.wanted.end(), frame.element) != frame.wanted.end();
    if (members.size() > 1 || leadsToItself) {
        m_circle.insert(members.begin(), members.end());
    }
    std::vector<VHash> hashes;
    VHash all;
    bool dependsOnLayer = false;
    for (NODX201::VOdxElement* const member : members) {
        hashes.push_back(Walk(*member, from));
        all.Add(Mixed(HashOf(member->GetShortName()), hashes.back()));
        dependsOnLayer = dependsOnLayer || m_dependsOnLayer;
    }
    m_circle.clear();
    for (std::size_t i = 0; i < members.size(); ++i) {
        m_open.erase(members[i]);
        Store(*members[i], from, members.size() > 1 ? Mixed(hashes[i], all) : hashes[i], dependsOnLayer);
    }
}

VHash VContentHashes::Walk(NODX201::VOdxElement& element, VSeenFrom& from) {
    m_dependsOnLayer = false;
    m_read.clear();
    return HashOfElement(element, from, true, 0);
}

VHash VContentHashes::HashOfElement(NODX201::VOdxElement& element, VSeenFrom& from, bool isNamed, std::size_t depth) {
    VHash hash = HashOf(NODX201::OdxTagText(element.GetOdxTag()));
    if (depth > kMostNested) {
        ++m_tooDeep;
        return hash;
    }
    std::size_t const start = m_read.size();
    m_dependsOnLayer = m_facets.Read(element, from, isNamed, m_read) || m_dependsOnLayer;
    for (std::size_t i = start; i < m_read.size(); ++i) {
        VFacet const facet = m_read[i]; // its contents are read after the others
        std::size_t const end = m_read.size();
        hash.Add(HashOfFacet(facet, from, depth));
        m_read.resize(end);
    }
    m_read.resize(start);
    return hash;
}

VHash VContentHashes::HashOfFacet(VFacet const& facet, VSeenFrom& from, std::size_t depth) {
    VHash name = m_facets.HashOfComponent(facet.component);
    if (facet.isItem && facet.HasName()) {
        name = Mixed(Mixed(name, HashOf(facet.name)), HashOf(facet.number));
    } else if (facet.isItem && !m_options.ignoresOrder) {
        name = Mixed(name, HashOf(facet.number));
    }
    switch (facet.kind) {
    case VFacet::VKind::Text:
        return Mixed(name, HashOf(facet.text));
    case VFacet::VKind::Element: {
        bool const isNamed = facet.isItem && facet.HasName();
        return Mixed(name, Mixed(VHash(), HashOfElement(*facet.element, from, isNamed, depth + 1)));
    }
    case VFacet::VKind::Reference:
        return Mixed(name, HashOfReference(facet, from, depth));
    }
    return name;
}

/// A list may contain both direct children and references, which count alike.
VHash VContentHashes::HashOfReference(VFacet const& facet, VSeenFrom& from, std::size_t depth) {
    auto& reference = static_cast<NODX201::VLink&>(*facet.element);
    VHash hash = facet.isItem && facet.HasName() ? VHash() : HashOf(facet.name);
    if (facet.isMissing) {
        hash = Mixed(hash, HashOf(1));
        if (m_missing != nullptr) {
            m_missing->insert(&reference);
        }
    }
    if (HasContent(reference)) {
        hash.Add(HashOfElement(reference, from, true, depth + 1));
    }
    if (facet.target == nullptr || m_circle.count(facet.target) != 0) {
        return hash;
    }
    auto const target = Find(*facet.target, from);
    if (!target.has_value()) {
        m_wanted.push_back(facet.target);
        return hash;
    }
    m_dependsOnLayer = m_dependsOnLayer || target->dependsOnLayer;
    return Mixed(hash, target->hash);
}

} // namespace NQuery
