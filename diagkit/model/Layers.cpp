// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Layers.h>

// Destructors out of line, so that each class has its vtable and type information in one place.

namespace NODX201 {

VDiagLayerContainer::~VDiagLayerContainer() = default;
VDiagLayer::~VDiagLayer() = default;
VProtocol::~VProtocol() = default;
VFunctionalGroup::~VFunctionalGroup() = default;
VBaseVariant::~VBaseVariant() = default;
VEcuVariant::~VEcuVariant() = default;
VEcuSharedData::~VEcuSharedData() = default;
VFunctClass::~VFunctClass() = default;
VFunctClassLink::~VFunctClassLink() = default;
VAccessLevel::~VAccessLevel() = default;
VDynDefinedSpec::~VDynDefinedSpec() = default;
VDynIdDefModeInfo::~VDynIdDefModeInfo() = default;
VEcuVariantPattern::~VEcuVariantPattern() = default;
VMatchingParameter::~VMatchingParameter() = default;

} // namespace NODX201
