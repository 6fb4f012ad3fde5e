// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/DopView.h>

namespace NDIAGKIT {

/// Builds the DOP view of a layer whose kind the caller does not know.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyDopView` it must not create again.
class DIAGKIT_EXPORT VOpBuildDopView : public NODX201::VDiagLayerVisitor {
public:
    VOpBuildDopView();
    VOpBuildDopView(VOpBuildDopView const& other);
    VOpBuildDopView& operator=(VOpBuildDopView const& other);
    ~VOpBuildDopView() override;

    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    VDopView* CreateDopView(NODX201::VDiagLayer& layer);
    void DestroyDopView(VDopView& view);

private:
    VDopView* mpDopView = nullptr;
};

} // namespace NDIAGKIT
