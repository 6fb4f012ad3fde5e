// SPDX-License-Identifier: Apache-2.0
#include "tools/ContentGraph.h"

#include <diagkit/memory/Dops.h>

#include "support/GraphText.h"
#include "support/ParentRefsOf.h"

namespace NTest {
namespace {

using NMemory::VReference;
using VForm = VOwnPlan::VForm;

/// Calls `fill` with the layer as the class of the memory model that it is.
template <class Fill>
void WithMemLayer(NODX201::VDiagLayer& layer, Fill fill) {
    if (auto* const protocol = dynamic_cast<NMemory::VMemProtocol*>(&layer)) {
        fill(*protocol);
    } else if (auto* const group = dynamic_cast<NMemory::VMemFunctionalGroup*>(&layer)) {
        fill(*group);
    } else if (auto* const base = dynamic_cast<NMemory::VMemBaseVariant*>(&layer)) {
        fill(*base);
    } else if (auto* const ecu = dynamic_cast<NMemory::VMemEcuVariant*>(&layer)) {
        fill(*ecu);
    } else {
        fill(dynamic_cast<NMemory::VMemEcuSharedData&>(layer));
    }
}

template <class Layer>
void AddDops(Layer& layer, VLayerPlan const& plan) {
    if (!plan.hasOwn) {
        return;
    }
    NMemory::VMemDiagDataDictionarySpec& dictionary = layer.MakeDiagDataDictionarySpec();
    for (VOwnPlan const& own : plan.own) {
        if (own.form == VForm::Service) {
            dictionary.AddDataObjectProp(own.name.c_str()).SetId(own.id.c_str());
        } else if (own.form == VForm::Job) {
            dictionary.AddStructure(own.name.c_str()).SetId(own.id.c_str());
        }
    }
}

void AddDiagVariables(NMemory::VMemProtocol&, VLayerPlan const&) {}

template <class Layer>
void AddDiagVariables(Layer& layer, VLayerPlan const& plan) {
    if (plan.hasOwn) {
        layer.MakeDiagVariableProxyCollection();
    }
    for (VOwnPlan const& own : plan.own) {
        if (own.form == VForm::Reference) {
            layer.AddDiagVariableRef(VReference::ById(own.name.c_str()));
        } else {
            layer.AddDiagVariable(own.name.c_str()).SetId(own.id.c_str());
        }
    }
}

template <class Layer>
void AddGlobalNegResponses(Layer& layer, VLayerPlan const& plan) {
    if (plan.hasOwn) {
        layer.MakeResponseCollection();
    }
    for (VOwnPlan const& own : plan.own) {
        switch (own.form) {
        case VForm::Service:
            layer.AddGlobalNegResponse(own.name.c_str()).SetId(own.id.c_str());
            break;
        case VForm::Job:
            layer.AddNegResponse(own.name.c_str()).SetId(own.id.c_str());
            break;
        case VForm::Reference:
            layer.AddPosResponse(own.name.c_str());
            break;
        }
    }
}

void ExcludeDiagVariables(NODX201::VDiagLayer& layer, VLayerPlan const& plan) {
    NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(layer);
    if (parentRefs == nullptr) {
        return;
    }
    auto planned = plan.parents.begin();
    for (NODX201::VParentRef& parentRef : *parentRefs) {
        for (VExclusionPlan const& exclusion : (planned++)->exclusions) {
            dynamic_cast<NMemory::IMemParentRef&>(parentRef).AddNotInheritedVariable(
                exclusion.isById ? VReference::ById(exclusion.name.c_str())
                                 : VReference::ByShortName(exclusion.name.c_str()));
        }
    }
}

} // namespace

std::unique_ptr<VGraph> MakeContentGraph(VGraphPlan const& plan, VContent content) {
    if (content == VContent::DiagComms) {
        return std::make_unique<VGraph>(plan);
    }
    VGraphPlan empty = plan;
    for (VLayerPlan& layer : empty.layers) {
        layer.hasOwn = false;
        layer.own.clear();
    }
    auto graph = std::make_unique<VGraph>(empty);
    for (VLayerPlan const& planned : plan.layers) {
        NODX201::VDiagLayer& layer = graph->Layer(planned.name);
        WithMemLayer(layer, [&](auto& memLayer) {
            switch (content) {
            case VContent::DiagComms:
                return;
            case VContent::Dops:
                return AddDops(memLayer, planned);
            case VContent::DiagVariables:
                return AddDiagVariables(memLayer, planned);
            case VContent::GlobalNegResponses:
                return AddGlobalNegResponses(memLayer, planned);
            }
        });
        ExcludeDiagVariables(layer, planned);
    }
    return graph;
}

void VContentTest::Graph(wchar_t const* text) {
    m_graph = MakeContentGraph(ParseGraph(text), m_content);
    VerifyModel(m_graph->Database());
}

} // namespace NTest
