// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cstdio>
#include <optional>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/DiffText.h>
#include <cli/ElementFinder.h>
#include <cli/Entry.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/ProgressBar.h>
#include <cli/Text.h>
#include <diagkit/query/Diff.h>
#include <diagkit/reader/Folder.h>

namespace NCli {
namespace {

using NQuery::VDiff;
using NQuery::VDiffOptions;

struct VIgnored {
    char const* word;
    bool VDiffOptions::*option;
};
constexpr VIgnored kIgnored[] = {
    {"long-names", &VDiffOptions::ignoresLongNames},
    {"descriptions", &VDiffOptions::ignoresDescriptions},
    {"admin-data", &VDiffOptions::ignoresAdminData},
    {"order", &VDiffOptions::ignoresOrder},
};

/// The files of both sides; the same for two layers of one database.
struct VSides {
    std::vector<std::string> old;
    std::vector<std::string> now;
};

/// The results of reading them.
struct VRead {
    NReader::VReadResult const& old;
    NReader::VReadResult const& now;
};

/// The usage error of the call; null when there is none.
char const* WrongCall(VArguments const& arguments) {
    bool const hasSides = !arguments.oldFiles.empty() || !arguments.newFiles.empty();
    if (!arguments.toLayer.empty()) {
        return hasSides || arguments.files.empty() || arguments.layers.size() != 1
                   ? "diff --to-layer takes FILE... of one database and one --layer"
                   : nullptr;
    }
    if (!hasSides) {
        return arguments.files.size() != 2 ? "diff takes OLD and NEW, or --old FILE... and --new FILE..." : nullptr;
    }
    return !arguments.files.empty() || arguments.oldFiles.empty() || arguments.newFiles.empty()
               ? "diff takes --old FILE... and --new FILE... together, and no other FILE"
               : nullptr;
}

std::vector<std::string> ExpandedFiles(std::vector<std::string> const& names) {
    std::vector<std::string> files;
    for (std::string const& name : names) {
        std::vector<std::string> const of = NReader::FilesOf(name);
        files.insert(files.end(), of.begin(), of.end());
    }
    return files;
}

VSides SidesOf(VArguments const& arguments) {
    if (!arguments.toLayer.empty()) {
        std::vector<std::string> const files = ExpandedFiles(arguments.files);
        return {files, files};
    }
    if (arguments.files.empty()) {
        return {ExpandedFiles(arguments.oldFiles), ExpandedFiles(arguments.newFiles)};
    }
    return {ExpandedFiles({arguments.files.front()}), ExpandedFiles({arguments.files.back()})};
}

/// Reads the files of one side; the message names the side when they cannot be read.
VStatus LoadSide(VArguments const& arguments, char const* side, std::vector<std::string> const& files,
                 VOutput const& output, NReader::VReadResult& result) {
    VArguments one = arguments;
    one.files = files;
    VStatus const status = Load(one, output, result);
    if (status != VStatus::Done && !arguments.isQuiet) {
        output.Complain(fmt::format("the {} database cannot be used", side));
    }
    return status;
}

char const* TextOf(NQuery::VChangeKind kind) {
    static constexpr char const* kTexts[] = {"added", "removed", "renamed", "changed", "moved"};
    return kTexts[static_cast<std::size_t>(kind)];
}

void WriteTextOrNull(VJsonWriter& json, char const* name, std::optional<std::wstring> const& text) {
    json.Name(name);
    if (text.has_value()) {
        json.Value(std::wstring_view(*text));
    } else {
        json.Value(nullptr);
    }
}

void WriteDetail(VJsonWriter& json, NQuery::VDetail const& detail) {
    json.Object([&] {
        json.Member("path", std::wstring_view(detail.path));
        WriteTextOrNull(json, "old", detail.oldText);
        WriteTextOrNull(json, "new", detail.newText);
    });
}

void WriteChange(VJsonWriter& json, NQuery::VChange const& change) {
    json.Object([&] {
        json.TextOrNull("short_name", change.shortName);
        json.Member("change", TextOf(change.kind));
        json.TextOrNull("was", change.was != nullptr ? change.was : L"");
        WriteEntryOrNull(json, "old", change.oldElement);
        WriteEntryOrNull(json, "new", change.newElement);
        json.Array("details", [&] {
            if (change.details != nullptr) {
                for (NQuery::VDetail const& detail : *change.details) {
                    WriteDetail(json, detail);
                }
            }
        });
    });
}

void WriteLayer(VJsonWriter& json, NQuery::VLayerChange const& layer, bool areTwoLayers) {
    NODX201::VDiagLayer const& known = layer.newLayer != nullptr ? *layer.newLayer : *layer.oldLayer;
    bool const hasOtherName = areTwoLayers || layer.kind == NQuery::VChangeKind::Renamed;
    json.Object([&] {
        json.TextOrNull("layer", known.GetShortName());
        json.Member("kind", TagTextOf(known));
        json.Member("change", TextOf(layer.kind));
        json.TextOrNull("was", hasOtherName ? layer.oldLayer->GetShortName() : L"");
        json.ArrayOf("views", layer.views, [&json](NQuery::VViewChanges const& view) {
            json.Object([&] {
                json.Member("view", NQuery::NameOf(view.view));
                json.ArrayOf("changes", view.changes,
                             [&json](NQuery::VChange const& change) { WriteChange(json, change); });
            });
        });
    });
}

void WriteAsJson(VJsonWriter& json, VSides const& sides, VDiff const& diff, bool areTwoLayers) {
    auto const writeFile = [&json](std::string const& file) { json.Value(std::string_view(file)); };
    json.Object([&] {
        json.ArrayOf("old", sides.old, writeFile);
        json.ArrayOf("new", sides.now, writeFile);
        json.Member("equal", diff.IsEqual());
        json.ArrayOf("layers", diff.layers,
                     [&](NQuery::VLayerChange const& layer) { WriteLayer(json, layer, areTwoLayers); });
    });
}

/// Flash data, vehicle information, COMPARAM-SPECs and jobs of several ECUs: no layer's view shows what is in them.
std::size_t CountWithoutLayers(NReader::VReadResult const& result) {
    return static_cast<std::size_t>(
        std::count_if(result.documents.begin(), result.documents.end(), [](NReader::VDocumentInfo const& document) {
            return document.category != "DIAG-LAYER-CONTAINER";
        }));
}

void TellOfDocumentsWithoutLayers(std::size_t old, std::size_t now, VOutput const& output) {
    std::string sides;
    for (auto const& [count, side] : {std::pair(old, "old"), std::pair(now, "new")}) {
        sides += count > 0 ? fmt::format("{}{} of the {} database", sides.empty() ? "" : ", ", count, side) : "";
    }
    if (!sides.empty()) {
        output.Complain("not compared: documents without layers, " + sides);
    }
}

/// What was looked at and could not be compared, on standard error.
void TellWhatWasNotCompared(VDiff const& diff, VRead const& read, VArguments const& arguments, VOutput const& output) {
    if (arguments.isQuiet) {
        return;
    }
    auto const tell = [&output](std::size_t count, char const* noun, char const* side, char const* what) {
        if (count > 0) {
            output.Complain(fmt::format("not compared: {}{} {}", Counted(count, noun), side, what));
        }
    };
    bool const isOneDatabase = &read.old == &read.now;
    char const* const old = isOneDatabase ? "" : " of the old database";
    char const* const now = isOneDatabase ? "" : " of the new database";
    if (!isOneDatabase) {
        TellOfDocumentsWithoutLayers(CountWithoutLayers(read.old), CountWithoutLayers(read.now), output);
    }
    constexpr char const* kUnknown = "without a place in the model";
    tell(CountWithoutPlace(read.old), "element", old, kUnknown);
    tell(isOneDatabase ? 0 : CountWithoutPlace(read.now), "element", now, kUnknown);
    tell(diff.unresolvedOld, "reference", isOneDatabase ? " of the first layer" : old, "to nothing");
    tell(diff.unresolvedNew, "reference", isOneDatabase ? " of the second layer" : now, "to nothing");
    tell(diff.tooDeep, "element", "", "inside too many others");
    tell(diff.cutDetails, "change", "", "beyond the details that are told");
}

VStatus Answer(VArguments const& arguments, VRead const& read, VSides const& sides, VDiff const& diff,
               VOutput& output) {
    TellWhatWasNotCompared(diff, read, arguments, output);
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { WriteAsJson(json, sides, diff, !arguments.toLayer.empty()); });
    } else {
        WriteDiff(diff, output);
    }
    return diff.IsEqual() ? VStatus::Done : VStatus::NotThere;
}

VDiffOptions OptionsOf(VArguments const& arguments) {
    VDiffOptions options;
    options.comparesIds = arguments.comparesIds;
    for (VIgnored const& row : kIgnored) {
        options.*row.option =
            std::find(arguments.ignored.begin(), arguments.ignored.end(), row.word) != arguments.ignored.end();
    }
    return options;
}

VStatus DiffTwoLayers(VArguments const& arguments, VSides const& sides, VOutput& output) {
    NReader::VReadResult result;
    VArguments one = arguments;
    one.files = sides.old;
    if (VStatus const status = Load(one, output, result); status != VStatus::Done) {
        return status;
    }
    NODX201::VDiagLayer* const old = FindLayer(*result.database, arguments.layers.front(), output);
    NODX201::VDiagLayer* const now = old != nullptr ? FindLayer(*result.database, arguments.toLayer, output) : nullptr;
    if (now == nullptr) {
        return VStatus::NotThere;
    }
    return Answer(arguments, {result, result}, sides, NQuery::DiffLayers(*old, *now, OptionsOf(arguments)), output);
}

VStatus DiffTwoDatabases(VArguments const& arguments, VSides const& sides, VOutput& output) {
    NReader::VReadResult old;
    NReader::VReadResult now;
    VStatus const oldStatus = LoadSide(arguments, "old", sides.old, output, old);
    VStatus const newStatus = LoadSide(arguments, "new", sides.now, output, now);
    if (oldStatus != VStatus::Done || newStatus != VStatus::Done) {
        return std::max(oldStatus, newStatus);
    }
    VDiffOptions options = OptionsOf(arguments);
    for (std::string const& name : arguments.layers) {
        auto const found = FindLayerInEither(*old.database, *now.database, name, output);
        if (found.empty()) {
            return VStatus::NotThere;
        }
        options.layers.insert(options.layers.end(), found.begin(), found.end());
    }
    VProgressBar bar;
    options.progress = bar.Progress(arguments.isQuiet);
    return Answer(arguments, {old, now}, sides, NQuery::DiffDatabases(*old.database, *now.database, options), output);
}

} // namespace

void DeclareDiff(CLI::App& command, VArguments& arguments) {
    command
        .add_option("FILE", arguments.files,
                    "OLD and NEW, each a document, a package or a folder of both; with --to-layer the files of one "
                    "database")
        ->type_name("");
    command.add_option("--old", arguments.oldFiles, "The files of the old database, if there are several")
        ->type_name("FILE");
    command.add_option("--new", arguments.newFiles, "The files of the new database, if there are several")
        ->type_name("FILE");
    auto* const layers =
        command.add_option("--layer", arguments.layers,
                           "Compare only this layer: its short name or ID, or CONTAINER/LAYER; may be repeated");
    RefuseEmpty(*layers->type_name("L")->allow_extra_args(false));
    auto* const toLayer =
        command.add_option("--to-layer", arguments.toLayer, "Compare --layer with this layer of the same database");
    RefuseEmpty(*toLayer->type_name("L"));
    std::vector<std::string> words;
    for (VIgnored const& row : kIgnored) {
        words.emplace_back(row.word);
    }
    auto* const ignore = command.add_option("--ignore", arguments.ignored,
                                            "Ignore differences in long-names, descriptions, admin-data or order; "
                                            "separate several with commas");
    DeclareOneOf(*ignore->delimiter(',')->allow_extra_args(false)->type_name("WHAT"), arguments, "word", words);
    command.add_flag("--ids", arguments.comparesIds, "Report different IDs as well");
    DeclareReading(command, arguments);
}

VStatus RunDiff(VArguments const& arguments, VOutput& output) {
    if (char const* const wrong = WrongCall(arguments); wrong != nullptr) {
        output.Complain(fmt::format("{}; see --help", wrong));
        return VStatus::Usage;
    }
    VSides const sides = SidesOf(arguments);
    return arguments.toLayer.empty() ? DiffTwoDatabases(arguments, sides, output)
                                     : DiffTwoLayers(arguments, sides, output);
}

} // namespace NCli
