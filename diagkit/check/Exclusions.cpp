// SPDX-License-Identifier: Apache-2.0
#include <unordered_map>

#include <diagkit/check/Topics.h>
#include <diagkit/check/Views.h>
#include <diagkit/model/ParentRefs.h>

namespace NCheck {
namespace {

/// The short names of the visible elements of one kind, layer by layer.
template <class Kind>
class VNamesOf {
public:
    explicit VNamesOf(NDIAGKIT::VInheritance<Kind>& views) : m_views(views) {}

    VNames const& In(NODX201::VDiagLayer& layer) {
        auto const [names, isNew] = m_names.try_emplace(&layer);
        if (isNew) {
            for (auto const* const element : m_views.EntriesOfParent(layer)) {
                names->second.insert(element->GetShortName());
            }
        }
        return names->second;
    }

private:
    NDIAGKIT::VInheritance<Kind>& m_views;
    std::unordered_map<NODX201::VDiagLayer*, VNames> m_names;
};

/// Reports exclusions that match none of the parent's elements.
class VExclusions {
public:
    VExclusions(VViews& views, VFindings& findings)
        : m_diagComms(views.diagComms), m_variables(views.diagVariables), m_findings(findings) {}

    void Check(NODX201::VParentRef& parentRef, NODX201::VDiagLayer& parent) {
        if (parentRef.HasNotInheritedDiagCommCollection()) {
            for (NODX201::VNotInheritedDiagComm& exclusion : parentRef.NotInheritedDiagCommCollection()) {
                Check(exclusion, exclusion.GetDiagCommSnref(), parent, m_diagComms);
            }
        }
        if (parentRef.HasNotInheritedVariableCollection()) {
            for (NODX201::VNotInheritedVariable& exclusion : parentRef.NotInheritedVariableCollection()) {
                Check(exclusion, exclusion.GetDiagVariableSnref(), parent, m_variables);
            }
        }
    }

private:
    template <class Names>
    void Check(NODX201::VOdxElement const& exclusion, NODX201::VLink& reference, NODX201::VDiagLayer& parent,
               Names& names) {
        auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
        if (snref == nullptr) {
            m_findings.Add(PositionOf(reference), NCode::ExcludesNothing,
                           TagOf(exclusion) + " names its target by ID, which excludes nothing; name it by short name");
        } else if (*snref->GetShortName() != L'\0' && names.In(parent).count(snref->GetShortName()) == 0) {
            m_findings.Add(PositionOf(reference), NCode::ExcludesNothing,
                           TagOf(exclusion) + " names " + Quoted(snref->GetShortName()) + ", which the " +
                               Titled(parent) + " does not have");
        }
    }

    VNamesOf<NDIAGKIT::VInheritedDiagComms> m_diagComms;
    VNamesOf<NDIAGKIT::VInheritedDiagVariables> m_variables;
    VFindings& m_findings;
};

} // namespace

void CheckExclusions(VChecked const& checked, VFindings& findings) {
    VExclusions exclusions(checked.views, findings);
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        for (NDIAGKIT::VParent const& parent : NDIAGKIT::ParentsOf(*layer)) {
            exclusions.Check(*parent.parentRef, *parent.layer.layer);
        }
        checked.layerDone();
    }
}

} // namespace NCheck
