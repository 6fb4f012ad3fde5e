// SPDX-License-Identifier: Apache-2.0
#include <filesystem>
#include <optional>
#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/AnyElement.h>
#include <cli/Commands.h>
#include <cli/Csv.h>
#include <cli/Entry.h>
#include <cli/Load.h>
#include <cli/ProgressBar.h>
#include <cli/Text.h>
#include <cli/UsesText.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/Uses.h>

namespace NCli {
namespace {

/// Whether a word can be one of FILE...: there is a file of that name, or it is spelled like a file of ODX.
bool MayBeFile(std::string const& word) {
    std::error_code ignored;
    if (word.find_first_of("/\\") != std::string::npos || std::filesystem::exists(word, ignored)) {
        return true;
    }
    std::size_t const dot = word.rfind('.');
    std::string const extension = dot != std::string::npos ? word.substr(dot) : "";
    return extension.substr(0, 4) == ".odx" || extension == ".xml" || extension == ".pdx" || extension == ".zip";
}

/// The usage error of the call; "" when there is none. The first word is NAME or, with --unused, the first of the
/// files.
std::string UsageMistake(VArguments const& arguments) {
    if (arguments.isUnused && (!arguments.layer.empty() || !arguments.tag.empty())) {
        return std::string("--unused and ") + (arguments.layer.empty() ? "--kind" : "--layer") + " exclude each other";
    }
    if (!arguments.isUnused && arguments.name.empty()) {
        return "NAME is required without --unused";
    }
    if (arguments.isUnused && !arguments.name.empty() && !MayBeFile(arguments.name)) {
        return fmt::format("--unused does not take a NAME such as '{}'", Shown(std::string_view(arguments.name)));
    }
    bool const hasFile = !arguments.files.empty() || (arguments.isUnused && !arguments.name.empty());
    return hasFile ? "" : "FILE is required";
}

void WriteReference(VJsonWriter& json, NMemory::VDatabase const& database, NQuery::VUse const& use) {
    json.Object([&] {
        WriteEntryOrNull(json, "from", use.from);
        json.Member("tag", TagTextOf(*use.reference));
        WritePlaceMembers(json, NQuery::FilePlaceOf(database, *use.reference));
        if (use.layers.has_value()) {
            json.ArrayOf("layers", *use.layers, [&json](NODX201::VDiagLayer const* layer) {
                json.Value(std::wstring_view(layer->GetShortName()));
            });
        } else {
            json.Member("layers", nullptr);
        }
    });
}

void WriteEntriesAsJson(std::string_view name, std::vector<NODX201::VOdxElement*> const& elements, VOutput& output) {
    WriteJson(output, [&](VJsonWriter& json) {
        json.Object([&] {
            json.ArrayOf(name, elements, [&json](NODX201::VOdxElement const* element) { WriteEntry(json, *element); });
        });
    });
}

void WriteUsesAsCsv(NMemory::VDatabase const& database, std::vector<NQuery::VUse> const& uses, VOutput& output) {
    VCsvWriter csv(output, {DIAGKIT_ENTRY_COLUMNS, "tag", "file", "line", "column", "layers"});
    for (NQuery::VUse const& use : uses) {
        NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, *use.reference);
        csv.Row([&] {
            WriteEntryCells(csv, use.from);
            csv.Cell(std::string_view(TagTextOf(*use.reference)));
            WritePlaceCells(csv, place);
            csv.Cell(place.column);
            csv.CellOf(use.layers.value_or(std::vector<NODX201::VDiagLayer*>()),
                       [](NODX201::VDiagLayer const* layer) { return layer->GetShortName(); });
        });
    }
}

NQuery::VUses::VProgress ProgressOf(VProgressBar& bar, VArguments const& arguments) {
    return bar.Progress(arguments.isQuiet);
}

/// References in what has no place in the model are not seen.
void TellWhatWasNotRead(VArguments const& arguments, NReader::VReadResult const& result, VOutput const& output) {
    std::size_t const count = CountWithoutPlace(result);
    if (count > 0 && !arguments.isQuiet) {
        output.Complain(fmt::format("not read: {} not supported; their references are not counted{}",
                                    Counted(count, "element"),
                                    arguments.isUnused ? ", so their targets may be listed as unused" : ""));
    }
}

VStatus AnswerUnused(VArguments const& arguments, NReader::VReadResult const& result, VOutput& output) {
    VProgressBar bar;
    NQuery::VUses const uses(*result.database, result.elements, ProgressOf(bar, arguments));
    TellWhatWasNotRead(arguments, result, output);
    if (arguments.isJson) {
        WriteEntriesAsJson("unused", uses.Unused(), output);
    } else if (arguments.isCsv) {
        WriteEntriesAsCsv(uses.Unused(), output);
    } else {
        WriteUnused(*result.database, uses.Unused(), output);
    }
    return VStatus::Done;
}

VStatus AnswerUses(VArguments const& arguments, NReader::VReadResult const& result, NODX201::VOdxElement const& element,
                   VOutput& output) {
    NMemory::VDatabase& database = *result.database;
    VProgressBar bar;
    std::vector<NQuery::VUse> const uses =
        NQuery::VUses(database, result.elements, ProgressOf(bar, arguments)).Of(element);
    TellWhatWasNotRead(arguments, result, output);
    if (arguments.isCsv) {
        WriteUsesAsCsv(database, uses, output);
        return VStatus::Done;
    }
    if (!arguments.isJson) {
        WriteUses(database, element, uses, output);
        return VStatus::Done;
    }
    WriteJson(output, [&](VJsonWriter& json) {
        json.Object([&] {
            WriteEntryOrNull(json, "entry", &element);
            json.ArrayOf("references", uses, [&](NQuery::VUse const& use) { WriteReference(json, database, use); });
        });
    });
    return VStatus::Done;
}

VStatus AnswerName(VArguments const& arguments, NReader::VReadResult const& result, VOutput& output) {
    std::optional<VAnyName> const name = AnyNameIn(arguments, *result.database, output);
    if (!name.has_value()) {
        return VStatus::NotThere;
    }
    std::vector<NODX201::VOdxElement*> const found = FindElements(result, *name);
    if (found.size() == 1) {
        return AnswerUses(arguments, result, *found.front(), output);
    }
    ComplainOfName(arguments, result, *name, found, output);
    if (arguments.isJson) {
        WriteEntriesAsJson("candidates", found, output);
    }
    return VStatus::NotThere;
}

} // namespace

void DeclareUses(CLI::App& command, VArguments& arguments) {
    command.add_option("NAME", arguments.name, "An ID or a short name; omitted with --unused")->type_name("");
    DeclareTag(command, arguments, "The tag of the element, if elements of several kinds have the name");
    DeclareLayer(command, arguments);
    command.add_flag("--unused", arguments.isUnused, "List the elements that no reference leads to in any layer");
    DeclareCsv(command, arguments);
    DeclareWide(command, arguments);
    DeclareFiles(command, arguments);
    command.get_option("FILE")->required(false); // CLI11 takes the first of them as NAME even with --unused
    command.footer("uses NAME FILE... or uses --unused FILE...");
}

VStatus RunUses(VArguments const& arguments, VOutput& output) {
    if (std::string const mistake = UsageMistake(arguments); !mistake.empty()) {
        output.Complain(mistake + "; see --help");
        return VStatus::Usage;
    }
    VArguments loading = arguments;
    if (arguments.isUnused && !arguments.name.empty()) {
        loading.files.insert(loading.files.begin(), arguments.name);
    }
    NReader::VReadResult result;
    if (VStatus const status = LoadElements(loading, output, result); status != VStatus::Done) {
        return status;
    }
    return arguments.isUnused ? AnswerUnused(arguments, result, output) : AnswerName(arguments, result, output);
}

} // namespace NCli
