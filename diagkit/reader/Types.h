// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Forward.h>
#include <diagkit/memory/Link.h>

/// The table of each element class, by class. The argument only selects the overload; it is never used.

namespace NReader {

struct VElementType;

/// Links without children.
template <class Contract, NODX201::VOdxTagEnum Tag, class Target>
VElementType const& TypeOf(NMemory::VMemLink<Contract, Tag, Target>*);
VElementType const& LinkType();

#define ODX_CLASS(name, tag, base, names, value, element, type) VElementType const& TypeOf(NMemory::VMem##name*);
#define ODX_EXTRA(name, contract, names, value, element, type) VElementType const& TypeOf(NMemory::VMem##name*);
#define ODX_LINK_WITH(name, tag, target) VElementType const& TypeOf(NMemory::VMem##name*);
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) VElementType const& TypeOf(NMemory::VMem##name*);
#define ODX_PARENT_REF(name, target, value, type) VElementType const& TypeOf(NMemory::VMem##name*);
#define ODX_UNTYPED_PARENT_REF(name, target, value) VElementType const& TypeOf(NMemory::VMem##name*);
#include <diagkit/model/Facts.def>

template <class Contract, NODX201::VOdxTagEnum Tag, class Target>
VElementType const& TypeOf(NMemory::VMemLink<Contract, Tag, Target>*) {
    return LinkType();
}

} // namespace NReader
