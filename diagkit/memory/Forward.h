// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Forward.h>

/// Forward declarations of the memory model's classes, for headers that only name them.

namespace NMemory {

#define ODX_CLASS(name, tag, base, names, value, element, type) class VMem##name;
#define ODX_EXTRA(name, contract, names, value, element, type) class VMem##name;
#define ODX_LINK_WITH(name, tag, target) class VMem##name;
#define ODX_LINK_IN_LAYER(name, tag, target, value, element) class VMem##name;
#define ODX_LINK_IN_DIAG_COMM(name, tag, target, value, element) class VMem##name;
#define ODX_EXTRA_LINK(name, target, targetClass, tag, value, element) class VMem##name;
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) class VMem##name;
#define ODX_EXTRA_LINK_BY_HAND(name, tag, value, element) class VMem##name;
#define ODX_PARENT_REF(name, target, value, type) class VMem##name;
#define ODX_UNTYPED_PARENT_REF(name, target, value) class VMem##name;
#define ODX_EXCLUSION(name, reference, link, value, element) class VMem##name;
#define ODX_EXTRA_COLLECTION(name) class V##name##Collection;
#include <diagkit/model/Facts.def>
class VMemOdx;

} // namespace NMemory
