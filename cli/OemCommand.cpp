// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/Folder.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/OemAnswer.h>
#include <cli/Text.h>
#include <diagkit/tools/oem/OemChecker.h>

namespace NCli {
namespace {

using NDIAGKIT::VOemReport;

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
                WriteReportMembers(json, report);
            });
        });
    } else {
        output.Write(fmt::format("{}: {}\n", Shown(file), LineOf(report)));
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

/// A file as a database of its own.
VStatus RunOne(std::string const& file, VArguments const& arguments, VOutput& output) {
    VArguments one = arguments;
    one.files = {file};
    NReader::VReadResult result;
    VStatus const status = Load(one, output, result);
    if (status == VStatus::Done) {
        WriteAnswer(file, ReportOf(result), arguments.isJson, output);
    } else {
        WriteError(file, ReasonOf(result), arguments.isJson, output);
    }
    return status;
}

/// Every file as a database of its own; what is worst about one is the status of all.
VStatus RunEach(VArguments const& arguments, VOutput& output) {
    VStatus status = VStatus::Done;
    for (std::string const& name : arguments.files) {
        std::vector<std::string> const files = FilesOf(name);
        if (files.empty()) {
            output.Complain(fmt::format("{}: the folder holds no ODX document or package", Shown(name)));
            status = std::max(status, VStatus::NotThere);
        }
        for (std::string const& file : files) {
            if (output.HasFailed()) {
                return status;
            }
            status = std::max(status, RunOne(file, arguments, output));
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
        WriteJson(output, [&](VJsonWriter& json) { json.Object([&] { WriteReportMembers(json, report); }); });
    } else {
        WriteReport(report, output);
    }
    return VStatus::Done;
}

} // namespace NCli
