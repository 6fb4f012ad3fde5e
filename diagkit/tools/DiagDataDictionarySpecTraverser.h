// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <tuple>

#include <diagkit/Export.h>
#include <diagkit/model/Collections.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/util/CheckedCast.h>

namespace NDIAGKIT {

/// Walks the contents of a data dictionary depth first and calls a hook before and after every element. Derive from it,
/// override the hooks you care about, construct it on a layer and call `TraverseDiagDataDictionarySpec`.
///
/// Three tiers, each of which may be overridden:
/// - `Visit<Kind>(x)` calls `PreProcess<Kind>(x)`, `DefaultVisit(x)`, `Descend<Kind>(x)`, `PostProcess<Kind>(x)`. Kinds
///   without children have no Descend. A Visit that is overridden without calling the base skips the element.
/// - `Descend<Kind>(x)` visits the children, in the order in which its body lists them.
/// - The hooks, `PreProcess<Kind>`, `PostProcess<Kind>` and `DefaultVisit`, are empty. ROLE texts get no
///   `DefaultVisit`, because a text is not an element; the hooks receive a copy of it, and changes to the copy are
///   lost.
///
/// References to DOPs, structures, tables and rows, units, companies and team members are followed into their targets,
/// every time they occur: an element is visited once for each path to it. References to DOPs resolve against the layer
/// given to the constructor, whatever element contains the reference; unresolved ones and absent children are skipped.
/// There is no protection against cycles: a table whose row leads back to it causes endless recursion.
/// `VGuardedDiagLayerTraverser` has such protection, for dictionaries too.
///
/// The walk reads the model and allocates nothing but the copies of texts. A traverser may be run several times.
class DIAGKIT_EXPORT VDiagDataDictionarySpecTraverser : public NODX201::VParamVisitor, public NODX201::VDopBaseVisitor {
public:
    explicit VDiagDataDictionarySpecTraverser(NODX201::VDiagLayer& layer); ///< the layer must outlive the traverser
    ~VDiagDataDictionarySpecTraverser() override;

protected:
    void VisitCodedConst(NODX201::VCodedConst& x) override;
    void VisitDynamic(NODX201::VDynamic& x) override;
    void VisitLengthKey(NODX201::VLengthKey& x) override;
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam& x) override;
    void VisitPhysConst(NODX201::VPhysConst& x) override;
    void VisitReserved(NODX201::VReserved& x) override;
    void VisitSystem(NODX201::VSystem& x) override;
    void VisitTableKey(NODX201::VTableKey& x) override;
    void VisitTableStruct(NODX201::VTableStruct& x) override;
    void VisitValue(NODX201::VValue& x) override;
    void VisitTableEntry(NODX201::VTableEntry& x) override;

    virtual void VisitAdminData(NODX201::VAdminData& x);
    virtual void VisitCompanyDocInfo(NODX201::VCompanyDocInfo& x);
    virtual void VisitDocRevision(NODX201::VDocRevision& x);
    virtual void VisitCompanyRevisionInfo(NODX201::VCompanyRevisionInfo& x);
    virtual void VisitModification(NODX201::VModification& x);
    virtual void VisitUnitSpec(NODX201::VUnitSpec& x);
    virtual void VisitSdgCaption(NODX201::VSdgCaption& x);
    virtual void VisitSd(NODX201::VSd& x);
    virtual void VisitCompuDefaultValue(NODX201::VCompuDefaultValue& x);
    virtual void VisitCompuScale(NODX201::VCompuScale& x);
    virtual void VisitUnitGroup(NODX201::VUnitGroup& x);
    virtual void VisitUnit(NODX201::VUnit& x);
    virtual void VisitPhysicalDimension(NODX201::VPhysicalDimension& x);
    virtual void VisitDtc(NODX201::VDtc& x);
    virtual void VisitCompuMethod(NODX201::VCompuMethod& x);
    virtual void VisitInternalConstr(NODX201::VInternalConstr& x);
    virtual void VisitDiagCodedType(NODX201::VDiagCodedType& x);
    virtual void VisitPhysicalType(NODX201::VPhysicalType& x);
    virtual void VisitSdg(NODX201::VSdg& x);
    virtual void VisitCompuInternalToPhys(NODX201::VCompuInternalToPhys& x);
    virtual void VisitCompuPhysToInternal(NODX201::VCompuPhysToInternal& x);
    virtual void VisitLimit(NODX201::VLimit& x);
    virtual void VisitScaleConstr(NODX201::VScaleConstr& x);
    virtual void VisitProgCode(NODX201::VProgCode& x);
    virtual void VisitVt(NODX201::VVt& x);
    virtual void VisitCompuInverseValue(NODX201::VCompuInverseValue& x);
    virtual void VisitCompuConst(NODX201::VCompuConst& x);
    virtual void VisitCompuRationalCoeffs(NODX201::VCompuRationalCoeffs& x);
    virtual void VisitField(NODX201::VField& x);
    virtual void VisitDetermineNumberOfItems(NODX201::VDetermineNumberOfItems& x);
    virtual void VisitComplexDop(NODX201::VComplexDop& x);
    virtual void VisitBasicStructure(NODX201::VBasicStructure& x);
    virtual void VisitTable(NODX201::VTable& x);
    virtual void VisitTableRow(NODX201::VTableRow& x);
    virtual void VisitTeamMember(NODX201::VTeamMember& x);
    virtual void VisitRole(std::wstring& text);
    virtual void VisitAllValue(NODX201::VAllValue& x);
    virtual void VisitDefaultCase(NODX201::VDefaultCase& x);
    virtual void VisitSwitchKey(NODX201::VSwitchKey& x);
    virtual void VisitCase(NODX201::VCase& x);
    virtual void VisitOutputParam(NODX201::VOutputParam& x);
    virtual void VisitCompanyData(NODX201::VCompanyData& x);
    virtual void VisitCompanySpecificInfo(NODX201::VCompanySpecificInfo& x);
    virtual void VisitRelatedDoc(NODX201::VRelatedDoc& x);
    virtual void VisitXdoc(NODX201::VXdoc& x);

    virtual void DescendEnvData(NODX201::VEnvData& x);
    virtual void DescendStructure(NODX201::VStructure& x);
    virtual void DescendEnvDataDesc(NODX201::VEnvDataDesc& x);
    virtual void DescendStaticField(NODX201::VStaticField& x);
    virtual void DescendDynamicLengthField(NODX201::VDynamicLengthField& x);
    virtual void DescendDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& x);
    virtual void DescendEndOfPduField(NODX201::VEndOfPduField& x);
    virtual void DescendMux(NODX201::VMux& x);
    virtual void DescendDataObjectProp(NODX201::VDataObjectProp& x);
    virtual void DescendDtcDop(NODX201::VDtcDop& x);
    virtual void DescendAdminData(NODX201::VAdminData& x);
    virtual void DescendCompanyDocInfo(NODX201::VCompanyDocInfo& x);
    virtual void DescendDocRevision(NODX201::VDocRevision& x);
    virtual void DescendCompanyRevisionInfo(NODX201::VCompanyRevisionInfo& x);
    virtual void DescendUnitSpec(NODX201::VUnitSpec& x);
    virtual void DescendCodedConst(NODX201::VCodedConst& x);
    virtual void DescendLengthKey(NODX201::VLengthKey& x);
    virtual void DescendPhysConst(NODX201::VPhysConst& x);
    virtual void DescendReserved(NODX201::VReserved& x);
    virtual void DescendSystem(NODX201::VSystem& x);
    virtual void DescendTableKey(NODX201::VTableKey& x);
    virtual void DescendTableStruct(NODX201::VTableStruct& x);
    virtual void DescendValue(NODX201::VValue& x);
    virtual void DescendTableEntry(NODX201::VTableEntry& x);
    virtual void DescendUnitGroup(NODX201::VUnitGroup& x);
    virtual void DescendUnit(NODX201::VUnit& x);
    virtual void DescendDtc(NODX201::VDtc& x);
    virtual void DescendCompuMethod(NODX201::VCompuMethod& x);
    virtual void DescendInternalConstr(NODX201::VInternalConstr& x);
    virtual void DescendSdg(NODX201::VSdg& x);
    virtual void DescendCompuInternalToPhys(NODX201::VCompuInternalToPhys& x);
    virtual void DescendCompuPhysToInternal(NODX201::VCompuPhysToInternal& x);
    virtual void DescendScaleConstr(NODX201::VScaleConstr& x);
    virtual void DescendCompuDefaultValue(NODX201::VCompuDefaultValue& x);
    virtual void DescendCompuScale(NODX201::VCompuScale& x);
    virtual void DescendCompuConst(NODX201::VCompuConst& x);
    virtual void DescendField(NODX201::VField& x);
    virtual void DescendDetermineNumberOfItems(NODX201::VDetermineNumberOfItems& x);
    virtual void DescendComplexDop(NODX201::VComplexDop& x);
    virtual void DescendBasicStructure(NODX201::VBasicStructure& x);
    virtual void DescendTable(NODX201::VTable& x);
    virtual void DescendTableRow(NODX201::VTableRow& x);
    virtual void DescendTeamMember(NODX201::VTeamMember& x);
    virtual void DescendDefaultCase(NODX201::VDefaultCase& x);
    virtual void DescendSwitchKey(NODX201::VSwitchKey& x);
    virtual void DescendCase(NODX201::VCase& x);
    virtual void DescendOutputParam(NODX201::VOutputParam& x);
    virtual void DescendCompanyData(NODX201::VCompanyData& x);
    virtual void DescendCompanySpecificInfo(NODX201::VCompanySpecificInfo& x);
    virtual void DescendRelatedDoc(NODX201::VRelatedDoc& x);

    // clang-format off
    virtual void PreProcessEnvData(NODX201::VEnvData&) {}
    virtual void PreProcessStructure(NODX201::VStructure&) {}
    virtual void PreProcessEnvDataDesc(NODX201::VEnvDataDesc&) {}
    virtual void PreProcessStaticField(NODX201::VStaticField&) {}
    virtual void PreProcessDynamicLengthField(NODX201::VDynamicLengthField&) {}
    virtual void PreProcessDynamicEndmarkerField(NODX201::VDynamicEndmarkerField&) {}
    virtual void PreProcessEndOfPduField(NODX201::VEndOfPduField&) {}
    virtual void PreProcessMux(NODX201::VMux&) {}
    virtual void PreProcessDataObjectProp(NODX201::VDataObjectProp&) {}
    virtual void PreProcessDtcDop(NODX201::VDtcDop&) {}
    virtual void PreProcessAdminData(NODX201::VAdminData&) {}
    virtual void PreProcessCompanyDocInfo(NODX201::VCompanyDocInfo&) {}
    virtual void PreProcessDocRevision(NODX201::VDocRevision&) {}
    virtual void PreProcessCompanyRevisionInfo(NODX201::VCompanyRevisionInfo&) {}
    virtual void PreProcessModification(NODX201::VModification&) {}
    virtual void PreProcessUnitSpec(NODX201::VUnitSpec&) {}
    virtual void PreProcessCodedConst(NODX201::VCodedConst&) {}
    virtual void PreProcessDynamic(NODX201::VDynamic&) {}
    virtual void PreProcessLengthKey(NODX201::VLengthKey&) {}
    virtual void PreProcessMatchingRequestParam(NODX201::VMatchingRequestParam&) {}
    virtual void PreProcessPhysConst(NODX201::VPhysConst&) {}
    virtual void PreProcessReserved(NODX201::VReserved&) {}
    virtual void PreProcessSystem(NODX201::VSystem&) {}
    virtual void PreProcessTableKey(NODX201::VTableKey&) {}
    virtual void PreProcessTableStruct(NODX201::VTableStruct&) {}
    virtual void PreProcessValue(NODX201::VValue&) {}
    virtual void PreProcessTableEntry(NODX201::VTableEntry&) {}
    virtual void PreProcessUnitGroup(NODX201::VUnitGroup&) {}
    virtual void PreProcessUnit(NODX201::VUnit&) {}
    virtual void PreProcessPhysicalDimension(NODX201::VPhysicalDimension&) {}
    virtual void PreProcessDtc(NODX201::VDtc&) {}
    virtual void PreProcessCompuMethod(NODX201::VCompuMethod&) {}
    virtual void PreProcessInternalConstr(NODX201::VInternalConstr&) {}
    virtual void PreProcessDiagCodedType(NODX201::VDiagCodedType&) {}
    virtual void PreProcessPhysicalType(NODX201::VPhysicalType&) {}
    virtual void PreProcessSdg(NODX201::VSdg&) {}
    virtual void PreProcessSdgCaption(NODX201::VSdgCaption&) {}
    virtual void PreProcessSd(NODX201::VSd&) {}
    virtual void PreProcessCompuInternalToPhys(NODX201::VCompuInternalToPhys&) {}
    virtual void PreProcessCompuPhysToInternal(NODX201::VCompuPhysToInternal&) {}
    virtual void PreProcessLimit(NODX201::VLimit&) {}
    virtual void PreProcessScaleConstr(NODX201::VScaleConstr&) {}
    virtual void PreProcessProgCode(NODX201::VProgCode&) {}
    virtual void PreProcessCompuDefaultValue(NODX201::VCompuDefaultValue&) {}
    virtual void PreProcessCompuScale(NODX201::VCompuScale&) {}
    virtual void PreProcessVt(NODX201::VVt&) {}
    virtual void PreProcessCompuInverseValue(NODX201::VCompuInverseValue&) {}
    virtual void PreProcessCompuConst(NODX201::VCompuConst&) {}
    virtual void PreProcessCompuRationalCoeffs(NODX201::VCompuRationalCoeffs&) {}
    virtual void PreProcessField(NODX201::VField&) {}
    virtual void PreProcessDetermineNumberOfItems(NODX201::VDetermineNumberOfItems&) {}
    virtual void PreProcessComplexDop(NODX201::VComplexDop&) {}
    virtual void PreProcessBasicStructure(NODX201::VBasicStructure&) {}
    virtual void PreProcessTable(NODX201::VTable&) {}
    virtual void PreProcessTableRow(NODX201::VTableRow&) {}
    virtual void PreProcessTeamMember(NODX201::VTeamMember&) {}
    virtual void PreProcessRole(std::wstring&) {}
    virtual void PreProcessAllValue(NODX201::VAllValue&) {}
    virtual void PreProcessDefaultCase(NODX201::VDefaultCase&) {}
    virtual void PreProcessSwitchKey(NODX201::VSwitchKey&) {}
    virtual void PreProcessCase(NODX201::VCase&) {}
    virtual void PreProcessOutputParam(NODX201::VOutputParam&) {}
    virtual void PreProcessCompanyData(NODX201::VCompanyData&) {}
    virtual void PreProcessCompanySpecificInfo(NODX201::VCompanySpecificInfo&) {}
    virtual void PreProcessRelatedDoc(NODX201::VRelatedDoc&) {}
    virtual void PreProcessXdoc(NODX201::VXdoc&) {}

    virtual void PostProcessEnvData(NODX201::VEnvData&) {}
    virtual void PostProcessStructure(NODX201::VStructure&) {}
    virtual void PostProcessEnvDataDesc(NODX201::VEnvDataDesc&) {}
    virtual void PostProcessStaticField(NODX201::VStaticField&) {}
    virtual void PostProcessDynamicLengthField(NODX201::VDynamicLengthField&) {}
    virtual void PostProcessDynamicEndmarkerField(NODX201::VDynamicEndmarkerField&) {}
    virtual void PostProcessEndOfPduField(NODX201::VEndOfPduField&) {}
    virtual void PostProcessMux(NODX201::VMux&) {}
    virtual void PostProcessDataObjectProp(NODX201::VDataObjectProp&) {}
    virtual void PostProcessDtcDop(NODX201::VDtcDop&) {}
    virtual void PostProcessAdminData(NODX201::VAdminData&) {}
    virtual void PostProcessCompanyDocInfo(NODX201::VCompanyDocInfo&) {}
    virtual void PostProcessDocRevision(NODX201::VDocRevision&) {}
    virtual void PostProcessCompanyRevisionInfo(NODX201::VCompanyRevisionInfo&) {}
    virtual void PostProcessModification(NODX201::VModification&) {}
    virtual void PostProcessUnitSpec(NODX201::VUnitSpec&) {}
    virtual void PostProcessCodedConst(NODX201::VCodedConst&) {}
    virtual void PostProcessDynamic(NODX201::VDynamic&) {}
    virtual void PostProcessLengthKey(NODX201::VLengthKey&) {}
    virtual void PostProcessMatchingRequestParam(NODX201::VMatchingRequestParam&) {}
    virtual void PostProcessPhysConst(NODX201::VPhysConst&) {}
    virtual void PostProcessReserved(NODX201::VReserved&) {}
    virtual void PostProcessSystem(NODX201::VSystem&) {}
    virtual void PostProcessTableKey(NODX201::VTableKey&) {}
    virtual void PostProcessTableStruct(NODX201::VTableStruct&) {}
    virtual void PostProcessValue(NODX201::VValue&) {}
    virtual void PostProcessTableEntry(NODX201::VTableEntry&) {}
    virtual void PostProcessUnitGroup(NODX201::VUnitGroup&) {}
    virtual void PostProcessUnit(NODX201::VUnit&) {}
    virtual void PostProcessPhysicalDimension(NODX201::VPhysicalDimension&) {}
    virtual void PostProcessDtc(NODX201::VDtc&) {}
    virtual void PostProcessCompuMethod(NODX201::VCompuMethod&) {}
    virtual void PostProcessInternalConstr(NODX201::VInternalConstr&) {}
    virtual void PostProcessDiagCodedType(NODX201::VDiagCodedType&) {}
    virtual void PostProcessPhysicalType(NODX201::VPhysicalType&) {}
    virtual void PostProcessSdg(NODX201::VSdg&) {}
    virtual void PostProcessSdgCaption(NODX201::VSdgCaption&) {}
    virtual void PostProcessSd(NODX201::VSd&) {}
    virtual void PostProcessCompuInternalToPhys(NODX201::VCompuInternalToPhys&) {}
    virtual void PostProcessCompuPhysToInternal(NODX201::VCompuPhysToInternal&) {}
    virtual void PostProcessLimit(NODX201::VLimit&) {}
    virtual void PostProcessScaleConstr(NODX201::VScaleConstr&) {}
    virtual void PostProcessProgCode(NODX201::VProgCode&) {}
    virtual void PostProcessCompuDefaultValue(NODX201::VCompuDefaultValue&) {}
    virtual void PostProcessCompuScale(NODX201::VCompuScale&) {}
    virtual void PostProcessVt(NODX201::VVt&) {}
    virtual void PostProcessCompuInverseValue(NODX201::VCompuInverseValue&) {}
    virtual void PostProcessCompuConst(NODX201::VCompuConst&) {}
    virtual void PostProcessCompuRationalCoeffs(NODX201::VCompuRationalCoeffs&) {}
    virtual void PostProcessField(NODX201::VField&) {}
    virtual void PostProcessDetermineNumberOfItems(NODX201::VDetermineNumberOfItems&) {}
    virtual void PostProcessComplexDop(NODX201::VComplexDop&) {}
    virtual void PostProcessBasicStructure(NODX201::VBasicStructure&) {}
    virtual void PostProcessTable(NODX201::VTable&) {}
    virtual void PostProcessTableRow(NODX201::VTableRow&) {}
    virtual void PostProcessTeamMember(NODX201::VTeamMember&) {}
    virtual void PostProcessRole(std::wstring&) {}
    virtual void PostProcessAllValue(NODX201::VAllValue&) {}
    virtual void PostProcessDefaultCase(NODX201::VDefaultCase&) {}
    virtual void PostProcessSwitchKey(NODX201::VSwitchKey&) {}
    virtual void PostProcessCase(NODX201::VCase&) {}
    virtual void PostProcessOutputParam(NODX201::VOutputParam&) {}
    virtual void PostProcessCompanyData(NODX201::VCompanyData&) {}
    virtual void PostProcessCompanySpecificInfo(NODX201::VCompanySpecificInfo&) {}
    virtual void PostProcessRelatedDoc(NODX201::VRelatedDoc&) {}
    virtual void PostProcessXdoc(NODX201::VXdoc&) {}

    virtual void DefaultVisit(NODX201::VOdxElement&) {} ///< hook: called for every element
    // clang-format on

public:
    /// The admin data, the DOPs in collection order, the dictionary's own ENV-DATAs (references among them are not
    /// followed), the unit spec, the tables.
    virtual void TraverseDiagDataDictionarySpec(NODX201::VDiagDataDictionarySpec& spec);
    virtual void TraverseParam(NODX201::VParam& param);                      ///< visits it, by its kind
    virtual void TraverseParamCollection(NODX201::VParamCollection& params); ///< each, in document order

protected:
    void VisitEnvData(NODX201::VEnvData& x) override;
    void VisitStructure(NODX201::VStructure& x) override;
    void VisitEnvDataDesc(NODX201::VEnvDataDesc& x) override;
    void VisitStaticField(NODX201::VStaticField& x) override;
    void VisitDynamicLengthField(NODX201::VDynamicLengthField& x) override;
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& x) override;
    void VisitEndOfPduField(NODX201::VEndOfPduField& x) override;
    void VisitMux(NODX201::VMux& x) override;
    void VisitDataObjectProp(NODX201::VDataObjectProp& x) override;
    void VisitDtcDop(NODX201::VDtcDop& x) override;

    NODX201::VDiagLayer& m_layer; ///< what references resolve against
    /// The DIAG-COMM in whose context an ENV-DATA-DESC reads its PARAM-SNREF; null in a dictionary walk, which
    /// therefore never follows one.
    NODX201::VDiagComm* m_currentDiagComm = nullptr;

private:
    // clang-format off
    /// The casts behind type tests; a search each time would cost as much as half a visit.
    std::tuple<
        NPavonaUtil::VCheckedCast<NODX201::VAllValue,             NODX201::IAllValueDtcValuesChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VBasicStructureLink,   NODX201::IBasicStructureEnvDataDescChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VEnvDataDescLink,      NODX201::IBasicStructureEnvDataDescChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VCompuConst,           NODX201::ICompuConstCompuRationalCoeffsChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VCompuRationalCoeffs,  NODX201::ICompuConstCompuRationalCoeffsChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VCompuScaleCollection, NODX201::ICompuScalesProgCodeChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VProgCode,             NODX201::ICompuScalesProgCodeChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VDtc,                  NODX201::IDtcProxy>,
        NPavonaUtil::VCheckedCast<NODX201::VDtcLink,              NODX201::IDtcProxy>,
        NPavonaUtil::VCheckedCast<NODX201::VEnvData,              NODX201::IEnvDataProxy>,
        NPavonaUtil::VCheckedCast<NODX201::VEnvDataLink,          NODX201::IEnvDataProxy>,
        NPavonaUtil::VCheckedCast<NODX201::VOutputParam,          NODX201::IOutParamIf>,
        NPavonaUtil::VCheckedCast<NODX201::VValue,                NODX201::IOutParamIf>,
        NPavonaUtil::VCheckedCast<NODX201::VTableRow,             NODX201::IRowWrapper>,
        NPavonaUtil::VCheckedCast<NODX201::VTableRowLink,         NODX201::IRowWrapper>,
        NPavonaUtil::VCheckedCast<NODX201::VSd,                   NODX201::ISdgSdChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VSdg,                  NODX201::ISdgSdChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VTableLink,            NODX201::ITableRefTableRowRefChoice>,
        NPavonaUtil::VCheckedCast<NODX201::VTableRowLink,         NODX201::ITableRefTableRowRefChoice>> m_casts;
    // clang-format on
};

} // namespace NDIAGKIT
