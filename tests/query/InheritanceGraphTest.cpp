// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/InheritanceGraph.h>

#include <diagkit/memory/Layers.h>
#include <diagkit/reader/Utf8.h>

#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

using NQuery::VParentRefState;

/// A letter for each state.
constexpr char kStates[] = {'=', '/', '!', '?'};

/// "PROTOCOL UDS, BASE-VARIANT BV": missing targets in brackets.
std::string PrintNodes(NQuery::VInheritanceGraph const& graph) {
    std::string text;
    for (NQuery::VGraphNode const& node : graph.nodes) {
        std::string const printed = NReader::ToUtf8(node.kind) + " " + NReader::ToUtf8(node.name);
        text += (text.empty() ? "" : ", ") + (node.layer != nullptr ? printed : "[" + printed + "]");
    }
    return text;
}

/// "BV=UDS", with the exclusions of an edge: "BV=UDS-2+1" has two DIAG-COMMs and a variable.
std::string PrintEdges(NQuery::VInheritanceGraph const& graph) {
    std::string text;
    for (NQuery::VGraphEdge const& edge : graph.edges) {
        text += (text.empty() ? "" : ", ") + NReader::ToUtf8(graph.nodes[edge.child].name) +
                kStates[static_cast<int>(edge.state)] + NReader::ToUtf8(graph.nodes[edge.parent].name);
        if (edge.excludedDiagComms + edge.excludedVariables > 0) {
            text += "-" + std::to_string(edge.excludedDiagComms) + "+" + std::to_string(edge.excludedVariables);
        }
    }
    return text;
}

class VInheritanceGraphTest : public VReaderTest {
protected:
    NQuery::VInheritanceGraph GraphOf(std::string const& layers) {
        Read(ContainerOfLayers(layers));
        return NQuery::InheritanceGraphOf(Database());
    }

    /// The part around a layer, by its ID.
    NQuery::VInheritanceGraph PartOf(std::string const& layers, wchar_t const* id) {
        NQuery::VInheritanceGraph const graph = GraphOf(layers);
        return NQuery::PartAround(graph, Get<NODX201::VDiagLayer>(id));
    }
};

std::string LayerWith(std::string const& kind, std::string const& id, std::vector<VParentXml> const& parents = {}) {
    return LayerXml(kind, id, parents.empty() ? "" : ParentRefs(parents));
}

/// A family: E and F inherit from B, B from P and G, G from P; H is separate and inherits from P.
std::string Family() {
    return LayerWith("PROTOCOL", "P") + LayerWith("FUNCTIONAL-GROUP", "G", {{"PROTOCOL", "P"}}) +
           LayerWith("BASE-VARIANT", "B", {{"FUNCTIONAL-GROUP", "G"}, {"PROTOCOL", "P"}}) +
           LayerWith("BASE-VARIANT", "H", {{"PROTOCOL", "P"}}) +
           LayerWith("ECU-VARIANT", "E", {{"BASE-VARIANT", "B"}}) +
           LayerWith("ECU-VARIANT", "F", {{"BASE-VARIANT", "B"}});
}

TEST_F(VInheritanceGraphTest, LayersAndParentRefsComeInDocumentOrder) {
    NQuery::VInheritanceGraph const graph = GraphOf(Family());
    EXPECT_EQ(PrintNodes(graph), "PROTOCOL P, FUNCTIONAL-GROUP G, BASE-VARIANT B, BASE-VARIANT H, ECU-VARIANT E, "
                                 "ECU-VARIANT F");
    EXPECT_EQ(PrintEdges(graph), "G=P, B=G, B=P, H=P, E=B, F=B");
    EXPECT_STREQ(graph.nodes.at(0).container->GetShortName(), L"C");
    EXPECT_EQ(graph.edges.at(1).kind, L"FUNCTIONAL-GROUP");
    EXPECT_EQ(graph.edges.at(1).parentRef, &At(Get<NMemory::VMemBaseVariant>(L"B").ParentRefCollection(), 0));
}

TEST_F(VInheritanceGraphTest, ADatabaseWithoutLayersHasAnEmptyGraph) {
    NMemory::VDatabase database;
    NQuery::VInheritanceGraph const graph = NQuery::InheritanceGraphOf(database);
    EXPECT_TRUE(graph.nodes.empty());
    EXPECT_TRUE(graph.edges.empty());
}

TEST_F(VInheritanceGraphTest, ExclusionsAreCountedByKind) {
    std::string const excluded = Excluded("A") + Excluded("B") +
                                 "<NOT-INHERITED-VARIABLES><NOT-INHERITED-VARIABLE><DIAG-VARIABLE-SNREF "
                                 "SHORT-NAME=\"V\"/></NOT-INHERITED-VARIABLE></NOT-INHERITED-VARIABLES>";
    EXPECT_EQ(PrintEdges(GraphOf(LayerWith("BASE-VARIANT", "B") +
                                 LayerWith("ECU-VARIANT", "E", {{"BASE-VARIANT", "B", excluded}}))),
              "E=B-2+1");
}

TEST_F(VInheritanceGraphTest, WhatIsNotThereIsANodeForEachNameAndKind) {
    NQuery::VInheritanceGraph const graph =
        GraphOf(LayerWith("ECU-VARIANT", "E", {{"BASE-VARIANT", "X"}, {"PROTOCOL", "X"}}) +
                LayerWith("ECU-VARIANT", "F", {{"BASE-VARIANT", "X"}}));
    EXPECT_EQ(PrintNodes(graph), "ECU-VARIANT E, ECU-VARIANT F, [BASE-VARIANT X], [PROTOCOL X]");
    EXPECT_EQ(PrintEdges(graph), "E?X, E?X, F?X");
    EXPECT_EQ(graph.edges.at(0).parent, graph.edges.at(2).parent);
    EXPECT_EQ(graph.nodes.at(2).container, nullptr);
}

TEST_F(VInheritanceGraphTest, AParentOfAnotherKindThanTheReferenceSaysIsTold) {
    EXPECT_EQ(PrintEdges(GraphOf(LayerWith("BASE-VARIANT", "B") + LayerWith("ECU-VARIANT", "E", {{"PROTOCOL", "B"}}))),
              "E/B");
}

TEST_F(VInheritanceGraphTest, AParentThatNothingIsInheritedFromIsTold) {
    EXPECT_EQ(PrintEdges(GraphOf(LayerWith("PROTOCOL", "P", {{"BASE-VARIANT", "B"}}) +
                                 LayerWith("BASE-VARIANT", "B", {{"BASE-VARIANT", "B"}}))),
              "P!B, B!B");
    std::string const untyped = "<PARENT-REFS><PARENT-REF ID-REF=\"E\"/></PARENT-REFS>";
    EXPECT_EQ(PrintEdges(GraphOf(LayerWith("ECU-VARIANT", "E") + LayerXml("ECU-VARIANT", "F", untyped))), "F!E");
}

TEST_F(VInheritanceGraphTest, AReferenceWithoutTypeHasTheKindOfItsTarget) {
    std::string const untyped = "<PARENT-REFS><PARENT-REF ID-REF=\"B\"/><PARENT-REF ID-REF=\"X\"/></PARENT-REFS>";
    NQuery::VInheritanceGraph const graph =
        GraphOf(LayerWith("BASE-VARIANT", "B") + LayerXml("ECU-VARIANT", "E", untyped));
    EXPECT_EQ(PrintEdges(graph), "E=B, E?X");
    EXPECT_EQ(graph.edges.at(0).kind, L"BASE-VARIANT");
    EXPECT_EQ(graph.edges.at(1).kind, L"");
}

TEST_F(VInheritanceGraphTest, ALayerThatTwoReferencesNameHasTwoEdges) {
    EXPECT_EQ(PrintEdges(GraphOf(LayerWith("BASE-VARIANT", "B") +
                                 LayerWith("ECU-VARIANT", "E", {{"BASE-VARIANT", "B"}, {"BASE-VARIANT", "B"}}))),
              "E=B, E=B");
}

// The part around a layer

TEST_F(VInheritanceGraphTest, ThePartAroundALayerIsWhatItInheritsFromAndWhatInheritsFromIt) {
    NQuery::VInheritanceGraph const part = PartOf(Family(), L"B");
    EXPECT_EQ(PrintNodes(part), "PROTOCOL P, FUNCTIONAL-GROUP G, BASE-VARIANT B, ECU-VARIANT E, ECU-VARIANT F");
    EXPECT_EQ(PrintEdges(part), "G=P, B=G, B=P, E=B, F=B");
}

TEST_F(VInheritanceGraphTest, ThePartAroundALayerLeavesOutItsSiblings) {
    NQuery::VInheritanceGraph const part = PartOf(Family(), L"E");
    EXPECT_EQ(PrintNodes(part), "PROTOCOL P, FUNCTIONAL-GROUP G, BASE-VARIANT B, ECU-VARIANT E");
    EXPECT_EQ(PrintEdges(part), "G=P, B=G, B=P, E=B");
}

TEST_F(VInheritanceGraphTest, ThePartAroundALayerLeavesOutOtherParentsOfItsHeirs) {
    NQuery::VInheritanceGraph const part =
        PartOf(LayerWith("ECU-SHARED-DATA", "D") + LayerWith("BASE-VARIANT", "B") +
                   LayerWith("ECU-VARIANT", "E", {{"BASE-VARIANT", "B"}, {"ECU-SHARED-DATA", "D"}}),
               L"B");
    EXPECT_EQ(PrintNodes(part), "BASE-VARIANT B, ECU-VARIANT E");
    EXPECT_EQ(PrintEdges(part), "E=B");
}

TEST_F(VInheritanceGraphTest, ThePartAroundALayerShowsWhereItsInheritanceBreaksOff) {
    std::string const layers = LayerWith("PROTOCOL", "P") + LayerWith("BASE-VARIANT", "B", {{"PROTOCOL", "X"}}) +
                               LayerWith("BASE-VARIANT", "A", {{"PROTOCOL", "P"}}) +
                               LayerWith("ECU-VARIANT", "E", {{"BASE-VARIANT", "B"}, {"PROTOCOL", "A"}}) +
                               LayerWith("ECU-VARIANT", "F", {{"BASE-VARIANT", "B"}, {"BASE-VARIANT", "Y"}});
    NQuery::VInheritanceGraph const part = PartOf(layers, L"E");
    EXPECT_EQ(PrintNodes(part), "BASE-VARIANT B, BASE-VARIANT A, ECU-VARIANT E, [PROTOCOL X]");
    EXPECT_EQ(PrintEdges(part), "B?X, E=B, E/A");
    EXPECT_EQ(PrintEdges(PartOf(layers, L"B")), "B?X, E=B, F=B") << "those of its heirs are not its own";
}

TEST_F(VInheritanceGraphTest, ThePartAroundALayerThatTheGraphDoesNotHoldIsEmpty) {
    NQuery::VInheritanceGraph const graph = GraphOf(Family());
    NMemory::VDatabase other;
    EXPECT_TRUE(NQuery::PartAround(graph, other.AddDiagLayerContainer(L"C").AddProtocol(L"P")).nodes.empty());
}

} // namespace
} // namespace NTest
