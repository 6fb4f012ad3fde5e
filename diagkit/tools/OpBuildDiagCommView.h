// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/InheritedView.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DECLARATION(VInheritedViewBuilder<VDiagCommView>);

/// Builds the DIAG-COMM view of a layer whose kind the caller does not know.
///
/// The builder remembers the view it made last and destroys it at the next Create, not when it is destroyed itself. So
/// either keep one builder per view and release the view with `DestroyDiagCommView`, or let the builder release it by
/// creating the next; never both: after `DestroyDiagCommView` the builder must not create again. A copy of a builder
/// remembers the same view.
class DIAGKIT_EXPORT VOpBuildDiagCommView : public VInheritedViewBuilder<VDiagCommView> {
public:
    VDiagCommView* CreateDiagCommView(NODX201::VDiagLayer& layer);
    void DestroyDiagCommView(VDiagCommView& view);
};

} // namespace NDIAGKIT
