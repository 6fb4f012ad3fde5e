// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/UsesByName.h>

#include <algorithm>
#include <functional>

#include <diagkit/memory/Flash.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/LinkTargets.h>
#include <diagkit/tools/Inheritance.h>

namespace NQuery {

using NCheck::VWantedName;

namespace {

/// The innermost element of the class that a reference stands in; null where there is none.
template <class Element>
Element* ElementAround(NODX201::VLink const& reference) {
    for (NODX201::VOdxObject* object = reference.GetOwner(); object != nullptr; object = object->GetOwner()) {
        if (auto* const element = dynamic_cast<Element*>(object)) {
            return element;
        }
    }
    return nullptr;
}

} // namespace

VUsesByName::VUsesByName(std::vector<NODX201::VDiagLayer*> layers) : m_layers(std::move(layers)) {}

std::size_t VUsesByName::VHash::operator()(VKey const& key) const {
    std::hash<std::wstring_view> const hash;
    std::size_t sum = static_cast<std::size_t>(key.wanted);
    for (std::size_t const part : {hash(key.shortName), hash(key.diagComm), std::hash<void const*>()(key.in)}) {
        sum = sum * 31 + part;
    }
    return sum;
}

VUsesByName::VKey VUsesByName::KeyOf(NODX201::VLink& reference, VWantedName wanted) {
    VKey key{wanted, NReader::ShortNameIn(reference), {}};
    if (wanted == VWantedName::ParamOfMessages) {
        key.in = reference.GetOwner();
    } else if (wanted == VWantedName::OutParam || wanted == VWantedName::InParam) {
        NODX201::VDiagCommLink* const beside = NCheck::DiagCommLinkBeside(reference);
        if (beside != nullptr) {
            key.diagComm = NReader::ShortNameIn(*beside);
            key.in = key.diagComm.empty() ? NReader::TargetById(*beside) : nullptr;
        }
    }
    return key;
}

NODX201::VOdxElement* VUsesByName::Add(NODX201::VLink& reference, VWantedName wanted) {
    VKey const key = KeyOf(reference, wanted);
    VName& name = m_names.try_emplace(key, wanted).first->second;
    if (NODX201::VDiagLayer* const home = NDIAGKIT::LayerOf(reference)) {
        NODX201::VOdxElement const* const anchor = NCheck::AnchorOf(reference);
        Read(name, reference, m_places[home], anchor != nullptr ? &m_places[anchor] : nullptr);
    } else if (auto* const spec = ElementAround<NMemory::VMemMultipleEcuJobSpec>(reference)) {
        return AddOfSpec(name, reference, *spec);
    } else {
        AddOfConnector(name, reference);
    }
    return nullptr;
}

void VUsesByName::Read(VName& name, NODX201::VLink& reference, VPlace& home, VPlace* anchor) {
    name.readers.push_back({&reference, &home, anchor});
    AddName(home, name);
    if (anchor != nullptr) {
        AddName(*anchor, name);
    }
}

/// References of one name that stand in one place nearly always follow one another.
void VUsesByName::AddName(VPlace& place, VName& name) {
    if (place.names.empty() || place.names.back() != &name) {
        place.names.push_back(&name);
    }
}

NODX201::VOdxElement* VUsesByName::AddOfSpec(VName& name, NODX201::VLink& reference,
                                             NMemory::VMemMultipleEcuJobSpec& spec) {
    VSpec const& of = m_specs.try_emplace(&spec, spec).first->second;
    if (NODX201::VDopBase* const dop = of.names.Find(reference)) {
        return dop;
    }
    if (name.wanted != VWantedName::ParamOfMessages && of.layers.has_value()) {
        Read(name, reference, PlaceIn(spec, *of.layers), nullptr);
    }
    return nullptr;
}

void VUsesByName::AddOfConnector(VName& name, NODX201::VLink& reference) {
    if (auto* const connector = ElementAround<NMemory::VMemEcuMemConnector>(reference)) {
        Read(name, reference, PlaceIn(*connector, NCheck::LayersOfConnector(reference)), nullptr);
    }
}

/// A place outside of layers that these layers read.
VUsesByName::VPlace& VUsesByName::PlaceIn(NODX201::VOdxElement const& element,
                                          std::vector<NODX201::VDiagLayer*> const& layers) {
    auto const [place, isNew] = m_places.try_emplace(&element);
    if (isNew) {
        for (NODX201::VDiagLayer* const layer : layers) {
            m_placesBeside[layer].push_back(&place->second);
        }
    }
    return place->second;
}

void VUsesByName::LookUpIn(std::uint32_t layer, NCheck::VViews& views) {
    NODX201::VDiagLayer& here = *m_layers[layer];
    NCheck::VVisibleNames names(here, views);
    m_setsHere.clear();
    NCheck::ForEachPlaceIn(here, names, views, [&](NODX201::VOdxElement const& element) {
        if (auto const place = m_places.find(&element); place != m_places.end()) {
            Visit(place->second, layer, names);
        }
    });
    if (auto const beside = m_placesBeside.find(&here); beside != m_placesBeside.end()) {
        for (VPlace* const place : beside->second) {
            Visit(*place, layer, names);
        }
    }
}

void VUsesByName::Visit(VPlace& place, std::uint32_t layer, NCheck::VVisibleNames& names) {
    if (place.latest == layer) {
        return;
    }
    place.latest = layer;
    place.layers.Add(layer);
    for (VName* const name : place.names) {
        LookUpName(*name, layer, names);
    }
}

void VUsesByName::LookUpName(VName& name, std::uint32_t layer, NCheck::VVisibleNames& names) {
    if (name.latest == layer) {
        return;
    }
    name.latest = layer;
    VTargets const& targets = names.TargetsOf(*name.readers.front().reference);
    if (targets.size() == 1) {
        NoteTarget(name, layer, *targets.front());
    } else if (!targets.empty()) {
        NoteSet(name, layer, targets);
    }
}

/// The meaning of a name that has this target; `make` makes it when it is the first in any layer.
template <class Make>
VUsesByName::VMeaning& VUsesByName::MeaningOf(VName& name, void const* target, Make make) {
    if (name.latestTarget != target) {
        VMeaning*& meaning = name.all[target];
        if (meaning == nullptr) {
            meaning = &make();
        }
        name.latestMeaning = meaning;
        name.latestTarget = target;
    }
    return *name.latestMeaning;
}

void VUsesByName::NoteTarget(VName& name, std::uint32_t layer, NODX201::VOdxElement const& target) {
    auto const make = [&]() -> VMeaning& {
        std::vector<VMeaning const*>& meanings = m_meaningsOf[&target];
        m_meanings.push_back({&name});
        meanings.push_back(&m_meanings.back());
        return m_meanings.back();
    };
    MeaningOf(name, &target, make).layers.Add(layer);
}

void VUsesByName::NoteSet(VName& name, std::uint32_t layer, VTargets const& targets) {
    VSet*& set = m_setsHere[&targets];
    if (set == nullptr) {
        set = &SetOf(targets);
    }
    auto const make = [&]() -> VMeaning& { return set->second.emplace_back(VMeaning{&name}); };
    MeaningOf(name, set, make).layers.Add(layer);
}

VUsesByName::VSet& VUsesByName::SetOf(VTargets const& targets) {
    VTargets sorted = targets;
    std::sort(sorted.begin(), sorted.end(), std::less<>());
    auto const [set, isNew] = m_meaningsOfSets.try_emplace(std::move(sorted));
    if (isNew) {
        for (NODX201::VOdxElement* const target : set->first) {
            m_setsOf[target].push_back(&*set);
        }
    }
    return *set;
}

} // namespace NQuery
