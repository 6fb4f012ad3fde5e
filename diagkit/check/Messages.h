// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Responses.h>

namespace NCheck {

/// Calls `take` with each response of a service that it finds, positive ones first.
template <class Take>
void ForEachResponse(NODX201::VDiagService& service, Take take) {
    for (NODX201::VPosResponseLink& link : service.PosResponseLinkCollection()) {
        if (link.HasPosResponse()) {
            take(link.GetPosResponse());
        }
    }
    for (NODX201::VNegResponseLink& link : service.NegResponseLinkCollection()) {
        if (link.HasNegResponse()) {
            take(link.GetNegResponse());
        }
    }
}

/// The same with the request, which comes first.
template <class Take>
void ForEachMessage(NODX201::VDiagService& service, Take take) {
    if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
        take(service.GetRequestRef().GetRequest());
    }
    ForEachResponse(service, take);
}

} // namespace NCheck
