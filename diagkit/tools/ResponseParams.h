// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/SearchRange.h>

namespace NDIAGKIT {

/// Calls `take` with every parameter of the service's positive responses, response by response in the order of the
/// links. Links without a target are skipped.
template <class Take>
void ForEachPosResponseParam(NODX201::VDiagService& service, Take& take) {
    if (!service.HasPosResponseLinkCollection()) {
        return;
    }
    for (NODX201::VPosResponseLink& link : service.PosResponseLinkCollection()) {
        if (link.HasPosResponse()) {
            for (NODX201::VParam& param : link.GetPosResponse().ParamCollection()) {
                take(param);
            }
        }
    }
}

/// The same for the negative responses.
template <class Take>
void ForEachNegResponseParam(NODX201::VDiagService& service, Take& take) {
    if (!service.HasNegResponseLinkCollection()) {
        return;
    }
    for (NODX201::VNegResponseLink& link : service.NegResponseLinkCollection()) {
        if (link.HasNegResponse()) {
            for (NODX201::VParam& param : link.GetNegResponse().ParamCollection()) {
                take(param);
            }
        }
    }
}

/// Calls `take` with every parameter of the service's request, where it has one that resolves.
template <class Take>
void ForEachRequestParam(NODX201::VDiagService& service, Take& take) {
    if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
        for (NODX201::VParam& param : service.GetRequestRef().GetRequest().ParamCollection()) {
            take(param);
        }
    }
}

/// Whether a search range includes the request. The irregular combinations of sources are intentional, including the
/// empty one and that of any other value (EverySearchRangeSelectsItsSources).
inline bool TakesRequest(NODX201::VSearchRange range) {
    int const value = static_cast<int>(range);
    return value == 1 || value == 3 || value == 5;
}

/// Whether a search range includes the positive responses.
inline bool TakesPosResponses(NODX201::VSearchRange range) {
    int const value = static_cast<int>(range);
    return value == 0 || value == 4 || value == 5;
}

/// Whether a search range includes the negative responses.
inline bool TakesNegResponses(NODX201::VSearchRange range) {
    int const value = static_cast<int>(range);
    return value == 0 || value == 1 || value == 5;
}

/// The parameters of all sources in the range: request, positive responses, negative responses.
template <class Take>
void ForEachSelectedParam(NODX201::VDiagService& service, NODX201::VSearchRange range, Take& take) {
    if (TakesRequest(range)) {
        ForEachRequestParam(service, take);
    }
    if (TakesPosResponses(range)) {
        ForEachPosResponseParam(service, take);
    }
    if (TakesNegResponses(range)) {
        ForEachNegResponseParam(service, take);
    }
}

} // namespace NDIAGKIT
