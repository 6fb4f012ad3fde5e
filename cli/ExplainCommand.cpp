// SPDX-License-Identifier: Apache-2.0
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Commands.h>
#include <cli/ElementFinder.h>
#include <cli/Entry.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/Load.h>
#include <cli/NearNames.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/WhyNot.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/LayerView.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

using NDIAGKIT::VFate;
using NDIAGKIT::VParent;
using NDIAGKIT::VWay;

struct VExplained {
    VArguments const& arguments;
    NMemory::VDatabase& database;
    NODX201::VDiagLayer& layer;
    VInheritedKindRow const& kind;
    std::wstring name;
    NQuery::VExplanation explanation; ///< with the listed candidates alone
    std::string verdict;              ///< of all candidates
    bool isAnywhere;                  ///< the database has the name
};

char const* FateName(VFate fate) {
    switch (fate) {
    case VFate::Hidden:
        return "hidden";
    case VFate::Excluded:
        return "excluded";
    case VFate::NoPass:
        return "no-pass";
    default:
        return "visible";
    }
}

// As JSON.

void WriteStep(VJsonWriter& json, VParent const& step, NMemory::VDatabase const& database) {
    json.Object([&] {
        json.TextOrNull("layer", step.layer.layer->GetShortName());
        json.Member("kind", TagTextOf(*step.layer.layer));
        WritePlaceMembers(json, NQuery::FilePlaceOf(database, *step.parentRef));
    });
}

void WritePlaceOrNull(VJsonWriter& json, NODX201::VOdxElement const* element, NMemory::VDatabase const& database) {
    json.Name("where");
    if (element == nullptr) {
        json.Value(nullptr);
        return;
    }
    json.Object([&] { WritePlaceMembers(json, NQuery::FilePlaceOf(database, *element)); });
}

void WriteCandidate(VJsonWriter& json, VWay const& way, NMemory::VDatabase const& database) {
    json.Object([&] {
        json.Name("entry");
        WriteEntry(json, *way.element);
        WritePlaceMembers(json, NQuery::FilePlaceOf(database, *way.element));
        json.ArrayOf("path", way.path, [&](VParent const& step) { WriteStep(json, step, database); });
        json.Member("fate", FateName(way.fate));
        json.TextOrNull("at", way.at != nullptr ? way.at->GetShortName() : L"");
        WriteEntryOrNull(json, "by", way.by);
        WritePlaceOrNull(json, way.decidedBy, database);
    });
}

void WriteLeftOut(VJsonWriter& json, std::optional<std::uint64_t> leftOut) {
    if (!leftOut.has_value()) {
        json.Member("candidates_left_out", nullptr);
    } else if (*leftOut != 0) {
        json.Member("candidates_left_out", *leftOut);
    }
}

void WriteAsJson(VJsonWriter& json, VExplained const& explained) {
    NQuery::VExplanation const& explanation = explained.explanation;
    json.Object([&] {
        json.Member("kind", explained.arguments.kind);
        json.Member("name", explained.arguments.name);
        json.Name("layer");
        WriteEntry(json, explained.layer);
        WriteEntryOrNull(json, "visible", explanation.visible.has_value() ? explanation.visible->element : nullptr);
        json.ArrayOf("candidates", explanation.candidates,
                     [&](VWay const& way) { WriteCandidate(json, way, explained.database); });
        json.ArrayOf("elsewhere", explanation.elsewhere,
                     [&json](NODX201::VOdxElement const* element) { WriteEntry(json, *element); });
        WriteLeftOut(json, explanation.leftOut);
    });
}

// As text.

std::string Names(std::vector<VParent> const& path, std::size_t count, char const* separator) {
    std::string names;
    for (std::size_t step = 0; step < count; ++step) {
        names += (names.empty() ? "" : separator) + Cut(ShownName(*path[step].layer.layer));
    }
    return names;
}

std::string Possessive(NODX201::VDiagLayer const& layer) {
    std::string const name = ShownName(layer);
    return name + (name.back() == 's' ? "'" : "'s");
}

/// "is Uds's, inherited by way of Bv, Fg"
std::string Verdict(VExplained const& explained) {
    VWay const& way = *explained.explanation.visible;
    NODX201::VDiagLayer const& owner = OwnerOn(way.path, explained.layer);
    NODX201::VDiagLayer const* const home = LayerAround(*way.element);
    bool const isReferred = home != nullptr && home != &owner;
    std::string text = isReferred         ? "is " + Possessive(*home) + ", "
                       : way.path.empty() ? "is its own"
                                          : "is " + Possessive(owner) + ", ";
    if (isReferred) {
        text += way.path.empty() ? fmt::format("by {}", explained.kind.reference)
                                 : fmt::format("by {} of {}, ", explained.kind.reference, ShownName(owner));
    }
    if (way.path.size() == 1) {
        text += "inherited";
    } else if (way.path.size() > 1) {
        text += "inherited by way of " + Names(way.path, way.path.size() - 1, ", ");
    }
    return text;
}

std::string VerdictOf(VExplained const& explained) {
    NQuery::VExplanation const& explanation = explained.explanation;
    if (explanation.visible.has_value()) {
        return Verdict(explained);
    }
    if (!explanation.candidates.empty()) {
        return "is not visible: " + FateOf(NearestOf(explanation.candidates), explained.layer, explained.kind);
    }
    return explanation.elsewhere.empty() ? "is not visible, nor is it anywhere else"
                                         : "is not visible: no PARENT-REF leads to where it is";
}

std::string FateText(VWay const& way) {
    std::string const at = way.at != nullptr ? " in " + ShownName(*way.at) : "";
    if (way.fate != VFate::Hidden) {
        return (way.fate == VFate::NoPass ? "no pass" : FateName(way.fate)) + at;
    }
    NODX201::VDiagLayer const* const winner = LayerAround(*way.by);
    return "hidden" + at +
           (way.by == way.element ? ", where it came before"
            : winner != nullptr   ? " by " + Titled(*winner)
                                  : "");
}

std::string WayText(VWay const& way, VExplained const& explained) {
    NODX201::VDiagLayer const& owner = OwnerOn(way.path, explained.layer);
    std::string const text = way.path.empty() ? "own" : "by way of " + Names(way.path, way.path.size(), " > ");
    return LayerAround(*way.element) == &owner ? text : text + ", " + explained.kind.reference;
}

constexpr std::size_t kNotesColumn = 2;

std::string TitleAround(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerAround(element);
    return layer != nullptr ? Titled(*layer) : "-";
}

void WriteCandidates(VExplained const& explained, VOutput& output) {
    NQuery::VExplanation const& explanation = explained.explanation;
    VColumns columns(kNotesColumn);
    columns.Add({"Of", "Kind", "ID", "Way", "Fate", "Decided at"});
    for (VWay const& way : explanation.candidates) {
        NODX201::VOdxElement const& decisive = way.decidedBy != nullptr ? *way.decidedBy : *way.element;
        columns.Add({TitleAround(*way.element), KindOf(*way.element), ShownOtherId(*way.element),
                     WayText(way, explained), FateText(way), ShownPlace(explained.database, decisive)});
    }
    if (!explanation.candidates.empty()) {
        output.Write(
            fmt::format("\n{}\n", output.Heading(fmt::format("On the way ({})", explanation.candidates.size()))));
        output.Write(columns.FormatWithin(output.Width()));
    }
    if (!explanation.leftOut.has_value()) {
        output.Write("  and more, not counted because PARENT-REFs form cycles; --max-candidates raises the limit\n");
    } else if (*explanation.leftOut != 0) {
        output.Write(fmt::format("  and {} more; --max-candidates raises the limit\n", *explanation.leftOut));
    }
}

void WriteElsewhere(VExplained const& explained, VOutput& output) {
    if (explained.explanation.elsewhere.empty()) {
        return;
    }
    VColumns columns(kNotesColumn);
    for (NODX201::VOdxElement const* const element : explained.explanation.elsewhere) {
        columns.Add({TitleAround(*element), KindOf(*element), ShownOtherId(*element),
                     ShownPlace(explained.database, *element)});
    }
    output.Write(fmt::format("\n{}\n", output.Heading(fmt::format("Elsewhere, where no PARENT-REF leads ({})",
                                                                  explained.explanation.elsewhere.size()))));
    output.Write(columns.FormatWithin(output.Width()));
}

void WriteText(VExplained const& explained, VOutput& output) {
    std::string const verdict = fmt::format("{} in {} {}", explained.name.empty() ? "''" : Shown(explained.name),
                                            ShownName(explained.layer), explained.verdict);
    output.Write(output.Heading(InLines(verdict, output.Width())));
    output.Write("\n");
    WriteCandidates(explained, output);
    WriteElsewhere(explained, output);
}

/// If nothing in the whole database has the name, it may be misspelled.
void ComplainOfUnknownName(VExplained const& explained, VOutput const& output) {
    if (explained.isAnywhere) {
        return;
    }
    std::vector<std::wstring_view> names;
    for (NODX201::VOdxElement const* const entry : NQuery::EntriesOf(explained.layer, explained.kind.kind)) {
        names.emplace_back(entry->GetShortName());
    }
    output.Complain(fmt::format("no {} '{}' in any layer{}", explained.kind.name, Shown(explained.name),
                                NearNote(explained.name, names)));
}

/// What is asked for, as far as the answer lists it. The verdict does not depend on how much that is.
VExplained ExplainedAs(VArguments const& arguments, NMemory::VDatabase& database, NODX201::VDiagLayer& layer,
                       VInheritedKindRow const& kind) {
    std::size_t const most = arguments.maxCandidates;
    std::wstring const name = NReader::FromUtf8(arguments.name);
    VExplained explained{arguments, database, layer, kind, name, {}, "", false};
    NQuery::VExplanation& explanation = explained.explanation;
    explanation = NQuery::Explain(database, layer, kind.kind, name, std::max(most, NDIAGKIT::kMostWays));
    explained.verdict = VerdictOf(explained);
    explained.isAnywhere = !explanation.candidates.empty() || !explanation.elsewhere.empty();
    if (std::vector<VWay>& candidates = explanation.candidates; candidates.size() > most) {
        if (explanation.leftOut.has_value()) {
            *explanation.leftOut += candidates.size() - most;
        }
        candidates.erase(candidates.begin() + static_cast<std::ptrdiff_t>(most), candidates.end());
    }
    return explained;
}

} // namespace

void DeclareExplain(CLI::App& command, VArguments& arguments) {
    DeclareKind(command, arguments, NamesOf(kInheritedKinds), "The kind of element that the name stands for");
    command.add_option("NAME", arguments.name, "The short name")->required()->type_name("");
    DeclareLayer(command, arguments).required();
    DeclareCount(command, "--max-candidates", arguments.maxCandidates, "The most candidates to list");
    DeclareWide(command, arguments);
    DeclareFiles(command, arguments);
}

VStatus RunExplain(VArguments const& arguments, VOutput& output) {
    VInheritedKindRow const* const kind = FittingKind("explain", kInheritedKinds, arguments, output);
    if (kind == nullptr) {
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    NODX201::VDiagLayer* const layer = FindLayer(*result.database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    VExplained const explained = ExplainedAs(arguments, *result.database, *layer, *kind);
    if (arguments.isJson) {
        WriteJson(output, [&explained](VJsonWriter& json) { WriteAsJson(json, explained); });
    } else {
        WriteText(explained, output);
    }
    ComplainOfUnknownName(explained, output);
    return explained.explanation.visible.has_value() ? VStatus::Done : VStatus::NotThere;
}

} // namespace NCli
