// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/PlacesById.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/LinkTargets.h>
#include <diagkit/tools/Inheritance.h>

namespace NCheck {
namespace {

template <class Params, class Take>
void ForEachDopOf(Params& params, Take take) {
    for (auto& param : params) {
        NODX201::VOdxElement* const dop = param.HasDopBaseRef() ? NReader::TargetById(param.GetDopBaseRef()) : nullptr;
        if (dop != nullptr) {
            take(*dop);
        }
    }
}

/// Calls `take` with what a message, a job, a DOP, a TABLE or a TABLE-ROW leads to by ID.
template <class Take>
void ForEachTargetOf(NODX201::VReferencable& element, Take take) {
    if (auto* const job = dynamic_cast<NODX201::VSingleEcuJob*>(&element)) {
        ForEachDopOf(job->InputParamCollection(), take);
        ForEachDopOf(job->OutputParamCollection(), take);
        ForEachDopOf(job->NegOutputParamCollection(), take);
        return;
    }
    for (NODX201::VReferencable* const target : NReader::TargetsById(element)) {
        take(*target);
    }
}

} // namespace

VPlacesById::VPlacesById(std::vector<NODX201::VOdxElement*> const& elements, VPlaces const& wanted) {
    if (wanted.empty()) {
        return;
    }
    std::unordered_map<NODX201::VOdxElement const*, VPlaces> waysBack;
    for (NODX201::VOdxElement* const element : elements) {
        auto* const from = dynamic_cast<NODX201::VReferencable*>(element);
        if (from == nullptr) {
            continue;
        }
        ForEachTargetOf(*from, [&](NODX201::VOdxElement const& target) {
            VPlaces& back = waysBack[&target];
            back.push_back(from);
            if (NODX201::VDiagLayer const* const home = NDIAGKIT::LayerOf(*from)) {
                back.push_back(home); // a layer reads whatever stands in it
            }
        });
    }
    VMet met(wanted.begin(), wanted.end());
    VPlaces pending = wanted;
    for (std::size_t next = 0; next < pending.size(); ++next) { // grows on the way
        NODX201::VOdxElement const* const target = pending[next];
        for (NODX201::VOdxElement const* const from : waysBack[target]) {
            m_ways[from].push_back(target);
            if (met.insert(from).second) {
                pending.push_back(from);
            }
        }
    }
}

} // namespace NCheck
