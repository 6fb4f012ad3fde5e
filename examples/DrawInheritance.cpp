// SPDX-License-Identifier: Apache-2.0

// Prints which layer inherits from which, with broken references, and the part of the graph around one layer:
//
//     draw_inheritance FILE [ID-OF-LAYER]

#include <iostream>
#include <string>

#include <diagkit/Query.h>
#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

std::string TitleOf(NQuery::VGraphNode const& node) {
    return NReader::ToUtf8(node.kind) + (node.layer != nullptr ? " " : " ? ") + NReader::ToUtf8(node.name);
}

char const* NoteOf(NQuery::VParentRefState state) {
    switch (state) {
    case NQuery::VParentRefState::Inherited:
        return "";
    case NQuery::VParentRefState::Contradicting:
        return " (is of another kind than the PARENT-REF says)";
    case NQuery::VParentRefState::NotAllowed:
        return " (nothing can be inherited from it)";
    case NQuery::VParentRefState::Unresolved:
        return " (is not loaded)";
    }
    return "";
}

void Draw(NQuery::VInheritanceGraph const& graph) {
    for (NQuery::VGraphEdge const& edge : graph.edges) {
        std::cout << TitleOf(graph.nodes[edge.child]) << " -> " << TitleOf(graph.nodes[edge.parent])
                  << NoteOf(edge.state);
        if (edge.excludedDiagComms > 0) {
            std::cout << ", without " << edge.excludedDiagComms << " DIAG-COMMs";
        }
        std::cout << '\n';
    }
}

/// The part of the graph around the layer of this ID; all of it when there is none.
NQuery::VInheritanceGraph Around(NQuery::VInheritanceGraph const& graph, std::string const& id) {
    for (NQuery::VGraphNode const& node : graph.nodes) {
        if (node.layer != nullptr && NReader::ToUtf8(node.layer->GetId()) == id) {
            return NQuery::PartAround(graph, *node.layer);
        }
    }
    return graph;
}

int main(int count, char** words) {
    if (count != 2 && count != 3) {
        std::cerr << "usage: draw_inheritance FILE [ID-OF-LAYER]\n";
        return 2;
    }
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    NQuery::VInheritanceGraph const graph = NQuery::InheritanceGraphOf(*result.database);
    Draw(count == 3 ? Around(graph, words[2]) : graph);
    return 0;
}
