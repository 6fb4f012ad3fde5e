// SPDX-License-Identifier: Apache-2.0
#include <string_view>
#include <unordered_map>

#include <diagkit/check/Parents.h>
#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>

namespace NCheck {
namespace {

/// No other view applies exclusions.
VNames NoExclusions(NODX201::VParentRef&) { return {}; }

/// A kind of element that layers inherit by short name.
template <class Element>
struct VInherited {
    char const* title;
    std::vector<Element*> (*visible)(NODX201::VDiagLayer& layer);
    std::vector<Element*> (*own)(NODX201::VDiagLayer& layer);
    VNames (*excluded)(NODX201::VParentRef& parentRef);
};

/// Compares what the parents of one layer offer.
template <class Element>
class VComparison {
public:
    VComparison(VInherited<Element> const& kind, NODX201::VDiagLayer& layer, VFindings& findings)
        : m_kind(kind), m_layer(layer), m_findings(findings), m_view(ByShortName(kind.visible(layer))) {
        for (Element const* const element : kind.own(layer)) {
            m_decided.insert(element->GetShortName());
        }
    }

    void CompareRank(std::vector<VParent> const& rank) {
        m_first.clear();
        for (VParent const& parent : rank) {
            SeeParent(parent);
        }
        for (auto const& [name, offer] : m_first) {
            m_decided.insert(name);
        }
    }

private:
    struct VOffer {
        Element* element;
        VParent parent;
    };

    void SeeParent(VParent const& parent) {
        VNames const excluded = m_kind.excluded(*parent.reference);
        VNames seen; // a parent's own second one of a name is never offered
        for (Element* const element : m_kind.visible(*parent.layer)) {
            std::wstring_view const name = element->GetShortName();
            if (m_decided.count(name) != 0 || excluded.count(name) != 0 || !seen.insert(name).second) {
                continue;
            }
            VOffer const& first = m_first.try_emplace(name, VOffer{element, parent}).first->second;
            if (first.element != element && !IsRankedAbove(first.parent, parent)) {
                Report(first, *element, parent);
            }
        }
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
        m_findings.Add({"ambiguous-name", PositionOf(*parent.reference),
                        std::string(m_kind.title) + ' ' + Quoted(element.GetShortName()) + " comes to the " +
                            Titled(m_layer) + " from the " + Titled(*first.parent.layer) +
                            " and another one of that name from the " + Titled(*parent.layer) +
                            ", parents of equal rank; the first wins, because its PARENT-REF stands first"});
    }

    VInherited<Element> const& m_kind;
    NODX201::VDiagLayer& m_layer;
    VFindings& m_findings;
    std::unordered_map<std::wstring_view, Element*> m_view;
    VNames m_decided; ///< names of own elements and of those that parents of higher rank offer
    std::unordered_map<std::wstring_view, VOffer> m_first;
};

template <class Element>
void Compare(VInherited<Element> const& kind, NODX201::VDiagLayer& layer,
             std::vector<std::vector<VParent>> const& ranks, VFindings& findings) {
    VComparison<Element> comparison(kind, layer, findings);
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
    // clang-format off
    static constexpr VInherited<NODX201::VDiagComm> kDiagComms{"DIAG-COMM", &DiagCommsIn, &OwnDiagComms, &ExcludedDiagComms};
    static constexpr VInherited<NODX201::VDopBase> kDops{"DOP", &DopsIn, &OwnDops, &NoExclusions};
    static constexpr VInherited<NODX201::VDiagVariable> kVariables{"DIAG-VARIABLE", &DiagVariablesIn, &OwnDiagVariables, &NoExclusions};
    static constexpr VInherited<NODX201::VGlobalNegResponse> kResponses{"GLOBAL-NEG-RESPONSE", &GlobalNegResponsesIn, &OwnGlobalNegResponses, &NoExclusions};
    // clang-format on
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        checked.layerDone();
        std::vector<std::vector<VParent>> const ranks = ParentsByRank(*layer);
        if (!HasEqualParents(ranks)) {
            continue;
        }
        Compare(kDiagComms, *layer, ranks, findings);
        Compare(kDops, *layer, ranks, findings);
        Compare(kVariables, *layer, ranks, findings);
        Compare(kResponses, *layer, ranks, findings);
    }
}

} // namespace NCheck
