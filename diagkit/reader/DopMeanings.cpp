// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/DopMeanings.h>

#include <algorithm>
#include <utility>

#include <diagkit/reader/Containment.h>

namespace NReader {

NODX201::VDopBase* VDopMeanings::VClass::Find(std::wstring_view shortName) const {
    auto const own = m_own.find(shortName);
    if (own != m_own.end()) {
        return own->second;
    }
    if (m_parents.size() == 1) {
        return m_parents.front()->Find(shortName);
    }
    // Many ways may lead to one class.
    auto const [known, isNew] = m_known.try_emplace(shortName, nullptr);
    if (isNew) {
        for (VClass const* const parent : m_parents) {
            known->second = known->second != nullptr ? known->second : parent->Find(shortName);
        }
    }
    return known->second;
}

VReferencables VDopMeanings::VClass::Visible() const {
    VReferencables visible;
    std::unordered_set<std::wstring_view> seen;
    std::unordered_set<VClass const*> known{this};
    std::vector<VClass const*> classes{this};
    for (std::size_t next = 0; next < classes.size(); ++next) { // grows during the loop
        for (auto const& [shortName, dop] : classes[next]->m_own) {
            if (seen.insert(shortName).second) {
                visible.push_back(Find(shortName));
            }
        }
        for (VClass const* const parent : classes[next]->m_parents) {
            if (known.insert(parent).second) {
                classes.push_back(parent);
            }
        }
    }
    return visible;
}

VDopMeanings::VDopMeanings(NMemory::VDatabase& database, VNames names) : m_names(std::move(names)) {
    ForEachLayer(database, [this](NODX201::VDiagLayer& layer) {
        VClass* const meaning = ClassOf(layer);
        if (meaning == nullptr) {
            return;
        }
        if (meaning->m_layers.empty()) {
            m_used.push_back(meaning);
        }
        meaning->m_layers.push_back(&layer);
    });
}

std::vector<VDopMeanings::VClass const*> VDopMeanings::Classes() const { return m_used; }

VDopMeanings::VClass* VDopMeanings::ClassOf(NDIAGKIT::VLayerOfKind layer) {
    auto const known = m_byLayer.find(layer.layer);
    if (known != m_byLayer.end()) {
        return known->second;
    }
    VClass* const made = MakeClass(layer);
    m_byLayer.emplace(layer.layer, made);
    return made;
}

VDopMeanings::VClass* VDopMeanings::MakeClass(NDIAGKIT::VLayerOfKind layer) {
    auto made = std::make_unique<VClass>();
    for (NODX201::VDopBase* const dop : NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDops>::OwnOf(layer)) {
        if (m_names.count(dop->GetShortName()) != 0) {
            made->m_own.emplace(dop->GetShortName(), dop);
        }
    }
    std::unordered_set<VClass*> seen;
    for (std::vector<NDIAGKIT::VParent> const& pass : NDIAGKIT::VInheritedDops::kRow.ParentsOf(layer)) {
        for (NDIAGKIT::VParent const& parent : pass) {
            VClass* const meaning = ClassOf(parent.layer);
            if (meaning != nullptr && seen.insert(meaning).second) {
                made->m_parents.push_back(meaning);
            }
        }
    }
    if (made->m_own.empty() && made->m_parents.empty()) {
        return nullptr;
    }
    if (made->m_own.empty()) {
        if (made->m_parents.size() == 1) {
            return made->m_parents.front();
        }
        VClass*& known = m_byParents[made->m_parents];
        if (known != nullptr) {
            return known;
        }
        known = made.get();
    }
    m_classes.push_back(std::move(made));
    return m_classes.back().get();
}

NODX201::VDopBase* VDopsOfClass::Find(NODX201::VDopBaseLink& link) {
    std::wstring_view const shortName = ShortNameIn(link);
    if (shortName.empty()) {
        return VDopsById().Find(link);
    }
    return m_leftOut.count(&link) != 0 || IsSevered(link) ? nullptr : m_meaning.Find(shortName);
}

/// The same in one layer of the class as in all: links are severed only in whole classes, for these names or fewer.
bool VDopsOfClass::IsSevered(NODX201::VDopBaseLink& link) const {
    return dynamic_cast<NMemory::VMemDopBaseLink&>(link).IsSeveredIn(*m_meaning.Layers().front());
}

} // namespace NReader
