// SPDX-License-Identifier: Apache-2.0
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/ElementFinder.h>
#include <cli/Entry.h>
#include <cli/GraphText.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/RunProgram.h>
#include <cli/Text.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/InheritanceGraph.h>

namespace NCli {
namespace {

using NQuery::VParentRefState;

char const* StateText(VParentRefState state) {
    switch (state) {
    case VParentRefState::Inherited:
        return "inherited";
    case VParentRefState::Contradicting:
        return "contradicting";
    case VParentRefState::NotAllowed:
        return "not-allowed";
    case VParentRefState::Unresolved:
        return "unresolved";
    }
    return "";
}

void WriteNode(VJsonWriter& json, NQuery::VGraphNode const& node) {
    json.Object([&] {
        json.TextOrNull("short_name", node.layer != nullptr ? std::wstring_view(node.name) : std::wstring_view());
        json.TextOrNull("kind", node.kind);
        json.TextOrNull("id", node.layer != nullptr ? std::wstring_view(node.layer->GetId()) : node.name);
        json.TextOrNull("container", node.container != nullptr ? node.container->GetShortName() : L"");
        json.Member("resolved", node.layer != nullptr);
    });
}

void WriteEdge(VJsonWriter& json, NMemory::VDatabase const& database, NQuery::VGraphEdge const& edge) {
    json.Object([&] {
        json.Member("child", edge.child);
        json.Member("parent", edge.parent);
        json.TextOrNull("kind", edge.kind);
        json.Member("state", StateText(edge.state));
        json.Member("excluded_diag_comms", edge.excludedDiagComms);
        json.Member("excluded_variables", edge.excludedVariables);
        WritePlaceMembers(json, NQuery::FilePlaceOf(database, *edge.parentRef));
    });
}

void WriteGraph(VJsonWriter& json, NMemory::VDatabase const& database, NQuery::VInheritanceGraph const& graph) {
    json.Object([&] {
        json.ArrayOf("nodes", graph.nodes, [&json](NQuery::VGraphNode const& node) { WriteNode(json, node); });
        json.ArrayOf("edges", graph.edges, [&](NQuery::VGraphEdge const& edge) { WriteEdge(json, database, edge); });
    });
}

std::string FirstLineOf(std::string const& text) { return Shown(std::string_view(text).substr(0, text.find('\n'))); }

/// Lets Graphviz draw the graph.
VStatus WriteSvg(NQuery::VInheritanceGraph const& graph, NQuery::VInheritanceGraph const& whole, VOutput& output) {
    VProgramRun const run = RunProgram({"dot", "-Tsvg"}, DotTextOf(graph, whole));
    switch (run.outcome) {
    case VProgramRun::VOutcome::Done:
        output.Write(run.output);
        return VStatus::Done;
    case VProgramRun::VOutcome::NotFound:
        output.Complain("SVG output requires the program 'dot' of Graphviz, which is not in PATH; install it, or use "
                        "--format dot or --format mermaid");
        return VStatus::Unreadable;
    case VProgramRun::VOutcome::Failed:
        break;
    }
    std::string const reason = FirstLineOf(run.errors);
    output.Complain(fmt::format("the program 'dot' of Graphviz failed{}{}; --format dot prints its input",
                                reason.empty() ? "" : ": ", reason));
    return VStatus::Unreadable;
}

} // namespace

void DeclareGraph(CLI::App& command, VArguments& arguments) {
    DeclareFiles(command, arguments);
    DeclareLayer(command, arguments)
        .description("Only what this layer inherits from and what inherits from it: its short name or ID, or "
                     "CONTAINER/LAYER");
    DeclareChoice(command, arguments, "--format", arguments.format, {"svg", "dot", "mermaid"},
                  "Output format: svg (the default; requires Graphviz), dot or mermaid");
}

VStatus RunGraph(VArguments const& arguments, VOutput& output) {
    if (arguments.isJson && !arguments.format.empty()) {
        output.Complain("--json and --format " + arguments.format + " exclude each other; see --help");
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    NQuery::VInheritanceGraph const whole = NQuery::InheritanceGraphOf(*result.database);
    NQuery::VInheritanceGraph graph = whole;
    if (!arguments.layer.empty()) {
        NODX201::VDiagLayer const* const layer = FindLayer(*result.database, arguments.layer, output);
        if (layer == nullptr) {
            return VStatus::NotThere;
        }
        graph = NQuery::PartAround(whole, *layer);
    }
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { WriteGraph(json, *result.database, graph); });
    } else if (arguments.format == "dot") {
        output.Write(DotTextOf(graph, whole));
    } else if (arguments.format == "mermaid") {
        output.Write(MermaidTextOf(graph, whole));
    } else {
        return WriteSvg(graph, whole, output);
    }
    return VStatus::Done;
}

} // namespace NCli
