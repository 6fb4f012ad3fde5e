// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/ReadingPlaces.h>

#include <diagkit/memory/Flash.h>
#include <diagkit/memory/References.h>
#include <diagkit/memory/VehicleInfo.h>
#include <diagkit/tools/Inheritance.h>

namespace NCheck {
namespace {

template <class Link>
bool IsA(NODX201::VLink& reference) {
    return dynamic_cast<Link*>(&reference) != nullptr;
}

bool IsOfEnvDataDesc(NODX201::VLink& reference) {
    return dynamic_cast<NODX201::VEnvDataDesc*>(reference.GetOwner()) != nullptr;
}

struct VWantedRow {
    bool (*is)(NODX201::VLink& reference);
    VWantedName wanted;
};

constexpr VWantedRow kWantedRows[] = {
    {&IsA<NODX201::VDopBaseLink>, VWantedName::Dop},
    {&IsA<NODX201::VDataObjectPropLink>, VWantedName::DataObjectProp},
    {&IsA<NODX201::VDiagCommLink>, VWantedName::DiagComm},
    {&IsA<NMemory::VMemProtocolSnref>, VWantedName::Protocol},
    {&IsA<NODX201::VTableLink>, VWantedName::Table},
    {&IsOfEnvDataDesc, VWantedName::ParamOfMessages},
    {&IsA<NODX201::VOutParamIfLink>, VWantedName::OutParam},
    {&IsA<NMemory::VMemInParamIfLink>, VWantedName::InParam},
};

} // namespace

std::optional<VWantedName> WantedNameOf(NODX201::VLink& reference) {
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
    if (snref == nullptr || *snref->GetShortName() == L'\0') {
        return std::nullopt;
    }
    for (VWantedRow const& row : kWantedRows) {
        if (row.is(reference)) {
            return row.wanted;
        }
    }
    return std::nullopt;
}

NODX201::VDiagCommLink* DiagCommLinkBeside(NODX201::VLink& reference) {
    NODX201::VOdxObject* const owner = reference.GetOwner();
    if (auto* const relation = dynamic_cast<NODX201::VCommRelation*>(owner)) {
        return relation->HasDiagCommLink() ? &relation->GetDiagCommLink() : nullptr;
    }
    if (auto* const parameter = dynamic_cast<NODX201::VMatchingParameter*>(owner)) {
        return parameter->HasDiagCommSnref() ? &parameter->GetDiagCommSnref() : nullptr;
    }
    if (auto* const component = dynamic_cast<NMemory::VMemMatchingComponent*>(owner)) {
        return component->HasDiagCommRef() ? &component->GetDiagCommRef() : nullptr;
    }
    auto* const ident = dynamic_cast<NMemory::VMemIdentDesc*>(owner);
    return ident != nullptr && ident->HasDiagCommSnref() ? &ident->GetDiagCommSnref() : nullptr;
}

NODX201::VOdxElement* TargetInFlash(NODX201::VLink& reference) {
    auto* const session = dynamic_cast<NMemory::VMemSessionLink*>(&reference);
    auto* const ident = dynamic_cast<NMemory::VMemIdentIfLink*>(&reference);
    if (session == nullptr && ident == nullptr) {
        return nullptr;
    }
    NODX201::VOdxObject* flash = reference.GetOwner();
    while (flash != nullptr && dynamic_cast<NMemory::VMemFlash*>(flash) == nullptr) {
        flash = flash->GetOwner();
    }
    if (flash == nullptr) {
        return nullptr;
    }
    auto& inFlash = static_cast<NMemory::VMemFlash&>(*flash);
    if (session != nullptr) {
        return session->HasSession(inFlash) ? &session->GetSession() : nullptr;
    }
    return ident->HasIdentIf(inFlash) ? dynamic_cast<NODX201::VOdxElement*>(&ident->GetIdentIf()) : nullptr;
}

NODX201::VOdxElement* AnchorOf(NODX201::VLink const& reference) {
    for (NODX201::VOdxObject* object = reference.GetOwner(); object != nullptr; object = object->GetOwner()) {
        bool const isAnchor = dynamic_cast<NODX201::VDiagComm*>(object) != nullptr ||
                              dynamic_cast<NODX201::VRequest*>(object) != nullptr ||
                              dynamic_cast<NODX201::VResponse*>(object) != nullptr ||
                              dynamic_cast<NODX201::VDopBase*>(object) != nullptr ||
                              dynamic_cast<NODX201::VDiagVariable*>(object) != nullptr;
        if (isAnchor) {
            return dynamic_cast<NODX201::VOdxElement*>(object);
        }
    }
    return nullptr;
}

std::vector<NODX201::VDiagLayer*> LayersOfConnector(NODX201::VLink const& reference) {
    std::vector<NODX201::VDiagLayer*> layers;
    auto* const component = dynamic_cast<NMemory::VMemMatchingComponent*>(reference.GetOwner());
    if (component != nullptr && component->HasDiagCommRef() && component->GetDiagCommRef().ResolvesById()) {
        return {NDIAGKIT::LayerOf(component->GetDiagCommRef().GetDiagComm())};
    }
    for (NODX201::VOdxObject* object = reference.GetOwner(); object != nullptr; object = object->GetOwner()) {
        auto* const connector = dynamic_cast<NMemory::VMemEcuMemConnector*>(object);
        if (connector == nullptr) {
            continue;
        }
        for (NMemory::VMemDiagLayerLink& link : connector->DiagLayerLinkCollection()) {
            if (link.HasDiagLayer()) {
                layers.push_back(&link.GetDiagLayer());
            }
        }
    }
    return layers;
}

std::optional<std::vector<NODX201::VDiagLayer*>> LayersOfJobs(NMemory::VMemMultipleEcuJobSpec& spec) {
    std::vector<NODX201::VDiagLayer*> layers;
    for (NMemory::VMemMultipleEcuJob& job : spec.MultipleEcuJobCollection()) {
        for (NMemory::VMemDiagLayerLink& link : job.DiagLayerLinkCollection()) {
            if (!link.HasDiagLayer()) {
                return std::nullopt;
            }
            layers.push_back(&link.GetDiagLayer());
        }
    }
    return layers;
}

} // namespace NCheck
