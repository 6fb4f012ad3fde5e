// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Baseline.h>
#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/NearNames.h>
#include <cli/ProgressBar.h>
#include <cli/Sarif.h>
#include <cli/Text.h>
#include <diagkit/check/Check.h>
#include <diagkit/check/Codes.h>

namespace NCli {
namespace {

using VDiagnostics = std::vector<NReader::VDiagnostic>;

std::vector<std::string> AllCodes() {
    std::vector<std::string> codes;
    for (NCheck::VCode const& code : NCheck::Codes()) {
        codes.emplace_back(code.code);
    }
    return codes;
}

void DeclareCodes(CLI::App& command, VArguments& arguments, char const* name, std::vector<std::string>& codes,
                  char const* help) {
    CLI::Option* const option = command.add_option(name, codes, help);
    option->type_name("CODE")->expected(1)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    arguments.choices[option] = AllCodes();
}

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
    json.Object([&] {
        json.Member("errors", CountErrors(diagnostics));
        json.Member("warnings", CountOf(NReader::VSeverity::Warning, diagnostics));
        json.ArrayOf("diagnostics", diagnostics,
                     [&json](NReader::VDiagnostic const& diagnostic) { WriteDiagnostic(json, diagnostic); });
    });
}

void WriteText(VDiagnostics const& diagnostics, VOutput& output) {
    for (NReader::VDiagnostic const& diagnostic : diagnostics) {
        output.Write(LineOf(diagnostic));
    }
    std::size_t const warnings = CountOf(NReader::VSeverity::Warning, diagnostics);
    std::size_t const notes = CountOf(NReader::VSeverity::Note, diagnostics);
    output.Write(diagnostics.empty() ? "" : "\n");
    output.Write(fmt::format("{}, {}{}\n", Counted(CountErrors(diagnostics), "error"), Counted(warnings, "warning"),
                             notes > 0 ? ", " + Counted(notes, "note") : ""));
}

VDiagnostics Check(VArguments const& arguments, NReader::VReadResult& result) {
    VProgressBar bar;
    return NCheck::CheckDatabase(result, bar.Progress(arguments.isQuiet));
}

bool IsAmong(std::vector<std::string> const& codes, std::string const& code) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

/// The selected findings. Findings that are not selected cover nothing of the baseline.
VDiagnostics Selected(VArguments const& arguments, VDiagnostics diagnostics, VBaseline& baseline) {
    auto const isLeftOut = [&](NReader::VDiagnostic const& diagnostic) {
        return IsAmong(arguments.ignored, diagnostic.code) ||
               (!arguments.only.empty() && !IsAmong(arguments.only, diagnostic.code)) || baseline.Covers(diagnostic);
    };
    diagnostics.erase(std::remove_if(diagnostics.begin(), diagnostics.end(), isLeftOut), diagnostics.end());
    return diagnostics;
}

void WriteAnswer(VArguments const& arguments, VDiagnostics const& diagnostics, VOutput& output) {
    if (arguments.format == "sarif") {
        WriteJson(output, [&diagnostics](VJsonWriter& json) { WriteSarif(json, diagnostics); });
    } else if (arguments.IsText()) {
        WriteText(diagnostics, output);
    } else {
        WriteJson(output, [&diagnostics](VJsonWriter& json) { WriteAsJson(json, diagnostics); });
    }
}

/// The usage error of the call; "" when there is none.
std::string WrongUsage(VArguments const& arguments) {
    if (arguments.isJson && !arguments.format.empty() && arguments.format != "json") {
        return fmt::format("--json and --format {} exclude each other", arguments.format);
    }
    for (std::vector<std::string> const* const codes : {&arguments.ignored, &arguments.only}) {
        for (std::string const& code : *codes) {
            if (NCheck::FindCode(code) == nullptr) {
                return fmt::format("unknown code '{}'{}", Shown(code), NearOrAllNote(code, AllCodes()));
            }
        }
    }
    return "";
}

bool Fails(VArguments const& arguments, VDiagnostics const& diagnostics) {
    std::size_t const warnings = CountOf(NReader::VSeverity::Warning, diagnostics);
    return CountErrors(diagnostics) > 0 || (arguments.failOn == "warning" && warnings > 0);
}

} // namespace

void DeclareCheck(CLI::App& command, VArguments& arguments) {
    DeclareFiles(command, arguments);
    DeclareChoice(command, arguments, "--format", arguments.format, {"text", "json", "sarif"},
                  "Output format: text, json or sarif (SARIF 2.1.0)");
    DeclareChoice(command, arguments, "--fail-on", arguments.failOn, {"error", "warning"},
                  "The least severity that gives status 1: error (the default) or warning");
    DeclareCodes(command, arguments, "--ignore", arguments.ignored, "Ignore findings of this code; may be repeated");
    DeclareCodes(command, arguments, "--only", arguments.only, "Report only findings of this code; may be repeated");
    command
        .add_option("--baseline", arguments.baseline,
                    "An earlier answer in JSON or SARIF; do not report its findings again")
        ->type_name("ANSWER");
}

VStatus RunCheck(VArguments const& arguments, VOutput& output) {
    if (std::string const wrong = WrongUsage(arguments); !wrong.empty()) {
        output.Complain(wrong + "; see --help");
        return VStatus::Usage;
    }
    VBaseline baseline = arguments.baseline.empty() ? VBaseline() : VBaseline(arguments.baseline);
    NReader::VReadResult result;
    if (VStatus const status = LoadToCheck(arguments, output, result); status != VStatus::Done) {
        if (!arguments.IsText()) { // output for programs is complete, whatever the files are
            WriteAnswer(arguments, Selected(arguments, result.diagnostics, baseline), output);
        }
        return status;
    }
    VDiagnostics const diagnostics = Selected(arguments, Check(arguments, result), baseline);
    WriteAnswer(arguments, diagnostics, output);
    return Fails(arguments, diagnostics) ? VStatus::NotThere : VStatus::Done;
}

} // namespace NCli
