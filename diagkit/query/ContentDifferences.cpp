// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/ContentDifferences.h>

#include <cwchar>
#include <utility>

#include <diagkit/query/ContentTable.h>

namespace NQuery {
namespace {

constexpr std::size_t kMostVisits = 100'000; ///< of pairs of elements for one entry
constexpr std::size_t kLongestText = 200;    ///< of an element without a short name

bool IsSameText(wchar_t const* a, wchar_t const* b) { return a == b || std::wcscmp(a, b) == 0; }

wchar_t const* TagOf(NODX201::VOdxElement const& element) { return NODX201::OdxTagText(element.GetOdxTag()); }

std::wstring Joined(std::wstring const& path, std::wstring const& rest) {
    return path.empty() || rest.empty() ? path + rest : path + L'/' + rest;
}

/// The data of a facet, either inside or referred to.
NODX201::VOdxElement* DataOf(VFacet const& facet) {
    return facet.kind == VFacet::VKind::Element ? facet.element : facet.target;
}

} // namespace

/// Walks over the pairs of elements that differ, and reports the differences in each with the path to it.
class VContentDifferences::VEnumeration {
public:
    VEnumeration(VContentDifferences& differences, VSeenFrom& oldFrom, VSeenFrom& newFrom)
        : m_differences(differences), m_oldFrom(oldFrom), m_newFrom(newFrom) {}

    std::vector<VDetail> Run(NODX201::VOdxElement& old, NODX201::VOdxElement& now) {
        Enter(old, now, 0);
        while (!m_frames.empty() && !m_isCut) {
            VFrame& frame = m_frames.back();
            m_path.resize(frame.pathLength);
            if (frame.next == frame.steps->size()) {
                m_onPath.erase(frame.key);
                m_frames.pop_back();
                continue;
            }
            Take((*frame.steps)[frame.next++]);
        }
        return std::move(m_details);
    }

    bool HasCut() const { return m_hasCut || m_isCut; }

private:
    struct VFrame {
        VSteps steps;
        VHash key;
        NODX201::VOdxElement* old;
        NODX201::VOdxElement* now;
        std::size_t pathLength;
        std::size_t next = 0;
    };

    void Enter(NODX201::VOdxElement& old, NODX201::VOdxElement& now, std::size_t pathLength) {
        VSeen const oldSeen{&old, &m_oldFrom};
        VSeen const newSeen{&now, &m_newFrom};
        VHash const key = m_differences.KeyOf(oldSeen, newSeen);
        if (m_onPath.insert(key).second) { // found again inside itself, it counts by its short name
            m_frames.push_back({m_differences.StepsBetween(oldSeen, newSeen), key, &old, &now, pathLength});
        }
    }

    void Take(VStep const& step) {
        if (!step.path.empty()) {
            m_path += m_path.empty() ? L"" : L"/";
            m_path += step.path;
        }
        bool const isTooFar = m_frames.size() > kMostReferences || ++m_visits > kMostVisits;
        if (step.oldTarget == nullptr) {
            VFrame const& frame = m_frames.back();
            m_details.push_back({m_path, step.oldText, step.newText, frame.old, frame.now, frame.pathLength});
        } else if (isTooFar) {
            m_details.push_back({m_path, step.oldTarget->GetShortName(), step.newTarget->GetShortName()});
            m_hasCut = true;
        } else {
            Enter(*step.oldTarget, *step.newTarget, m_path.size());
        }
        m_isCut = m_visits > kMostVisits || m_details.size() >= kMostDetails;
    }

    VContentDifferences& m_differences;
    VSeenFrom& m_oldFrom;
    VSeenFrom& m_newFrom;
    std::vector<VFrame> m_frames;
    std::unordered_set<VHash, VHashOfHash> m_onPath;
    std::wstring m_path;
    std::vector<VDetail> m_details;
    std::size_t m_visits = 0;
    bool m_hasCut = false; // something is not examined any further
    bool m_isCut = false;  // nothing more is reported
};

VContentDifferences::VDetails VContentDifferences::Between(VSeen const& old, VSeen const& now) {
    VHash const key = KeyOf(old, now);
    if (auto const known = m_details.find(key); known != m_details.end()) {
        return known->second;
    }
    VEnumeration enumeration(*this, *old.from, *now.from);
    std::vector<VDetail> found = enumeration.Run(*old.element, *now.element);
    m_cut += enumeration.HasCut() ? 1 : 0;
    VDetails const details = found.empty() ? nullptr : std::make_shared<std::vector<VDetail> const>(std::move(found));
    m_details.emplace(key, details);
    return details;
}

VHash VContentDifferences::KeyOf(VSeen const& old, VSeen const& now) {
    auto const keyOf = [this](VSeen const& seen) {
        VHash const place = HashOf(reinterpret_cast<std::uintptr_t>(seen.element));
        return m_hashes.Of(*seen.element, *seen.from).dependsOnLayer ? Mixed(place, seen.from->Meaning()) : place;
    };
    return Mixed(keyOf(old), keyOf(now));
}

VContentDifferences::VSteps VContentDifferences::StepsBetween(VSeen const& old, VSeen const& now) {
    VHash const key = KeyOf(old, now);
    if (auto const known = m_steps.find(key); known != m_steps.end()) {
        return known->second;
    }
    std::vector<VStep> steps;
    Compare(old, now, L"", true, 0, steps);
    auto const shared = std::make_shared<std::vector<VStep> const>(std::move(steps));
    m_steps.emplace(key, shared);
    return shared;
}

void VContentDifferences::Compare(VSeen const& old, VSeen const& now, std::wstring const& path, bool isNamed,
                                  std::size_t depth, std::vector<VStep>& steps) {
    if (!IsSameText(TagOf(*old.element), TagOf(*now.element))) {
        steps.push_back({path, TagOf(*old.element), TagOf(*now.element)});
        return;
    }
    if (depth > kMostNested) {
        return;
    }
    VFacetList oldFacets;
    VFacetList newFacets;
    m_facets.Read(*old.element, *old.from, isNamed, oldFacets);
    m_facets.Read(*now.element, *now.from, isNamed, newFacets);
    VByKey byKey;
    std::vector<VHash> const oldKeys = KeysOf(oldFacets, *old.from);
    std::vector<VHash> const newKeys = KeysOf(newFacets, *now.from);
    for (std::size_t i = 0; i < oldKeys.size(); ++i) {
        byKey.emplace(oldKeys[i], i);
    }
    std::vector<bool> isMatched(oldFacets.size());
    for (std::size_t i = 0; i < newFacets.size(); ++i) {
        VFacet const& facet = newFacets[i];
        std::wstring const inner = PathOf(path, facet);
        if (auto const found = byKey.find(newKeys[i]); found != byKey.end()) {
            isMatched[found->second] = true;
            CompareFacets(oldFacets[found->second], *old.from, facet, *now.from, inner, depth, steps);
        } else {
            steps.push_back({inner, std::nullopt, TextOf(facet, *now.from)});
        }
    }
    for (std::size_t i = 0; i < oldFacets.size(); ++i) {
        if (!isMatched[i]) {
            steps.push_back({PathOf(path, oldFacets[i]), TextOf(oldFacets[i], *old.from), std::nullopt});
        }
    }
}

/// The keys by which parts are matched: the name in the path; where order does not count, the content of unnamed parts.
std::vector<VHash> VContentDifferences::KeysOf(VFacetList const& facets, VSeenFrom& from) {
    std::vector<VHash> keys;
    std::unordered_map<VHash, std::uint64_t, VHashOfHash> counts;
    for (VFacet const& facet : facets) {
        VHash key = m_facets.HashOfComponent(facet.component);
        if (facet.isItem && facet.HasName()) {
            key = Mixed(Mixed(key, HashOf(facet.name)), HashOf(facet.number));
        } else if (facet.isItem && m_options.ignoresOrder) {
            VHash const content =
                facet.element != nullptr ? m_hashes.Of(*facet.element, from).hash : HashOf(facet.text);
            key = Mixed(key, content);
            key = Mixed(key, HashOf(++counts[key]));
        } else if (facet.isItem) {
            key = Mixed(key, HashOf(facet.number));
        }
        keys.push_back(key);
    }
    return keys;
}

void VContentDifferences::CompareFacets(VFacet const& old, VSeenFrom& oldFrom, VFacet const& now, VSeenFrom& newFrom,
                                        std::wstring const& path, std::size_t depth, std::vector<VStep>& steps) {
    bool const isText = old.kind == VFacet::VKind::Text || now.kind == VFacet::VKind::Text;
    if (isText) {
        if (!IsSameText(old.text, now.text)) {
            steps.push_back({path, old.text, now.text});
        }
    } else if (old.kind == VFacet::VKind::Element && now.kind == VFacet::VKind::Element) {
        bool const isNamed = now.isItem && now.HasName();
        Compare({old.element, &oldFrom}, {now.element, &newFrom}, path, isNamed, depth + 1, steps);
    } else {
        CompareReferences(old, oldFrom, now, newFrom, path, depth, steps);
    }
}

/// At least one of the two is a reference.
void VContentDifferences::CompareReferences(VFacet const& old, VSeenFrom& oldFrom, VFacet const& now,
                                            VSeenFrom& newFrom, std::wstring const& path, std::size_t depth,
                                            std::vector<VStep>& steps) {
    if (old.isMissing != now.isMissing || !IsSameText(old.name, now.name)) {
        auto const textOf = [](VFacet const& facet) {
            return facet.isMissing ? std::optional<std::wstring>() : std::optional<std::wstring>(facet.name);
        };
        bool const areMissing = old.isMissing && now.isMissing;
        steps.push_back({path, areMissing ? old.name : textOf(old), areMissing ? now.name : textOf(now)});
        return;
    }
    auto* const oldLink = dynamic_cast<NODX201::VLink*>(old.element);
    auto* const newLink = dynamic_cast<NODX201::VLink*>(now.element);
    if (oldLink != nullptr && newLink != nullptr && (HasContent(*oldLink) || HasContent(*newLink))) {
        VSeen const seen{newLink, &newFrom};
        if (oldLink->GetOdxTag() == newLink->GetOdxTag()) {
            Compare({oldLink, &oldFrom}, seen, path, true, depth + 1, steps);
        }
    }
    NODX201::VOdxElement* const oldData = DataOf(old);
    NODX201::VOdxElement* const newData = DataOf(now);
    if (oldData == nullptr || newData == nullptr) {
        return;
    }
    if (m_hashes.Of(*oldData, oldFrom).hash != m_hashes.Of(*newData, newFrom).hash) {
        steps.push_back({path, std::nullopt, std::nullopt, oldData, newData});
    }
}

std::wstring VContentDifferences::PathOf(std::wstring const& path, VFacet const& facet) const {
    std::wstring text = Joined(path, m_facets.TextOfComponent(facet.component));
    if (facet.isItem) {
        text += L'[' + (facet.HasName() ? std::wstring(facet.name) : std::to_wstring(facet.number)) + L']';
    }
    return text;
}

std::wstring VContentDifferences::TextOf(VFacet const& facet, VSeenFrom& from) {
    if (facet.kind == VFacet::VKind::Text) {
        return facet.text;
    }
    if (facet.HasName()) {
        return facet.name;
    }
    if (*facet.element->GetShortName() != L'\0') {
        return facet.element->GetShortName();
    }
    std::wstring text;
    AddTexts(*facet.element, from, false, 0, text);
    if (text.empty()) {
        AddTexts(*facet.element, from, true, 0, text);
    }
    return text.empty() ? m_facets.TextOfComponent(facet.component) : text;
}

/// The texts inside an element, or the attributes, up to a length.
void VContentDifferences::AddTexts(NODX201::VOdxElement& element, VSeenFrom& from, bool areAttributes,
                                   std::size_t depth, std::wstring& text) {
    if (depth > kMostNested) {
        return;
    }
    VFacetList facets;
    m_facets.Read(element, from, false, facets);
    for (VFacet const& facet : facets) {
        if (text.size() > kLongestText) {
            return;
        }
        if (facet.kind == VFacet::VKind::Element) {
            AddTexts(*facet.element, from, areAttributes, depth + 1, text);
            continue;
        }
        bool const isAttribute = m_facets.TextOfComponent(facet.component).find(L'@') != std::wstring::npos;
        if (isAttribute != areAttributes) {
            continue;
        }
        std::wstring const one = facet.kind == VFacet::VKind::Text ? facet.text : facet.name;
        text += (text.empty() || one.empty() ? L"" : L" ") + one;
        if (text.size() > kLongestText) {
            text.resize(kLongestText);
            text += L"...";
        }
    }
}

} // namespace NQuery
