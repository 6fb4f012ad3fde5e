// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Parents.h>
#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>

namespace NCheck {
namespace {

/// Reports an exclusion that names none of the parent's elements.
template <class Exclusion, class Elements>
void CheckExclusion(Exclusion const& exclusion, NODX201::ILink const& link, NODX201::VDiagLayer const& parent,
                    Elements const& byName, VFindings& findings) {
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link);
    if (snref == nullptr) {
        findings.Add({"excludes-nothing", PositionOf(exclusion),
                      TagOf(exclusion) + " names its target by ID, which excludes nothing; name it by short "
                                         "name"});
    } else if (byName.count(snref->GetShortName()) == 0 && *snref->GetShortName() != L'\0') {
        findings.Add({"excludes-nothing", PositionOf(exclusion),
                      TagOf(exclusion) + " names " + Quoted(snref->GetShortName()) + ", which the " + Titled(parent) +
                          " does not have"});
    }
}

void CheckDiagComms(VParent const& parent, VFindings& findings) {
    if (!parent.reference->HasNotInheritedDiagCommCollection()) {
        return;
    }
    auto const byName = ByShortName(DiagCommsIn(*parent.layer));
    for (NODX201::VNotInheritedDiagComm& exclusion : parent.reference->NotInheritedDiagCommCollection()) {
        CheckExclusion(exclusion, exclusion.GetDiagCommSnref().GetLink(), *parent.layer, byName, findings);
    }
}

void CheckVariables(VParent const& parent, VFindings& findings) {
    if (!parent.reference->HasNotInheritedVariableCollection()) {
        return;
    }
    auto const byName = ByShortName(DiagVariablesIn(*parent.layer));
    for (NODX201::VNotInheritedVariable& exclusion : parent.reference->NotInheritedVariableCollection()) {
        CheckExclusion(exclusion, exclusion.GetDiagVariableSnref().GetLink(), *parent.layer, byName, findings);
    }
}

} // namespace

void CheckExclusions(VChecked const& checked, VFindings& findings) {
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        for (std::vector<VParent> const& rank : ParentsByRank(*layer)) {
            for (VParent const& parent : rank) {
                CheckDiagComms(parent, findings);
                CheckVariables(parent, findings);
            }
        }
        checked.layerDone();
    }
}

} // namespace NCheck
