// SPDX-License-Identifier: Apache-2.0

// The views compared with a naive implementation of the rules: on all graphs of up to four layers, and on larger random
// ones.

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/Graph.h"
#include "support/GraphText.h"
#include "support/NaiveInheritance.h"
#include "support/ParentRefsOf.h"
#include "support/PrintView.h"
#include "support/RandomGraph.h"

namespace NTest {
namespace {

using NMemory::VReference;

/// All orderings of all subsets of the layers 0 to count-1: the ways to reference them.
std::vector<std::vector<int>> ParentLists(int count) {
    std::vector<std::vector<int>> lists{{}};
    for (std::size_t next = 0; next < lists.size(); ++next) {
        for (int parent = 0; parent < count; ++parent) {
            std::vector<int> list = lists[next];
            if (std::find(list.begin(), list.end(), parent) == list.end()) {
                list.push_back(parent);
                lists.push_back(list);
            }
        }
    }
    return lists;
}

/// Calls back for every graph of `count` layers: every kind for every layer, every list of parents among the layers
/// before it, whether or not ODX allows them. Every graph without cycles is one of these. Graphs in which the last
/// layer does not reach all others are left out: its view is that of a smaller graph.
class VAllGraphs {
public:
    explicit VAllGraphs(int count) : m_count(count) {
        for (int before = 0; before < count; ++before) {
            m_parentLists.push_back(ParentLists(before));
        }
    }

    template <class Callback>
    void ForEach(VKind lastKind, Callback callback) {
        m_plan.layers.clear();
        Extend(lastKind, callback);
    }

private:
    static std::wstring NameOf(int layer) { return std::wstring(1, static_cast<wchar_t>(L'A' + layer)); }

    template <class Callback>
    void Extend(VKind lastKind, Callback& callback) {
        int const layer = static_cast<int>(m_plan.layers.size());
        if (layer == m_count) {
            if (IsAllReached()) {
                callback(m_plan);
            }
            return;
        }
        for (VKind const kind : kKinds) {
            if (layer == m_count - 1 && kind != lastKind) {
                continue;
            }
            for (std::vector<int> const& parents : m_parentLists[static_cast<std::size_t>(layer)]) {
                if (kind != VKind::EcuSharedData || parents.empty()) {
                    m_plan.layers.push_back(Layer(layer, kind, parents));
                    Extend(lastKind, callback);
                    m_plan.layers.pop_back();
                }
            }
        }
    }

    VLayerPlan Layer(int layer, VKind kind, std::vector<int> const& parents) const {
        VLayerPlan plan{kind, NameOf(layer)};
        plan.hasOwn = true;
        plan.own.push_back({VOwnPlan::VForm::Service, L"x", plan.name + L".x"});
        for (int const parent : parents) {
            VKind const parentKind = m_plan.layers[static_cast<std::size_t>(parent)].kind;
            plan.parents.push_back({RefKindFor(parentKind), NameOf(parent), true, {{L"x"}}});
            plan.hasParents = true;
        }
        return plan;
    }

    bool IsAllReached() const {
        unsigned reached = 1u << (m_count - 1);
        for (int layer = m_count - 1; layer >= 0; --layer) {
            if ((reached & 1u << layer) == 0) {
                return false;
            }
            for (VParentPlan const& parent : m_plan.layers[static_cast<std::size_t>(layer)].parents) {
                reached |= 1u << (parent.target[0] - L'A');
            }
        }
        return true;
    }

    int m_count;
    std::vector<std::vector<std::vector<int>>> m_parentLists;
    VGraphPlan m_plan;
};

/// One graph whose names and exclusions change, in the plan and in the database built from it.
class VChangingGraph {
public:
    explicit VChangingGraph(VGraphPlan const& plan) : m_plan(plan), m_graph(plan) {
        for (VLayerPlan& layer : m_plan.layers) {
            m_own.push_back(&dynamic_cast<NMemory::VMemDiagService&>(m_graph.DiagComm(layer.own[0].id)));
            FindExclusions(layer);
        }
    }

    unsigned LayerCount() const { return static_cast<unsigned>(m_own.size()); }
    unsigned ReferenceCount() const { return static_cast<unsigned>(m_exclusions.size()); }
    VGraphPlan const& Plan() const { return m_plan; }

    /// Layers in the set have a DIAG-COMM "x", the others one with a name that no other layer has.
    void SetNames(unsigned layersOfX) {
        for (unsigned layer = 0; layer < LayerCount(); ++layer) {
            std::wstring& name = m_plan.layers[layer].own[0].name;
            name = (layersOfX >> layer & 1u) != 0 ? L"x" : L"own" + m_plan.layers[layer].name;
            m_own[layer]->SetShortName(name.c_str());
        }
    }

    /// References in the set exclude "x", the others a name that does not exist.
    void SetExclusions(unsigned referencesWithoutX) {
        for (unsigned reference = 0; reference < ReferenceCount(); ++reference) {
            auto const& [planned, link] = m_exclusions[reference];
            planned->name = (referencesWithoutX >> reference & 1u) != 0 ? L"x" : L"nothing";
            link->SetReference(VReference::ByShortName(planned->name.c_str()));
        }
    }

    std::wstring Shown() { return PrintDiagComms(m_graph.Layer(m_plan.layers.back().name)); }
    std::wstring Expected() const { return NaiveDiagComms(m_plan, m_plan.layers.back().name); }

private:
    void FindExclusions(VLayerPlan& layer) {
        auto planned = layer.parents.begin();
        NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(m_graph.Layer(layer.name));
        if (parentRefs == nullptr) {
            return;
        }
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            NODX201::VNotInheritedDiagComm& excluded = *parentRef.NotInheritedDiagCommCollection().Begin();
            m_exclusions.emplace_back(&(planned++)->exclusions[0],
                                      &dynamic_cast<NMemory::VMemDiagCommLink&>(excluded.GetDiagCommSnref()));
        }
    }

    VGraphPlan m_plan;
    VGraph m_graph;
    std::vector<NMemory::VMemDiagService*> m_own;
    std::vector<std::pair<VExclusionPlan*, NMemory::VMemDiagCommLink*>> m_exclusions;
};

/// Compares one state of the graph; false when it differs, which has failed the test.
bool IsAsExpected(VChangingGraph& graph) {
    std::wstring const shown = graph.Shown();
    if (shown == graph.Expected()) {
        return true;
    }
    ADD_FAILURE() << "of the layer that stands last in\n"
                  << GraphText(graph.Plan()) << "shown:    " << shown << "\nexpected: " << graph.Expected();
    return false;
}

/// All names, all exclusions.
bool CompareAllStates(VChangingGraph& graph) {
    for (unsigned layers = 0; layers < 1u << graph.LayerCount(); ++layers) {
        graph.SetNames(layers);
        for (unsigned references = 0; references < 1u << graph.ReferenceCount(); ++references) {
            graph.SetExclusions(references);
            if (!IsAsExpected(graph)) {
                return false;
            }
        }
    }
    return true;
}

/// All names, each once without exclusions and once with a set of them that changes from graph to graph.
bool CompareSomeStates(VChangingGraph& graph, unsigned& references) {
    for (unsigned layers = 0; layers < 1u << graph.LayerCount(); ++layers) {
        graph.SetNames(layers);
        for (unsigned const chosen : {0u, references++}) {
            graph.SetExclusions(chosen);
            if (!IsAsExpected(graph)) {
                return false;
            }
        }
    }
    return true;
}

class DiagCommViewAllGraphsTest : public testing::TestWithParam<VKind> {
protected:
    /// Passes every graph with this number of layers to `compare` until one fails; returns their number.
    template <class Compare>
    int CompareAll(int layerCount, Compare compare) {
        int graphs = 0;
        bool isGood = true;
        VAllGraphs(layerCount).ForEach(GetParam(), [&](VGraphPlan const& plan) {
            ++graphs;
            if (isGood) {
                VChangingGraph graph(plan);
                isGood = compare(graph);
            }
        });
        return graphs;
    }

    bool HasParents() const { return GetParam() != VKind::EcuSharedData; }
};

// The numbers of graphs follow from the numbers of parent lists: with k layers before it, a layer has 1, 2, 5 or 16
// lists in each of four kinds, and one list as an ECU-SHARED-DATA; those that leave a layer unreached are taken off.

TEST_P(DiagCommViewAllGraphsTest, OfOneLayer) { EXPECT_EQ(CompareAll(1, CompareAllStates), 1); }

TEST_P(DiagCommViewAllGraphsTest, OfTwoLayers) { EXPECT_EQ(CompareAll(2, CompareAllStates), HasParents() ? 5 : 0); }

TEST_P(DiagCommViewAllGraphsTest, OfThreeLayers) { EXPECT_EQ(CompareAll(3, CompareAllStates), HasParents() ? 110 : 0); }

TEST_P(DiagCommViewAllGraphsTest, OfFourLayers) {
    unsigned references = 1;
    auto const compare = [&](VChangingGraph& graph) { return CompareSomeStates(graph, references); };
    EXPECT_EQ(CompareAll(4, compare), HasParents() ? 8630 : 0);
}

std::string NameOfKind(testing::TestParamInfo<VKind> const& kind) {
    static constexpr char const* kNames[] = {"EcuSharedData", "Protocol", "FunctionalGroup", "BaseVariant",
                                             "EcuVariant"};
    return kNames[static_cast<int>(kind.param)];
}

INSTANTIATE_TEST_SUITE_P(SeenFrom, DiagCommViewAllGraphsTest, testing::ValuesIn(kKinds), NameOfKind);

TEST(DiagCommViewRandomGraphsTest, SeveralThousandGraphs) {
    for (std::uint32_t seed = 1; seed <= 10000; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        VGraph graph(plan);
        for (VLayerPlan const& layer : plan.layers) {
            ASSERT_EQ(PrintDiagComms(graph.Layer(layer.name)), NaiveDiagComms(plan, layer.name))
                << "layer " << layer.name << ", seed " << seed << ", graph\n"
                << GraphText(plan);
        }
    }
}

} // namespace
} // namespace NTest
