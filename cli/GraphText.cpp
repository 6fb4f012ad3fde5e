// SPDX-License-Identifier: Apache-2.0
#include <cli/GraphText.h>

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

using NQuery::VGraphEdge;
using NQuery::VGraphNode;
using NQuery::VInheritanceGraph;
using NQuery::VParentRefState;

/// The style of the nodes of a kind: in Graphviz their attributes; in Mermaid the brackets around their text, the name
/// of their style, and the style.
struct VLook {
    std::wstring_view kind;
    char const* dot;
    char const* open;
    char const* close;
    char const* style;
    char const* colours;
};

// clang-format off
constexpr std::array kLooks{
    VLook{L"PROTOCOL",         R"(shape=box, peripheries=2, fillcolor="#d5e8d4")", "[[", "]]", "protocol",        "fill:#d5e8d4,stroke:#000,color:#000"},
    VLook{L"FUNCTIONAL-GROUP", R"(shape=hexagon, fillcolor="#e1d5e7")",            "{{", "}}", "functionalGroup", "fill:#e1d5e7,stroke:#000,color:#000"},
    VLook{L"BASE-VARIANT",     R"(shape=ellipse, fillcolor="#dae8fc")",            "([", "])", "baseVariant",     "fill:#dae8fc,stroke:#000,color:#000"},
    VLook{L"ECU-VARIANT",      R"(shape=box, fillcolor="#fff2cc")",                "[",  "]",  "ecuVariant",      "fill:#fff2cc,stroke:#000,color:#000"},
    VLook{L"ECU-SHARED-DATA",  R"(shape=cylinder, fillcolor="#eeeeee")",           "[(", ")]", "ecuSharedData",   "fill:#eeeeee,stroke:#000,color:#000"},
    VLook{L"",                 R"(shape=note, color=red, fontcolor=red, fillcolor="#ffffff")", ">", "]", "absent", "fill:#ffffff,stroke:#f00,color:#f00"},
};
// clang-format on

VLook const& LookOf(VGraphNode const& node) {
    std::wstring_view const kind = node.layer != nullptr ? std::wstring_view(node.kind) : std::wstring_view();
    auto const found =
        std::find_if(kLooks.begin(), kLooks.end(), [kind](VLook const& look) { return look.kind == kind; });
    return found != kLooks.end() ? *found : kLooks.back();
}

/// How many layers of a graph have each short name.
using VNameCounts = std::map<std::wstring_view, std::size_t>;

VNameCounts NameCountsOf(VInheritanceGraph const& graph) {
    VNameCounts counts;
    for (VGraphNode const& node : graph.nodes) {
        counts[node.name] += node.layer != nullptr ? 1 : 0;
    }
    return counts;
}

/// The lines of a node: its name, its kind, and its ID where the name is not unique.
std::vector<std::string> LinesOf(VGraphNode const& node, VNameCounts const& counts) {
    bool const isThere = node.layer != nullptr;
    std::vector<std::string> lines{isThere ? ShownName(*node.layer) : "? " + Shown(node.name)};
    if (!node.kind.empty()) {
        lines.push_back(NReader::ToUtf8(node.kind));
    }
    if (isThere && (node.name.empty() || counts.at(node.name) > 1)) {
        lines.push_back(ShownId(*node.layer));
    }
    return lines;
}

bool IsBroken(VGraphEdge const& edge) { return edge.state != VParentRefState::Inherited; }

/// The label of an arrow; "" for none.
std::string LabelOf(VGraphEdge const& edge) {
    std::size_t const excluded = edge.excludedDiagComms + edge.excludedVariables;
    switch (edge.state) {
    case VParentRefState::Inherited:
        return excluded > 0 ? fmt::format("{} excluded", excluded) : "";
    case VParentRefState::Contradicting:
        return "no " + NReader::ToUtf8(edge.kind);
    case VParentRefState::NotAllowed:
        return "nothing inherited";
    case VParentRefState::Unresolved:
        return "unresolved";
    }
    return "";
}

/// Lines as one text in quotes.
template <class Language>
std::string InQuotes(std::vector<std::string> const& lines) {
    std::string text = "\"";
    for (std::string const& line : lines) {
        text += text.size() > 1 ? Language::kLineEnd : "";
        text += Language::Escaped(line);
    }
    return text += '"';
}

/// The language of Graphviz.
struct VDot {
    // Drawn upwards, top and bottom of a container are exchanged.
    static constexpr char const* kStart = "digraph inheritance {\n"
                                          "  rankdir=BT\n"
                                          "  labelloc=b\n"
                                          "  labeljust=l\n"
                                          "  fontname=\"sans-serif\"\n"
                                          "  node [style=filled, fontname=\"sans-serif\"]\n"
                                          "  edge [fontname=\"sans-serif\"]\n";
    static constexpr char const* kLineEnd = "\\n";
    static constexpr char const* kContainerEnd = "  }\n";

    /// A backslash begins an escape sequence and '&' a character reference.
    static std::string Escaped(std::string_view text) {
        std::string escaped;
        for (char const character : text) {
            escaped += character == '"' || character == '\\' ? "\\" : "";
            escaped += character;
            escaped += character == '&' ? "amp;" : "";
        }
        return escaped;
    }

    static std::string ContainerStart(std::size_t number, std::string const& title) {
        return fmt::format("  subgraph cluster{} {{\n    label={}\n", number, title);
    }
    static std::string Node(std::size_t number, std::string const& title, VLook const& look) {
        return fmt::format("n{} [label={}, {}]\n", number, title, look.dot);
    }
    static std::string Edge(VGraphEdge const& edge) {
        std::string const label = LabelOf(edge);
        std::string attributes = label.empty() ? "" : " [label=" + InQuotes<VDot>({label});
        attributes += IsBroken(edge) ? ", color=red, fontcolor=red, style=dashed" : "";
        return fmt::format("  n{} -> n{}{}{}\n", edge.child, edge.parent, attributes, attributes.empty() ? "" : "]");
    }
    static std::string End(VInheritanceGraph const&) { return "}\n"; }
};

/// The flowcharts of Mermaid.
struct VMermaid {
    static constexpr char const* kStart = "flowchart BT\n";
    static constexpr char const* kLineEnd = "<br/>";
    static constexpr char const* kContainerEnd = "  end\n";

    /// Many characters are special, also in quotes; every character may be written by its number.
    static std::string Escaped(std::string_view text) {
        constexpr std::string_view kPlain = " -.,?_0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
        std::string escaped;
        for (char const character : text) {
            bool const isAscii = static_cast<unsigned char>(character) < 0x80;
            bool const isPlain = !isAscii || kPlain.find(character) != std::string_view::npos;
            escaped += isPlain ? std::string(1, character) : fmt::format("#{};", static_cast<int>(character));
        }
        return escaped;
    }

    static std::string ContainerStart(std::size_t number, std::string const& title) {
        return fmt::format("  subgraph c{}[{}]\n", number, title);
    }
    static std::string Node(std::size_t number, std::string const& title, VLook const& look) {
        return fmt::format("n{}{}{}{}:::{}\n", number, look.open, title, look.close, look.style);
    }
    static std::string Edge(VGraphEdge const& edge) {
        std::string const label = LabelOf(edge);
        return fmt::format("  n{} {}{} n{}\n", edge.child, IsBroken(edge) ? "-.->" : "-->",
                           label.empty() ? "" : "|" + InQuotes<VMermaid>({label}) + "|", edge.parent);
    }
    static std::string End(VInheritanceGraph const& graph) {
        std::string text;
        for (VLook const& look : kLooks) {
            text += fmt::format("  classDef {} {}\n", look.style, look.colours);
        }
        std::string broken;
        for (std::size_t index = 0; index < graph.edges.size(); ++index) {
            if (IsBroken(graph.edges[index])) {
                broken += fmt::format("{}{}", broken.empty() ? "" : ",", index);
            }
        }
        return broken.empty() ? text : text + fmt::format("  linkStyle {} stroke:#f00,color:#f00\n", broken);
    }
};

template <class Language>
std::string NodesIn(VInheritanceGraph const& graph, VNameCounts const& counts) {
    NODX201::VDiagLayerContainer const* container = nullptr;
    std::size_t containers = 0;
    std::string text;
    for (std::size_t number = 0; number < graph.nodes.size(); ++number) {
        VGraphNode const& node = graph.nodes[number];
        if (node.container != container) {
            text += container != nullptr ? Language::kContainerEnd : "";
            container = node.container;
            text += container != nullptr
                        ? Language::ContainerStart(containers++, InQuotes<Language>({ShownName(*container)}))
                        : "";
        }
        text += container != nullptr ? "    " : "  ";
        text += Language::Node(number, InQuotes<Language>(LinesOf(node, counts)), LookOf(node));
    }
    return container != nullptr ? text + Language::kContainerEnd : text;
}

template <class Language>
std::string TextIn(VInheritanceGraph const& graph, VInheritanceGraph const& whole) {
    std::string text = Language::kStart + NodesIn<Language>(graph, NameCountsOf(whole));
    for (VGraphEdge const& edge : graph.edges) {
        text += Language::Edge(edge);
    }
    return text + Language::End(graph);
}

} // namespace

std::string DotTextOf(VInheritanceGraph const& graph, VInheritanceGraph const& whole) {
    return TextIn<VDot>(graph, whole);
}
std::string MermaidTextOf(VInheritanceGraph const& graph, VInheritanceGraph const& whole) {
    return TextIn<VMermaid>(graph, whole);
}

} // namespace NCli
