// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/query/InheritanceGraph.h>

namespace NCli {

// An inheritance graph as the text of a graph language: a node for each layer, in its container, and an arrow from each
// layer to each of its parents. Kinds of layers differ in colour and shape; broken references are red. Names are
// escaped, so that they are always plain text. A layer shows its ID where another one of the whole graph has the same
// name.

/// In the language of Graphviz.
std::string DotTextOf(NQuery::VInheritanceGraph const& graph, NQuery::VInheritanceGraph const& whole);

/// As a flowchart of Mermaid.
std::string MermaidTextOf(NQuery::VInheritanceGraph const& graph, NQuery::VInheritanceGraph const& whole);

} // namespace NCli
