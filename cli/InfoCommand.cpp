// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <array>
#include <map>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <diagkit/cli/Columns.h>
#include <diagkit/cli/Commands.h>
#include <diagkit/cli/Load.h>
#include <diagkit/cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

constexpr std::array kTags{
#define ODX_TAG(name, value, element, type) NODX201::VOdxTagEnum::name,
#include <diagkit/model/OdxTags.def>
};

using VCounts = std::map<std::string, std::size_t>;

/// Elements by ODX tag. The root is not counted: every database has it, even without a document.
VCounts CountsOf(NMemory::VDatabase const& database) {
    VCounts counts;
    for (NODX201::VOdxTagEnum const tag : kTags) {
        std::size_t const count = database.Count(tag);
        if (count != 0 && tag != NODX201::VOdxTagEnum::Odx) {
            counts[NReader::ToUtf8(NODX201::OdxTagText(tag))] += count;
        }
    }
    return counts;
}

/// Every version once, in load order; documents without one add nothing.
std::vector<std::string> ModelVersionsOf(std::vector<NReader::VDocumentInfo> const& documents) {
    std::vector<std::string> versions;
    for (NReader::VDocumentInfo const& document : documents) {
        bool const isKnown = std::find(versions.begin(), versions.end(), document.modelVersion) != versions.end();
        if (!isKnown && !document.modelVersion.empty()) {
            versions.push_back(document.modelVersion);
        }
    }
    return versions;
}

nlohmann::ordered_json JsonOf(NReader::VReadResult const& result) {
    nlohmann::ordered_json answer;
    answer["model_versions"] = ModelVersionsOf(result.documents);
    answer["documents"] = nlohmann::ordered_json::array();
    for (NReader::VDocumentInfo const& document : result.documents) {
        nlohmann::ordered_json entry;
        entry["file"] = document.file;
        entry["category"] = document.category;
        entry["short_name"] =
            document.shortName.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(document.shortName);
        answer["documents"].push_back(std::move(entry));
    }
    answer["counts"] = nlohmann::ordered_json::object();
    for (auto const& [tag, count] : CountsOf(*result.database)) {
        answer["counts"][tag] = count;
    }
    return answer;
}

void WriteDocuments(std::vector<NReader::VDocumentInfo> const& documents, VOutput& output) {
    output.Write(output.Heading(Counted(documents.size(), "document")) + "\n");
    VColumns columns;
    for (NReader::VDocumentInfo const& document : documents) {
        std::string const version = document.modelVersion.empty() ? "no MODEL-VERSION" : "ODX " + document.modelVersion;
        columns.Add({Shown(document.shortName), document.category, Shown(version), Shown(document.file)});
    }
    output.Write(columns.Format());
}

void WriteCounts(std::string const& heading, VCounts const& counts, VOutput& output) {
    output.Write("\n" + output.Heading(heading) + "\n");
    VColumns columns;
    for (auto const& [tag, count] : counts) {
        columns.Add({Shown(tag), fmt::format("{:>8}", count)});
    }
    output.Write(columns.Format());
}

void WriteText(NReader::VReadResult const& result, VOutput& output) {
    WriteDocuments(result.documents, output);
    VCounts const counts = CountsOf(*result.database);
    std::size_t all = 0;
    for (auto const& [tag, count] : counts) {
        all += count;
    }
    WriteCounts(fmt::format("{} of {}", Counted(all, "element"), Counted(counts.size(), "kind")), counts, output);
    if (!result.unknownElements.empty()) {
        WriteCounts("Left out with their contents, because the model has no place for them", result.unknownElements,
                    output);
    }
}

} // namespace

VStatus RunInfo(VArguments const& arguments, VOutput& output) {
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    if (arguments.isJson) {
        output.WriteJson(JsonOf(result));
    } else {
        WriteText(result, output);
    }
    return VStatus::Done;
}

} // namespace NCli
