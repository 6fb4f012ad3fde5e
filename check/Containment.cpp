// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Containment.h>

#include <algorithm>

#include <diagkit/model/Params.h>
#include <diagkit/model/Tables.h>

namespace NCheck {
namespace {

using NReader::VEdges;

void AddRow(VEdges& edges, NODX201::VTableRowLink& link) {
    if (link.HasTableRow()) {
        edges.push_back({&link.GetTableRow(), &link});
    }
}

bool IsThere(VEdges const& edges, NODX201::VLink const* link) {
    return std::any_of(edges.begin(), edges.end(), [link](NReader::VEdge const& edge) { return edge.link == link; });
}

void AddTableKey(VEdges& edges, NODX201::VTableKey& key) {
    if (!key.HasTableRefTableRowRefChoice()) {
        return;
    }
    NODX201::ITableRefTableRowRefChoice& choice = key.GetTableRefTableRowRefChoice();
    if (IsThere(edges, dynamic_cast<NODX201::VLink*>(&choice))) {
        return; // a TABLE-STRUCT and its TABLE-KEY lead to the same
    }
    if (auto* const row = dynamic_cast<NODX201::VTableRowLink*>(&choice)) {
        AddRow(edges, *row);
    }
    auto* const table = dynamic_cast<NODX201::VTableLink*>(&choice);
    if (table != nullptr && table->HasTable()) {
        edges.push_back({&table->GetTable(), table});
    }
}

void AddTableParam(VEdges& edges, NODX201::VParam& param) {
    if (auto* const key = dynamic_cast<NODX201::VTableKey*>(&param)) {
        AddTableKey(edges, *key);
    } else if (auto* const entry = dynamic_cast<NODX201::VTableEntry*>(&param)) {
        if (entry->HasTableRowRef()) {
            AddRow(edges, entry->GetTableRowRef());
        }
    } else if (auto* const data = dynamic_cast<NODX201::VTableStruct*>(&param)) {
        if (data->HasTableKeyRef() && data->GetTableKeyRef().HasTableKey()) {
            AddTableKey(edges, data->GetTableKeyRef().GetTableKey());
        }
    }
}

void AddTableParams(VEdges& edges, NODX201::VParamCollection& params) {
    for (NODX201::VParam& param : params) {
        AddTableParam(edges, param);
    }
}

VEdges EdgesOfTable(NODX201::VTable& table) {
    VEdges edges;
    for (NODX201::IRowWrapper& wrapper : table.RowWrapperCollection()) {
        if (auto* const row = dynamic_cast<NODX201::VTableRow*>(&wrapper)) {
            edges.push_back({row});
        } else if (auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&wrapper)) {
            AddRow(edges, *link);
        }
    }
    return edges;
}

VEdges EdgesOfRow(NODX201::VTableRow& row) {
    if (!row.HasStructureRef() || !row.GetStructureRef().HasStructure()) {
        return {};
    }
    return {{&row.GetStructureRef().GetStructure(), &row.GetStructureRef()}};
}

} // namespace

VEdges EdgesOf(NODX201::VParamCollection& params, NReader::VShortNameTargets const& shortNameTargets) {
    VEdges edges;
    NReader::AddParams(edges, params, shortNameTargets);
    AddTableParams(edges, params);
    return edges;
}

VEdges EdgesOf(NODX201::VReferencable& element, NReader::VShortNameTargets const& shortNameTargets) {
    if (auto* const table = dynamic_cast<NODX201::VTable*>(&element)) {
        return EdgesOfTable(*table);
    }
    if (auto* const row = dynamic_cast<NODX201::VTableRow*>(&element)) {
        return EdgesOfRow(*row);
    }
    if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&element)) {
        return EdgesOf(structure->ParamCollection(), shortNameTargets);
    }
    auto* const dop = dynamic_cast<NODX201::VDopBase*>(&element);
    return dop != nullptr ? NReader::EdgesOf(*dop, shortNameTargets) : VEdges{};
}

} // namespace NCheck
