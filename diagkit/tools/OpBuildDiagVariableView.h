// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/DiagVariableView.h>

namespace NDIAGKIT {

/// Builds the diag-variable view of a layer whose kind the caller does not know.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyDiagVariableView` it must not create again.
class DIAGKIT_EXPORT VOpBuildDiagVariableView : public NODX201::VDiagLayerVisitor {
public:
    VOpBuildDiagVariableView();
    VOpBuildDiagVariableView(VOpBuildDiagVariableView const& other);
    VOpBuildDiagVariableView& operator=(VOpBuildDiagVariableView const& other);
    ~VOpBuildDiagVariableView() override;

    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    VDiagVariableView* CreateDiagVariableView(NODX201::VDiagLayer& layer);
    void DestroyDiagVariableView(VDiagVariableView& view);

private:
    VDiagVariableView* mpDiagVariableView = nullptr;
};

} // namespace NDIAGKIT
