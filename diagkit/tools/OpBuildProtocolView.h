// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/ProtocolView.h>

namespace NDIAGKIT {

/// Builds the protocol view of a container. For the BASE-VARIANT form construct `VProtocolView` directly.
///
/// Ownership is as with `VOpBuildDiagCommView`: the builder destroys its latest view when it creates the next, and at
/// no other time. After `DestroyProtocolView` it must not create again.
class DIAGKIT_EXPORT VOpBuildProtocolView {
public:
    VOpBuildProtocolView();
    VOpBuildProtocolView(VOpBuildProtocolView const& other);
    VOpBuildProtocolView& operator=(VOpBuildProtocolView const& other);
    virtual ~VOpBuildProtocolView();

    VProtocolView* CreateProtocolView(NODX201::VDiagLayerContainer& container);
    void DestroyProtocolView(VProtocolView& view);

private:
    VProtocolView* mpProtocolView = nullptr;
};

} // namespace NDIAGKIT
