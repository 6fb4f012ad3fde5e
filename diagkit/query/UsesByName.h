// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <diagkit/check/ReadingPlaces.h>
#include <diagkit/query/LayerRuns.h>
#include <diagkit/query/Used.h>

namespace NQuery {

/// The targets of references by short name in layers, indexed by target.
///
/// References that have the same target in every layer, because they require the same kind of element of the same name,
/// share one name. The index stores the target of each name in which layers, and which layers read which place: the
/// uses of an element are the references of those names that are read where the element is their target. So nothing is
/// stored per reference and layer.
class VUsesByName {
public:
    /// All layers of the database, in document order, and the object that records used elements; it must outlive this
    /// one.
    VUsesByName(std::vector<NODX201::VDiagLayer*> layers, VUsed& used);

    /// Adds a reference with this required target. Null, or the element of its name in the dictionary of the
    /// MULTIPLE-ECU-JOB-SPEC around it, which is then its only target.
    NODX201::VOdxElement* Add(NODX201::VLink& reference, NCheck::VWantedName wanted);

    /// Looks all up in one layer after the other, and calls `layerDone` after each; `elements` are all of the database.
    template <class LayerDone>
    void LookUp(std::vector<NODX201::VOdxElement*> const& elements, LayerDone layerDone) {
        NCheck::VPlacesById const byId(elements, NCheck::DopsAmong(m_places));
        NCheck::VViews views;
        for (std::uint32_t number = 0; number < m_layers.size(); ++number) {
            LookUpIn(number, views, byId);
            layerDone();
        }
    }

    std::vector<NODX201::VDiagLayer*> const& Layers() const { return m_layers; }

    /// Calls `take(reference, layers)` for every reference to the element in a layer, in unspecified order and for some
    /// several times, with other layers each.
    template <class Take>
    void ForEachUse(NODX201::VOdxElement const& target, Take take) const {
        ForEachMeaningOf(target, [&](VMeaning const& meaning) { ForEachReader(meaning, take); });
    }

private:
    using VTargets = std::vector<NODX201::VOdxElement*>;
    struct VName;

    /// The layers in which the target of a name is an element, or all elements of a set.
    struct VMeaning {
        VName const* name;
        NODX201::VOdxElement const* target; ///< null where it is a set
        VTargets const* targets;            ///< the set
        VLayerRuns layers{};
        bool isSettled = false; ///< no other reference would use more elements
    };

    /// Consecutive references of one name in a place.
    struct VGroup {
        VName* name;
        std::size_t first; ///< in the place
        std::size_t end;
    };

    /// An element with references, and the layers that read it.
    struct VPlace {
        VLayerRuns layers{};
        std::optional<std::uint32_t> latest{}; ///< of the layers processed so far
        std::vector<NODX201::VLink*> references{};
        std::vector<VGroup> groups{}; ///< of the references
    };

    /// A reference, its layer or document, and its part that is visible in other layers.
    struct VReader {
        NODX201::VLink* reference;
        VPlace const* home;
        VPlace const* anchor; ///< null where there is none
    };

    struct VName {
        explicit VName(NCheck::VWantedName wantedName) : wanted(wantedName) {}

        NCheck::VWantedName wanted;
        std::vector<VReader> readers{};
        std::optional<std::uint32_t> latest{};  ///< of the layers processed so far
        void const* latestTarget = nullptr;     ///< element or set
        VMeaning* latestMeaning = nullptr;      ///< of the latest target
        VMeaning* here = nullptr;               ///< in the latest layer; null where it has no target
        std::map<void const*, VMeaning*> all{}; ///< where there are several, by target
    };

    /// The common properties of references that share a name.
    struct VKey {
        NCheck::VWantedName wanted;
        std::wstring_view shortName;
        std::wstring_view diagComm;              ///< the name in the DIAG-COMM reference for a parameter
        NODX201::VOdxObject const* in = nullptr; ///< that DIAG-COMM itself, or the ENV-DATA-DESC around

        bool operator==(VKey const& other) const {
            return wanted == other.wanted && shortName == other.shortName && diagComm == other.diagComm &&
                   in == other.in;
        }
    };
    struct VHash {
        std::size_t operator()(VKey const& key) const;
    };

    using VSet = std::pair<VTargets const, std::deque<VMeaning>>;

    /// The dictionary of a MULTIPLE-ECU-JOB-SPEC, and whether the layers of its jobs are known.
    struct VSpec {
        explicit VSpec(NMemory::VMemMultipleEcuJobSpec& spec) : names(spec), layers(NCheck::LayersOfJobs(spec)) {}

        NCheck::VNamesOfSpec names;
        std::optional<std::vector<NODX201::VDiagLayer*>> layers;
    };

    static VKey KeyOf(NODX201::VLink& reference, NCheck::VWantedName wanted);
    void Read(VName& name, NODX201::VLink& reference, VPlace& home, VPlace* anchor);
    static void AddTo(VPlace& place, VName& name, NODX201::VLink& reference);
    NODX201::VOdxElement* AddOfSpec(VName& name, NODX201::VLink& reference, NMemory::VMemMultipleEcuJobSpec& spec);
    void AddOfConnector(VName& name, NODX201::VLink& reference);
    template <class LayersOf>
    VPlace& PlaceIn(NODX201::VOdxElement const& element, LayersOf layersOf);

    void LookUpIn(std::uint32_t layer, NCheck::VViews& views, NCheck::VPlacesById const& byId);
    void Visit(VPlace& place, std::uint32_t layer, NCheck::VVisibleNames& names);
    void LookUpName(VName& name, std::uint32_t layer, NCheck::VVisibleNames& names);
    void Settle(VPlace const& place, VGroup const& group);
    void NoteTarget(VName& name, std::uint32_t layer, NODX201::VOdxElement const& target);
    void NoteSet(VName& name, std::uint32_t layer, VTargets const& targets);
    VSet& SetOf(VTargets const& targets);
    template <class Make>
    static void Mean(VName& name, std::uint32_t layer, void const* target, Make make);

    template <class Take>
    void ForEachMeaningOf(NODX201::VOdxElement const& target, Take take) const;
    template <class Take>
    static void ForEachReader(VMeaning const& meaning, Take take);

    std::vector<NODX201::VDiagLayer*> m_layers;
    VUsed& m_used;
    std::unordered_map<VKey, VName, VHash> m_names;
    std::unordered_map<NODX201::VOdxElement const*, VPlace> m_places;
    std::unordered_map<NODX201::VDiagLayer const*, std::vector<VPlace*>> m_placesBeside; // that the layer also reads
    std::map<NMemory::VMemMultipleEcuJobSpec*, VSpec> m_specs;

    std::deque<VMeaning> m_meanings;
    std::unordered_map<NODX201::VOdxElement const*, std::vector<VMeaning const*>> m_meaningsOf;
    std::map<VTargets, std::deque<VMeaning>> m_meaningsOfSets;
    std::unordered_map<NODX201::VOdxElement const*, std::vector<VSet const*>> m_setsOf;
    std::unordered_map<VTargets const*, VSet*> m_setsHere; // of the current layer
};

template <class Take>
void VUsesByName::ForEachMeaningOf(NODX201::VOdxElement const& target, Take take) const {
    if (auto const meanings = m_meaningsOf.find(&target); meanings != m_meaningsOf.end()) {
        for (VMeaning const* const meaning : meanings->second) {
            take(*meaning);
        }
    }
    if (auto const sets = m_setsOf.find(&target); sets != m_setsOf.end()) {
        for (VSet const* const set : sets->second) {
            for (VMeaning const& meaning : set->second) {
                take(meaning);
            }
        }
    }
}

template <class Take>
void VUsesByName::ForEachReader(VMeaning const& meaning, Take take) {
    for (VReader const& reader : meaning.name->readers) {
        VLayerRuns const layers =
            reader.anchor != nullptr
                ? VLayerRuns::Common(VLayerRuns::Joined(reader.home->layers, reader.anchor->layers), meaning.layers)
                : VLayerRuns::Common(reader.home->layers, meaning.layers);
        if (!layers.IsEmpty()) {
            take(*reader.reference, meaning.name->wanted, layers);
        }
    }
}

} // namespace NQuery
