// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <array>
#include <filesystem>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <diagkit/cli/Columns.h>
#include <diagkit/cli/Commands.h>
#include <diagkit/cli/JsonWriter.h>
#include <diagkit/cli/Load.h>
#include <diagkit/cli/Text.h>
#include <diagkit/reader/Ascii.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/oem/OemChecker.h>

namespace NCli {
namespace {

namespace fs = std::filesystem;

using NDIAGKIT::VManufacturer;
using NDIAGKIT::VOemHeuristicReport;
using NDIAGKIT::VOemReport;
using NDIAGKIT::VOemRuleReport;

struct VManufacturerName {
    VManufacturer manufacturer;
    char const* name;
};

constexpr std::array kNames{
    VManufacturerName{VManufacturer::Daimler, "Daimler"}, VManufacturerName{VManufacturer::Claas, "Claas"},
    VManufacturerName{VManufacturer::Pag, "Pag"},         VManufacturerName{VManufacturer::AudiVw, "AudiVw"},
    VManufacturerName{VManufacturer::Bmw, "Bmw"},         VManufacturerName{VManufacturer::Fiat, "Fiat"},
    VManufacturerName{VManufacturer::Gm, "Gm"},           VManufacturerName{VManufacturer::Psa, "Psa"},
};

char const* NameOf(VManufacturer manufacturer) {
    for (VManufacturerName const& row : kNames) {
        if (row.manufacturer == manufacturer) {
            return row.name;
        }
    }
    return "Unknown";
}

int CodeOf(VManufacturer manufacturer) { return static_cast<int>(manufacturer); }

// JSON

void WriteRule(VJsonWriter& json, VOemRuleReport const& rule, bool isListNamed) {
    json.Object([&] {
        json.Member("name", rule.name);
        json.Member("matches", rule.matches);
        if (isListNamed) {
            json.Member("list", rule.list);
        }
    });
}

void WriteHeuristic(VJsonWriter& json, VOemHeuristicReport const& heuristic) {
    json.Object([&] {
        json.Member("name", heuristic.name);
        json.Member("code", CodeOf(heuristic.manufacturer));
        json.Member("matches", heuristic.matches);
        json.ArrayOf("rules", heuristic.rules,
                     [&](VOemRuleReport const& rule) { WriteRule(json, rule, heuristic.lists > 1); });
    });
}

/// The members of a report, behind those that an object holds already.
void WriteReport(VJsonWriter& json, VOemReport const& report) {
    json.Member("manufacturer", NameOf(report.manufacturer));
    json.Member("code", CodeOf(report.manufacturer));
    json.ArrayOf("heuristics", report.heuristics,
                 [&json](VOemHeuristicReport const& heuristic) { WriteHeuristic(json, heuristic); });
}

// Text

/// "Daimler (1)", or why nobody can be named.
std::string AnswerOf(VOemReport const& report) {
    std::string const answer = fmt::format("{} ({})", NameOf(report.manufacturer), CodeOf(report.manufacturer));
    if (report.manufacturer != VManufacturer::Unknown) {
        return answer;
    }
    std::string matching;
    for (VOemHeuristicReport const& heuristic : report.heuristics) {
        if (heuristic.matches) {
            matching += (matching.empty() ? "" : ", ") + NReader::ToUtf8(heuristic.name);
        }
    }
    return answer + (matching.empty() ? ": no heuristic matches" : ": several match, " + matching);
}

void WriteHeuristic(VOemHeuristicReport const& heuristic, VOutput& output) {
    std::string const heading = fmt::format("{}, {} ({})", NReader::ToUtf8(heuristic.name),
                                            NameOf(heuristic.manufacturer), CodeOf(heuristic.manufacturer));
    output.Write(fmt::format("\n{}: {}\n", output.Heading(heading), heuristic.matches ? "matches" : "does not match"));
    VColumns columns;
    for (VOemRuleReport const& rule : heuristic.rules) {
        bool const isMarked = rule.isDecisive && !heuristic.matches;
        columns.Add({heuristic.lists > 1 ? fmt::format("list {}", rule.list) : "", NReader::ToUtf8(rule.name),
                     rule.matches ? "yes" : "no", isMarked ? "<- decides" : ""});
    }
    output.Write(columns.Format());
}

void WriteText(VOemReport const& report, VOutput& output) {
    output.Write(output.Heading(AnswerOf(report)) + "\n");
    for (VOemHeuristicReport const& heuristic : report.heuristics) {
        WriteHeuristic(heuristic, output);
    }
}

VOemReport ReportOf(NReader::VReadResult const& result) {
    return NDIAGKIT::VOemChecker().Report(result.database->GetOdx());
}

/// Why a file is not answered for: what made the reader refuse it is the last that it said.
std::string ReasonOf(NReader::VReadResult const& result) {
    if (result.database != nullptr) {
        return "has errors, which --strict does not pass";
    }
    std::string reason = "cannot be read";
    for (NReader::VDiagnostic const& diagnostic : result.diagnostics) {
        if (diagnostic.severity == NReader::VSeverity::Error) {
            reason = Shown(diagnostic.message);
        }
    }
    return reason;
}

void WriteAnswer(std::string const& file, VOemReport const& report, bool isJson, VOutput& output) {
    if (isJson) {
        WriteJsonLine(output, [&](VJsonWriter& json) {
            json.Object([&] {
                json.Member("file", file);
                WriteReport(json, report);
            });
        });
    } else {
        output.Write(fmt::format("{}: {}\n", Shown(file), AnswerOf(report)));
    }
}

void WriteError(std::string const& file, std::string const& reason, bool isJson, VOutput& output) {
    if (isJson) {
        WriteJsonLine(output, [&](VJsonWriter& json) {
            json.Object([&] {
                json.Member("file", file);
                json.Member("error", reason);
            });
        });
    } else {
        output.Write(fmt::format("{}: not answered for: {}\n", Shown(file), reason));
    }
}

bool IsNamedLikeOdx(fs::path const& path) {
    std::string extension = path.extension().u8string();
    std::transform(extension.begin(), extension.end(), extension.begin(), NReader::Lower);
    return extension == ".pdx" || extension == ".zip" || extension == ".xml" || extension.rfind(".odx", 0) == 0;
}

/// The files, and in place of a folder those in it that are named like ODX, by name.
std::vector<std::string> FilesOf(std::vector<std::string> const& named) {
    std::vector<std::string> files;
    for (std::string const& name : named) {
        std::error_code error;
        fs::directory_iterator const folder(fs::u8path(name), error);
        if (error) {
            files.push_back(name); // a file, or something whose reading says why it is none
            continue;
        }
        std::size_t const first = files.size();
        for (fs::directory_entry const& entry : folder) {
            if (IsNamedLikeOdx(entry.path())) {
                files.push_back(entry.path().generic_u8string());
            }
        }
        std::sort(files.begin() + static_cast<std::ptrdiff_t>(first), files.end());
    }
    return files;
}

/// Every file as a database of its own.
VStatus RunEach(VArguments const& arguments, VOutput& output) {
    VStatus status = VStatus::Done;
    VArguments one = arguments;
    for (std::string const& file : FilesOf(arguments.files)) {
        if (output.HasFailed()) {
            break;
        }
        one.files = {file};
        NReader::VReadResult result;
        if (VStatus const loaded = Load(one, output, result); loaded == VStatus::Done) {
            WriteAnswer(file, ReportOf(result), arguments.isJson, output);
        } else {
            WriteError(file, ReasonOf(result), arguments.isJson, output);
            status = loaded;
        }
    }
    return status;
}

} // namespace

void DeclareOem(CLI::App& command, VArguments& arguments) {
    DeclareFiles(command, arguments);
    command.add_flag("--each", arguments.isEach,
                     "Every FILE, and every one in a FOLDER, is a database of its own; with --json one line each");
}

VStatus RunOem(VArguments const& arguments, VOutput& output) {
    if (arguments.isEach) {
        return RunEach(arguments, output);
    }
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    VOemReport const report = ReportOf(result);
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { json.Object([&] { WriteReport(json, report); }); });
    } else {
        WriteText(report, output);
    }
    return VStatus::Done;
}

} // namespace NCli
