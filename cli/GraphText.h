// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/query/InheritanceGraph.h>

namespace NCli {

// An inheritance graph as the text of a language for graphs: a node for each layer, in the containers that they stand
// in, and an arrow from each layer to each of its parents. Kinds of layers differ in colour and shape; broken
// references are red. Names are texts to these languages, whatever they hold. A layer shows its ID where another one of
// the whole graph has its name.

/// In the language of Graphviz.
std::string DotTextOf(NQuery::VInheritanceGraph const& graph, NQuery::VInheritanceGraph const& whole);

/// As a flowchart of Mermaid.
std::string MermaidTextOf(NQuery::VInheritanceGraph const& graph, NQuery::VInheritanceGraph const& whole);

} // namespace NCli
