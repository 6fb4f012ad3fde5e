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
    std::wstring id;
    std::wstring way{}; ///< the layers that it came through, each with a '<' before it
};

using VVisibles = std::vector<VVisible>;

bool HoldsName(VVisibles const& visibles, std::wstring const& name) {
    return std::any_of(visibles.begin(), visibles.end(), [&](VVisible const& visible) { return visible.name == name; });
}

bool Excludes(VParentPlan const& parent, std::wstring const& name) {
    return std::any_of(parent.exclusions.begin(), parent.exclusions.end(),
                       [&](VExclusionPlan const& exclusion) { return !exclusion.isById && exclusion.name == name; });
}

/// The differences of one kind of view from the others.
struct VRules {
    VVisibles (*own)(VGraphPlan const& graph, VLayerPlan const& layer);
    /// Which pass over the PARENT-REFS merges a reference of this kind into a layer of that kind; 0: none.
    int (*passOf)(VKind layer, VRefKind ref);
    bool hasExclusions = false;
};

bool LeadsTo(VParentPlan const& parent, VLayerPlan const* target) {
    return target != nullptr && parent.kind != VRefKind::NoKind && RefKindFor(target->kind) == parent.kind;
}

VVisibles Visible(VRules const& rules, VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles = rules.own(graph, layer);
    for (int pass = 1; pass <= 2; ++pass) {
        for (VParentPlan const& parent : layer.parents) {
            VLayerPlan const* const target = graph.Find(parent.target);
            if (!LeadsTo(parent, target) || rules.passOf(layer.kind, parent.kind) != pass) {
                continue;
            }
            for (VVisible const& visible : Visible(rules, graph, *target)) {
                bool const isExcluded = rules.hasExclusions && Excludes(parent, visible.name);
                if (!isExcluded && !HoldsName(visibles, visible.name)) {
                    visibles.push_back(visible);
                    visibles.back().way = L"<" + target->name + visible.way;
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

/// The target of a DIAG-COMM-REF; nothing when there is no such DIAG-COMM.
VVisibles Referenced(VGraphPlan const& graph, std::wstring const& id) {
    for (VLayerPlan const& layer : graph.layers) {
        for (VOwnPlan const& own : layer.own) {
            if (own.form != VForm::Reference && own.id == id) {
                return {{own.name, layer.name, own.id}};
            }
        }
    }
    return {};
}

VVisibles OwnDiagComms(VGraphPlan const& graph, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VForm::Reference) {
            visibles.push_back({own.name, layer.name, own.id});
        } else if (VVisibles const found = Referenced(graph, own.name); !found.empty()) {
            visibles.push_back(found.front());
        }
    }
    return visibles;
}

VVisibles AllOwnDops(VGraphPlan const&, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VForm::Reference) {
            visibles.push_back({own.name, layer.name, own.id});
        }
    }
    return visibles;
}

/// A name that is taken is dropped at once.
VVisibles OwnDops(VGraphPlan const&, VLayerPlan const& layer) {
    VVisibles visibles;
    for (VOwnPlan const& own : layer.own) {
        if (own.form != VForm::Reference && !HoldsName(visibles, own.name)) {
            visibles.push_back({own.name, layer.name, own.id});
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
            visibles.push_back({own.name, layer.name, own.id});
            continue;
        }
        for (VLayerPlan const& other : graph.layers) {
            for (VOwnPlan const& target : other.own) {
                if (other.kind != VKind::Protocol && target.form != VForm::Reference && target.id == own.name) {
                    visibles.push_back({target.name, other.name, target.id});
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
            visibles.push_back({own.name, layer.name, own.id});
        }
    }
    return visibles;
}

VRules RulesOf(VNaiveKind kind) {
    switch (kind) {
    case VNaiveKind::DiagVariables:
        return {OwnDiagVariables, PassOfDiagVariables};
    case VNaiveKind::GlobalNegResponses:
        return {OwnGlobalNegResponses, PassOfMostKinds};
    case VNaiveKind::Dops:
        return {AllOwnDops, PassOfMostKinds};
    default:
        return {OwnDiagComms, PassOfMostKinds, true};
    }
}

/// A layer on a way, and the PARENT-REF of the layer before it that leads there; none for the first.
struct VNaiveStep {
    VLayerPlan const* layer;
    VParentPlan const* by;
};

/// Follows all ways from a layer, and determines for each element what happens to it on the way back.
class VNaiveWays {
public:
    VNaiveWays(VNaiveKind kind, VGraphPlan const& graph, std::wstring name)
        : m_rules(RulesOf(kind)), m_graph(graph), m_name(std::move(name)) {}

    std::wstring From(VLayerPlan const& layer) {
        m_way = {{&layer, nullptr}};
        GoInPasses(layer);
        GoAsTheyStand(layer, false);
        return m_text;
    }

private:
    void GoInPasses(VLayerPlan const& layer) {
        TellOwn(layer);
        for (int pass = 1; pass <= 2; ++pass) {
            for (VParentPlan const& parent : layer.parents) {
                VLayerPlan const* const target = m_graph.Find(parent.target);
                if (LeadsTo(parent, target) && m_rules.passOf(layer.kind, parent.kind) == pass) {
                    m_way.push_back({target, &parent});
                    GoInPasses(*target);
                    m_way.pop_back();
                }
            }
        }
    }

    void GoAsTheyStand(VLayerPlan const& layer, bool isOutside) {
        if (isOutside) {
            TellOwn(layer);
        }
        for (VParentPlan const& parent : layer.parents) {
            VLayerPlan const* const target = m_graph.Find(parent.target);
            bool const isMet = std::any_of(m_way.begin(), m_way.end(),
                                           [target](VNaiveStep const& step) { return step.layer == target; });
            if (!isMet && LeadsTo(parent, target)) {
                m_way.push_back({target, &parent});
                GoAsTheyStand(*target, isOutside || m_rules.passOf(layer.kind, parent.kind) == 0);
                m_way.pop_back();
            }
        }
    }

    /// The own elements of the name, each once.
    VVisibles Own(VLayerPlan const& layer) const {
        VVisibles own;
        for (VVisible const& visible : m_rules.own(m_graph, layer)) {
            bool const isKnown =
                std::any_of(own.begin(), own.end(), [&](VVisible const& other) { return other.id == visible.id; });
            if (visible.name == m_name && !isKnown) {
                own.push_back(visible);
            }
        }
        return own;
    }

    void TellOwn(VLayerPlan const& layer) {
        VVisibles const own = Own(layer);
        for (VVisible const& visible : own) {
            m_text += L"\n" + visible.id;
            for (std::size_t step = 1; step < m_way.size(); ++step) {
                m_text += L"<" + m_way[step].layer->name;
            }
            m_text +=
                visible.id != own.front().id ? L" hidden in " + layer.name + L" by " + own.front().id : Follow(visible);
        }
    }

    std::wstring Follow(VVisible const& visible) const {
        for (std::size_t step = m_way.size() - 1; step > 0; --step) {
            VLayerPlan const& heir = *m_way[step - 1].layer;
            int const pass = m_rules.passOf(heir.kind, m_way[step].by->kind);
            if (pass == 0) {
                return L" no pass in " + heir.name;
            }
            VVisible const* const holder = Holder(heir, *m_way[step].by, pass);
            if (holder != nullptr) {
                return L" hidden in " + heir.name + L" by " + holder->id;
            }
            if (m_rules.hasExclusions && Excludes(*m_way[step].by, visible.name)) {
                return L" excluded in " + heir.name;
            }
        }
        return L" visible";
    }

    /// The element that a layer has under the name when its passes come to a PARENT-REF; null for none.
    VVisible const* Holder(VLayerPlan const& heir, VParentPlan const& until, int passUntil) const {
        // The layer with only the PARENT-REFs before this one.
        VLayerPlan before = heir;
        before.parents.clear();
        for (int pass = 1; pass <= passUntil; ++pass) {
            for (VParentPlan const& parent : heir.parents) {
                if (pass == passUntil && &parent == &until) {
                    break;
                }
                if (m_rules.passOf(heir.kind, parent.kind) == pass) {
                    before.parents.push_back(parent);
                }
            }
        }
        m_held = Visible(m_rules, m_graph, before);
        auto const holder =
            std::find_if(m_held.begin(), m_held.end(), [this](VVisible const& held) { return held.name == m_name; });
        return holder != m_held.end() ? &*holder : nullptr;
    }

    VRules const m_rules;
    VGraphPlan const& m_graph;
    std::wstring const m_name;
    std::vector<VNaiveStep> m_way;
    mutable VVisibles m_held;
    std::wstring m_text;
};

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

std::wstring NaiveWays(VNaiveKind kind, VGraphPlan const& graph, std::wstring const& layer, std::wstring const& name) {
    return VNaiveWays(kind, graph, name).From(*graph.Find(layer));
}

std::wstring NaiveElsewhere(VNaiveKind kind, VGraphPlan const& graph, std::wstring const& layer,
                            std::wstring const& name) {
    std::vector<VLayerPlan const*> reached{graph.Find(layer)};
    for (std::size_t index = 0; index < reached.size(); ++index) {
        for (VParentPlan const& parent : reached[index]->parents) {
            VLayerPlan const* const target = graph.Find(parent.target);
            if (LeadsTo(parent, target) && std::find(reached.begin(), reached.end(), target) == reached.end()) {
                reached.push_back(target);
            }
        }
    }
    VRules const rules = RulesOf(kind);
    std::vector<std::wstring> told;
    for (VLayerPlan const* const plan : reached) {
        for (VVisible const& own : rules.own(graph, *plan)) {
            told.push_back(own.id);
        }
    }
    std::wstring text;
    for (VLayerPlan const& plan : graph.layers) {
        bool const isReached = std::find(reached.begin(), reached.end(), &plan) != reached.end();
        for (VVisible const& own : isReached ? VVisibles() : rules.own(graph, plan)) {
            bool const isTold = std::find(told.begin(), told.end(), own.id) != told.end();
            if (own.name == name && own.owner == plan.name && !isTold) {
                told.push_back(own.id);
                text += L"\n" + own.id;
            }
        }
    }
    return text;
}

std::wstring NaiveReasons(VNaiveKind kind, VGraphPlan const& graph, std::wstring const& layer) {
    VRules rules = RulesOf(kind);
    VLayerPlan const& plan = *graph.Find(layer);
    VVisibles const all = rules.own(graph, plan);
    rules.own = kind == VNaiveKind::Dops ? OwnDops : rules.own;
    VVisibles visibles = Visible(rules, graph, plan);
    std::vector<std::wstring> told;
    for (VVisible const& visible : visibles) {
        told.push_back(visible.id);
    }
    std::wstring hidden;
    std::wstring excluded;
    VVisibles held = rules.own(graph, plan);
    auto const tell = [&told](std::wstring& text, std::wstring const& id, std::wstring const& line) {
        if (std::find(told.begin(), told.end(), id) == told.end()) {
            told.push_back(id);
            text += line;
        }
    };
    auto const holderOf = [&held](std::wstring const& name) {
        return std::find_if(held.begin(), held.end(), [&name](VVisible const& other) { return other.name == name; });
    };
    for (VVisible const& own : all) {
        tell(hidden, own.id, L"\nhidden " + own.id + L" by " + holderOf(own.name)->id);
    }
    for (int pass = 1; pass <= 2; ++pass) {
        for (VParentPlan const& parent : plan.parents) {
            VLayerPlan const* const target = graph.Find(parent.target);
            if (!LeadsTo(parent, target) || rules.passOf(plan.kind, parent.kind) != pass) {
                continue;
            }
            for (VVisible const& offer : Visible(rules, graph, *target)) {
                std::wstring const text = offer.id + L"<" + target->name + offer.way;
                if (auto const holder = holderOf(offer.name); holder != held.end()) {
                    tell(hidden, offer.id, L"\nhidden " + text + L" by " + holder->id);
                } else if (rules.hasExclusions && Excludes(parent, offer.name)) {
                    tell(excluded, offer.id, L"\nexcluded " + text);
                } else {
                    held.push_back(offer);
                }
            }
        }
    }
    if (kind == VNaiveKind::Dops) {
        std::sort(visibles.begin(), visibles.end(),
                  [](VVisible const& left, VVisible const& right) { return left.name < right.name; });
    }
    std::wstring text;
    for (VVisible const& visible : visibles) {
        text += L"\n" + visible.id + visible.way;
    }
    return text + hidden + excluded;
}

} // namespace NTest
