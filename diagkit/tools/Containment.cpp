// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/Containment.h>

#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Tables.h>

namespace NDIAGKIT {
namespace {

using NODX201::VLink;
using NODX201::VOdxElement;
using VKind = VContained::VKind;

// How references are followed: one function per kind of reference, called only with links of that kind.
// clang-format off
VOdxElement* FollowDop           (VLink& link, IDopFinder& dops) { return dops.Find(static_cast<NODX201::VDopBaseLink&>(link)); }
VOdxElement* FollowEndDop        (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VDynEndDopRef&>(link);       return self.HasDopBase()        ? &self.GetDopBase()        : nullptr; }
VOdxElement* FollowStructure     (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VStructureLink&>(link);      return self.HasStructure()      ? &self.GetStructure()      : nullptr; }
VOdxElement* FollowBasicStructure(VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VBasicStructureLink&>(link); return self.HasBasicStructure() ? &self.GetBasicStructure() : nullptr; }
VOdxElement* FollowEnvDataDesc   (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VEnvDataDescLink&>(link);    return self.HasEnvDataDesc()    ? &self.GetEnvDataDesc()    : nullptr; }
VOdxElement* FollowEnvData       (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VEnvDataLink&>(link);        return self.HasEnvData()        ? &self.GetEnvData()        : nullptr; }
VOdxElement* FollowTable         (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VTableLink&>(link);          return self.HasTable()          ? &self.GetTable()          : nullptr; }
VOdxElement* FollowTableRow      (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VTableRowLink&>(link);       return self.HasTableRow()       ? &self.GetTableRow()       : nullptr; }
VOdxElement* FollowTableKey      (VLink& link, IDopFinder&) { auto& self = static_cast<NODX201::VTableKeyLink&>(link);       return self.HasTableKey()       ? &self.GetTableKey()       : nullptr; }

constexpr VContained::VWay kParam            {VKind::Param,    nullptr};
constexpr VContained::VWay kEnvData          {VKind::Dop,      nullptr};
constexpr VContained::VWay kRow              {VKind::TableRow, nullptr};
constexpr VContained::VWay kToDop            {VKind::Dop,      &FollowDop, true};
constexpr VContained::VWay kToEndDop         {VKind::Dop,      &FollowEndDop};
constexpr VContained::VWay kToStructure      {VKind::Dop,      &FollowStructure};
constexpr VContained::VWay kToBasicStructure {VKind::Dop,      &FollowBasicStructure};
constexpr VContained::VWay kToEnvDataDesc    {VKind::Dop,      &FollowEnvDataDesc};
constexpr VContained::VWay kToEnvData        {VKind::Dop,      &FollowEnvData};
constexpr VContained::VWay kToTable          {VKind::Table,    &FollowTable};
constexpr VContained::VWay kToRow            {VKind::TableRow, &FollowTableRow};
constexpr VContained::VWay kToKey            {VKind::Param,    &FollowTableKey};
// clang-format on

} // namespace

NODX201::VDopBase* VDopsOfLayer::Find(NODX201::VDopBaseLink& link) {
    return link.HasDopBase(m_layer) ? &link.GetDopBase() : nullptr;
}

VContained::VContained(NODX201::VParam& param) : VContained(kParam, param) {}

NODX201::VLink* VContained::GetReference() const {
    return IsReference() ? static_cast<NODX201::VLink*>(m_what) : nullptr;
}

NODX201::VOdxElement* VContained::Target(IDopFinder& dops) const {
    return IsReference() ? m_way->follow(static_cast<NODX201::VLink&>(*m_what), dops) : m_what;
}

VContainment::~VContainment() = default;

void VContainment::VisitPartsOf(VContained::VKind kind, NODX201::VOdxElement& element) {
    switch (kind) {
    case VKind::Param:
        return static_cast<NODX201::VParam&>(element).Accept(*this);
    case VKind::Dop:
        return static_cast<NODX201::VDopBase&>(element).Accept(*this);
    case VKind::Table:
        return VisitTable(static_cast<NODX201::VTable&>(element));
    case VKind::TableRow:
        return VisitTableRow(static_cast<NODX201::VTableRow&>(element));
    }
}

// Kinds that contain nothing.
// clang-format off
void VContainment::VisitCodedConst(NODX201::VCodedConst&) {}
void VContainment::VisitDynamic(NODX201::VDynamic&) {}
void VContainment::VisitLengthKey(NODX201::VLengthKey&) {}
void VContainment::VisitMatchingRequestParam(NODX201::VMatchingRequestParam&) {}
void VContainment::VisitPhysConst(NODX201::VPhysConst&) {}
void VContainment::VisitReserved(NODX201::VReserved&) {}
void VContainment::VisitSystem(NODX201::VSystem&) {}
void VContainment::VisitDataObjectProp(NODX201::VDataObjectProp&) {}
void VContainment::VisitDtcDop(NODX201::VDtcDop&) {}
// clang-format on

// Parameters

void VContainment::VisitValue(NODX201::VValue& param) {
    if (param.HasDopBaseLink()) {
        Take({kToDop, param.GetDopBaseLink()});
    }
}

void VContainment::VisitTableStruct(NODX201::VTableStruct& param) {
    if (param.HasTableKeyRef()) {
        Take({kToKey, param.GetTableKeyRef()});
    }
}

void VContainment::VisitTableKey(NODX201::VTableKey& param) {
    if (!param.HasTableRefTableRowRefChoice()) {
        return;
    }
    NODX201::ITableRefTableRowRefChoice& choice = param.GetTableRefTableRowRefChoice();
    if (choice.IsTableLink()) {
        if (auto* const link = dynamic_cast<NODX201::VTableLink*>(&choice)) {
            Take({kToTable, *link});
        }
    } else if (choice.IsTableRowLink()) {
        if (auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&choice)) {
            Take({kToRow, *link});
        }
    }
}

void VContainment::VisitTableEntry(NODX201::VTableEntry& param) {
    if (param.HasTableRowRef()) {
        Take({kToRow, param.GetTableRowRef()});
    }
}

// DOPs

void VContainment::VisitStructure(NODX201::VStructure& dop) { TakeParams(dop); }
void VContainment::VisitEnvData(NODX201::VEnvData& dop) { TakeParams(dop); }

void VContainment::TakeParams(NODX201::VBasicStructure& structure) {
    for (NODX201::VParam& param : structure.ParamCollection()) {
        Take(VContained(param));
    }
}

void VContainment::VisitStaticField(NODX201::VStaticField& dop) { TakeField(dop); }
void VContainment::VisitDynamicLengthField(NODX201::VDynamicLengthField& dop) { TakeField(dop); }
void VContainment::VisitEndOfPduField(NODX201::VEndOfPduField& dop) { TakeField(dop); }

void VContainment::VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) {
    TakeField(dop);
    if (dop.HasDataObjectPropRef()) {
        Take({kToEndDop, dop.GetDataObjectPropRef()});
    }
}

void VContainment::TakeField(NODX201::VField& field) {
    if (!field.HasBasicStructureEnvDataDescChoice()) {
        return;
    }
    NODX201::IBasicStructureEnvDataDescChoice& choice = field.GetBasicStructureEnvDataDescChoice();
    if (choice.IsBasicStructureLink()) {
        if (auto* const link = dynamic_cast<NODX201::VBasicStructureLink*>(&choice)) {
            Take({kToBasicStructure, *link});
        }
    } else if (choice.IsEnvDataDescLink()) {
        if (auto* const link = dynamic_cast<NODX201::VEnvDataDescLink*>(&choice)) {
            Take({kToEnvDataDesc, *link});
        }
    }
}

void VContainment::VisitEnvDataDesc(NODX201::VEnvDataDesc& dop) {
    for (NODX201::IEnvDataProxy& proxy : dop.EnvDataProxyCollection()) {
        if (proxy.IsEnvDataLink()) {
            if (auto* const link = dynamic_cast<NODX201::VEnvDataLink*>(&proxy)) {
                Take({kToEnvData, *link});
            }
        } else if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
            Take({kEnvData, *envData});
        }
    }
}

void VContainment::VisitMux(NODX201::VMux& dop) {
    if (dop.HasDefaultCase()) {
        TakeStructure(dop.GetDefaultCase(), &dop.GetDefaultCase());
    }
    for (NODX201::VCase& muxCase : dop.CaseCollection()) {
        TakeStructure(muxCase, &muxCase);
    }
}

template <class Owner>
void VContainment::TakeStructure(Owner& owner, NODX201::VOdxElement* muxCase) {
    if (owner.HasStructureRef()) {
        Take({kToStructure, owner.GetStructureRef(), muxCase});
    }
}

// Tables

void VContainment::VisitTable(NODX201::VTable& table) {
    for (NODX201::IRowWrapper& wrapper : table.RowWrapperCollection()) {
        if (wrapper.IsTableRowLink()) {
            if (auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&wrapper)) {
                Take({kToRow, *link});
            }
        } else if (auto* const row = dynamic_cast<NODX201::VTableRow*>(&wrapper)) {
            Take({kRow, *row});
        }
    }
}

void VContainment::VisitTableRow(NODX201::VTableRow& row) { TakeStructure(row); }

} // namespace NDIAGKIT
