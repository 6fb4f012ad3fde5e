// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <unordered_set>

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/OutParamIfView.h>

namespace NDIAGKIT {

/// Looks for a VALUE parameter of one short name below a parameter, depth first in document order. Once it has found
/// one, every further visit does nothing.
class DIAGKIT_NO_EXPORT VOutParamIfView::VParamRecursivSearchVisitor : public NODX201::VParamVisitor,
                                                                       public NODX201::VDopBaseVisitor {
public:
    VParamRecursivSearchVisitor(wchar_t const* shortName, NODX201::VDiagLayer& layer);
    ~VParamRecursivSearchVisitor() override;

    NODX201::VValue* GetResult() const { return m_result; } ///< null until found

    void VisitCodedConst(NODX201::VCodedConst& param) override;
    void VisitDynamic(NODX201::VDynamic& param) override;
    void VisitLengthKey(NODX201::VLengthKey& param) override;
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam& param) override;
    void VisitPhysConst(NODX201::VPhysConst& param) override;
    void VisitReserved(NODX201::VReserved& param) override;
    void VisitSystem(NODX201::VSystem& param) override;
    void VisitTableKey(NODX201::VTableKey& param) override;
    void VisitTableStruct(NODX201::VTableStruct& param) override;
    void VisitValue(NODX201::VValue& param) override;
    void VisitTableEntry(NODX201::VTableEntry& param) override;

    void VisitEnvData(NODX201::VEnvData& dop) override;
    void VisitStructure(NODX201::VStructure& dop) override;
    void VisitEnvDataDesc(NODX201::VEnvDataDesc& dop) override;
    void VisitStaticField(NODX201::VStaticField& dop) override;
    void VisitDynamicLengthField(NODX201::VDynamicLengthField& dop) override;
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) override;
    void VisitEndOfPduField(NODX201::VEndOfPduField& dop) override;
    void VisitMux(NODX201::VMux& dop) override;
    void VisitDataObjectProp(NODX201::VDataObjectProp& dop) override;
    void VisitDtcDop(NODX201::VDtcDop& dop) override;

private:
    bool IsDone() const { return m_result != nullptr; }

    void SearchParams(NODX201::VBasicStructure& structure);
    void SearchField(NODX201::VField& field);
    void SearchStructureOf(NODX201::VStructureLink& link);
    void SearchRow(NODX201::VTableRow& row);
    void SearchTable(NODX201::VTable& table);

    std::wstring m_shortName;
    NODX201::VValue* m_result = nullptr;
    NODX201::VDiagLayer* m_layer;
    /// A structure is searched once: a second search finds no more than the first. Data in which structures share
    /// others would take exponential time otherwise, and data in which one contains itself would take for ever.
    std::unordered_set<NODX201::VBasicStructure const*> m_searched;
};

} // namespace NDIAGKIT
