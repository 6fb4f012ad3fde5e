// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/LinkTargets.h>

#include <typeindex>
#include <unordered_map>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Params.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/memory/References.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/memory/Units.h>
#include <diagkit/memory/VehicleInfo.h>

namespace NReader {
namespace {

using VFindTarget = NODX201::VOdxElement* (*)(NODX201::VLink& reference);

template <class Link>
NODX201::VOdxElement* FindTarget(NODX201::VLink& reference) {
    return static_cast<Link&>(reference).FindEvenSevered();
}

template <class Link>
std::pair<std::type_index const, VFindTarget> RowOf() {
    return {typeid(Link), &FindTarget<Link>};
}

/// A row for each class of reference that may be by ID: trying one class after the other takes too long for the many
/// references of a database.
std::unordered_map<std::type_index, VFindTarget> const& Rows() {
    static std::unordered_map<std::type_index, VFindTarget> const rows{
#define DIAGKIT_ROW(name) RowOf<NMemory::VMem##name>(),
#define ODX_LINK_WITH(name, tag, target) DIAGKIT_ROW(name)
#define ODX_LINK_IN_LAYER(name, tag, target, value, element) DIAGKIT_ROW(name)
#define ODX_EXTRA_LINK(name, target, targetClass, tag, value, element) DIAGKIT_ROW(name)
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) DIAGKIT_ROW(name)
#define ODX_PARENT_REF(name, target, value, type) DIAGKIT_ROW(name)
#define ODX_UNTYPED_PARENT_REF(name, target, value) DIAGKIT_ROW(name)
#include <diagkit/model/Facts.def>

#undef DIAGKIT_ROW
        RowOf<NMemory::VMemImportRef>(),
    };
    return rows;
}

} // namespace

NODX201::VOdxElement* TargetById(NODX201::VLink& reference) {
    auto const row = Rows().find(typeid(reference));
    return row != Rows().end() ? row->second(reference) : nullptr;
}

} // namespace NReader
