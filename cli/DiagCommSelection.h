// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <cli/Arguments.h>
#include <cli/Output.h>
#include <diagkit/memory/Database.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OutParamIfView.h>

namespace NCli {

/// The DIAG-COMM selected by --layer and --diag-comm, or by --job.
struct VDiagCommSelection {
    NODX201::VDiagComm* diagComm = nullptr;  ///< null, with a message, when it does not exist
    NODX201::VMultipleEcuJob* job = nullptr; ///< the same object if it is a MULTIPLE-ECU-JOB
    NODX201::VDiagLayer* layer = nullptr;    ///< --layer; null without it
};

VDiagCommSelection SelectDiagComm(VArguments const& arguments, NMemory::VDatabase& database, VOutput const& output);

std::unique_ptr<NDIAGKIT::VInParamIfView> InParamsOf(VDiagCommSelection const& selection);
std::unique_ptr<NDIAGKIT::VOutParamIfView> OutParamsOf(VDiagCommSelection const& selection, int range);

} // namespace NCli
