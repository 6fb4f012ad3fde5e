// SPDX-License-Identifier: Apache-2.0

// The views of inherited elements, with the way of each entry and with the elements left out.

#include <map>
#include <optional>
#include <string>
#include <utility>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Csv.h>
#include <cli/ElementFinder.h>
#include <cli/Entry.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/Views.h>
#include <diagkit/query/ConstantBytes.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/LayerView.h>

namespace NCli {
namespace {

using NQuery::VViewEntry;

using VPath = std::vector<NDIAGKIT::VParent>;

NODX201::VDiagLayer* ParentOn(VPath const& path) { return path.empty() ? nullptr : path.front().layer.layer; }

std::string TitleOfOwner(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const owner = LayerAround(element);
    return owner != nullptr ? Titled(*owner) : "-";
}

std::string ViaOf(VViewEntry const& entry, VPath const& path) {
    NODX201::VDiagLayer const* const parent = ParentOn(path);
    return parent == nullptr || parent == LayerAround(*entry.element) ? "" : "via " + ShownName(*parent);
}

/// Rows under a heading; no output without rows.
class VGroup {
public:
    explicit VGroup(std::string title) : m_title(std::move(title)) {}

    void Add(NODX201::VOdxElement const& element, std::vector<std::string> const& notes) {
        std::vector<std::string> cells{ShownName(element), KindOf(element), ShownOtherId(element)};
        cells.insert(cells.end(), notes.begin(), notes.end());
        m_columns.Add(std::move(cells));
        ++m_count;
    }

    std::size_t Count() const { return m_count; }

    void Write(VOutput& output) const {
        if (m_count != 0) {
            output.Write(fmt::format("\n{}\n", output.Heading(fmt::format("{} ({})", m_title, m_count))));
            output.Write(m_columns.FormatWithin(output.Width()));
        }
    }

private:
    std::string m_title;
    VColumns m_columns{3}; // notes stand below what they are about
    std::size_t m_count = 0;
};

/// The bytes of the request of a service, as far as they are constant; nothing for others.
std::optional<std::string> RequestOf(NODX201::VOdxElement& element, NODX201::VDiagLayer& layer) {
    auto* const service = dynamic_cast<NODX201::VDiagService*>(&element);
    if (service == nullptr) {
        return std::nullopt;
    }
    for (NQuery::VServiceMessage const& message : NQuery::MessagesOf(*service)) {
        if (message.role == NQuery::VMessageRole::Request && message.message != nullptr) {
            return NQuery::ConstantBytesText(NQuery::LayoutOf(*message.message, &layer));
        }
    }
    return std::nullopt;
}

/// How a view is written: the layer, its kind, and whether requests are.
struct VViewWriting {
    NQuery::VLayerView const& view;
    NODX201::VDiagLayer& layer;
    VInheritedKindRow const& kind;
    NMemory::VDatabase const& database;
    bool isWithRequests;
};

/// The cells that text has besides names.
std::vector<std::string> NotesOf(VViewWriting const& writing, VViewEntry const& entry) {
    bool const isOwn = writing.view.PathOf(entry).empty();
    bool const isReferenced = isOwn && LayerAround(*entry.element) != &writing.layer;
    std::vector<std::string> notes;
    if (writing.isWithRequests) {
        notes.push_back(RequestOf(*entry.element, writing.layer).value_or(""));
    }
    notes.push_back(isReferenced ? fmt::format("{} to {}", writing.kind.reference, TitleOfOwner(*entry.element)) : "");
    return notes;
}

VGroup OwnGroup(VViewWriting const& writing) {
    VGroup group("Own");
    for (VViewEntry const& entry : writing.view.entries) {
        if (writing.view.PathOf(entry).empty()) {
            group.Add(*entry.element, NotesOf(writing, entry));
        }
    }
    return group;
}

/// One group for each way of entries: their layer and the parent through which they came; in the order of their first
/// entries.
std::vector<VGroup> InheritedGroups(VViewWriting const& writing) {
    NQuery::VLayerView const& view = writing.view;
    std::vector<VGroup> groups;
    std::map<std::pair<NODX201::VDiagLayer const*, NODX201::VDiagLayer const*>, std::size_t> ways;
    for (VViewEntry const& entry : view.entries) {
        if (view.PathOf(entry).empty()) {
            continue;
        }
        auto const [way, isNew] =
            ways.try_emplace({LayerAround(*entry.element), ParentOn(view.PathOf(entry))}, groups.size());
        if (isNew) {
            std::string const via = ViaOf(entry, view.PathOf(entry));
            groups.emplace_back("Inherited from " + TitleOfOwner(*entry.element) + (via.empty() ? "" : " " + via));
        }
        groups[way->second].Add(*entry.element, NotesOf(writing, entry));
    }
    return groups;
}

VGroup HiddenGroup(NQuery::VLayerView const& view, VInheritedKindRow const& kind) {
    VGroup group(fmt::format("Hidden by a {} of the same name", kind.noun));
    for (VViewEntry const& entry : view.hidden) {
        group.Add(*entry.element, {"from " + TitleOfOwner(*entry.element), ViaOf(entry, view.PathOf(entry)),
                                   "hidden by " + TitleOfOwner(*entry.hiddenBy)});
    }
    return group;
}

VGroup ExcludedGroup(NQuery::VLayerView const& view) {
    VGroup group("Excluded by NOT-INHERITED-DIAG-COMMS");
    for (VViewEntry const& entry : view.excluded) {
        group.Add(*entry.element, {"from " + TitleOfOwner(*entry.element), ViaOf(entry, view.PathOf(entry))});
    }
    return group;
}

void WriteText(VViewWriting const& writing, VOutput& output) {
    NQuery::VLayerView const& view = writing.view;
    std::string const id = ShownOtherId(writing.layer);
    output.Write(output.Heading(
        fmt::format("{}s of {}{}", writing.kind.noun, Titled(writing.layer), id.empty() ? "" : ", ID " + id)));
    output.Write("\n");
    VGroup const own = OwnGroup(writing);
    own.Write(output);
    for (VGroup const& group : InheritedGroups(writing)) {
        group.Write(output);
    }
    output.Write(fmt::format("\n{} visible: {} own, {} inherited; {} hidden, {} excluded\n", view.entries.size(),
                             own.Count(), view.entries.size() - own.Count(), view.hidden.size(), view.excluded.size()));
    HiddenGroup(view, writing.kind).Write(output);
    ExcludedGroup(view).Write(output);
}

void WriteViewEntry(VJsonWriter& json, VViewEntry const& entry, VViewWriting const& writing) {
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(writing.database, *entry.element);
    json.Object([&] {
        WriteEntryMembers(json, *entry.element);
        json.ArrayOf("via", writing.view.PathOf(entry), [&json](NDIAGKIT::VParent const& step) {
            json.Value(std::wstring_view(step.layer.layer->GetShortName()));
        });
        json.TextOrNull("file", place.file);
        json.Member("line", place.line);
        if (writing.isWithRequests) {
            std::optional<std::string> const request = RequestOf(*entry.element, writing.layer);
            json.Name("request");
            request.has_value() ? json.Value(*request) : json.Value(nullptr);
        }
        if (entry.hiddenBy != nullptr) {
            WriteEntryOrNull(json, "by", entry.hiddenBy);
        }
        if (entry.exclusion != nullptr) {
            json.Object("where",
                        [&] { WritePlaceMembers(json, NQuery::FilePlaceOf(writing.database, *entry.exclusion)); });
        }
    });
}

VCsvWriter TableFor(VViewWriting const& writing, VOutput& output) {
    return writing.isWithRequests ? VCsvWriter(output, {DIAGKIT_ENTRY_COLUMNS, "via", "file", "line", "request"})
                                  : VCsvWriter(output, {DIAGKIT_ENTRY_COLUMNS, "via", "file", "line"});
}

void WriteAsCsv(VViewWriting const& writing, VOutput& output) {
    VCsvWriter csv = TableFor(writing, output);
    for (VViewEntry const& entry : writing.view.entries) {
        csv.Row([&] {
            WriteEntryCells(csv, entry.element);
            csv.CellOf(writing.view.PathOf(entry),
                       [](NDIAGKIT::VParent const& step) { return step.layer.layer->GetShortName(); });
            WritePlaceCells(csv, NQuery::FilePlaceOf(writing.database, *entry.element));
            if (writing.isWithRequests) {
                csv.Cell(RequestOf(*entry.element, writing.layer).value_or(""));
            }
        });
    }
}

void WriteAsJson(VJsonWriter& json, VViewWriting const& writing) {
    NQuery::VLayerView const& view = writing.view;
    auto const write = [&](VViewEntry const& entry) { WriteViewEntry(json, entry, writing); };
    json.Object([&] {
        json.Member("view", writing.kind.views);
        json.Name("context");
        WriteEntry(json, writing.layer);
        json.Member("count", view.entries.size());
        json.ArrayOf("entries", view.entries, write);
        json.ArrayOf("hidden", view.hidden, write);
        json.ArrayOf("excluded", view.excluded, write);
    });
}

VStatus View(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output, NQuery::VInheritedKind kind) {
    NODX201::VDiagLayer* const layer = FindLayer(database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    NQuery::VLayerView const view = NQuery::ViewOf(*layer, kind);
    VViewWriting const writing{view, *layer, RowOf(kind), database, arguments.isWithRequests};
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { WriteAsJson(json, writing); });
    } else if (arguments.isCsv) {
        WriteAsCsv(writing, output);
    } else {
        WriteText(writing, output);
    }
    return VStatus::Done;
}

} // namespace

VStatus ViewDiagComms(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return View(arguments, database, output, NQuery::VInheritedKind::DiagComm);
}

VStatus ViewDiagVariables(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return View(arguments, database, output, NQuery::VInheritedKind::DiagVariable);
}

VStatus ViewGlobalNegResponses(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return View(arguments, database, output, NQuery::VInheritedKind::GlobalNegResponse);
}

VStatus ViewDops(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return View(arguments, database, output, NQuery::VInheritedKind::Dop);
}

} // namespace NCli
