// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <string_view>
#include <type_traits>
#include <unordered_map>

#include <diagkit/check/Parents.h>
#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>
#include <diagkit/tools/DopView.h>

namespace NCheck {
namespace {

/// Compares what the parents of one layer offer.
template <class Kind>
class VComparison {
public:
    using Element = typename Kind::Element;

    VComparison(char const* title, NDIAGKIT::VInheritance<Kind>& views, NODX201::VDiagLayer& layer, VFindings& findings)
        : m_title(title), m_views(views), m_layer(layer), m_findings(findings),
          m_view(ByShortName(views.EntriesOf(layer))) {
        for (Element const* const element : NDIAGKIT::VInheritance<Kind>::OwnOf(layer)) {
            m_decided.insert(element->GetShortName());
        }
    }

    void CompareRank(std::vector<VParent> const& rank) {
        m_first.clear();
        m_offers.clear();
        for (VParent const& parent : rank) {
            SeeParent(parent);
        }
        for (auto const& [name, offer] : m_first) {
            m_decided.insert(name);
        }
    }

private:
    /// The DOP view is the one that has an order of its own.
    static std::vector<Element*> InViewOrder(std::vector<Element*> entries) {
        if constexpr (std::is_same_v<Kind, NDIAGKIT::VInheritedDops>) {
            std::sort(entries.begin(), entries.end(), [](Element const* a, Element const* b) {
                return NDIAGKIT::VDopView::Map::key_compare()(a->GetShortName(), b->GetShortName());
            });
        }
        return entries;
    }

    struct VOffer {
        Element* element;
        VParent parent;
    };
    struct VOffered {
        std::vector<Element*> left;   ///< what no reference has brought so far
        std::vector<Element*> rivals; ///< what another parent offers another element for
    };

    void SeeParent(VParent const& parent) {
        VNames const excluded = Kind::kRow.appliesExclusions ? ExcludedDiagComms(*parent.reference) : VNames();
        auto const [known, isNew] = m_offers.try_emplace(parent.layer);
        VOffered& offered = known->second;
        if (isNew) {
            offered.left = OfferedBy(*parent.layer);
        }
        for (Element* const element : offered.rivals) {
            if (excluded.count(element->GetShortName()) == 0) {
                Report(m_first.at(element->GetShortName()), *element, parent);
            }
        }
        // What a parent offers is seen once, by the first reference that does not exclude it.
        std::vector<Element*> const left = std::move(offered.left);
        offered.left = {};
        for (Element* const element : left) {
            if (excluded.count(element->GetShortName()) != 0) {
                offered.left.push_back(element);
                continue;
            }
            VOffer const& first = m_first.try_emplace(element->GetShortName(), VOffer{element, parent}).first->second;
            if (first.element != element && !IsRankedAbove(first.parent, parent)) {
                offered.rivals.push_back(element);
                Report(first, *element, parent);
            }
        }
    }

    /// The first of each short name that is not decided: a parent's own second one of a name is never offered.
    std::vector<Element*> OfferedBy(NODX201::VDiagLayer& parent) {
        std::vector<Element*> offered;
        VNames seen;
        for (Element* const element : InViewOrder(m_views.EntriesOfParent(parent))) {
            std::wstring_view const name = element->GetShortName();
            if (m_decided.count(name) == 0 && seen.insert(name).second) {
                offered.push_back(element);
            }
        }
        return offered;
    }

    /// ODX ranks a FUNCTIONAL-GROUP above a PROTOCOL; where it also stands first, all agree on who wins.
    static bool IsRankedAbove(VParent const& first, VParent const& second) {
        return dynamic_cast<NODX201::VFunctionalGroup*>(first.layer) != nullptr &&
               dynamic_cast<NODX201::VProtocol*>(second.layer) != nullptr;
    }

    void Report(VOffer const& first, Element const& element, VParent const& parent) {
        auto const winner = m_view.find(element.GetShortName());
        if (winner == m_view.end() || winner->second != first.element) {
            return; // a layer of this kind inherits none from there
        }
        m_findings.Add(PositionOf(*parent.reference), NCode::AmbiguousName,
                       std::string(m_title) + ' ' + Quoted(element.GetShortName()) + " comes to the " +
                           Titled(m_layer) + " from the " + Titled(*first.parent.layer) +
                           " and another one of that name from the " + Titled(*parent.layer) +
                           ", parents of equal rank; the first wins, because its PARENT-REF stands first");
    }

    char const* m_title; ///< of the kind
    NDIAGKIT::VInheritance<Kind>& m_views;
    NODX201::VDiagLayer& m_layer;
    VFindings& m_findings;
    std::unordered_map<std::wstring_view, Element*> m_view;
    VNames m_decided; ///< names of own elements and of those that parents of higher rank offer
    std::unordered_map<std::wstring_view, VOffer> m_first;
    std::unordered_map<NODX201::VDiagLayer*, VOffered> m_offers; ///< of the parents of this rank
};

template <class Kind>
void Compare(char const* title, NDIAGKIT::VInheritance<Kind>& views, NODX201::VDiagLayer& layer,
             std::vector<std::vector<VParent>> const& ranks, VFindings& findings) {
    VComparison<Kind> comparison(title, views, layer, findings);
    for (std::vector<VParent> const& rank : ranks) {
        comparison.CompareRank(rank);
    }
}

bool HasEqualParents(std::vector<std::vector<VParent>> const& ranks) {
    for (std::vector<VParent> const& rank : ranks) {
        if (rank.size() > 1) {
            return true;
        }
    }
    return false;
}

} // namespace

void CheckAmbiguousNames(VChecked const& checked, VFindings& findings) {
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        checked.layerDone();
        std::vector<std::vector<VParent>> const ranks = ParentsByRank(*layer);
        if (!HasEqualParents(ranks)) {
            continue;
        }
        Compare("DIAG-COMM", checked.views.diagComms, *layer, ranks, findings);
        Compare("DOP", checked.views.dops, *layer, ranks, findings);
        Compare("DIAG-VARIABLE", checked.views.diagVariables, *layer, ranks, findings);
        Compare("GLOBAL-NEG-RESPONSE", checked.views.globalNegResponses, *layer, ranks, findings);
    }
}

} // namespace NCheck
