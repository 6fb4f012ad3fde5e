// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/model/Dops.h>

namespace NCheck {

/// The DOPs that a layer reads because references by ID lead there, one through the other, whatever its views hold: an
/// ENV-DATA, a DOP whose name means another in the layer, a DOP of a library that is no parent.
///
/// References by ID lead to the same from every layer, so the ways are made once for all layers.
class VPlacesById {
public:
    using VPlaces = std::vector<NODX201::VOdxElement const*>;

    /// `elements` are all of the database. `wanted` are the DOPs to be told: only ways to these are kept.
    VPlacesById(std::vector<NODX201::VOdxElement*> const& elements, VPlaces const& wanted);

    /// What has been met in one layer.
    using VMet = std::unordered_set<NODX201::VOdxElement const*>;

    /// Calls `take` with all to which the references by ID lead that stand in a message, a job, a DOP or a layer. What
    /// has been met is not told again.
    template <class Take>
    void ForEachFrom(NODX201::VOdxElement const& place, VMet& met, Take take) const {
        if (m_ways.count(&place) == 0 || !met.insert(&place).second) {
            return;
        }
        VPlaces pending{&place};
        while (!pending.empty()) {
            auto const ways = m_ways.find(pending.back());
            pending.pop_back();
            if (ways == m_ways.end()) {
                continue;
            }
            for (NODX201::VOdxElement const* const target : ways->second) {
                if (met.insert(target).second) {
                    take(*target);
                    pending.push_back(target);
                }
            }
        }
    }

private:
    std::unordered_map<NODX201::VOdxElement const*, VPlaces> m_ways; ///< each one step far
};

/// The DOPs among the keys of a map.
template <class ByPlace>
VPlacesById::VPlaces DopsAmong(ByPlace const& byPlace) {
    VPlacesById::VPlaces dops;
    for (auto const& place : byPlace) {
        if (dynamic_cast<NODX201::VDopBase const*>(place.first) != nullptr) {
            dops.push_back(place.first);
        }
    }
    return dops;
}

} // namespace NCheck
