// SPDX-License-Identifier: Apache-2.0
#include "support/Graph.h"

#include <stdexcept>

#include "support/GraphText.h"
#include "support/VerifyModel.h"

namespace NTest {
namespace {

using NMemory::VReference;

NMemory::VParentRefKind RefKind(VParentPlan::VRefKind kind) {
    switch (kind) {
    case VParentPlan::VRefKind::EcuSharedData:
        return NMemory::VParentRefKind::EcuSharedData;
    case VParentPlan::VRefKind::Protocol:
        return NMemory::VParentRefKind::Protocol;
    case VParentPlan::VRefKind::FunctionalGroup:
        return NMemory::VParentRefKind::FunctionalGroup;
    case VParentPlan::VRefKind::BaseVariant:
        return NMemory::VParentRefKind::BaseVariant;
    case VParentPlan::VRefKind::NoKind:
        break;
    }
    return NMemory::VParentRefKind::Unknown;
}

template <class Layer>
void AddOwn(Layer& layer, VOwnPlan const& own) {
    switch (own.form) {
    case VOwnPlan::VForm::Service:
        return layer.AddDiagService(own.name.c_str()).SetId(own.id.c_str());
    case VOwnPlan::VForm::Job:
        return layer.AddSingleEcuJob(own.name.c_str()).SetId(own.id.c_str());
    case VOwnPlan::VForm::Reference:
        layer.AddDiagCommRef(VReference::ById(own.name.c_str()));
    }
}

template <class Layer>
void AddParent(Layer& layer, VParentPlan const& parent) {
    NMemory::IMemParentRef& ref = layer.AddParentRef(RefKind(parent.kind), VReference::ById(parent.target.c_str()));
    if (parent.hasExclusions) {
        ref.MakeNotInheritedDiagCommCollection();
    }
    for (VExclusionPlan const& exclusion : parent.exclusions) {
        ref.AddNotInheritedDiagComm(exclusion.isById ? VReference::ById(exclusion.name.c_str())
                                                     : VReference::ByShortName(exclusion.name.c_str()));
    }
}

template <class Layer>
void Fill(Layer& layer, VLayerPlan const& plan) {
    layer.SetId(plan.name.c_str());
    if (plan.hasOwn) {
        layer.MakeDiagCommProxyCollection();
    }
    for (VOwnPlan const& own : plan.own) {
        AddOwn(layer, own);
    }
}

template <class Layer>
void FillWithParents(Layer& layer, VLayerPlan const& plan) {
    Fill(layer, plan);
    if (plan.hasParents) {
        layer.MakeParentRefCollection();
    }
    for (VParentPlan const& parent : plan.parents) {
        AddParent(layer, parent);
    }
}

template <class Element>
Element& ById(NMemory::VDatabase& database, std::wstring const& id) {
    NMemory::VIdIndex::VEntry const* const entry = database.GetIdIndex().Find(id);
    auto* const element = entry != nullptr ? dynamic_cast<Element*>(entry->first) : nullptr;
    if (element == nullptr) {
        throw std::invalid_argument("the graph has no such element");
    }
    return *element;
}

} // namespace

VGraph::VGraph(VGraphPlan const& plan) : m_container(&m_database.AddDiagLayerContainer(L"Graph")) {
    for (VLayerPlan const& layer : plan.layers) {
        Build(layer);
    }
}

VGraph::VGraph(std::wstring const& text) : VGraph(ParseGraph(text)) { VerifyModel(m_database); }

NODX201::VDiagLayer& VGraph::Layer(std::wstring const& name) { return ById<NODX201::VDiagLayer>(m_database, name); }

NODX201::VDiagComm& VGraph::DiagComm(std::wstring const& id) { return ById<NODX201::VDiagComm>(m_database, id); }

void VGraph::Build(VLayerPlan const& plan) {
    wchar_t const* const name = plan.name.c_str();
    switch (plan.kind) {
    case VKind::EcuSharedData:
        if (plan.hasParents) {
            throw std::invalid_argument("an ECU-SHARED-DATA has no PARENT-REFS");
        }
        return Fill(m_container->AddEcuSharedData(name), plan);
    case VKind::Protocol:
        return FillWithParents(m_container->AddProtocol(name), plan);
    case VKind::FunctionalGroup:
        return FillWithParents(m_container->AddFunctionalGroup(name), plan);
    case VKind::BaseVariant:
        return FillWithParents(m_container->AddBaseVariant(name), plan);
    case VKind::EcuVariant:
        return FillWithParents(m_container->AddEcuVariant(name), plan);
    }
}

} // namespace NTest
