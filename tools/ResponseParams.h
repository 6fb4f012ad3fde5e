// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>

namespace NDIAGKIT {

/// Calls `take` with every parameter of the service's positive responses: in link order, skipping links without a
/// response, and in parameter order.
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

} // namespace NDIAGKIT
