// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/DiagComms.h>

/// The kind of a DIAG-COMM by its ODX tag: a service, otherwise a single-ECU job.

namespace NDIAGKIT {

inline NODX201::VDiagService* ServiceOf(NODX201::VDiagComm& diagComm) {
    bool const isService = diagComm.GetOdxTag() == NODX201::VOdxTagEnum::DiagService;
    return isService ? dynamic_cast<NODX201::VDiagService*>(&diagComm) : nullptr;
}

/// Every DIAG-COMM that is not a service is treated as a single-ECU job; null when it is not one.
inline NODX201::VSingleEcuJob* JobOf(NODX201::VDiagComm& diagComm) {
    bool const isService = diagComm.GetOdxTag() == NODX201::VOdxTagEnum::DiagService;
    return isService ? nullptr : dynamic_cast<NODX201::VSingleEcuJob*>(&diagComm);
}

} // namespace NDIAGKIT
