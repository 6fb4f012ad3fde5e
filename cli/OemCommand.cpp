// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/OemAnswer.h>
#include <cli/Text.h>
#include <diagkit/model/Reference.h>
#include <diagkit/query/Content.h>
#include <diagkit/reader/Folder.h>
#include <diagkit/reader/Naming.h>
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

/// Why there is no result for a file: the last diagnostic is the one for which the reader refused it.
std::string ReasonOf(NReader::VReadResult const& result) {
    if (result.database != nullptr) {
        return "has errors, which --strict does not allow";
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

/// Documents, by number, in sets that are connected by references, directly or indirectly.
class VDocumentSets {
public:
    void Join(std::uint32_t a, std::uint32_t b) { m_first[FirstOf(std::max(a, b))] = FirstOf(std::min(a, b)); }

    std::uint32_t FirstOf(std::uint32_t document) {
        std::uint32_t first = document;
        for (auto known = m_first.find(first); known != m_first.end() && known->second != first;
             known = m_first.find(first)) {
            first = known->second;
        }
        return m_first[document] = first;
    }

private:
    std::map<std::uint32_t, std::uint32_t> m_first; // or an earlier one of the same set
};

constexpr std::size_t kNoDocument = std::numeric_limits<std::size_t>::max();

/// The files of documents in sets that are connected by references; null when one of them cannot be read.
std::optional<std::vector<std::vector<std::string>>> SetsOf(std::vector<std::string> const& files,
                                                            VArguments const& arguments) {
    NReader::VReadOptions options = arguments.readOptions;
    options.keepsElements = true;
    NReader::VReadResult const result = NReader::ReadOdx(files, options);
    if (result.database == nullptr) {
        return std::nullopt;
    }
    VDocumentSets documents;
    std::map<std::string, std::uint32_t> numbers;
    for (NODX201::VOdxElement* const element : result.elements) {
        std::uint32_t const document = NReader::PositionOf(*element).document;
        numbers.emplace(result.database->GetDocumentName({document, 0, 0}), document);
        auto* const reference = dynamic_cast<NODX201::VLink*>(element);
        NODX201::VOdxElement const* const target =
            reference != nullptr ? NQuery::TargetOf(*reference, nullptr) : nullptr;
        if (target != nullptr) {
            documents.Join(document, NReader::PositionOf(*target).document);
        }
    }
    std::map<std::size_t, std::vector<std::string>> sets;
    for (std::string const& file : files) {
        auto const number = numbers.find(file); // none for an empty one
        sets[number != numbers.end() ? documents.FirstOf(number->second) : kNoDocument - sets.size()].push_back(file);
    }
    std::vector<std::vector<std::string>> listed;
    for (auto& [first, set] : sets) {
        listed.push_back(std::move(set));
    }
    return listed;
}

bool CanBeRead(std::string const& file, VArguments const& arguments) {
    return NReader::ReadOdx({file}, arguments.readOptions).database != nullptr;
}

/// The databases for a name: the documents of a folder that are connected by references are one, and so is every other
/// file.
std::vector<VNamedFiles> DatabasesOf(std::string const& name, VArguments const& arguments) {
    std::vector<VNamedFiles> databases;
    std::vector<std::string> documents;
    for (std::string const& file : NReader::FilesOf(name)) {
        if (NReader::IsPackageName(file) || file == name) {
            databases.push_back({file, {file}});
        } else {
            documents.push_back(file);
        }
    }
    auto sets = documents.size() > 1 ? SetsOf(documents, arguments) : std::nullopt;
    if (!sets.has_value() && documents.size() > 1) {
        auto const refused = std::stable_partition(documents.begin(), documents.end(),
                                                   [&](std::string const& file) { return CanBeRead(file, arguments); });
        for (auto file = refused; file != documents.end(); ++file) {
            databases.push_back({*file, {*file}});
        }
        documents.erase(refused, documents.end());
        sets = SetsOf(documents, arguments);
    }
    for (std::vector<std::string> const& set : sets.value_or(std::vector<std::vector<std::string>>{documents})) {
        if (!set.empty()) {
            bool const isWhole = set.size() > 1 && set.size() == documents.size();
            databases.push_back({isWhole ? name : fmt::format("{}", fmt::join(set, ", ")), set});
        }
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

/// Every database separately; the worst status of one is the status of all.
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
        "Treat every FILE as a database of its own, and in a folder the documents that refer to one another; "
        "with --json one line for each database");
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
