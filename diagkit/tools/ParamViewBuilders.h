// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/OpBuildInParamIfView.h>
#include <diagkit/tools/OpBuildOutParamIfView.h>

namespace NDIAGKIT {

/// A builder of parameter views that can be made as it is: it does nothing with layers.
template <class Builder>
class VWithoutLayers : public Builder {
public:
    void VisitBaseVariant(NODX201::VBaseVariant&) override {}
    void VisitProtocol(NODX201::VProtocol&) override {}
    void VisitFunctionalGroup(NODX201::VFunctionalGroup&) override {}
    void VisitEcuVariant(NODX201::VEcuVariant&) override {}
    void VisitEcuSharedData(NODX201::VEcuSharedData&) override {}
};

using VInParamIfViewBuilder = VWithoutLayers<VOpBuildInParamIfView>;   ///< builds views of input parameters
using VOutParamIfViewBuilder = VWithoutLayers<VOpBuildOutParamIfView>; ///< builds views of output parameters

} // namespace NDIAGKIT
