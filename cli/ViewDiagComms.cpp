// SPDX-License-Identifier: Apache-2.0
#include <deque>
#include <map>
#include <unordered_set>
#include <utility>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/ElementFinder.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <cli/Views.h>
#include <diagkit/check/Views.h>

namespace NCli {
namespace {

using NDIAGKIT::VCandidate;
using VCandidates = std::vector<VCandidate const*>;

/// What the merge of a layer looked at. A DIAG-COMM that comes through several parents is listed once, and one that is
/// visible after all is neither hidden nor excluded.
struct VOrigins {
    VCandidates own; ///< visible, as are the inherited ones
    VCandidates inherited;
    VCandidates hidden;
    VCandidates excluded;
};

VOrigins OriginsAmong(std::deque<VCandidate> const& candidates) {
    std::unordered_set<NODX201::VOdxElement const*> listed;
    VOrigins origins;
    for (VCandidate const& candidate : candidates) {
        if (candidate.isVisible) {
            listed.insert(candidate.element);
            (candidate.parent.has_value() ? origins.inherited : origins.own).push_back(&candidate);
        }
    }
    for (VCandidate const& candidate : candidates) {
        if (listed.insert(candidate.element).second) {
            (candidate.exclusion != nullptr ? origins.excluded : origins.hidden).push_back(&candidate);
        }
    }
    return origins;
}

NODX201::VDiagLayer* ParentOf(VCandidate const& candidate) {
    return candidate.parent.has_value() ? candidate.parent->layer.layer : nullptr;
}

std::string TitleOfOwner(NODX201::VOdxElement const& diagComm) {
    NODX201::VDiagLayer const* const owner = LayerAround(diagComm);
    return owner != nullptr ? Titled(*owner) : "-";
}

std::string ViaOf(VCandidate const& candidate) {
    NODX201::VDiagLayer const* const parent = ParentOf(candidate);
    return parent == nullptr || parent == LayerAround(*candidate.element) ? "" : "via " + Titled(*parent);
}

/// Rows under a heading; nothing at all without rows.
class VGroup {
public:
    explicit VGroup(std::string title) : m_title(std::move(title)) {}

    void Add(NODX201::VOdxElement const& diagComm, std::vector<std::string> const& notes) {
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

VGroup OwnGroup(VOrigins const& origins, NODX201::VDiagLayer const& layer) {
    VGroup group("Own");
    for (VCandidate const* const own : origins.own) {
        bool const isReferenced = LayerAround(*own->element) != &layer;
        group.Add(*own->element, {isReferenced ? "DIAG-COMM-REF to " + TitleOfOwner(*own->element) : ""});
    }
    return group;
}

/// One group for each way that entries took: the layer they stand in and the parent that brought them; in the order of
/// their first entries.
std::vector<VGroup> InheritedGroups(VOrigins const& origins) {
    std::vector<VGroup> groups;
    std::map<std::pair<NODX201::VDiagLayer const*, NODX201::VDiagLayer const*>, std::size_t> ways;
    for (VCandidate const* const entry : origins.inherited) {
        auto const [way, isNew] = ways.try_emplace({LayerAround(*entry->element), ParentOf(*entry)}, groups.size());
        if (isNew) {
            std::string const via = ViaOf(*entry);
            groups.emplace_back("Inherited from " + TitleOfOwner(*entry->element) + (via.empty() ? "" : " " + via));
        }
        groups[way->second].Add(*entry->element, {});
    }
    return groups;
}

VGroup HiddenGroup(VOrigins const& origins) {
    VGroup group("Hidden by a DIAG-COMM of the same name");
    for (VCandidate const* const offer : origins.hidden) {
        group.Add(*offer->element, {"from " + TitleOfOwner(*offer->element), ViaOf(*offer),
                                    "hidden by " + TitleOfOwner(*offer->hiddenBy->element)});
    }
    return group;
}

VGroup ExcludedGroup(VOrigins const& origins) {
    VGroup group("Excluded by NOT-INHERITED-DIAG-COMMS");
    for (VCandidate const* const offer : origins.excluded) {
        group.Add(*offer->element, {"from " + TitleOfOwner(*offer->element), ViaOf(*offer)});
    }
    return group;
}

void WriteText(NODX201::VDiagLayer& layer, VOutput& output) {
    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDiagComms> inheritance;
    std::deque<VCandidate> const candidates = inheritance.CandidatesOf(layer);
    VOrigins const origins = OriginsAmong(candidates);
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
        WriteText(*layer, output);
    }
    return VStatus::Done;
}

} // namespace NCli
