// SPDX-License-Identifier: Apache-2.0
#include <cstdlib>

#include <diagkit/memory/Odx.h>
#include <diagkit/model/SearchRange.h>

#include <fuzz/UseDatabase.h>

namespace NFuzz {
namespace {

using namespace NMemory;
using namespace NODX201;

/// The context in which a reference is resolved; each kind uses what it needs.
struct VScene {
    VDiagLayer& layer;
    VDiagLayerContainer* container = nullptr;
    VFlash* flash = nullptr;
    VDiagComm* diagComm = nullptr;
};

/// Queries a reference of class `Link` for its target, and the target for its kind. Both results must be the same
/// twice.
template <class Link, auto Get, class Has>
void Resolve(VLink& reference, Has has) {
    auto& link = dynamic_cast<Link&>(reference);
    if (!has(link)) {
        return;
    }
    auto* const target = &(link.*Get)();
    if (!has(link) || &(link.*Get)() != target) {
        std::abort();
    }
    if (auto const* const element = dynamic_cast<VOdxElement const*>(target)) {
        static_cast<void>(element->GetShortName());
        static_cast<void>(element->GetOdxTag());
    }
}

/// A kind of reference, and how it is resolved.
struct VKind {
    bool (*is)(VLink const& reference);
    void (*resolve)(VLink& reference, VScene const& scene);
    bool isSameAnywhere = false; ///< the scene does not matter
};

template <class Link>
bool Is(VLink const& reference) {
    return dynamic_cast<Link const*>(&reference) != nullptr;
}

template <class Link, auto Has, auto Get>
void ResolveAnywhere(VLink& reference, VScene const&) {
    Resolve<Link, Get>(reference, [](Link& link) { return (link.*Has)(); });
}

template <class Link, auto Has, auto Get>
void ResolveInLayer(VLink& reference, VScene const& scene) {
    Resolve<Link, Get>(reference, [&](Link& link) { return (link.*Has)(scene.layer); });
}

/// With the member `At` of the scene, if it is present.
template <class Link, auto At, auto Has, auto Get>
void ResolveAt(VLink& reference, VScene const& scene) {
    Resolve<Link, Get>(reference, [&](Link& link) { return scene.*At != nullptr && (link.*Has)(*(scene.*At)); });
}

void ResolveOutParam(VLink& reference, VScene const& scene) {
    for (VSearchRange const range : {VSearchRange::Responses, VSearchRange::RequestAndResponses}) {
        Resolve<VOutParamIfLink, &VOutParamIfLink::GetOutParamIf>(reference, [&](VOutParamIfLink& link) {
            return scene.diagComm != nullptr && link.HasOutParamIf(*scene.diagComm, scene.layer, range);
        });
    }
}

constexpr VKind kKinds[] = {
    // clang-format off
    {&Is<VCompanyDataLink>, &ResolveAnywhere<VCompanyDataLink, &VCompanyDataLink::HasCompanyData, &VCompanyDataLink::GetCompanyData>, true},
    {&Is<VTeamMemberLink>, &ResolveAnywhere<VTeamMemberLink, &VTeamMemberLink::HasTeamMember, &VTeamMemberLink::GetTeamMember>, true},
    {&Is<VComparamSpecLink>, &ResolveAnywhere<VComparamSpecLink, &VComparamSpecLink::HasComparamSpec, &VComparamSpecLink::GetComparamSpec>, true},
    {&Is<VMemComparamRef>, &ResolveAnywhere<VMemComparamRef, &VMemComparamRef::HasComparam, &VMemComparamRef::GetComparam>, true},
    {&Is<VMemLengthKeyLink>, &ResolveAnywhere<VMemLengthKeyLink, &VMemLengthKeyLink::HasLengthKey, &VMemLengthKeyLink::GetLengthKey>, true},
    {&Is<VRelatedDiagCommRef>, &ResolveAnywhere<VRelatedDiagCommRef, &VRelatedDiagCommRef::HasDiagComm, &VRelatedDiagCommRef::GetDiagComm>, true},
    {&Is<VVariableGroupLink>, &ResolveAnywhere<VVariableGroupLink, &VVariableGroupLink::HasVariableGroup, &VVariableGroupLink::GetVariableGroup>, true},
    {&Is<VStructureLink>, &ResolveAnywhere<VStructureLink, &VStructureLink::HasStructure, &VStructureLink::GetStructure>, true},
    {&Is<VBasicStructureLink>, &ResolveAnywhere<VBasicStructureLink, &VBasicStructureLink::HasBasicStructure, &VBasicStructureLink::GetBasicStructure>, true},
    {&Is<VEnvDataDescLink>, &ResolveAnywhere<VEnvDataDescLink, &VEnvDataDescLink::HasEnvDataDesc, &VEnvDataDescLink::GetEnvDataDesc>, true},
    {&Is<VEnvDataLink>, &ResolveAnywhere<VEnvDataLink, &VEnvDataLink::HasEnvData, &VEnvDataLink::GetEnvData>, true},
    {&Is<VDtcLink>, &ResolveAnywhere<VDtcLink, &VDtcLink::HasDtc, &VDtcLink::GetDtc>, true},
    {&Is<VDynEndDopRef>, &ResolveAnywhere<VDynEndDopRef, &VDynEndDopRef::HasDopBase, &VDynEndDopRef::GetDopBase>, true},
    {&Is<VFunctClassLink>, &ResolveAnywhere<VFunctClassLink, &VFunctClassLink::HasFunctClass, &VFunctClassLink::GetFunctClass>, true},
    {&Is<VTableKeyLink>, &ResolveAnywhere<VTableKeyLink, &VTableKeyLink::HasTableKey, &VTableKeyLink::GetTableKey>, true},
    {&Is<VTableLink>, &ResolveAnywhere<VTableLink, &VTableLink::HasTable, &VTableLink::GetTable>, true},
    {&Is<VTableRowLink>, &ResolveAnywhere<VTableRowLink, &VTableRowLink::HasTableRow, &VTableRowLink::GetTableRow>, true},
    {&Is<VRequestLink>, &ResolveAnywhere<VRequestLink, &VRequestLink::HasRequest, &VRequestLink::GetRequest>, true},
    {&Is<VPosResponseLink>, &ResolveAnywhere<VPosResponseLink, &VPosResponseLink::HasPosResponse, &VPosResponseLink::GetPosResponse>, true},
    {&Is<VNegResponseLink>, &ResolveAnywhere<VNegResponseLink, &VNegResponseLink::HasNegResponse, &VNegResponseLink::GetNegResponse>, true},
    {&Is<VPhysicalDimensionLink>, &ResolveAnywhere<VPhysicalDimensionLink, &VPhysicalDimensionLink::HasPhysicalDimension, &VPhysicalDimensionLink::GetPhysicalDimension>, true},
    {&Is<VUnitLink>, &ResolveAnywhere<VUnitLink, &VUnitLink::HasUnit, &VUnitLink::GetUnit>, true},
    {&Is<VProtocolRef>, &ResolveAnywhere<VProtocolRef, &VProtocolRef::HasProtocol, &VProtocolRef::GetProtocol>, true},
    {&Is<VFunctionalGroupRef>, &ResolveAnywhere<VFunctionalGroupRef, &VFunctionalGroupRef::HasFunctionalGroup, &VFunctionalGroupRef::GetFunctionalGroup>, true},
    {&Is<VBaseVariantRef>, &ResolveAnywhere<VBaseVariantRef, &VBaseVariantRef::HasBaseVariant, &VBaseVariantRef::GetBaseVariant>, true},
    {&Is<VEcuSharedDataRef>, &ResolveAnywhere<VEcuSharedDataRef, &VEcuSharedDataRef::HasEcuSharedData, &VEcuSharedDataRef::GetEcuSharedData>, true},
    {&Is<VMemParentRef>, &ResolveAnywhere<VMemParentRef, &VMemParentRef::HasDiagLayer, &VMemParentRef::GetDiagLayer>, true},
    {&Is<VMemImportRef>, &ResolveAnywhere<VMemImportRef, &VMemImportRef::HasDiagLayer, &VMemImportRef::GetDiagLayer>, true},
    {&Is<VMemDiagLayerLink>, &ResolveAnywhere<VMemDiagLayerLink, &VMemDiagLayerLink::HasDiagLayer, &VMemDiagLayerLink::GetDiagLayer>, true},
    {&Is<VMemDatablockLink>, &ResolveAnywhere<VMemDatablockLink, &VMemDatablockLink::HasDatablock, &VMemDatablockLink::GetDatablock>, true},
    {&Is<VMemFlashdataLink>, &ResolveAnywhere<VMemFlashdataLink, &VMemFlashdataLink::HasFlashdata, &VMemFlashdataLink::GetFlashdata>, true},
    {&Is<VMemFlashClassLink>, &ResolveAnywhere<VMemFlashClassLink, &VMemFlashClassLink::HasFlashClass, &VMemFlashClassLink::GetFlashClass>, true},
    {&Is<VMemEcuMemLink>, &ResolveAnywhere<VMemEcuMemLink, &VMemEcuMemLink::HasEcuMem, &VMemEcuMemLink::GetEcuMem>, true},
    {&Is<VMemInfoComponentLink>, &ResolveAnywhere<VMemInfoComponentLink, &VMemInfoComponentLink::HasInfoComponent, &VMemInfoComponentLink::GetInfoComponent>, true},
    {&Is<VMemMultipleEcuJobLink>, &ResolveAnywhere<VMemMultipleEcuJobLink, &VMemMultipleEcuJobLink::HasMultipleEcuJob, &VMemMultipleEcuJobLink::GetMultipleEcuJob>, true},
    {&Is<VMemVehicleConnectorPinLink>, &ResolveAnywhere<VMemVehicleConnectorPinLink, &VMemVehicleConnectorPinLink::HasVehicleConnectorPin, &VMemVehicleConnectorPinLink::GetVehicleConnectorPin>, true},
    {&Is<VMemPhysicalVehicleLinkLink>, &ResolveAnywhere<VMemPhysicalVehicleLinkLink, &VMemPhysicalVehicleLinkLink::HasPhysicalVehicleLink, &VMemPhysicalVehicleLinkLink::GetPhysicalVehicleLink>, true},
    {&Is<VMemLogicalLinkLink>, &ResolveAnywhere<VMemLogicalLinkLink, &VMemLogicalLinkLink::HasLogicalLink, &VMemLogicalLinkLink::GetLogicalLink>, true},
    {&Is<VMemGatewayLogicalLinkLink>, &ResolveAnywhere<VMemGatewayLogicalLinkLink, &VMemGatewayLogicalLinkLink::HasGatewayLogicalLink, &VMemGatewayLogicalLinkLink::GetGatewayLogicalLink>, true},
    {&Is<VMemEcuProxyLink>, &ResolveAnywhere<VMemEcuProxyLink, &VMemEcuProxyLink::HasEcuProxy, &VMemEcuProxyLink::GetEcuProxy>, true},
    {&Is<VMemProtocolLink>, &ResolveAnywhere<VMemProtocolLink, &VMemProtocolLink::HasProtocol, &VMemProtocolLink::GetProtocol>, true},
    {&Is<VMemFunctionalGroupLink>, &ResolveAnywhere<VMemFunctionalGroupLink, &VMemFunctionalGroupLink::HasFunctionalGroup, &VMemFunctionalGroupLink::GetFunctionalGroup>, true},
    {&Is<VMemBaseVariantLink>, &ResolveAnywhere<VMemBaseVariantLink, &VMemBaseVariantLink::HasBaseVariant, &VMemBaseVariantLink::GetBaseVariant>, true},
    {&Is<VMemLinkComparamRef>, &ResolveAnywhere<VMemLinkComparamRef, &VMemLinkComparamRef::HasComparam, &VMemLinkComparamRef::GetComparam>, true},
    {&Is<VDiagCommLink>, &ResolveInLayer<VDiagCommLink, &VDiagCommLink::HasDiagComm, &VDiagCommLink::GetDiagComm>},
    {&Is<VDiagVariableLink>, &ResolveInLayer<VDiagVariableLink, &VDiagVariableLink::HasDiagVariable, &VDiagVariableLink::GetDiagVariable>},
    {&Is<VDopBaseLink>, &ResolveInLayer<VDopBaseLink, &VDopBaseLink::HasDopBase, &VDopBaseLink::GetDopBase>},
    {&Is<VDataObjectPropLink>, &ResolveInLayer<VDataObjectPropLink, &VDataObjectPropLink::HasDataObjectProp, &VDataObjectPropLink::GetDataObjectProp>},
    {&Is<VMemProtocolSnref>, &ResolveAt<VMemProtocolSnref, &VScene::container, &VMemProtocolSnref::HasProtocol, &VMemProtocolSnref::GetProtocol>},
    {&Is<VMemSessionLink>, &ResolveAt<VMemSessionLink, &VScene::flash, &VMemSessionLink::HasSession, &VMemSessionLink::GetSession>},
    {&Is<VMemIdentIfLink>, &ResolveAt<VMemIdentIfLink, &VScene::flash, &VMemIdentIfLink::HasIdentIf, &VMemIdentIfLink::GetIdentIf>},
    {&Is<VMemInParamIfLink>, &ResolveAt<VMemInParamIfLink, &VScene::diagComm, &VMemInParamIfLink::HasInParamIf, &VMemInParamIfLink::GetInParamIf>},
    {&Is<VOutParamIfLink>, &ResolveOutParam},
    // clang-format on
};

VKind const* KindOf(VLink const& reference) {
    for (VKind const& kind : kKinds) {
        if (kind.is(reference)) {
            return &kind;
        }
    }
    return nullptr;
}

/// The scene of a layer: its container, and of FLASHs and DIAG-COMMs the first.
VScene SceneOf(VDiagLayer& layer, VDatabase& database) {
    VScene scene{layer};
    for (VOdxObject* object = &layer; object != nullptr && scene.container == nullptr; object = object->GetOwner()) {
        scene.container = dynamic_cast<VDiagLayerContainer*>(object);
    }
    for (VMemFlash& flash : database.FlashCollection()) {
        scene.flash = scene.flash != nullptr ? scene.flash : &flash;
    }
    for (IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
        scene.diagComm = scene.diagComm != nullptr ? scene.diagComm : dynamic_cast<VDiagComm*>(&proxy);
    }
    return scene;
}

} // namespace

void ResolveReferences(NReader::VReadResult& result, VBudget& budget) {
    std::vector<VScene> scenes;
    for (VDiagLayerContainer& container : result.database->GetOdx().DiagLayerContainerCollection()) {
        for (VDiagLayer& layer : container.DiagLayerCollection()) {
            scenes.push_back(SceneOf(layer, *result.database));
        }
    }
    for (VOdxElement* const element : result.elements) {
        auto* const reference = dynamic_cast<VLink*>(element);
        VKind const* const kind = reference != nullptr ? KindOf(*reference) : nullptr;
        for (VScene const& scene : scenes) {
            if (kind == nullptr || !budget.Take()) {
                break;
            }
            kind->resolve(*reference, scene);
            if (kind->isSameAnywhere) {
                break;
            }
        }
    }
}

} // namespace NFuzz
