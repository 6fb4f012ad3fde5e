// SPDX-License-Identifier: Apache-2.0
#include "support/NaiveInheritance.h"

#include <algorithm>

namespace NTest {
namespace {

using VForm = VOwnPlan::VForm;
using VRefKind = VParentPlan::VRefKind;

struct VVisible {
    std::wstring name;
    std::wstring owner;
};

using VVisibles = std::vector<VVisible>;

bool HoldsName(VVisibles const& visibles, std::wstring const& name) {
    return std::any_of(visibles.begin(), visibles.end(), [&](VVisible const& visible) { return visible.name == name; });
}

bool Excludes(VParentPlan const& parent, std::wstring const& name) {
    return std::any_of(parent.exclusions.begin(), parent.exclusions.end(),
                       [&](VExclusionPlan const& exclusion) { return !exclusion.isById && exclusion.name == name; });
}

/// How one kind of view differs from the others.
struct VRules {
    VVisibles (*own)(VGraphPlan const& graph, VLayerPlan const& layer);
    /// Which pass over the PARENT-REFS merges a reference of this kind into a layer of that kind; 0: none.
    int (*passOf)(VKind layer, VRefKind ref);
    bool hasExclusions = false;
};

VVisibles Visible(VRules const& rules, VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles = rules.own(graph, layer);
    for (int pass = 1; pass <= 2; ++pass) {
        for (VParentPlan const& parent : layer.parents) {
            VLayerPlan const* const target = graph.Find(parent.target);
            bool const isThere = target != nullptr && RefKindFor(target->kind) == parent.kind;
            if (!isThere || rules.passOf(layer.kind, parent.kind) != pass) {
                continue;
            }
            for (VVisible const& visible : Visible(rules, graph, *target)) {
                bool const isExcluded = rules.hasExclusions && Excludes(parent, visible.name);
                if (!isExcluded && !HoldsName(visibles, visible.name)) {
                    visibles.push_back(visible);
                }
            }
        }
    }
    return visibles;
}

std::wstring Text(VVisibles const& visibles) {
    std::wstring text;
    for (VVisible const& visible : visibles) {
        text += (text.empty() ? L"" : L" ") + visible.name + L"@" + visible.owner;
    }
    return text;
}

int PassOfMostKinds(VKind layer, VRefKind ref) {
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

/// No PROTOCOL takes part.
int PassOfDiagVariables(VKind layer, VRefKind ref) {
    switch (layer) {
    case VKind::EcuSharedData:
    case VKind::Protocol:
        return 0;
    case VKind::FunctionalGroup:
        return ref == VRefKind::EcuSharedData ? 1 : 0;
    case VKind::BaseVariant:
        return ref == VRefKind::FunctionalGroup ? 1 : ref == VRefKind::EcuSharedData ? 2 : 0;
    case VKind::EcuVariant:
        return ref == VRefKind::BaseVariant ? 1 : ref == VRefKind::EcuSharedData ? 2 : 0;
    }
    return 0;
}

/// What a DIAG-COMM-REF names; nothing when there is no such DIAG-COMM.
VVisibles Referenced(VGraphPlan const& graph, std::wstring const& id) {
    for (VLayerPlan const& layer : graph.layers) {
        for (VOwnPlan const& own : layer.own) {
            if (own.form != VForm::Reference && own.id == id) {
                return {{own.name, layer.name}};
            }
        }
    }
    return {};
}

VVisibles OwnDiagComms(VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VForm::Reference) {
            visibles.push_back({own.name, layer.name});
        } else if (VVisibles const found = Referenced(graph, own.name); !found.empty()) {
            visibles.push_back(found.front());
        }
    }
    return visibles;
}

/// A name that is taken is dropped at once.
VVisibles OwnDops(VGraphPlan const&, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VForm::Reference && !HoldsName(visibles, own.name)) {
            visibles.push_back({own.name, layer.name});
        }
    }
    return visibles;
}

VVisibles OwnDiagVariables(VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles;
    if (layer.kind == VKind::Protocol) {
        return visibles;
    }
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VForm::Reference) {
            visibles.push_back({own.name, layer.name});
            continue;
        }
        for (VLayerPlan const& other : graph.layers) {
            for (VOwnPlan const& target : other.own) {
                if (other.kind != VKind::Protocol && target.form != VForm::Reference && target.id == own.name) {
                    visibles.push_back({target.name, other.name});
                }
            }
        }
    }
    return visibles;
}

VVisibles OwnGlobalNegResponses(VGraphPlan const&, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form == VForm::Service) {
            visibles.push_back({own.name, layer.name});
        }
    }
    return visibles;
}

} // namespace

std::wstring NaiveDiagComms(VGraphPlan const& graph, std::wstring const& layer) {
    return Text(Visible({OwnDiagComms, PassOfMostKinds, true}, graph, *graph.Find(layer)));
}

std::wstring NaiveDops(VGraphPlan const& graph, std::wstring const& layer) {
    VVisibles visibles = Visible({OwnDops, PassOfMostKinds}, graph, *graph.Find(layer));
    std::sort(visibles.begin(), visibles.end(),
              [](VVisible const& left, VVisible const& right) { return left.name < right.name; });
    return Text(visibles);
}

std::wstring NaiveDiagVariables(VGraphPlan const& graph, std::wstring const& layer) {
    return Text(Visible({OwnDiagVariables, PassOfDiagVariables}, graph, *graph.Find(layer)));
}

std::wstring NaiveGlobalNegResponses(VGraphPlan const& graph, std::wstring const& layer) {
    return Text(Visible({OwnGlobalNegResponses, PassOfMostKinds}, graph, *graph.Find(layer)));
}

} // namespace NTest
