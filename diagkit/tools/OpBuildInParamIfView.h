// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/InParamIfView.h>

namespace NDIAGKIT {

/// Builds the input-parameter view of a DIAG-COMM whose kind the caller does not know.
///
/// The class is abstract: a derived class implements the layer visitor's operations, which may be empty because a
/// parameter view is built without looking at a layer. Ownership is as with `VOpBuildDiagCommView`: the builder
/// destroys its latest view only at its next Create; the caller releases the last one.
class DIAGKIT_EXPORT VOpBuildInParamIfView : public NODX201::VDiagLayerVisitor {
public:
    VOpBuildInParamIfView();
    VOpBuildInParamIfView(VOpBuildInParamIfView const& other);
    VOpBuildInParamIfView& operator=(VOpBuildInParamIfView const& other);
    ~VOpBuildInParamIfView() override;

    /// REQUIRES: a DIAG-SERVICE or SINGLE-ECU-JOB; a MULTIPLE-ECU-JOB has the other overload. Null for anything else,
    /// which is logged and asserted.
    VInParamIfView* CreateInParamIfView(NODX201::VDiagComm& diagComm);
    VInParamIfView* CreateInParamIfView(NODX201::VMultipleEcuJob& job);

private:
    VInParamIfView* mpInParamIfView = nullptr;
};

} // namespace NDIAGKIT
