// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/DiagCommView.h>

namespace NDIAGKIT {

/// Builds the DIAG-COMM view of a layer whose kind the caller does not know.
///
/// The builder remembers the view it made last and destroys it at the next Create, not when it is destroyed itself.
/// So either keep one builder a view and release the view with `DestroyDiagCommView`, or let the builder release it by
/// creating the next; never both: after `DestroyDiagCommView` the builder must not create again. A copy of a builder
/// remembers the same view.
class DIAGKIT_EXPORT VOpBuildDiagCommView : public NODX201::VDiagLayerVisitor {
public:
    VOpBuildDiagCommView();
    VOpBuildDiagCommView(VOpBuildDiagCommView const& other);
    VOpBuildDiagCommView& operator=(VOpBuildDiagCommView const& other);
    ~VOpBuildDiagCommView() override;

    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    /// The layer's view. Null only when its `Accept` calls back nothing and the builder has no view from before; that
    /// is logged and, unless the listener has this builder make a view, asserted.
    VDiagCommView* CreateDiagCommView(NODX201::VDiagLayer& layer);

    /// Destroys a view that a builder made; nothing happens for a reference behind which there is none (null).
    void DestroyDiagCommView(VDiagCommView& view);

private:
    VDiagCommView* mpDiagCommView = nullptr;
};

} // namespace NDIAGKIT
