// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <utility>

#include <fmt/format.h>

#include <diagkit/check/Views.h>
#include <cli/Columns.h>
#include <cli/DiagCommOrigins.h>
#include <cli/ElementFinder.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/Views.h>

namespace NCli {
namespace {

std::string TitleOfOwner(NODX201::VDiagComm const& diagComm) {
    NODX201::VDiagLayer const* const owner = LayerOf(diagComm);
    return owner != nullptr ? Titled(*owner) : "-";
}

std::string ViaOf(VOfferedDiagComm const& offer) {
    return offer.parent == nullptr || offer.parent == LayerOf(*offer.diagComm) ? "" : "via " + Titled(*offer.parent);
}

/// Rows under a heading; nothing at all without rows.
class VGroup {
public:
    explicit VGroup(std::string title) : m_title(std::move(title)) {}

    void Add(NODX201::VDiagComm const& diagComm, std::vector<std::string> const& notes) {
        std::vector<std::string> cells{ShownName(diagComm), TagTextOf(diagComm), ShownId(diagComm)};
        cells.insert(cells.end(), notes.begin(), notes.end());
        m_columns.Add(std::move(cells));
        ++m_count;
    }

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

VGroup OwnGroup(VDiagCommOrigins const& origins, NODX201::VDiagLayer const& layer) {
    VGroup group("Own");
    for (NODX201::VDiagComm const* const diagComm : origins.own) {
        bool const isReferenced = LayerOf(*diagComm) != &layer;
        group.Add(*diagComm, {isReferenced ? "DIAG-COMM-REF to " + TitleOfOwner(*diagComm) : ""});
    }
    return group;
}

/// One group for each way that entries took: the layer they stand in and the parent that brought them; in the order of
/// their first entries.
std::vector<VGroup> InheritedGroups(VDiagCommOrigins const& origins) {
    std::vector<VGroup> groups;
    std::map<std::pair<NODX201::VDiagLayer const*, NODX201::VDiagLayer const*>, std::size_t> ways;
    for (VOfferedDiagComm const& entry : origins.inherited) {
        auto const [way, isNew] = ways.try_emplace({LayerOf(*entry.diagComm), entry.parent}, groups.size());
        if (isNew) {
            std::string const via = ViaOf(entry);
            groups.emplace_back("Inherited from " + TitleOfOwner(*entry.diagComm) + (via.empty() ? "" : " " + via));
        }
        groups[way->second].Add(*entry.diagComm, {});
    }
    return groups;
}

VGroup HiddenGroup(VDiagCommOrigins const& origins) {
    VGroup group("Hidden by a DIAG-COMM of the same name");
    for (VOfferedDiagComm const& offer : origins.hidden) {
        group.Add(*offer.diagComm, {"from " + TitleOfOwner(*offer.diagComm), ViaOf(offer),
                                    "hidden by " + TitleOfOwner(*offer.overrider)});
    }
    return group;
}

VGroup ExcludedGroup(VDiagCommOrigins const& origins) {
    VGroup group("Excluded by NOT-INHERITED-DIAG-COMMS");
    for (VOfferedDiagComm const& offer : origins.excluded) {
        group.Add(*offer.diagComm, {"from " + TitleOfOwner(*offer.diagComm), ViaOf(offer)});
    }
    return group;
}

void WriteText(NODX201::VDiagLayer& layer, VDiagCommOrigins const& origins, VOutput& output) {
    std::string const id = ShownId(layer);
    output.Write(output.Heading(fmt::format("DIAG-COMMs of {}{}", Titled(layer), id.empty() ? "" : ", ID " + id)));
    output.Write("\n");
    OwnGroup(origins, layer).Write(output);
    for (VGroup const& group : InheritedGroups(origins)) {
        group.Write(output);
    }
    output.Write(fmt::format("\n{} visible: {} own, {} inherited; {} hidden, {} excluded\n",
                             origins.own.size() + origins.inherited.size(), origins.own.size(),
                             origins.inherited.size(), origins.hidden.size(), origins.excluded.size()));
    HiddenGroup(origins).Write(output);
    ExcludedGroup(origins).Write(output);
}

void WriteJson(NODX201::VDiagLayer& layer, VOutput& output) {
    std::vector<NODX201::VDiagComm*> const view = NCheck::DiagCommsIn(layer);
    WriteViewAsJson("diag-comms", layer, {view.begin(), view.end()}, output);
}

} // namespace

VStatus ViewDiagComms(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    NODX201::VDiagLayer* const layer = FindLayer(database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    if (arguments.isJson) {
        WriteJson(*layer, output);
    } else {
        WriteText(*layer, DiagCommOriginsOf(*layer), output);
    }
    return VStatus::Done;
}

} // namespace NCli
