// SPDX-License-Identifier: Apache-2.0
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/ProgressBar.h>
#include <cli/Sarif.h>
#include <cli/Text.h>
#include <diagkit/check/Check.h>

namespace NCli {
namespace {

using VDiagnostics = std::vector<NReader::VDiagnostic>;

void WriteDiagnostic(VJsonWriter& json, NReader::VDiagnostic const& diagnostic) {
    json.Object([&] {
        json.Member("file", diagnostic.file);
        json.Member("line", diagnostic.line);
        json.Member("column", diagnostic.column);
        json.Member("severity", SeverityText(diagnostic.severity));
        json.Member("code", diagnostic.code);
        json.Member("message", diagnostic.message);
    });
}

void WriteAsJson(VJsonWriter& json, VDiagnostics const& diagnostics) {
    std::size_t const errors = CountErrors(diagnostics);
    json.Object([&] {
        json.Member("errors", errors);
        json.Member("warnings", diagnostics.size() - errors);
        json.ArrayOf("diagnostics", diagnostics,
                     [&json](NReader::VDiagnostic const& diagnostic) { WriteDiagnostic(json, diagnostic); });
    });
}

void WriteText(VDiagnostics const& diagnostics, VOutput& output) {
    for (NReader::VDiagnostic const& diagnostic : diagnostics) {
        output.Write(LineOf(diagnostic));
    }
    std::size_t const errors = CountErrors(diagnostics);
    output.Write(diagnostics.empty() ? "" : "\n");
    output.Write(fmt::format("{}, {}\n", Counted(errors, "error"), Counted(diagnostics.size() - errors, "warning")));
}

VDiagnostics Check(VArguments const& arguments, NReader::VReadResult& result) {
    VProgressBar bar;
    return NCheck::CheckDatabase(result, bar.Progress(arguments.isQuiet));
}

} // namespace

void DeclareCheck(CLI::App& command, VArguments& arguments) {
    DeclareFiles(command, arguments);
    std::vector<std::string> const formats{"text", "json", "sarif"};
    auto* const format =
        command.add_option("--format", arguments.format, "How to answer: text, json or sarif (SARIF 2.1.0)");
    format->check(CLI::IsMember(formats))->type_name("FORMAT");
    arguments.choices[format] = formats;
}

VStatus RunCheck(VArguments const& arguments, VOutput& output) {
    bool const isJson = arguments.isJson || arguments.format == "json";
    if (arguments.isJson && !arguments.format.empty() && arguments.format != "json") {
        output.Complain("--json and --format " + arguments.format + " exclude each other; see --help");
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = LoadToCheck(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    VDiagnostics const diagnostics = Check(arguments, result);
    if (arguments.format == "sarif") {
        WriteJson(output, [&diagnostics](VJsonWriter& json) { WriteSarif(json, diagnostics); });
    } else if (isJson) {
        WriteJson(output, [&diagnostics](VJsonWriter& json) { WriteAsJson(json, diagnostics); });
    } else {
        WriteText(diagnostics, output);
    }
    return CountErrors(diagnostics) > 0 ? VStatus::NotThere : VStatus::Done;
}

} // namespace NCli
