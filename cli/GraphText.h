// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/query/InheritanceGraph.h>

namespace NCli {

// An inheritance graph as the text of a language for graphs: a node for each layer, in the containers that they stand
// in, and an arrow from each layer to each of its parents. Kinds of layers differ in colour and shape; broken
// references are red. Names are texts to these languages, whatever they hold.

std::string DotTextOf(NQuery::VInheritanceGraph const& graph);     ///< of Graphviz
std::string MermaidTextOf(NQuery::VInheritanceGraph const& graph); ///< of Mermaid: a flowchart

} // namespace NCli
