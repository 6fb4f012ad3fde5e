// SPDX-License-Identifier: Apache-2.0
#include <cli/DiagCommOrigins.h>

#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include <diagkit/check/Parents.h>
#include <diagkit/check/Views.h>
#include <cli/Parents.h>
#include <diagkit/tools/Inheritance.h>

namespace NCli {
namespace {

class VOriginFinder {
public:
    explicit VOriginFinder(NODX201::VDiagLayer& layer);

    VDiagCommOrigins Find();

private:
    void SeeParent(VParent const& parent);
    void SeeOffer(VOfferedDiagComm const& offer, bool isExcluded);

    NODX201::VDiagLayer& m_layer;
    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDiagComms> m_inheritance;
    std::vector<NODX201::VDiagComm*> m_view;
    std::unordered_map<std::wstring_view, NODX201::VDiagComm*> m_visibleByName;
    std::unordered_map<NODX201::VDiagComm*, NODX201::VDiagLayer*> m_parents; // of visible ones; null until it is seen
    std::unordered_set<NODX201::VDiagComm*> m_listed;                        // hidden and excluded ones
    std::unordered_map<NODX201::VDiagLayer*, std::vector<NODX201::VDiagComm*>> m_offers; // of parents, that are left
    VDiagCommOrigins m_origins;
};

VOriginFinder::VOriginFinder(NODX201::VDiagLayer& layer) : m_layer(layer), m_view(m_inheritance.EntriesOf(layer)) {
    for (NODX201::VDiagComm* const diagComm : m_view) {
        m_visibleByName.try_emplace(diagComm->GetShortName(), diagComm);
        m_parents.try_emplace(diagComm, nullptr);
    }
}

VDiagCommOrigins VOriginFinder::Find() {
    std::vector<VParent> const parents = ParentsOf(m_layer);
    for (int pass = 1; pass <= kPasses; ++pass) {
        for (VParent const& parent : parents) {
            if (PassOf(m_layer, parent) == pass) {
                SeeParent(parent);
            }
        }
    }
    std::size_t const ownCount = NCheck::OwnDiagComms(m_layer).size();
    for (std::size_t index = 0; index < m_view.size(); ++index) {
        if (index < ownCount) {
            m_origins.own.push_back(m_view[index]);
        } else {
            m_origins.inherited.push_back({m_view[index], m_parents[m_view[index]], nullptr});
        }
    }
    return m_origins;
}

void VOriginFinder::SeeParent(VParent const& parent) {
    NCheck::VNames const excluded = NCheck::ExcludedDiagComms(*parent.parentRef);
    auto const [offers, isFirst] = m_offers.try_emplace(parent.layer);
    if (isFirst) {
        offers->second = m_inheritance.EntriesOfParent(*parent.layer);
    }
    // Named again, a parent can only bring what was excluded before.
    std::vector<NODX201::VDiagComm*> const offered = std::move(offers->second);
    offers->second = {};
    for (NODX201::VDiagComm* const diagComm : offered) {
        bool const isExcluded = excluded.count(diagComm->GetShortName()) != 0;
        SeeOffer({diagComm, parent.layer, nullptr}, isExcluded);
        if (isExcluded) {
            offers->second.push_back(diagComm);
        }
    }
}

void VOriginFinder::SeeOffer(VOfferedDiagComm const& offer, bool isExcluded) {
    if (auto const visible = m_parents.find(offer.diagComm); visible != m_parents.end()) {
        if (!isExcluded && visible->second == nullptr) {
            visible->second = offer.parent;
        }
        return;
    }
    if (!m_listed.insert(offer.diagComm).second) {
        return;
    }
    if (isExcluded) {
        m_origins.excluded.push_back(offer);
    } else {
        m_origins.hidden.push_back({offer.diagComm, offer.parent, m_visibleByName[offer.diagComm->GetShortName()]});
    }
}

} // namespace

VDiagCommOrigins DiagCommOriginsOf(NODX201::VDiagLayer& layer) { return VOriginFinder(layer).Find(); }

} // namespace NCli
