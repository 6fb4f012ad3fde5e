// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NODX201 {

/// Which parameters of a DIAG-SERVICE an output-parameter search looks at. The uneven combinations are meant.
enum class VSearchRange : int {
    Responses = 0,              ///< positive and negative responses
    RequestAndNegResponses = 1, ///< the request and the negative responses
    Nothing = 2,                ///< no parameter at all
    Request = 3,                ///< the request alone
    PosResponses = 4,           ///< the positive responses alone
    RequestAndResponses = 5,    ///< everything
};

} // namespace NODX201
