// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <deque>
#include <type_traits>
#include <vector>

#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>
#include <diagkit/tools/DopView.h>

namespace NCheck {
namespace {

using NDIAGKIT::VCandidate;
using NDIAGKIT::VLayerKinds;

/// Only the DOP view has its own order.
template <class Kind>
void PutInViewOrder(std::vector<VCandidate const*>& rivals) {
    if constexpr (std::is_same_v<Kind, NDIAGKIT::VInheritedDops>) {
        std::stable_sort(rivals.begin(), rivals.end(), [](VCandidate const* a, VCandidate const* b) {
            return NDIAGKIT::VDopView::Map::key_compare()(a->element->GetShortName(), b->element->GetShortName());
        });
    }
}

/// ODX ranks a FUNCTIONAL-GROUP above a PROTOCOL; where it also comes first, all readers agree on the result.
bool IsRankedAbove(VCandidate const& first, VCandidate const& second) {
    return first.parent->layer.kind == VLayerKinds::FunctionalGroup &&
           second.parent->layer.kind == VLayerKinds::Protocol;
}

/// Whether only the order of PARENT-REFs hides a candidate.
bool IsRival(VCandidate const& candidate) {
    VCandidate const* const winner = candidate.hiddenBy;
    return winner != nullptr && candidate.pass != 0 && winner->pass == candidate.pass &&
           winner->element != candidate.element && winner->parent->layer.layer != candidate.parent->layer.layer &&
           candidate.exclusion == nullptr && !IsRankedAbove(*winner, candidate);
}

/// The rivals among candidates, reference by reference: of several that a parent offers under one name, the first.
std::vector<VCandidate const*> RivalsAmong(std::deque<VCandidate> const& candidates) {
    std::vector<VCandidate const*> rivals;
    NODX201::VParentRef const* reference = nullptr;
    VNames seen;
    for (VCandidate const& candidate : candidates) {
        if (candidate.parent.has_value() && candidate.parent->parentRef != reference) {
            reference = candidate.parent->parentRef;
            seen.clear();
        }
        bool const isFirst = seen.insert(candidate.element->GetShortName()).second;
        if (isFirst && IsRival(candidate)) {
            rivals.push_back(&candidate);
        }
    }
    return rivals;
}

template <class Kind>
bool HasEqualParents(NDIAGKIT::VLayerOfKind const& layer) {
    auto const passes = Kind::kRow.ParentsOf(layer);
    return std::any_of(passes.begin(), passes.end(), [](auto const& parents) { return parents.size() > 1; });
}

template <class Kind>
void Compare(char const* title, NDIAGKIT::VInheritance<Kind>& views, NDIAGKIT::VLayerOfKind const& layer,
             VFindings& findings) {
    if (!HasEqualParents<Kind>(layer)) {
        return;
    }
    std::deque<VCandidate> const candidates = views.CandidatesOf(layer);
    std::vector<VCandidate const*> rivals = RivalsAmong(candidates);
    PutInViewOrder<Kind>(rivals);
    for (VCandidate const* const rival : rivals) {
        findings.Add(PositionOf(*rival->parent->parentRef), NCode::AmbiguousName,
                     std::string(title) + ' ' + Quoted(rival->element->GetShortName()) + " comes to the " +
                         Titled(*layer.layer) + " from the " + Titled(*rival->hiddenBy->parent->layer.layer) +
                         " and another one of that name from the " + Titled(*rival->parent->layer.layer) +
                         ", parents of equal rank; the first wins, because its PARENT-REF stands first");
    }
}

} // namespace

void CheckAmbiguousNames(VChecked const& checked, VFindings& findings) {
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        checked.layerDone();
        Compare("DIAG-COMM", checked.views.diagComms, *layer, findings);
        Compare("DOP", checked.views.dops, *layer, findings);
        Compare("DIAG-VARIABLE", checked.views.diagVariables, *layer, findings);
        Compare("GLOBAL-NEG-RESPONSE", checked.views.globalNegResponses, *layer, findings);
    }
}

} // namespace NCheck
