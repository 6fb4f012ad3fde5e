// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <map>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/OemAnswer.h>
#include <cli/Text.h>
#include <diagkit/model/Reference.h>
#include <diagkit/reader/Folder.h>
#include <diagkit/reader/Naming.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/oem/OemChecker.h>

namespace NCli {
namespace {

using NDIAGKIT::VOemReport;

/// A database by the name of its file or folder.
struct VNamedFiles {
    std::string name;
    std::vector<std::string> files;
};

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

/// Whether a reference names another of the documents.
bool DoReferToOneAnother(NReader::VReadResult const& result) {
    std::map<std::wstring, std::string> fileOf;
    for (NReader::VDocumentInfo const& document : result.documents) {
        fileOf.emplace(NReader::FromUtf8(document.shortName), document.file);
    }
    return std::any_of(result.elements.begin(), result.elements.end(), [&](NODX201::VOdxElement* element) {
        auto* const reference = dynamic_cast<NODX201::VLink*>(element);
        auto const* const byId =
            reference != nullptr ? dynamic_cast<NODX201::VOdxLink const*>(&reference->GetLink()) : nullptr;
        auto const target = byId != nullptr ? fileOf.find(byId->GetDocref()) : fileOf.end();
        return target != fileOf.end() &&
               target->second != result.database->GetDocumentName(NReader::PositionOf(*element));
    });
}

/// The databases that a name stands for: the documents of a folder are one where they refer to one another; otherwise
/// each file is one.
std::vector<VNamedFiles> DatabasesOf(std::string const& name, VArguments const& arguments) {
    std::vector<VNamedFiles> databases;
    VNamedFiles folder{name, {}};
    for (std::string const& file : NReader::FilesOf(name)) {
        (NReader::IsPackageName(file) || file == name ? databases.emplace_back(VNamedFiles{file, {}}) : folder)
            .files.push_back(file);
    }
    NReader::VReadOptions options = arguments.readOptions;
    options.keepsElements = true;
    NReader::VReadResult const together =
        folder.files.size() > 1 ? NReader::ReadOdx(folder.files, options) : NReader::VReadResult();
    if (together.database != nullptr && DoReferToOneAnother(together)) {
        databases.push_back(std::move(folder));
        return databases;
    }
    for (std::string const& file : folder.files) {
        databases.push_back({file, {file}});
    }
    std::sort(databases.begin(), databases.end(),
              [](VNamedFiles const& a, VNamedFiles const& b) { return a.name < b.name; });
    return databases;
}

VStatus RunOne(VNamedFiles const& database, VArguments const& arguments, VOutput& output) {
    VArguments one = arguments;
    one.files = database.files;
    NReader::VReadResult result;
    VStatus const status = Load(one, output, result);
    if (status == VStatus::Done) {
        WriteAnswer(database.name, ReportOf(result), arguments.isJson, output);
    } else {
        WriteError(database.name, ReasonOf(result), arguments.isJson, output);
    }
    return status;
}

/// Every database for itself; what is worst about one is the status of all.
VStatus RunEach(VArguments const& arguments, VOutput& output) {
    VStatus status = VStatus::Done;
    for (std::string const& name : arguments.files) {
        for (VNamedFiles const& database : DatabasesOf(name, arguments)) {
            if (output.HasFailed()) {
                return status;
            }
            status = std::max(status, RunOne(database, arguments, output));
        }
    }
    return status;
}

} // namespace

void DeclareOem(CLI::App& command, VArguments& arguments) {
    DeclareFiles(command, arguments);
    command.add_flag(
        "--each", arguments.isEach,
        "Every FILE is a database of its own, and so are the documents of a folder that refer to one another; "
        "with --json one line each");
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
