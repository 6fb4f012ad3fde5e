// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/DiagComms.h>

/// What a DIAG-COMM is, by its ODX tag: a service, or else a single-ECU job.

namespace NDIAGKIT {

inline NODX201::VDiagService* ServiceOf(NODX201::VDiagComm& diagComm) {
    bool const isService = diagComm.GetOdxTag() == NODX201::VOdxTagEnum::DiagService;
    return isService ? dynamic_cast<NODX201::VDiagService*>(&diagComm) : nullptr;
}

/// Every DIAG-COMM that is no service is taken for a single-ECU job; null when it is none.
inline NODX201::VSingleEcuJob* JobOf(NODX201::VDiagComm& diagComm) {
    bool const isService = diagComm.GetOdxTag() == NODX201::VOdxTagEnum::DiagService;
    return isService ? nullptr : dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm);
}

} // namespace NDIAGKIT
