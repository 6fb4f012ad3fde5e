// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NODX201 {

/// Which parameters of a DIAG-SERVICE an output-parameter search includes. The irregular combinations are intentional.
enum class VSearchRange : int {
    Responses = 0,              ///< positive and negative responses
    RequestAndNegResponses = 1, ///< the request and the negative responses
    Nothing = 2,                ///< no parameter at all
    Request = 3,                ///< only the request
    PosResponses = 4,           ///< only the positive responses
    RequestAndResponses = 5,    ///< everything
};

} // namespace NODX201
