// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/InheritedView.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DECLARATION(VInheritedViewBuilder<VGlobalNegResponseView>);

/// Builds the global negative-response view of a layer.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyGlobalNegResponseView` it must not create again. Unlike the other builders it logs and
/// asserts nothing when a layer calls back no Visit operation: it returns the view that it remembers.
class DIAGKIT_EXPORT VOpBuildGlobalNegResponseView : public VInheritedViewBuilder<VGlobalNegResponseView> {
public:
    VGlobalNegResponseView* CreateGlobalNegResponseView(NODX201::VDiagLayer& layer);
    void DestroyGlobalNegResponseView(VGlobalNegResponseView& view);
};

} // namespace NDIAGKIT
