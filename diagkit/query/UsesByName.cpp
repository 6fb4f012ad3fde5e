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

/// The innermost element of the class around a reference; null where there is none.
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

VUsesByName::VUsesByName(std::vector<NODX201::VDiagLayer*> layers, VUsed& used)
    : m_layers(std::move(layers)), m_used(used) {}

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
    AddTo(home, name, reference);
    if (anchor != nullptr) {
        AddTo(*anchor, name, reference);
    }
}

void VUsesByName::AddTo(VPlace& place, VName& name, NODX201::VLink& reference) {
    if (place.groups.empty() || place.groups.back().name != &name) {
        place.groups.push_back({&name, place.references.size(), 0});
    }
    place.references.push_back(&reference);
    place.groups.back().end = place.references.size();
}

/// A place outside of layers; for a new one `layersOf` returns the layers that read it.
template <class LayersOf>
VUsesByName::VPlace& VUsesByName::PlaceIn(NODX201::VOdxElement const& element, LayersOf layersOf) {
    auto const [place, isNew] = m_places.try_emplace(&element);
    if (isNew) {
        for (NODX201::VDiagLayer* const layer : layersOf()) {
            m_placesBeside[layer].push_back(&place->second);
        }
    }
    return place->second;
}

NODX201::VOdxElement* VUsesByName::AddOfSpec(VName& name, NODX201::VLink& reference,
                                             NMemory::VMemMultipleEcuJobSpec& spec) {
    VSpec const& of = m_specs.try_emplace(&spec, spec).first->second;
    if (NODX201::VDopBase* const dop = of.names.Find(reference)) {
        return dop;
    }
    if (name.wanted != VWantedName::ParamOfMessages && of.layers.has_value()) {
        Read(name, reference, PlaceIn(spec, [&of] { return *of.layers; }), nullptr);
    }
    return nullptr;
}

void VUsesByName::AddOfConnector(VName& name, NODX201::VLink& reference) {
    // The references of a connector are all read in its layers; any other one determines its own.
    NODX201::VOdxElement const* place = ElementAround<NMemory::VMemEcuMemConnector>(reference);
    place = place != nullptr ? place : &reference;
    Read(name, reference, PlaceIn(*place, [&reference] { return NCheck::LayersOfConnector(reference); }), nullptr);
}

void VUsesByName::LookUpIn(std::uint32_t layer, NCheck::VViews& views, NCheck::VPlacesById const& byId) {
    NODX201::VDiagLayer& here = *m_layers[layer];
    NCheck::VVisibleNames names(here, views);
    m_setsHere.clear();
    NCheck::ForEachPlaceIn(here, names, views, byId, [&](NODX201::VOdxElement const& element) {
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
    for (VGroup const& group : place.groups) {
        LookUpName(*group.name, layer, names);
        Settle(place, group);
    }
}

void VUsesByName::LookUpName(VName& name, std::uint32_t layer, NCheck::VVisibleNames& names) {
    if (name.latest == layer) {
        return;
    }
    name.latest = layer;
    name.here = nullptr;
    VTargets const& targets = names.TargetsOf(*name.readers.front().reference);
    if (targets.size() == 1) {
        NoteTarget(name, layer, *targets.front());
    } else if (!targets.empty()) {
        NoteSet(name, layer, targets);
    }
}

/// Marks the targets of the group's references in the current layer as used.
void VUsesByName::Settle(VPlace const& place, VGroup const& group) {
    VMeaning* const meaning = group.name->here;
    if (meaning == nullptr || meaning->isSettled) {
        return;
    }
    auto const any = [&place, &group](auto test) {
        auto const begin = place.references.begin();
        return std::any_of(begin + static_cast<std::ptrdiff_t>(group.first),
                           begin + static_cast<std::ptrdiff_t>(group.end),
                           [&test](NODX201::VLink const* reference) { return test(*reference); });
    };
    if (meaning->target != nullptr) {
        meaning->isSettled = m_used.Use(*meaning->target, any);
        return;
    }
    meaning->isSettled = true;
    for (NODX201::VOdxElement const* const target : *meaning->targets) {
        meaning->isSettled = m_used.Use(*target, any) && meaning->isSettled;
    }
}

/// In this layer the target of the name has this address; `make` makes the meaning in the first such layer.
template <class Make>
void VUsesByName::Mean(VName& name, std::uint32_t layer, void const* target, Make make) {
    if (name.latestTarget != target) {
        VMeaning*& meaning = name.all[target];
        if (meaning == nullptr) {
            meaning = &make();
        }
        name.latestMeaning = meaning;
        name.latestTarget = target;
    }
    name.here = name.latestMeaning;
    name.here->layers.Add(layer);
}

void VUsesByName::NoteTarget(VName& name, std::uint32_t layer, NODX201::VOdxElement const& target) {
    Mean(name, layer, &target, [&]() -> VMeaning& {
        std::vector<VMeaning const*>& meanings = m_meaningsOf[&target];
        m_meanings.push_back({&name, &target, nullptr});
        meanings.push_back(&m_meanings.back());
        return m_meanings.back();
    });
}

void VUsesByName::NoteSet(VName& name, std::uint32_t layer, VTargets const& targets) {
    VSet*& set = m_setsHere[&targets];
    if (set == nullptr) {
        set = &SetOf(targets);
    }
    Mean(name, layer, set, [&]() -> VMeaning& {
        return set->second.emplace_back(VMeaning{&name, nullptr, &set->first});
    });
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
