// SPDX-License-Identifier: Apache-2.0
#include "support/NaiveInheritance.h"

namespace NTest {
namespace {

using VRefKind = VParentPlan::VRefKind;

struct VVisible {
    std::wstring name;
    std::wstring owner;
};

using VVisibles = std::vector<VVisible>;

bool HoldsName(VVisibles const& visibles, std::wstring const& name) {
    for (VVisible const& visible : visibles) {
        if (visible.name == name) {
            return true;
        }
    }
    return false;
}

bool Excludes(VParentPlan const& parent, std::wstring const& name) {
    for (VExclusionPlan const& exclusion : parent.exclusions) {
        if (!exclusion.isById && exclusion.name == name) {
            return true;
        }
    }
    return false;
}

/// What a DIAG-COMM-REF names; nothing when there is no such DIAG-COMM.
VVisibles Referenced(VGraphPlan const& graph, std::wstring const& id) {
    for (VLayerPlan const& layer : graph.layers) {
        for (VOwnPlan const& own : layer.own) {
            if (own.form != VOwnPlan::VForm::Reference && own.id == id) {
                return {{own.name, layer.name}};
            }
        }
    }
    return {};
}

VVisibles Own(VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VOwnPlan::VForm::Reference) {
            visibles.push_back({own.name, layer.name});
        } else if (VVisibles const found = Referenced(graph, own.name); !found.empty()) {
            visibles.push_back(found.front());
        }
    }
    return visibles;
}

/// Which pass over the PARENT-REFS merges a reference of this kind into a layer of that kind; 0: none.
int PassOf(VKind layer, VRefKind ref) {
    switch (layer) {
    case VKind::EcuSharedData:
        return 0;
    case VKind::Protocol:
        return ref == VRefKind::EcuSharedData ? 1 : 0;
    case VKind::FunctionalGroup:
        return ref == VRefKind::Protocol ? 1 : ref == VRefKind::EcuSharedData ? 2 : 0;
    case VKind::BaseVariant:
        return ref == VRefKind::Protocol || ref == VRefKind::FunctionalGroup ? 1
               : ref == VRefKind::EcuSharedData                              ? 2
                                                                             : 0;
    case VKind::EcuVariant:
        return ref == VRefKind::BaseVariant ? 1 : ref == VRefKind::EcuSharedData ? 2 : 0;
    }
    return 0;
}

VVisibles Visible(VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles = Own(graph, layer);
    for (int pass = 1; pass <= 2; ++pass) {
        for (VParentPlan const& parent : layer.parents) {
            VLayerPlan const* const target = graph.Find(parent.target);
            bool const isThere = target != nullptr && RefKindFor(target->kind) == parent.kind;
            if (!isThere || PassOf(layer.kind, parent.kind) != pass) {
                continue;
            }
            for (VVisible const& visible : Visible(graph, *target)) {
                if (!HoldsName(visibles, visible.name) && !Excludes(parent, visible.name)) {
                    visibles.push_back(visible);
                }
            }
        }
    }
    return visibles;
}

} // namespace

std::wstring NaiveDiagComms(VGraphPlan const& graph, std::wstring const& layer) {
    std::wstring text;
    for (VVisible const& visible : Visible(graph, *graph.Find(layer))) {
        text += (text.empty() ? L"" : L" ") + visible.name + L"@" + visible.owner;
    }
    return text;
}

} // namespace NTest
