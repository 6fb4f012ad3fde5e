// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/LayerView.h>

#include <algorithm>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <diagkit/check/Views.h>
#include <diagkit/query/ForKind.h>
#include <diagkit/tools/DopView.h>

namespace NQuery {
namespace {

using NDIAGKIT::VCandidate;

/// The view of DOPs is in the order of their short names, whatever the order of the passes.
void SortByShortName(std::vector<VCandidate const*>& candidates) {
    NDIAGKIT::VDopView::Map::key_compare const isBefore;
    std::sort(candidates.begin(), candidates.end(), [&isBefore](VCandidate const* left, VCandidate const* right) {
        return isBefore(left->element->GetShortName(), right->element->GetShortName());
    });
}

template <class Kind>
class VViewMaker {
public:
    explicit VViewMaker(NODX201::VDiagLayer& layer) : m_candidates(m_inheritance.CandidatesOf(layer)) {
        m_view.ways.emplace_back();
        m_ways.emplace(0, 0);
    }

    VLayerView Make() {
        TakeVisible();
        ForgetWhatIsVisible();
        std::unordered_set<NODX201::VOdxElement const*> told;
        for (VCandidate const* const candidate : m_leftOut) {
            if (told.insert(candidate->element).second) {
                bool const isHidden = candidate->hiddenBy != nullptr; // the passes check the name first
                (isHidden ? m_view.hidden : m_view.excluded).push_back(EntryFor(*candidate));
            }
        }
        return std::move(m_view);
    }

private:
    void TakeVisible() {
        std::vector<VCandidate const*> visible;
        visible.reserve(m_candidates.size());
        for (VCandidate const& candidate : m_candidates) {
            bool const hidesItself = candidate.hiddenBy != nullptr && candidate.hiddenBy->element == candidate.element;
            if (candidate.isVisible) {
                visible.push_back(&candidate);
            } else if (!hidesItself) {
                m_leftOut.push_back(&candidate);
            }
        }
        if constexpr (std::is_same_v<Kind, NDIAGKIT::VInheritedDops>) {
            SortByShortName(visible);
        }
        m_view.entries.reserve(visible.size());
        for (VCandidate const* const candidate : visible) {
            m_view.entries.push_back(EntryFor(*candidate));
        }
    }

    /// Removes elements that another PARENT-REF contributes after all, and own elements under a name that is already
    /// visible.
    void ForgetWhatIsVisible() {
        std::unordered_set<NODX201::VOdxElement const*> leftOut;
        for (VCandidate const* const candidate : m_leftOut) {
            leftOut.insert(candidate->element);
        }
        if (leftOut.empty()) {
            return;
        }
        for (VViewEntry const& entry : m_view.entries) {
            leftOut.erase(entry.element);
        }
        auto const isVisible = [&leftOut](VCandidate const* candidate) {
            return leftOut.count(candidate->element) == 0;
        };
        m_leftOut.erase(std::remove_if(m_leftOut.begin(), m_leftOut.end(), isVisible), m_leftOut.end());
    }

    VViewEntry EntryFor(VCandidate const& candidate) {
        bool const isHidden = !candidate.isVisible && candidate.hiddenBy != nullptr;
        bool const isExcluded = !candidate.isVisible && !isHidden;
        return {candidate.element, WayOf(candidate), isHidden ? candidate.hiddenBy->element : nullptr,
                isExcluded ? candidate.exclusion : nullptr};
    }

    std::size_t WayOf(VCandidate const& candidate) {
        if (candidate.way != m_lastWay.first) { // adjacent entries mostly came on the same way
            auto const [way, isNew] = m_ways.try_emplace(candidate.way, m_view.ways.size());
            if (isNew) {
                m_view.ways.push_back(m_inheritance.WayOf(candidate));
            }
            m_lastWay = *way;
        }
        return m_lastWay.second;
    }

    NDIAGKIT::VInheritance<Kind> m_inheritance;
    std::deque<VCandidate> m_candidates;
    std::vector<VCandidate const*> m_leftOut;
    std::unordered_map<std::uint32_t, std::size_t> m_ways; // by their numbers
    std::pair<std::uint32_t, std::size_t> m_lastWay{0, 0};
    VLayerView m_view;
};

VViewEntry const* FindIn(std::vector<VViewEntry> const& entries, std::wstring_view shortName) {
    auto const found = std::find_if(entries.begin(), entries.end(), [shortName](VViewEntry const& entry) {
        return shortName == entry.element->GetShortName();
    });
    return found != entries.end() ? &*found : nullptr;
}

template <class Element>
std::vector<NODX201::VOdxElement*> AsElements(std::vector<Element*> const& elements) {
    return {elements.begin(), elements.end()};
}

} // namespace

NODX201::VDiagLayer& VViewEntry::From() const { return *NDIAGKIT::LayerOf(*element); }

VViewEntry const* VLayerView::Find(std::wstring_view shortName) const { return FindIn(entries, shortName); }

VViewEntry const* VLayerView::FindHidden(std::wstring_view shortName) const { return FindIn(hidden, shortName); }

VViewEntry const* VLayerView::FindExcluded(std::wstring_view shortName) const { return FindIn(excluded, shortName); }

VLayerView ViewOf(NODX201::VDiagLayer& layer, VInheritedKind kind) {
    return ForKind(kind, [&layer](auto row) { return VViewMaker<decltype(row)>(layer).Make(); });
}

std::vector<NODX201::VOdxElement*> EntriesOf(NODX201::VDiagLayer& layer, VInheritedKind kind) {
    switch (kind) {
    case VInheritedKind::DiagVariable:
        return AsElements(NCheck::DiagVariablesIn(layer));
    case VInheritedKind::GlobalNegResponse:
        return AsElements(NCheck::GlobalNegResponsesIn(layer));
    case VInheritedKind::Dop:
        return AsElements(NCheck::DopsIn(layer));
    default:
        return AsElements(NCheck::DiagCommsIn(layer));
    }
}

} // namespace NQuery
