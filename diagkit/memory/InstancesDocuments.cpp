// SPDX-License-Identifier: Apache-2.0

// The code of flash data, of vehicle information and of all references, compiled only here.

#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/NewImpl.h>
#include <diagkit/memory/VehicleInfo.h>

namespace NMemory {

#include <diagkit/memory/Instances.def>

#include <diagkit/model/facts/Flash.def>
#include <diagkit/model/facts/ParentRefs.def>
#include <diagkit/model/facts/References.def>
#include <diagkit/model/facts/VehicleInfo.def>

#include <diagkit/memory/InstancesEnd.def>

template <>
bool IsTargetOf<Tag::EcuProxyRef, VMemInfoComponent>(NODX201::VReferencable& element) {
    return IsOfClass<VMemInfoComponent>(element) &&
           (element.GetOdxTag() == Tag::EcuProxy || element.GetOdxTag() == Tag::InfoComponent);
}

template <>
bool IsTargetOf<Tag::GatewayLogicalLinkRef, VMemLogicalLink>(NODX201::VReferencable& element) {
    return IsOfClass<VMemLogicalLink>(element) && element.GetOdxTag() != Tag::MemberLogicalLink;
}

bool VMemImportRef::HasDiagLayer() const { return FindById(); }

} // namespace NMemory
