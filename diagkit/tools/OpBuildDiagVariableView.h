// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/DiagVariableView.h>
#include <diagkit/tools/InheritedView.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DECLARATION(VInheritedViewBuilder<VDiagVariableView>);

/// Builds the diag-variable view of a layer whose kind the caller does not know.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyDiagVariableView` it must not create again.
class DIAGKIT_EXPORT VOpBuildDiagVariableView : public VInheritedViewBuilder<VDiagVariableView> {
public:
    VDiagVariableView* CreateDiagVariableView(NODX201::VDiagLayer& layer);
    void DestroyDiagVariableView(VDiagVariableView& view);
};

} // namespace NDIAGKIT
