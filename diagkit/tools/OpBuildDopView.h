// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/DopView.h>
#include <diagkit/tools/InheritedView.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DECLARATION(VInheritedViewBuilder<VDopView>);

/// Builds the DOP view of a layer whose kind the caller does not know.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyDopView` it must not create again.
class DIAGKIT_EXPORT VOpBuildDopView : public VInheritedViewBuilder<VDopView> {
public:
    VDopView* CreateDopView(NODX201::VDiagLayer& layer);
    void DestroyDopView(VDopView& view);
};

} // namespace NDIAGKIT
