// SPDX-License-Identifier: Apache-2.0

// The views of inherited elements, with the way of each entry and with the elements left out.

#include <map>
#include <utility>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/ElementFinder.h>
#include <cli/Entry.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <cli/Views.h>
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
    return parent == nullptr || parent == LayerAround(*entry.element) ? "" : "via " + Titled(*parent);
}

/// Rows under a heading; no output without rows.
class VGroup {
public:
    explicit VGroup(std::string title) : m_title(std::move(title)) {}

    void Add(NODX201::VOdxElement const& element, std::vector<std::string> const& notes) {
        std::vector<std::string> cells{ShownName(element), KindOf(element), ShownId(element)};
        cells.insert(cells.end(), notes.begin(), notes.end());
        m_columns.Add(std::move(cells));
        ++m_count;
    }

    std::size_t Count() const { return m_count; }

    void Write(VOutput& output) const {
        if (m_count != 0) {
            output.Write(fmt::format("\n{}\n", output.Heading(fmt::format("{} ({})", m_title, m_count))));
            output.Write(m_columns.Format());
        }
    }

private:
    std::string m_title;
    VColumns m_columns;
    std::size_t m_count = 0;
};

VGroup OwnGroup(NQuery::VLayerView const& view, NODX201::VDiagLayer const& layer, VInheritedKindRow const& kind) {
    VGroup group("Own");
    for (VViewEntry const& entry : view.entries) {
        if (view.PathOf(entry).empty()) {
            bool const isReferenced = LayerAround(*entry.element) != &layer;
            group.Add(*entry.element,
                      {isReferenced ? fmt::format("{} to {}", kind.reference, TitleOfOwner(*entry.element)) : ""});
        }
    }
    return group;
}

/// One group for each way of entries: their layer and the parent through which they came; in the order of their first
/// entries.
std::vector<VGroup> InheritedGroups(NQuery::VLayerView const& view) {
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
        groups[way->second].Add(*entry.element, {});
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

void WriteText(NQuery::VLayerView const& view, NODX201::VDiagLayer const& layer, VInheritedKindRow const& kind,
               VOutput& output) {
    std::string const id = ShownId(layer);
    output.Write(output.Heading(fmt::format("{}s of {}{}", kind.noun, Titled(layer), id.empty() ? "" : ", ID " + id)));
    output.Write("\n");
    VGroup const own = OwnGroup(view, layer, kind);
    own.Write(output);
    for (VGroup const& group : InheritedGroups(view)) {
        group.Write(output);
    }
    output.Write(fmt::format("\n{} visible: {} own, {} inherited; {} hidden, {} excluded\n", view.entries.size(),
                             own.Count(), view.entries.size() - own.Count(), view.hidden.size(), view.excluded.size()));
    HiddenGroup(view, kind).Write(output);
    ExcludedGroup(view).Write(output);
}

void WriteViewEntry(VJsonWriter& json, VViewEntry const& entry, VPath const& path, NMemory::VDatabase const& database) {
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, *entry.element);
    json.Object([&] {
        WriteEntryMembers(json, *entry.element);
        json.ArrayOf("via", path, [&json](NDIAGKIT::VParent const& step) {
            json.Value(std::wstring_view(step.layer.layer->GetShortName()));
        });
        json.TextOrNull("file", place.file);
        json.Member("line", place.line);
        if (entry.hiddenBy != nullptr) {
            WriteEntryOrNull(json, "by", entry.hiddenBy);
        }
        if (entry.exclusion != nullptr) {
            json.Object("where", [&] { WritePlaceMembers(json, NQuery::FilePlaceOf(database, *entry.exclusion)); });
        }
    });
}

void WriteAsJson(VJsonWriter& json, NQuery::VLayerView const& view, NODX201::VDiagLayer const& layer,
                 VInheritedKindRow const& kind, NMemory::VDatabase const& database) {
    auto const write = [&](VViewEntry const& entry) { WriteViewEntry(json, entry, view.PathOf(entry), database); };
    json.Object([&] {
        json.Member("view", kind.views);
        json.Name("context");
        WriteEntry(json, layer);
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
    VInheritedKindRow const& row = RowOf(kind);
    NQuery::VLayerView const view = NQuery::ViewOf(*layer, kind);
    if (arguments.isJson) {
        WriteJson(output, [&](VJsonWriter& json) { WriteAsJson(json, view, *layer, row, database); });
    } else {
        WriteText(view, *layer, row, output);
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
