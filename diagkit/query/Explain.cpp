// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Explain.h>

#include <unordered_set>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/Responses.h>
#include <diagkit/query/ForKind.h>

namespace NQuery {
namespace {

using NDIAGKIT::VLayerOfKind;

/// The elements of a name in layers to which no way leads.
template <class Kind>
class VElsewhere {
public:
    VElsewhere(VLayerOfKind const& layer, std::wstring_view shortName) : m_shortName(shortName) {
        for (VLayerOfKind const& above : NDIAGKIT::LayersAbove(layer)) {
            m_reached.insert(above.layer);
            ForEachOwn(above, [this](NODX201::VOdxElement& element) { m_told.insert(&element); });
        }
    }

    std::vector<NODX201::VOdxElement*> In(NMemory::VDatabase& database) {
        std::vector<NODX201::VOdxElement*> elsewhere;
        for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                if (m_reached.count(&layer) != 0) {
                    continue;
                }
                ForEachOwn(layer, [&](NODX201::VOdxElement& element) {
                    if (NDIAGKIT::LayerOf(element) == &layer && m_told.insert(&element).second) {
                        elsewhere.push_back(&element);
                    }
                });
            }
        }
        return elsewhere;
    }

private:
    template <class Action>
    void ForEachOwn(VLayerOfKind const& layer, Action const& action) {
        for (auto* const element : NDIAGKIT::VInheritance<Kind>::OwnOf(layer)) {
            if (m_shortName == element->GetShortName()) {
                action(*element);
            }
        }
    }

    std::wstring_view const m_shortName;
    std::unordered_set<NODX201::VDiagLayer const*> m_reached;
    std::unordered_set<NODX201::VOdxElement const*> m_told;
};

template <class Kind>
VExplanation ExplainAs(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, std::wstring_view shortName,
                       std::size_t mostCandidates) {
    NDIAGKIT::VInheritance<Kind> inheritance(shortName);
    NDIAGKIT::VInheritanceNotes<Kind> notes(inheritance);
    NDIAGKIT::VWays ways = notes.WaysOf(layer, shortName, mostCandidates);
    VExplanation explanation{{}, std::move(ways.ways), ways.leftOut, VElsewhere<Kind>(layer, shortName).In(database)};
    for (NDIAGKIT::VCandidate const& candidate : notes.CandidatesOf(layer)) {
        if (candidate.isVisible) {
            explanation.visible = NDIAGKIT::VWay{
                candidate.element, notes.PathOf(candidate), NDIAGKIT::VFate::Visible, nullptr, nullptr, nullptr};
            break;
        }
    }
    return explanation;
}

} // namespace

VExplanation Explain(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, VInheritedKind kind,
                     std::wstring_view shortName, std::size_t mostCandidates) {
    return ForKind(kind,
                   [&](auto row) { return ExplainAs<decltype(row)>(database, layer, shortName, mostCandidates); });
}

} // namespace NQuery
