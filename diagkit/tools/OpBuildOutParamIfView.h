// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/SearchRange.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/OutParamIfView.h>

namespace NDIAGKIT {

/// Builds the output-parameter view of a DIAG-COMM whose kind the caller does not know.
///
/// The class is abstract: a derived class implements the layer visitor's operations, which may be empty because a
/// parameter view is built without looking at a layer. Ownership is as with `VOpBuildDiagCommView`: the builder
/// destroys its latest view only at its next Create; the caller releases the last one.
class DIAGKIT_EXPORT VOpBuildOutParamIfView : public NODX201::VDiagLayerVisitor {
public:
    VOpBuildOutParamIfView();
    VOpBuildOutParamIfView(VOpBuildOutParamIfView const& other);
    VOpBuildOutParamIfView& operator=(VOpBuildOutParamIfView const& other);
    ~VOpBuildOutParamIfView() override;

    /// REQUIRES: a DIAG-SERVICE or SINGLE-ECU-JOB; a MULTIPLE-ECU-JOB has the other overload. Null for anything else,
    /// which is logged and asserted.
    VOutParamIfView* CreateOutParamIfView(NODX201::VDiagComm& diagComm, NODX201::VSearchRange range);
    VOutParamIfView* CreateOutParamIfView(NODX201::VMultipleEcuJob& job);

private:
    VOutParamIfView* mpOutParamIfView = nullptr;
};

} // namespace NDIAGKIT
