// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <array>
#include <map>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/Load.h>
#include <cli/Text.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/OdxCategoryInfoCollection.h>

namespace NCli {
namespace {

constexpr std::array kTags{
#define ODX_TAG(name, value, element, type) NODX201::VOdxTagEnum::name,
#include <diagkit/model/OdxTags.def>
};

using VCounts = std::map<std::string, std::size_t>;

/// A document as an entry of the category list.
class VDocument final : public NDIAGKIT::VOdxCategoryInfo {
public:
    explicit VDocument(NReader::VDocumentInfo const& info)
        : m_modelVersion(info.modelVersion), m_category(info.category) {
        SetFileName(NReader::FromUtf8(info.file).c_str());
        SetShortName(NReader::FromUtf8(info.shortName).c_str());
    }

    std::string const& GetModelVersion() const { return m_modelVersion; } ///< "" when absent
    std::string const& GetCategory() const { return m_category; }         ///< its tag

private:
    std::string m_modelVersion;
    std::string m_category;
};

/// The documents of a call in load order.
class VDocuments {
public:
    explicit VDocuments(std::vector<NReader::VDocumentInfo> const& documents) {
        for (NReader::VDocumentInfo const& info : documents) {
            m_categories.Append(*new VDocument(info)); // the list owns it
        }
    }

    std::size_t Count() const { return static_cast<std::size_t>(m_categories.Count()); }

    template <class Take>
    void ForEach(Take take) {
        for (NDIAGKIT::VOdxCategoryInfo& info : m_categories) {
            take(static_cast<VDocument&>(info));
        }
    }

private:
    NDIAGKIT::VOdxCategoryInfoCollection m_categories;
};

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

/// Every version once, in load order; documents without a version add nothing.
std::vector<std::string> ModelVersionsOf(VDocuments& documents) {
    std::vector<std::string> versions;
    documents.ForEach([&versions](VDocument const& document) {
        std::string const& version = document.GetModelVersion();
        if (!version.empty() && std::find(versions.begin(), versions.end(), version) == versions.end()) {
            versions.push_back(version);
        }
    });
    return versions;
}

void WriteAsJson(VJsonWriter& json, VDocuments& documents, NMemory::VDatabase const& database) {
    json.Object([&] {
        json.ArrayOf("model_versions", ModelVersionsOf(documents),
                     [&json](std::string const& version) { json.Value(version); });
        json.Array("documents", [&] {
            documents.ForEach([&json](VDocument const& document) {
                json.Object([&] {
                    json.Member("file", document.GetFileName());
                    json.Member("category", document.GetCategory());
                    json.TextOrNull("short_name", document.GetShortName());
                });
            });
        });
        json.Object("counts", [&] {
            for (auto const& [tag, count] : CountsOf(database)) {
                json.Member(tag, count);
            }
        });
    });
}

void WriteDocuments(VDocuments& documents, VOutput& output) {
    output.Write(output.Heading(Counted(documents.Count(), "document")) + "\n");
    VColumns columns;
    documents.ForEach([&columns](VDocument const& document) {
        std::string const& version = document.GetModelVersion();
        columns.Add({Shown(document.GetShortName()), document.GetCategory(),
                     version.empty() ? "no MODEL-VERSION" : Shown("ODX " + version), Shown(document.GetFileName())});
    });
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

void WriteText(VDocuments& documents, NReader::VReadResult const& result, VOutput& output) {
    WriteDocuments(documents, output);
    VCounts const counts = CountsOf(*result.database);
    std::size_t all = 0;
    for (auto const& [tag, count] : counts) {
        all += count;
    }
    WriteCounts(fmt::format("{} of {}", Counted(all, "element"), Counted(counts.size(), "kind")), counts, output);
    if (!result.unknownElements.empty()) {
        WriteCounts("Ignored, with their children: not supported", result.unknownElements, output);
    }
}

} // namespace

VStatus RunInfo(VArguments const& arguments, VOutput& output) {
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    VDocuments documents(result.documents);
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { WriteAsJson(json, documents, *result.database); });
    } else {
        WriteText(documents, result, output);
    }
    return VStatus::Done;
}

} // namespace NCli
