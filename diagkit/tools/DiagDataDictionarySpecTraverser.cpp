// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagDataDictionarySpecTraverser.h>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
#include <diagkit/tools/Alternative.h>

namespace NDIAGKIT {

using Traverser = VDiagDataDictionarySpecTraverser;

Traverser::VDiagDataDictionarySpecTraverser(NODX201::VDiagLayer& layer) : m_layer(layer) {}

Traverser::~VDiagDataDictionarySpecTraverser() = default;

// clang-format off

// Visits: before, any, children, after. An empty column shows a kind without children.

void Traverser::VisitCodedConst(NODX201::VCodedConst& x)                         { PreProcessCodedConst(x);             DefaultVisit(x); DescendCodedConst(x);             PostProcessCodedConst(x);             }
void Traverser::VisitDynamic(NODX201::VDynamic& x)                               { PreProcessDynamic(x);                DefaultVisit(x);                                   PostProcessDynamic(x);                }
void Traverser::VisitLengthKey(NODX201::VLengthKey& x)                           { PreProcessLengthKey(x);              DefaultVisit(x); DescendLengthKey(x);              PostProcessLengthKey(x);              }
void Traverser::VisitMatchingRequestParam(NODX201::VMatchingRequestParam& x)     { PreProcessMatchingRequestParam(x);   DefaultVisit(x);                                   PostProcessMatchingRequestParam(x);   }
void Traverser::VisitPhysConst(NODX201::VPhysConst& x)                           { PreProcessPhysConst(x);              DefaultVisit(x); DescendPhysConst(x);              PostProcessPhysConst(x);              }
void Traverser::VisitReserved(NODX201::VReserved& x)                             { PreProcessReserved(x);               DefaultVisit(x); DescendReserved(x);               PostProcessReserved(x);               }
void Traverser::VisitSystem(NODX201::VSystem& x)                                 { PreProcessSystem(x);                 DefaultVisit(x); DescendSystem(x);                 PostProcessSystem(x);                 }
void Traverser::VisitTableKey(NODX201::VTableKey& x)                             { PreProcessTableKey(x);               DefaultVisit(x); DescendTableKey(x);               PostProcessTableKey(x);               }
void Traverser::VisitTableStruct(NODX201::VTableStruct& x)                       { PreProcessTableStruct(x);            DefaultVisit(x); DescendTableStruct(x);            PostProcessTableStruct(x);            }
void Traverser::VisitValue(NODX201::VValue& x)                                   { PreProcessValue(x);                  DefaultVisit(x); DescendValue(x);                  PostProcessValue(x);                  }
void Traverser::VisitTableEntry(NODX201::VTableEntry& x)                         { PreProcessTableEntry(x);             DefaultVisit(x); DescendTableEntry(x);             PostProcessTableEntry(x);             }
void Traverser::VisitEnvData(NODX201::VEnvData& x)                               { PreProcessEnvData(x);                DefaultVisit(x); DescendEnvData(x);                PostProcessEnvData(x);                }
void Traverser::VisitStructure(NODX201::VStructure& x)                           { PreProcessStructure(x);              DefaultVisit(x); DescendStructure(x);              PostProcessStructure(x);              }
void Traverser::VisitEnvDataDesc(NODX201::VEnvDataDesc& x)                       { PreProcessEnvDataDesc(x);            DefaultVisit(x); DescendEnvDataDesc(x);            PostProcessEnvDataDesc(x);            }
void Traverser::VisitStaticField(NODX201::VStaticField& x)                       { PreProcessStaticField(x);            DefaultVisit(x); DescendStaticField(x);            PostProcessStaticField(x);            }
void Traverser::VisitDynamicLengthField(NODX201::VDynamicLengthField& x)         { PreProcessDynamicLengthField(x);     DefaultVisit(x); DescendDynamicLengthField(x);     PostProcessDynamicLengthField(x);     }
void Traverser::VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& x)   { PreProcessDynamicEndmarkerField(x);  DefaultVisit(x); DescendDynamicEndmarkerField(x);  PostProcessDynamicEndmarkerField(x);  }
void Traverser::VisitEndOfPduField(NODX201::VEndOfPduField& x)                   { PreProcessEndOfPduField(x);          DefaultVisit(x); DescendEndOfPduField(x);          PostProcessEndOfPduField(x);          }
void Traverser::VisitMux(NODX201::VMux& x)                                       { PreProcessMux(x);                    DefaultVisit(x); DescendMux(x);                    PostProcessMux(x);                    }
void Traverser::VisitDataObjectProp(NODX201::VDataObjectProp& x)                 { PreProcessDataObjectProp(x);         DefaultVisit(x); DescendDataObjectProp(x);         PostProcessDataObjectProp(x);         }
void Traverser::VisitDtcDop(NODX201::VDtcDop& x)                                 { PreProcessDtcDop(x);                 DefaultVisit(x); DescendDtcDop(x);                 PostProcessDtcDop(x);                 }
void Traverser::VisitAdminData(NODX201::VAdminData& x)                           { PreProcessAdminData(x);              DefaultVisit(x); DescendAdminData(x);              PostProcessAdminData(x);              }
void Traverser::VisitCompanyDocInfo(NODX201::VCompanyDocInfo& x)                 { PreProcessCompanyDocInfo(x);         DefaultVisit(x); DescendCompanyDocInfo(x);         PostProcessCompanyDocInfo(x);         }
void Traverser::VisitDocRevision(NODX201::VDocRevision& x)                       { PreProcessDocRevision(x);            DefaultVisit(x); DescendDocRevision(x);            PostProcessDocRevision(x);            }
void Traverser::VisitCompanyRevisionInfo(NODX201::VCompanyRevisionInfo& x)       { PreProcessCompanyRevisionInfo(x);    DefaultVisit(x); DescendCompanyRevisionInfo(x);    PostProcessCompanyRevisionInfo(x);    }
void Traverser::VisitModification(NODX201::VModification& x)                     { PreProcessModification(x);           DefaultVisit(x);                                   PostProcessModification(x);           }
void Traverser::VisitUnitSpec(NODX201::VUnitSpec& x)                             { PreProcessUnitSpec(x);               DefaultVisit(x); DescendUnitSpec(x);               PostProcessUnitSpec(x);               }
void Traverser::VisitSdgCaption(NODX201::VSdgCaption& x)                         { PreProcessSdgCaption(x);             DefaultVisit(x);                                   PostProcessSdgCaption(x);             }
void Traverser::VisitSd(NODX201::VSd& x)                                         { PreProcessSd(x);                     DefaultVisit(x);                                   PostProcessSd(x);                     }
void Traverser::VisitCompuDefaultValue(NODX201::VCompuDefaultValue& x)           { PreProcessCompuDefaultValue(x);      DefaultVisit(x); DescendCompuDefaultValue(x);      PostProcessCompuDefaultValue(x);      }
void Traverser::VisitCompuScale(NODX201::VCompuScale& x)                         { PreProcessCompuScale(x);             DefaultVisit(x); DescendCompuScale(x);             PostProcessCompuScale(x);             }
void Traverser::VisitUnitGroup(NODX201::VUnitGroup& x)                           { PreProcessUnitGroup(x);              DefaultVisit(x); DescendUnitGroup(x);              PostProcessUnitGroup(x);              }
void Traverser::VisitUnit(NODX201::VUnit& x)                                     { PreProcessUnit(x);                   DefaultVisit(x); DescendUnit(x);                   PostProcessUnit(x);                   }
void Traverser::VisitPhysicalDimension(NODX201::VPhysicalDimension& x)           { PreProcessPhysicalDimension(x);      DefaultVisit(x);                                   PostProcessPhysicalDimension(x);      }
void Traverser::VisitDtc(NODX201::VDtc& x)                                       { PreProcessDtc(x);                    DefaultVisit(x); DescendDtc(x);                    PostProcessDtc(x);                    }
void Traverser::VisitCompuMethod(NODX201::VCompuMethod& x)                       { PreProcessCompuMethod(x);            DefaultVisit(x); DescendCompuMethod(x);            PostProcessCompuMethod(x);            }
void Traverser::VisitInternalConstr(NODX201::VInternalConstr& x)                 { PreProcessInternalConstr(x);         DefaultVisit(x); DescendInternalConstr(x);         PostProcessInternalConstr(x);         }
void Traverser::VisitDiagCodedType(NODX201::VDiagCodedType& x)                   { PreProcessDiagCodedType(x);          DefaultVisit(x);                                   PostProcessDiagCodedType(x);          }
void Traverser::VisitPhysicalType(NODX201::VPhysicalType& x)                     { PreProcessPhysicalType(x);           DefaultVisit(x);                                   PostProcessPhysicalType(x);           }
void Traverser::VisitSdg(NODX201::VSdg& x)                                       { PreProcessSdg(x);                    DefaultVisit(x); DescendSdg(x);                    PostProcessSdg(x);                    }
void Traverser::VisitCompuInternalToPhys(NODX201::VCompuInternalToPhys& x)       { PreProcessCompuInternalToPhys(x);    DefaultVisit(x); DescendCompuInternalToPhys(x);    PostProcessCompuInternalToPhys(x);    }
void Traverser::VisitCompuPhysToInternal(NODX201::VCompuPhysToInternal& x)       { PreProcessCompuPhysToInternal(x);    DefaultVisit(x); DescendCompuPhysToInternal(x);    PostProcessCompuPhysToInternal(x);    }
void Traverser::VisitLimit(NODX201::VLimit& x)                                   { PreProcessLimit(x);                  DefaultVisit(x);                                   PostProcessLimit(x);                  }
void Traverser::VisitScaleConstr(NODX201::VScaleConstr& x)                       { PreProcessScaleConstr(x);            DefaultVisit(x); DescendScaleConstr(x);            PostProcessScaleConstr(x);            }
void Traverser::VisitProgCode(NODX201::VProgCode& x)                             { PreProcessProgCode(x);               DefaultVisit(x);                                   PostProcessProgCode(x);               }
void Traverser::VisitVt(NODX201::VVt& x)                                         { PreProcessVt(x);                     DefaultVisit(x);                                   PostProcessVt(x);                     }
void Traverser::VisitCompuInverseValue(NODX201::VCompuInverseValue& x)           { PreProcessCompuInverseValue(x);      DefaultVisit(x);                                   PostProcessCompuInverseValue(x);      }
void Traverser::VisitCompuConst(NODX201::VCompuConst& x)                         { PreProcessCompuConst(x);             DefaultVisit(x); DescendCompuConst(x);             PostProcessCompuConst(x);             }
void Traverser::VisitCompuRationalCoeffs(NODX201::VCompuRationalCoeffs& x)       { PreProcessCompuRationalCoeffs(x);    DefaultVisit(x);                                   PostProcessCompuRationalCoeffs(x);    }
void Traverser::VisitField(NODX201::VField& x)                                   { PreProcessField(x);                  DefaultVisit(x); DescendField(x);                  PostProcessField(x);                  }
void Traverser::VisitDetermineNumberOfItems(NODX201::VDetermineNumberOfItems& x) { PreProcessDetermineNumberOfItems(x); DefaultVisit(x); DescendDetermineNumberOfItems(x); PostProcessDetermineNumberOfItems(x); }
void Traverser::VisitComplexDop(NODX201::VComplexDop& x)                         { PreProcessComplexDop(x);             DefaultVisit(x); DescendComplexDop(x);             PostProcessComplexDop(x);             }
void Traverser::VisitBasicStructure(NODX201::VBasicStructure& x)                 { PreProcessBasicStructure(x);         DefaultVisit(x); DescendBasicStructure(x);         PostProcessBasicStructure(x);         }
void Traverser::VisitTable(NODX201::VTable& x)                                   { PreProcessTable(x);                  DefaultVisit(x); DescendTable(x);                  PostProcessTable(x);                  }
void Traverser::VisitTableRow(NODX201::VTableRow& x)                             { PreProcessTableRow(x);               DefaultVisit(x); DescendTableRow(x);               PostProcessTableRow(x);               }
void Traverser::VisitTeamMember(NODX201::VTeamMember& x)                         { PreProcessTeamMember(x);             DefaultVisit(x); DescendTeamMember(x);             PostProcessTeamMember(x);             }
void Traverser::VisitRole(std::wstring& text)                                    { PreProcessRole(text);                                                                   PostProcessRole(text);                }
void Traverser::VisitAllValue(NODX201::VAllValue& x)                             { PreProcessAllValue(x);               DefaultVisit(x);                                   PostProcessAllValue(x);               }
void Traverser::VisitDefaultCase(NODX201::VDefaultCase& x)                       { PreProcessDefaultCase(x);            DefaultVisit(x); DescendDefaultCase(x);            PostProcessDefaultCase(x);            }
void Traverser::VisitSwitchKey(NODX201::VSwitchKey& x)                           { PreProcessSwitchKey(x);              DefaultVisit(x); DescendSwitchKey(x);              PostProcessSwitchKey(x);              }
void Traverser::VisitCase(NODX201::VCase& x)                                     { PreProcessCase(x);                   DefaultVisit(x); DescendCase(x);                   PostProcessCase(x);                   }
void Traverser::VisitOutputParam(NODX201::VOutputParam& x)                       { PreProcessOutputParam(x);            DefaultVisit(x); DescendOutputParam(x);            PostProcessOutputParam(x);            }
void Traverser::VisitCompanyData(NODX201::VCompanyData& x)                       { PreProcessCompanyData(x);            DefaultVisit(x); DescendCompanyData(x);            PostProcessCompanyData(x);            }
void Traverser::VisitCompanySpecificInfo(NODX201::VCompanySpecificInfo& x)       { PreProcessCompanySpecificInfo(x);    DefaultVisit(x); DescendCompanySpecificInfo(x);    PostProcessCompanySpecificInfo(x);    }
void Traverser::VisitRelatedDoc(NODX201::VRelatedDoc& x)                         { PreProcessRelatedDoc(x);             DefaultVisit(x); DescendRelatedDoc(x);             PostProcessRelatedDoc(x);             }
void Traverser::VisitXdoc(NODX201::VXdoc& x)                                     { PreProcessXdoc(x);                   DefaultVisit(x);                                   PostProcessXdoc(x);                   }

// Walks

void Traverser::TraverseDiagDataDictionarySpec(NODX201::VDiagDataDictionarySpec& spec) {
    if (spec.HasAdminData())                                             { VisitAdminData(spec.GetAdminData()); }
    for (NODX201::VDopBase& dop : spec.DopBaseCollection())              { DispatchDopBase(dop); }
    for (NODX201::IEnvDataProxy& proxy : spec.EnvDataProxyCollection()) {
        if (auto* const envData = As<NODX201::VEnvData>(m_casts, proxy.IsEnvData(), proxy)) { VisitEnvData(*envData); }
    }
    if (spec.HasUnitSpec())                                              { VisitUnitSpec(spec.GetUnitSpec()); }
    for (NODX201::VTable& table : spec.TableCollection())                { VisitTable(table); }
}

void Traverser::TraverseParam(NODX201::VParam& param) { DispatchParam(param); }

void Traverser::TraverseParamCollection(NODX201::VParamCollection& params) {
    for (NODX201::VParam& param : params) { TraverseParam(param); }
}

// Children, in the order in which they are visited.

void Traverser::DescendEnvData(NODX201::VEnvData& x) {
    DescendBasicStructure(x);
    if (x.HasAllValueDtcValuesChoice()) {
        NODX201::IAllValueDtcValuesChoice& choice = x.GetAllValueDtcValuesChoice();
        if (auto* const all = As<NODX201::VAllValue>(m_casts, choice.IsAllValue(), choice)) { VisitAllValue(*all); }
    }
}

void Traverser::DescendStructure(NODX201::VStructure& x) {
    DescendBasicStructure(x);
}

void Traverser::DescendEnvDataDesc(NODX201::VEnvDataDesc& x) {
    DescendComplexDop(x);
    if (x.HasParamSnref() && m_currentDiagComm != nullptr &&
        x.GetParamSnref().HasOutParamIf(*m_currentDiagComm, m_layer, NODX201::VSearchRange::Responses)) {
        NODX201::IOutParamIf& param = x.GetParamSnref().GetOutParamIf();
        if (auto* const output = As<NODX201::VOutputParam>(m_casts, param.IsOutputParam(), param)) { VisitOutputParam(*output); }
        if (auto* const value = As<NODX201::VValue>(m_casts, param.IsValue(), param))              { VisitValue(*value); }
    }
    for (NODX201::IEnvDataProxy& proxy : x.EnvDataProxyCollection()) {
        if (auto* const envData = As<NODX201::VEnvData>(m_casts, proxy.IsEnvData(), proxy)) { VisitEnvData(*envData); }
        auto* const link = As<NODX201::VEnvDataLink>(m_casts, proxy.IsEnvDataLink(), proxy);
        if (link != nullptr && link->HasEnvData())                                 { VisitEnvData(link->GetEnvData()); }
    }
}

void Traverser::DescendStaticField(NODX201::VStaticField& x) {
    DescendField(x);
}

void Traverser::DescendDynamicLengthField(NODX201::VDynamicLengthField& x) {
    DescendField(x);
    if (x.HasDetermineNumberOfItems()) { VisitDetermineNumberOfItems(x.GetDetermineNumberOfItems()); }
}

void Traverser::DescendDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& x) {
    DescendField(x);
    if (x.HasDataObjectPropRef() && x.GetDataObjectPropRef().HasDopBase()) { DispatchDopBase(x.GetDataObjectPropRef().GetDopBase()); }
}

void Traverser::DescendEndOfPduField(NODX201::VEndOfPduField& x) {
    DescendField(x);
}

void Traverser::DescendMux(NODX201::VMux& x) {
    DescendComplexDop(x);
    if (x.HasSwitchKey())                              { VisitSwitchKey(x.GetSwitchKey()); }
    if (x.HasDefaultCase())                            { VisitDefaultCase(x.GetDefaultCase()); }
    for (NODX201::VCase& muxCase : x.CaseCollection()) { VisitCase(muxCase); }
}

void Traverser::DescendDataObjectProp(NODX201::VDataObjectProp& x) {
    if (x.HasAdminData())                           { VisitAdminData(x.GetAdminData()); }
    if (x.HasCompuMethod())                         { VisitCompuMethod(x.GetCompuMethod()); }
    if (x.HasDiagCodedType())                       { VisitDiagCodedType(x.GetDiagCodedType()); }
    if (x.HasPhysicalType())                        { VisitPhysicalType(x.GetPhysicalType()); }
    if (x.HasInternalConstr())                      { VisitInternalConstr(x.GetInternalConstr()); }
    if (x.HasUnitRef() && x.GetUnitRef().HasUnit()) { VisitUnit(x.GetUnitRef().GetUnit()); }
}

void Traverser::DescendDtcDop(NODX201::VDtcDop& x) {
    if (x.HasAdminData())     { VisitAdminData(x.GetAdminData()); }
    if (x.HasDiagCodedType()) { VisitDiagCodedType(x.GetDiagCodedType()); }
    if (x.HasPhysicalType())  { VisitPhysicalType(x.GetPhysicalType()); }
    if (x.HasCompuMethod())   { VisitCompuMethod(x.GetCompuMethod()); }
    for (NODX201::IDtcProxy& proxy : x.DtcProxyCollection()) {
        if (auto* const dtc = As<NODX201::VDtc>(m_casts, proxy.IsDtc(), proxy)) { VisitDtc(*dtc); }
        auto* const link = As<NODX201::VDtcLink>(m_casts, proxy.IsDtcLink(), proxy);
        if (link != nullptr && link->HasDtc())                         { VisitDtc(link->GetDtc()); }
    }
}

void Traverser::DescendAdminData(NODX201::VAdminData& x) {
    for (NODX201::VCompanyDocInfo& info : x.CompanyDocInfoCollection()) { VisitCompanyDocInfo(info); }
    for (NODX201::VDocRevision& revision : x.DocRevisionCollection())   { VisitDocRevision(revision); }
}

void Traverser::DescendCompanyDocInfo(NODX201::VCompanyDocInfo& x) {
    if (x.HasCompanyDataRef() && x.GetCompanyDataRef().HasCompanyData()) { VisitCompanyData(x.GetCompanyDataRef().GetCompanyData()); }
    if (x.HasTeamMemberRef() && x.GetTeamMemberRef().HasTeamMember())    { VisitTeamMember(x.GetTeamMemberRef().GetTeamMember()); }
    for (NODX201::VSdg& sdg : x.SdgCollection())                         { VisitSdg(sdg); }
}

void Traverser::DescendDocRevision(NODX201::VDocRevision& x) {
    if (x.HasTeamMemberRef() && x.GetTeamMemberRef().HasTeamMember())             { VisitTeamMember(x.GetTeamMemberRef().GetTeamMember()); }
    for (NODX201::VCompanyRevisionInfo& info : x.CompanyRevisionInfoCollection()) { VisitCompanyRevisionInfo(info); }
    for (NODX201::VModification& modification : x.ModificationCollection())       { VisitModification(modification); }
}

void Traverser::DescendCompanyRevisionInfo(NODX201::VCompanyRevisionInfo& x) {
    if (x.HasCompanyDataRef() && x.GetCompanyDataRef().HasCompanyData()) { VisitCompanyData(x.GetCompanyDataRef().GetCompanyData()); }
}

void Traverser::DescendUnitSpec(NODX201::VUnitSpec& x) {
    if (x.HasAdminData())                                                          { VisitAdminData(x.GetAdminData()); }
    for (NODX201::VUnitGroup& group : x.UnitGroupCollection())                     { VisitUnitGroup(group); }
    for (NODX201::VUnit& unit : x.UnitCollection())                                { VisitUnit(unit); }
    for (NODX201::VPhysicalDimension& dimension : x.PhysicalDimensionCollection()) { VisitPhysicalDimension(dimension); }
}

void Traverser::DescendCodedConst(NODX201::VCodedConst& x) {
    if (x.HasDiagCodedType()) { VisitDiagCodedType(x.GetDiagCodedType()); }
}

void Traverser::DescendLengthKey(NODX201::VLengthKey& x) {
    if (x.HasDataObjectPropLink() && x.GetDataObjectPropLink().HasDataObjectProp(m_layer)) { VisitDataObjectProp(x.GetDataObjectPropLink().GetDataObjectProp()); }
}

void Traverser::DescendPhysConst(NODX201::VPhysConst& x) {
    if (x.HasDataObjectPropLink() && x.GetDataObjectPropLink().HasDataObjectProp(m_layer)) { VisitDataObjectProp(x.GetDataObjectPropLink().GetDataObjectProp()); }
}

void Traverser::DescendReserved(NODX201::VReserved& x) {
    if (x.HasDiagCodedType()) { VisitDiagCodedType(x.GetDiagCodedType()); }
}

void Traverser::DescendSystem(NODX201::VSystem& x) {
    if (x.HasDataObjectPropLink() && x.GetDataObjectPropLink().HasDataObjectProp(m_layer)) { VisitDataObjectProp(x.GetDataObjectPropLink().GetDataObjectProp()); }
}

void Traverser::DescendTableKey(NODX201::VTableKey& x) {
    if (x.HasTableRefTableRowRefChoice()) {
        NODX201::ITableRefTableRowRefChoice& choice = x.GetTableRefTableRowRefChoice();
        auto* const table = As<NODX201::VTableLink>(m_casts, choice.IsTableLink(), choice);
        auto* const row = As<NODX201::VTableRowLink>(m_casts, choice.IsTableRowLink(), choice);
        if (table != nullptr && table->HasTable()) { VisitTable(table->GetTable()); }
        if (row != nullptr && row->HasTableRow())  { VisitTableRow(row->GetTableRow()); }
    }
}

void Traverser::DescendTableStruct(NODX201::VTableStruct& x) {
    if (x.HasTableKeyRef() && x.GetTableKeyRef().HasTableKey()) { VisitTableKey(x.GetTableKeyRef().GetTableKey()); }
}

void Traverser::DescendValue(NODX201::VValue& x) {
    if (x.HasDopBaseLink() && x.GetDopBaseLink().HasDopBase(m_layer)) { DispatchDopBase(x.GetDopBaseLink().GetDopBase()); }
}

void Traverser::DescendTableEntry(NODX201::VTableEntry& x) {
    if (x.HasTableRowRef() && x.GetTableRowRef().HasTableRow()) { VisitTableRow(x.GetTableRowRef().GetTableRow()); }
}

void Traverser::DescendUnitGroup(NODX201::VUnitGroup& x) {
    for (NODX201::VUnitLink& link : x.UnitLinkCollection()) {
        if (link.HasUnit()) { VisitUnit(link.GetUnit()); }
    }
}

void Traverser::DescendUnit(NODX201::VUnit& x) {
    if (x.HasPhysicalDimensionRef() && x.GetPhysicalDimensionRef().HasPhysicalDimension()) { VisitPhysicalDimension(x.GetPhysicalDimensionRef().GetPhysicalDimension()); }
}

void Traverser::DescendDtc(NODX201::VDtc& x) {
    for (NODX201::VSdg& sdg : x.SdgCollection()) { VisitSdg(sdg); }
}

void Traverser::DescendCompuMethod(NODX201::VCompuMethod& x) {
    if (x.HasCompuInternalToPhys()) { VisitCompuInternalToPhys(x.GetCompuInternalToPhys()); }
    if (x.HasCompuPhysToInternal()) { VisitCompuPhysToInternal(x.GetCompuPhysToInternal()); }
}

void Traverser::DescendInternalConstr(NODX201::VInternalConstr& x) {
    if (x.HasLowerLimit())                                          { VisitLimit(x.GetLowerLimit()); }
    if (x.HasUpperLimit())                                          { VisitLimit(x.GetUpperLimit()); }
    for (NODX201::VScaleConstr& constr : x.ScaleConstrCollection()) { VisitScaleConstr(constr); }
}

void Traverser::DescendSdg(NODX201::VSdg& x) {
    if (x.HasSdgCaption()) { VisitSdgCaption(x.GetSdgCaption()); }
    for (NODX201::ISdgSdChoice& choice : x.SdgSdChoiceCollection()) {
        if (auto* const sd = As<NODX201::VSd>(m_casts, choice.IsSd(), choice))    { VisitSd(*sd); }
        if (auto* const sdg = As<NODX201::VSdg>(m_casts, choice.IsSdg(), choice)) { VisitSdg(*sdg); }
    }
}

void Traverser::DescendCompuInternalToPhys(NODX201::VCompuInternalToPhys& x) {
    if (x.HasCompuScalesProgCodeChoice()) {
        NODX201::ICompuScalesProgCodeChoice& choice = x.GetCompuScalesProgCodeChoice();
        if (auto* const scales = As<NODX201::VCompuScaleCollection>(m_casts, choice.IsCompuScales(), choice)) {
            for (NODX201::VCompuScale& scale : *scales)                                { VisitCompuScale(scale); }
        }
        if (auto* const progCode = As<NODX201::VProgCode>(m_casts, choice.IsProgCode(), choice)) { VisitProgCode(*progCode); }
    }
    if (x.HasCompuDefaultValue()) { VisitCompuDefaultValue(x.GetCompuDefaultValue()); }
}

void Traverser::DescendCompuPhysToInternal(NODX201::VCompuPhysToInternal& x) {
    if (x.HasProgCode()) { VisitProgCode(x.GetProgCode()); }
}

void Traverser::DescendScaleConstr(NODX201::VScaleConstr& x) {
    if (x.HasLowerLimit()) { VisitLimit(x.GetLowerLimit()); }
    if (x.HasUpperLimit()) { VisitLimit(x.GetUpperLimit()); }
}

void Traverser::DescendCompuDefaultValue(NODX201::VCompuDefaultValue& x) {
    if (x.HasVt()) { VisitVt(x.GetVt()); }
}

void Traverser::DescendCompuScale(NODX201::VCompuScale& x) {
    if (x.HasLowerLimit())        { VisitLimit(x.GetLowerLimit()); }
    if (x.HasUpperLimit())        { VisitLimit(x.GetUpperLimit()); }
    if (x.HasCompuInverseValue()) { VisitCompuInverseValue(x.GetCompuInverseValue()); }
    if (x.HasCompuConstCompuRationalCoeffsChoice()) {
        NODX201::ICompuConstCompuRationalCoeffsChoice& choice = x.GetCompuConstCompuRationalCoeffsChoice();
        auto* const constant = As<NODX201::VCompuConst>(m_casts, choice.IsCompuConst(), choice);
        auto* const coeffs = As<NODX201::VCompuRationalCoeffs>(m_casts, choice.IsCompuRationalCoeffs(), choice);
        if (constant != nullptr) { VisitCompuConst(*constant); }
        if (coeffs != nullptr)   { VisitCompuRationalCoeffs(*coeffs); }
    }
}

void Traverser::DescendCompuConst(NODX201::VCompuConst& x) {
    if (x.HasVt()) { VisitVt(x.GetVt()); }
}

void Traverser::DescendField(NODX201::VField& x) {
    DescendComplexDop(x);
    if (x.HasBasicStructureEnvDataDescChoice()) {
        NODX201::IBasicStructureEnvDataDescChoice& choice = x.GetBasicStructureEnvDataDescChoice();
        auto* const structure = As<NODX201::VBasicStructureLink>(m_casts, choice.IsBasicStructureLink(), choice);
        auto* const desc = As<NODX201::VEnvDataDescLink>(m_casts, choice.IsEnvDataDescLink(), choice);
        if (structure != nullptr && structure->HasBasicStructure()) { VisitBasicStructure(structure->GetBasicStructure()); }
        if (desc != nullptr && desc->HasEnvDataDesc())              { VisitEnvDataDesc(desc->GetEnvDataDesc()); }
    }
}

void Traverser::DescendDetermineNumberOfItems(NODX201::VDetermineNumberOfItems& x) {
    if (x.HasDataObjectPropRef() && x.GetDataObjectPropRef().HasDataObjectProp(m_layer)) { VisitDataObjectProp(x.GetDataObjectPropRef().GetDataObjectProp()); }
}

void Traverser::DescendComplexDop(NODX201::VComplexDop& x) {
    if (x.HasAdminData()) { VisitAdminData(x.GetAdminData()); }
}

void Traverser::DescendBasicStructure(NODX201::VBasicStructure& x) {
    DescendComplexDop(x);
    TraverseParamCollection(x.ParamCollection());
}

void Traverser::DescendTable(NODX201::VTable& x) {
    if (x.HasAdminData())                                                { VisitAdminData(x.GetAdminData()); }
    if (x.HasKeyDopRef() && x.GetKeyDopRef().HasDataObjectProp(m_layer)) { DispatchDopBase(x.GetKeyDopRef().GetDataObjectProp()); }
    for (NODX201::IRowWrapper& wrapper : x.RowWrapperCollection()) {
        if (auto* const row = As<NODX201::VTableRow>(m_casts, wrapper.IsTableRow(), wrapper)) { VisitTableRow(*row); }
        auto* const link = As<NODX201::VTableRowLink>(m_casts, wrapper.IsTableRowLink(), wrapper);
        if (link != nullptr && link->HasTableRow())                                  { VisitTableRow(link->GetTableRow()); }
    }
}

void Traverser::DescendTableRow(NODX201::VTableRow& x) {
    if (x.HasStructureRef() && x.GetStructureRef().HasStructure()) { VisitStructure(x.GetStructureRef().GetStructure()); }
}

void Traverser::DescendTeamMember(NODX201::VTeamMember& x) {
    for (std::wstring const& role : x.RoleCollection()) {
        std::wstring copy = role;
        VisitRole(copy);
    }
}

void Traverser::DescendDefaultCase(NODX201::VDefaultCase& x) {
    if (x.HasStructureRef() && x.GetStructureRef().HasStructure()) { VisitStructure(x.GetStructureRef().GetStructure()); }
}

void Traverser::DescendSwitchKey(NODX201::VSwitchKey& x) {
    if (x.HasDataObjectPropRef() && x.GetDataObjectPropRef().HasDataObjectProp(m_layer)) { VisitDataObjectProp(x.GetDataObjectPropRef().GetDataObjectProp()); }
}

void Traverser::DescendCase(NODX201::VCase& x) {
    if (x.HasStructureRef() && x.GetStructureRef().HasStructure()) { VisitStructure(x.GetStructureRef().GetStructure()); }
    if (x.HasLowerLimit())                                         { VisitLimit(x.GetLowerLimit()); }
    if (x.HasUpperLimit())                                         { VisitLimit(x.GetUpperLimit()); }
}

void Traverser::DescendOutputParam(NODX201::VOutputParam& x) {
    if (x.HasDopBaseRef() && x.GetDopBaseRef().HasDopBase(m_layer)) { DispatchDopBase(x.GetDopBaseRef().GetDopBase()); }
}

void Traverser::DescendCompanyData(NODX201::VCompanyData& x) {
    for (std::wstring const& role : x.RoleCollection()) {
        std::wstring copy = role;
        VisitRole(copy);
    }
    for (NODX201::VTeamMember& member : x.TeamMemberCollection()) { VisitTeamMember(member); }
    if (x.HasCompanySpecificInfo())                               { VisitCompanySpecificInfo(x.GetCompanySpecificInfo()); }
}

void Traverser::DescendCompanySpecificInfo(NODX201::VCompanySpecificInfo& x) {
    for (NODX201::VRelatedDoc& document : x.RelatedDocCollection()) { VisitRelatedDoc(document); }
    for (NODX201::VSdg& sdg : x.SdgCollection())                    { VisitSdg(sdg); }
}

void Traverser::DescendRelatedDoc(NODX201::VRelatedDoc& x) {
    if (x.HasXdoc()) { VisitXdoc(x.GetXdoc()); }
}

// clang-format on

} // namespace NDIAGKIT
