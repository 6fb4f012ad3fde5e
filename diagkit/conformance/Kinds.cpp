// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Kinds.h>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
#include <diagkit/model/Visitors.h>

namespace NConformance {
namespace {

using namespace NODX201;
using Tag = VOdxTagEnum;

template <class Class>
bool Is(VOdxElement& element) {
    return dynamic_cast<Class*>(&element) != nullptr;
}

#define KIND(name, ...)                                                                                                \
    {                                                                                                                  \
        L## #name, &Is<name>, { __VA_ARGS__ }                                                                          \
    }

/// Kinds that others are derived from: they count only where none of those fits.
std::vector<VKind> const& GeneralKinds() {
    static std::vector<VKind> const kinds = {
        KIND(VParentRef, Tag::ParentRef),
        KIND(VDiagCodedType, Tag::DiagCodedType),
    };
    return kinds;
}

std::vector<VKind> const& Kinds() {
    // clang-format off
    static std::vector<VKind> const kinds = {
        KIND(VAccessLevel,             Tag::AccessLevel),
        KIND(VAdminData,               Tag::AdminData),
        KIND(VAllValue,                Tag::AllValue),
        KIND(VAudience,                Tag::Audience),
        KIND(VBaseVariant,             Tag::BaseVariant),
        KIND(VBaseVariantRef,          Tag::BaseVariantRef),
        KIND(VBasicStructureLink,      Tag::BasicStructureRef),
        KIND(VByteStream,              Tag::SupportedDynId),
        KIND(VCase,                    Tag::Case),
        KIND(VChecksumResult,          Tag::ChecksumResult),
        KIND(VCodedConst,              Tag::CodedConst),
        KIND(VCommRelation,            Tag::CommRelation),
        KIND(VCompanyData,             Tag::CompanyData),
        KIND(VCompanyDataLink,         Tag::CompanyDataRef),
        KIND(VCompanyDocInfo,          Tag::CompanyDocInfo),
        KIND(VCompanyRevisionInfo,     Tag::CompanyRevisionInfo),
        KIND(VCompanySpecificInfo,     Tag::CompanySpecificInfo),
        KIND(VComparam,                Tag::Comparam),
        KIND(VComparamRef,             Tag::ComparamRef),
        KIND(VComparamSpec,            Tag::ComparamSpec),
        KIND(VComparamSpecLink,        Tag::ComparamSpecRef),
        KIND(VCompuConst,              Tag::CompuConst),
        KIND(VCompuDefaultValue,       Tag::CompuDefaultValue),
        KIND(VCompuInternalToPhys,     Tag::CompuInternalToPhys),
        KIND(VCompuInverseValue,       Tag::CompuInverseValue),
        KIND(VCompuMethod,             Tag::CompuMethod),
        KIND(VCompuPhysToInternal,     Tag::CompuPhysToInternal),
        KIND(VCompuRationalCoeffs,     Tag::CompuRationalCoeffs),
        KIND(VCompuScale,              Tag::CompuScale),
        KIND(VDataformat,              Tag::Dataformat),
        KIND(VDataObjectProp,          Tag::DataObjectProp),
        KIND(VDataObjectPropLink,      Tag::DopRef, Tag::DopSnref, Tag::DataObjectPropRef, Tag::KeyDopRef),
        KIND(VDefaultCase,             Tag::DefaultCase),
        KIND(VDetermineNumberOfItems,  Tag::DetermineNumberOfItems),
        KIND(VDiagCommLink,            Tag::DiagCommRef, Tag::DiagCommSnref, Tag::ClearDynDefMessageRef,
                                       Tag::ClearDynDefMessageSnref, Tag::ReadDynDefMessageRef,
                                       Tag::ReadDynDefMessageSnref, Tag::DynDefMessageRef, Tag::DynDefMessageSnref),
        KIND(VDiagDataDictionarySpec,  Tag::DiagDataDictionarySpec),
        KIND(VDiagLayerContainer,      Tag::DiagLayerContainer),
        KIND(VDiagService,             Tag::DiagService),
        KIND(VDiagVariable,            Tag::DiagVariable),
        KIND(VDiagVariableLink,        Tag::DiagVariableRef, Tag::DiagVariableSnref),
        KIND(VDocRevision,             Tag::DocRevision),
        KIND(VDopBaseLink,             Tag::DopRef, Tag::DopSnref, Tag::DopBaseRef, Tag::DopBaseSnref),
        KIND(VDtc,                     Tag::Dtc),
        KIND(VDtcDop,                  Tag::DtcDop),
        KIND(VDtcLink,                 Tag::DtcRef),
        KIND(VDtcValues,               Tag::DtcValues),
        KIND(VDynamic,                 Tag::Dynamic),
        KIND(VDynamicEndmarkerField,   Tag::DynamicEndmarkerField),
        KIND(VDynamicLengthField,      Tag::DynamicLengthField),
        KIND(VDynDefinedSpec,          Tag::DynDefinedSpec),
        KIND(VDynEndDopRef,            Tag::DataObjectPropRef),
        KIND(VDynIdDefModeInfo,        Tag::DynIdDefModeInfo),
        KIND(VEcuMem,                  Tag::EcuMem),
        KIND(VEcuSharedData,           Tag::EcuSharedData),
        KIND(VEcuSharedDataRef,        Tag::EcuSharedDataRef),
        KIND(VEcuVariant,              Tag::EcuVariant),
        KIND(VEcuVariantPattern,       Tag::EcuVariantPattern),
        KIND(VEncryptCompressMethod,   Tag::EncryptCompressMethod),
        KIND(VEndOfPduField,           Tag::EndOfPduField),
        KIND(VEnvData,                 Tag::EnvData),
        KIND(VEnvDataDesc,             Tag::EnvDataDesc),
        KIND(VEnvDataDescLink,         Tag::EnvDataDescRef),
        KIND(VEnvDataLink,             Tag::EnvDataRef),
        KIND(VExpectedIdent,           Tag::ExpectedIdent),
        KIND(VFlash,                   Tag::Flash),
        KIND(VFunctClass,              Tag::FunctClass),
        KIND(VFunctClassLink,          Tag::FunctClassRef),
        KIND(VFunctionalGroup,         Tag::FunctionalGroup),
        KIND(VFunctionalGroupRef,      Tag::FunctionalGroupRef),
        KIND(VGlobalNegResponse,       Tag::GlobalNegResponse),
        KIND(VIdentValue,              Tag::IdentValue),
        KIND(VInputParam,              Tag::InputParam),
        KIND(VInternalConstr,          Tag::InternalConstr),
        KIND(VLeadingLengthInfoType,   Tag::LeadingLengthInfoType),
        KIND(VLengthKey,               Tag::LengthKey),
        KIND(VLimit,                   Tag::LowerLimit, Tag::UpperLimit),
        KIND(VMatchingParameter,       Tag::MatchingParameter),
        KIND(VMatchingRequestParam,    Tag::MatchingRequestParam),
        KIND(VMem,                     Tag::Mem),
        KIND(VMinMaxLengthType,        Tag::MinMaxLengthType),
        KIND(VModification,            Tag::Modification),
        KIND(VMultipleEcuJob,          Tag::MultipleEcuJob),
        KIND(VMux,                     Tag::Mux),
        KIND(VNegOutputParam,          Tag::NegOutputParam),
        KIND(VNegResponse,             Tag::NegResponse),
        KIND(VNegResponseLink,         Tag::NegResponseRef),
        KIND(VNotInheritedDiagComm,    Tag::NotInheritedDiagComm),
        KIND(VNotInheritedVariable,    Tag::NotInheritedVariable),
        KIND(VOdx,                     Tag::Odx),
        KIND(VOutParamIfLink,          Tag::OutParamIfSnref, Tag::ParamSnref),
        KIND(VOutputParam,             Tag::OutputParam),
        KIND(VOwnIdent,                Tag::OwnIdent),
        KIND(VParamLengthInfoType,     Tag::ParamLengthInfoType),
        KIND(VPhysConst,               Tag::PhysConst),
        KIND(VPhysicalDimension,       Tag::PhysicalDimension),
        KIND(VPhysicalDimensionLink,   Tag::PhysicalDimensionRef),
        KIND(VPhysicalType,            Tag::PhysicalType),
        KIND(VPosResponse,             Tag::PosResponse),
        KIND(VPosResponseLink,         Tag::PosResponseRef),
        KIND(VProgCode,                Tag::ProgCode),
        KIND(VProjectIdent,            Tag::ProjectIdent),
        KIND(VProtocol,                Tag::Protocol),
        KIND(VProtocolRef,             Tag::ProtocolRef),
        KIND(VRelatedDiagCommRef,      Tag::RelatedDiagCommRef),
        KIND(VRelatedDoc,              Tag::RelatedDoc),
        KIND(VRequest,                 Tag::Request),
        KIND(VRequestLink,             Tag::RequestRef),
        KIND(VReserved,                Tag::Reserved),
        KIND(VScaleConstr,             Tag::ScaleConstr),
        KIND(VSd,                      Tag::Sd),
        KIND(VSdg,                     Tag::Sdg),
        KIND(VSdgCaption,              Tag::SdgCaption),
        KIND(VSession,                 Tag::Session),
        KIND(VSessionDesc,             Tag::SessionDesc),
        KIND(VSingleEcuJob,            Tag::SingleEcuJob),
        KIND(VStandardLengthType,      Tag::StandardLengthType),
        KIND(VStaticField,             Tag::StaticField),
        KIND(VStructure,               Tag::Structure),
        KIND(VStructureLink,           Tag::StructureRef),
        KIND(VSwitchKey,               Tag::SwitchKey),
        KIND(VSwVariable,              Tag::SwVariable),
        KIND(VSystem,                  Tag::System),
        KIND(VTable,                   Tag::Table),
        KIND(VTableEntry,              Tag::TableEntry),
        KIND(VTableKey,                Tag::TableKey),
        KIND(VTableKeyLink,            Tag::TableKeyRef),
        KIND(VTableLink,               Tag::TableRef, Tag::SelectionTableRef, Tag::SelectionTableSnref),
        KIND(VTableRow,                Tag::TableRow),
        KIND(VTableRowLink,            Tag::TableRowRef),
        KIND(VTableStruct,             Tag::TableStruct),
        KIND(VTeamMember,              Tag::TeamMember),
        KIND(VTeamMemberLink,          Tag::TeamMemberRef),
        KIND(VText,                    Tag::LongName),
        KIND(VUnit,                    Tag::Unit),
        KIND(VUnitGroup,               Tag::UnitGroup),
        KIND(VUnitLink,                Tag::UnitRef),
        KIND(VUnitSpec,                Tag::UnitSpec),
        KIND(VValue,                   Tag::Value),
        KIND(VVariableGroup,           Tag::VariableGroup),
        KIND(VVariableGroupLink,       Tag::VariableGroupRef),
        KIND(VVt,                      Tag::Vt),
        KIND(VXdoc,                    Tag::Xdoc),
    };
    // clang-format on
    return kinds;
}
#undef KIND

void CollectKinds(std::vector<VKind> const& kinds, VOdxElement& element, std::vector<VKind const*>& found) {
    for (VKind const& kind : kinds) {
        if (kind.isOf(element)) {
            found.push_back(&kind);
        }
    }
}

/// Writes down what an element calls back. Elements are compared by where their part of `VOdxElement` is.
class VRecorder : public VDiagLayerVisitor, public VDiagCommVisitor, public VDopBaseVisitor, public VParamVisitor {
public:
    explicit VRecorder(VOdxElement& element) : m_element(&element) { m_visit.calls = 0; }

    VVisit m_visit;

#define VISIT(kind)                                                                                                    \
    void Visit##kind(V##kind& x) override { Note(x); }
    VISIT(BaseVariant)
    VISIT(Protocol)
    VISIT(FunctionalGroup)
    VISIT(EcuVariant)
    VISIT(EcuSharedData)
    VISIT(DiagService)
    VISIT(SingleEcuJob)
    VISIT(EnvData)
    VISIT(Structure)
    VISIT(EnvDataDesc)
    VISIT(StaticField)
    VISIT(DynamicLengthField)
    VISIT(DynamicEndmarkerField)
    VISIT(EndOfPduField)
    VISIT(Mux)
    VISIT(DataObjectProp)
    VISIT(DtcDop)
    VISIT(CodedConst)
    VISIT(Dynamic)
    VISIT(LengthKey)
    VISIT(MatchingRequestParam)
    VISIT(PhysConst)
    VISIT(Reserved)
    VISIT(System)
    VISIT(TableKey)
    VISIT(TableStruct)
    VISIT(Value)
    VISIT(TableEntry)
#undef VISIT

private:
    void Note(VOdxElement& visited) {
        ++m_visit.calls;
        m_visit.isItself = m_visit.isItself && &visited == m_element;
    }

    VOdxElement* m_element;
};

template <class Family>
bool Visits(VOdxElement& element, VRecorder& recorder) {
    auto* const x = dynamic_cast<Family*>(&element);
    if (x != nullptr) {
        x->Accept(recorder);
    }
    return x != nullptr;
}

} // namespace

std::vector<VKind const*> KindsOf(VOdxElement& element) {
    std::vector<VKind const*> found;
    CollectKinds(Kinds(), element, found);
    if (found.empty()) {
        CollectKinds(GeneralKinds(), element, found);
    }
    return found;
}

VVisit VisitOf(VOdxElement& element) {
    VRecorder recorder(element);
    recorder.m_visit.isToCall = dynamic_cast<VMultipleEcuJob*>(&element) == nullptr;
    bool const isOfAFamily = Visits<VDiagLayer>(element, recorder) || Visits<VDiagComm>(element, recorder) ||
                             Visits<VDopBase>(element, recorder) || Visits<VParam>(element, recorder);
    return isOfAFamily ? recorder.m_visit : VVisit();
}

std::wstring NamesOf(std::vector<VKind const*> const& kinds) {
    std::wstring names;
    for (VKind const* const kind : kinds) {
        names += (names.empty() ? L"" : L", ") + std::wstring(kind->name);
    }
    return names.empty() ? L"none" : names;
}

std::wstring TextOf(VOdxTagEnum tag) {
    std::wstring const text = OdxTagText(tag);
    std::wstring const type = OdxTypeText(tag);
    if (text.empty()) {
        return L"the tag " + std::to_wstring(static_cast<int>(tag));
    }
    return type.empty() ? text : text + L" of type " + type;
}

} // namespace NConformance
