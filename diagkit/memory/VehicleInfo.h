// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Layers.h>

/// Vehicle information.

namespace NMemory {

// An element without xsi:type may be of either kind.
template <>
bool IsTargetOf<Tag::EcuProxyRef, VMemInfoComponent>(NODX201::VReferencable& element);
template <>
bool IsTargetOf<Tag::GatewayLogicalLinkRef, VMemLogicalLink>(NODX201::VReferencable& element);

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/VehicleInfo.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
