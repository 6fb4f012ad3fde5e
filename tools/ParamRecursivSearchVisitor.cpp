// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ParamRecursivSearchVisitor.h>

#include <cwchar>

#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Tables.h>

namespace NDIAGKIT {

using Visitor = VOutParamIfView::VParamRecursivSearchVisitor;

Visitor::VParamRecursivSearchVisitor(wchar_t const* shortName, NODX201::VDiagLayer& layer)
    : m_shortName(shortName), m_layer(&layer) {}

Visitor::~VParamRecursivSearchVisitor() = default;

// Parameters. The kinds that neither match nor lead anywhere come first.

void Visitor::VisitCodedConst(NODX201::VCodedConst&) {}
void Visitor::VisitDynamic(NODX201::VDynamic&) {}
void Visitor::VisitLengthKey(NODX201::VLengthKey&) {}
void Visitor::VisitMatchingRequestParam(NODX201::VMatchingRequestParam&) {}
void Visitor::VisitPhysConst(NODX201::VPhysConst&) {}
void Visitor::VisitReserved(NODX201::VReserved&) {}
void Visitor::VisitSystem(NODX201::VSystem&) {}
void Visitor::VisitTableKey(NODX201::VTableKey&) {}
void Visitor::VisitTableEntry(NODX201::VTableEntry&) {}

void Visitor::VisitValue(NODX201::VValue& param) {
    if (!IsDone() && std::wcscmp(param.GetShortName(), m_shortName.c_str()) == 0) {
        m_result = &param;
    }
    if (!IsDone() && param.HasDopBaseLink() && param.GetDopBaseLink().HasDopBase(*m_layer)) {
        param.GetDopBaseLink().GetDopBase().Accept(*this);
    }
}

void Visitor::VisitTableStruct(NODX201::VTableStruct& param) {
    if (IsDone() || !param.HasTableKeyRef() || !param.GetTableKeyRef().HasTableKey()) {
        return;
    }
    NODX201::VTableKey& key = param.GetTableKeyRef().GetTableKey();
    if (!key.HasTableRefTableRowRefChoice()) {
        return;
    }
    NODX201::ITableRefTableRowRefChoice& choice = key.GetTableRefTableRowRefChoice();
    if (choice.IsTableLink()) {
        auto* const link = dynamic_cast<NODX201::VTableLink*>(&choice);
        if (link != nullptr && link->HasTable()) {
            SearchTable(link->GetTable());
        }
    } else if (choice.IsTableRowLink()) {
        auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&choice);
        if (link != nullptr && link->HasTableRow()) {
            SearchRow(link->GetTableRow());
        }
    }
}

void Visitor::SearchTable(NODX201::VTable& table) {
    for (NODX201::IRowWrapper& wrapper : table.RowWrapperCollection()) {
        if (wrapper.IsTableRowLink()) {
            auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&wrapper);
            if (link != nullptr && link->HasTableRow()) {
                SearchRow(link->GetTableRow());
            }
        } else if (auto* const row = dynamic_cast<NODX201::VTableRow*>(&wrapper)) {
            SearchRow(*row);
        }
        if (IsDone()) {
            return;
        }
    }
}

void Visitor::SearchRow(NODX201::VTableRow& row) {
    if (row.HasStructureRef()) {
        SearchStructureOf(row.GetStructureRef());
    }
}

void Visitor::SearchStructureOf(NODX201::VStructureLink& link) {
    if (link.HasStructure()) {
        link.GetStructure().Accept(*this);
    }
}

// DOPs

void Visitor::VisitDataObjectProp(NODX201::VDataObjectProp&) {}
void Visitor::VisitDtcDop(NODX201::VDtcDop&) {}

void Visitor::VisitStructure(NODX201::VStructure& dop) { SearchParams(dop); }
void Visitor::VisitEnvData(NODX201::VEnvData& dop) { SearchParams(dop); }

void Visitor::VisitStaticField(NODX201::VStaticField& dop) { SearchField(dop); }
void Visitor::VisitDynamicLengthField(NODX201::VDynamicLengthField& dop) { SearchField(dop); }
void Visitor::VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) { SearchField(dop); }
void Visitor::VisitEndOfPduField(NODX201::VEndOfPduField& dop) { SearchField(dop); }

void Visitor::SearchParams(NODX201::VBasicStructure& structure) {
    if (IsDone() || !m_searched.insert(&structure).second) {
        return;
    }
    for (NODX201::VParam& param : structure.ParamCollection()) {
        param.Accept(*this);
        if (IsDone()) {
            return;
        }
    }
}

void Visitor::SearchField(NODX201::VField& field) {
    if (IsDone() || !field.HasBasicStructureEnvDataDescChoice()) {
        return;
    }
    NODX201::IBasicStructureEnvDataDescChoice& choice = field.GetBasicStructureEnvDataDescChoice();
    if (choice.IsBasicStructureLink()) {
        auto* const link = dynamic_cast<NODX201::VBasicStructureLink*>(&choice);
        if (link != nullptr && link->HasBasicStructure()) {
            link->GetBasicStructure().Accept(*this);
        }
    } else if (choice.IsEnvDataDescLink()) {
        auto* const link = dynamic_cast<NODX201::VEnvDataDescLink*>(&choice);
        if (link != nullptr && link->HasEnvDataDesc()) {
            link->GetEnvDataDesc().Accept(*this);
        }
    }
}

void Visitor::VisitEnvDataDesc(NODX201::VEnvDataDesc& dop) {
    for (NODX201::IEnvDataProxy& proxy : dop.EnvDataProxyCollection()) {
        if (IsDone()) {
            return;
        }
        if (proxy.IsEnvDataLink()) {
            auto* const link = dynamic_cast<NODX201::VEnvDataLink*>(&proxy);
            if (link != nullptr && link->HasEnvData()) {
                link->GetEnvData().Accept(*this);
            }
        } else if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
            envData->Accept(*this);
        }
    }
}

void Visitor::VisitMux(NODX201::VMux& dop) {
    if (!IsDone() && dop.HasDefaultCase() && dop.GetDefaultCase().HasStructureRef()) {
        SearchStructureOf(dop.GetDefaultCase().GetStructureRef());
    }
    for (NODX201::VCase& muxCase : dop.CaseCollection()) {
        if (IsDone()) {
            return;
        }
        if (muxCase.HasStructureRef()) {
            SearchStructureOf(muxCase.GetStructureRef());
        }
    }
}

} // namespace NDIAGKIT
