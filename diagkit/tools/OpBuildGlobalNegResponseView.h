// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/GlobalNegResponseView.h>

namespace NDIAGKIT {

/// Builds the global negative-response view of a layer.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyGlobalNegResponseView` it must not create again. Unlike the other builders it is silent
/// when a layer calls back no Visit operation: it returns what it remembers.
class DIAGKIT_EXPORT VOpBuildGlobalNegResponseView : public NODX201::VDiagLayerVisitor {
public:
    VOpBuildGlobalNegResponseView();
    VOpBuildGlobalNegResponseView(VOpBuildGlobalNegResponseView const& other);
    VOpBuildGlobalNegResponseView& operator=(VOpBuildGlobalNegResponseView const& other);
    ~VOpBuildGlobalNegResponseView() override;

    void VisitBaseVariant(NODX201::VBaseVariant& layer) override;
    void VisitProtocol(NODX201::VProtocol& layer) override;
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override;
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override;
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    VGlobalNegResponseView* CreateGlobalNegResponseView(NODX201::VDiagLayer& layer);
    void DestroyGlobalNegResponseView(VGlobalNegResponseView& view);

private:
    VGlobalNegResponseView* mpGlobalNegResponseView = nullptr;
};

} // namespace NDIAGKIT
