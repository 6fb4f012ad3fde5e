// SPDX-License-Identifier: Apache-2.0
#include <cli/DiffText.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Layers.h>
#include <cli/Text.h>
#include <diagkit/memory/Layers.h>

namespace NCli {
namespace {

using NQuery::VChange;
using NQuery::VChangeKind;
using NQuery::VDetail;

constexpr std::size_t kWidth = 80;
constexpr std::size_t kMostNamesListed = 20; ///< in one list; of longer lists also the number of the rest

/// A text with one blank for each white space in it, however long that is.
std::string WholeInOneLine(std::wstring const& text) {
    std::wstring line;
    for (wchar_t const character : text) {
        bool const isSpace = character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
        if (!isSpace) {
            line += character;
        } else if (!line.empty() && line.back() != L' ') {
            line += L' ';
        }
    }
    return Shown(line);
}

std::string InOneLine(std::wstring const& text) { return Cut(WholeInOneLine(text)); }

/// From a little before the first difference on; what is left out before it is an ellipsis.
std::string FromDifference(std::string const& text, std::size_t difference) {
    constexpr std::size_t kBefore = 20;
    std::size_t start = difference > kBefore ? difference - kBefore : 0;
    auto const isInside = [&text](std::size_t place) {
        return place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U; // of a character
    };
    while (start > 0 && isInside(start)) {
        --start;
    }
    return (start > 0 ? "..." : "") + Cut(text.substr(start));
}

/// Both sides of a change, so that the difference is seen.
std::pair<std::string, std::string> Sides(std::wstring const& oldText, std::wstring const& newText) {
    std::string const old = WholeInOneLine(oldText);
    std::string const now = WholeInOneLine(newText);
    if (Cut(old) != Cut(now)) {
        return {Cut(old), Cut(now)};
    }
    if (old == now) {
        return {Cut(old), "the same with other white space or control characters"};
    }
    auto const end = old.begin() + static_cast<std::ptrdiff_t>(std::min(old.size(), now.size()));
    auto const difference = static_cast<std::size_t>(std::mismatch(old.begin(), end, now.begin()).first - old.begin());
    return {FromDifference(old, difference), FromDifference(now, difference)};
}

/// One edit, with the details common to all layers that see it.
struct VEdit {
    VChangeKind kind = VChangeKind::Changed;
    NODX201::VOdxElement* old = nullptr;
    NODX201::VOdxElement* now = nullptr;
    std::string name{};
    std::string was{};
    bool isElsewhere = false; ///< a changed one is owned by another layer as well
    std::vector<std::string> details{};
    std::set<std::string> told{};       ///< the common details
    std::vector<std::string> through{}; ///< entries that lead to it
    std::vector<NODX201::VDiagLayer const*> layers{};
};

/// The PROTOCOL of a COMPARAM-REF, which distinguishes those of one COMPARAM; "" for others.
std::string ProtocolOf(NODX201::VOdxElement& element) {
    auto* const reference = dynamic_cast<NMemory::VMemComparamRef*>(&element);
    auto const* const snref = reference != nullptr && reference->HasProtocolSnref()
                                  ? dynamic_cast<NODX201::VSnref const*>(&reference->GetProtocolSnref().GetLink())
                                  : nullptr;
    return snref != nullptr ? " for PROTOCOL " + Shown(snref->GetShortName()) : "";
}

/// Finds the edits behind the changes in layers: an edit that many layers inherit, or to which many entries refer, is
/// written once.
class VEdits {
public:
    explicit VEdits(NQuery::VDiff const& diff) {
        for (NQuery::VLayerChange const& layer : diff.layers) {
            m_counterparts.emplace(layer.oldLayer, layer.newLayer);
            if (layer.kind == VChangeKind::Renamed) {
                m_seenBy.try_emplace(layer.newLayer);
                m_renamed.insert(layer.oldLayer);
            }
        }
        for (NQuery::VLayerChange const& layer : diff.layers) {
            for (NQuery::VViewChanges const& view : layer.views) {
                for (VChange const& change : view.changes) {
                    Add(change, layer.newLayer);
                }
            }
        }
    }

    std::vector<VEdit> const& Edits() const { return m_edits; }

    using VLayers = std::vector<NODX201::VDiagLayer const*>;

    /// The layers in whose views a renamed layer stands, which is no edit of its own.
    VLayers const& SeenBy(NODX201::VDiagLayer const& renamed) const { return m_seenBy.at(&renamed); }

private:
    using VKey = std::tuple<VChangeKind, NODX201::VOdxElement*, NODX201::VOdxElement*>;
    using VIndices = std::vector<std::size_t>;

    /// Views of PROTOCOLs lose the old name and get the new one.
    bool IsOfRenamedLayer(VChange const& change, NODX201::VDiagLayer const* layer) {
        if (change.kind == VChangeKind::Removed) {
            return m_renamed.count(change.oldElement) != 0;
        }
        auto const seen = change.kind == VChangeKind::Added ? m_seenBy.find(change.newElement) : m_seenBy.end();
        if (seen != m_seenBy.end()) {
            seen->second.push_back(layer);
        }
        return seen != m_seenBy.end();
    }

    void Add(VChange const& change, NODX201::VDiagLayer const* layer) {
        if (IsOfRenamedLayer(change, layer)) {
            return;
        }
        if (change.details == nullptr) {
            NoteLayer(EditOf(change.kind, change.oldElement, change.newElement, change), layer);
            return;
        }
        auto const [known, isNew] = m_byDetails.try_emplace(change.details.get());
        if (isNew) {
            known->second = AddDetails(change);
        }
        for (std::size_t const index : known->second) {
            NoteLayer(index, layer);
        }
    }

    VIndices AddDetails(VChange const& change) {
        std::set<std::size_t> indices;
        for (VDetail const& detail : *change.details) {
            bool const isInside = detail.oldPlace != nullptr && detail.oldPlace != change.oldElement;
            std::size_t const index = isInside
                                          ? EditOf(VChangeKind::Changed, detail.oldPlace, detail.newPlace, change)
                                          : EditOf(VChangeKind::Changed, change.oldElement, change.newElement, change);
            AddDetail(m_edits[index], detail);
            if (indices.insert(index).second && isInside) {
                m_edits[index].through.push_back(
                    fmt::format("{} {}", TagTextOf(*change.newElement), Shown(change.shortName)));
            }
        }
        return {indices.begin(), indices.end()};
    }

    static void AddDetail(VEdit& edit, VDetail const& detail) {
        std::size_t const start = std::min(detail.placeLength, detail.path.size());
        std::wstring path = detail.path.substr(start);
        if (!path.empty() && path.front() == L'/') {
            path.erase(0, 1);
        }
        std::string text = LineOf(Shown(path), detail);
        if (edit.told.insert(text).second) {
            edit.details.push_back(std::move(text));
        }
    }

    /// Additions have a plus before them, removals a minus. The name of an item is not repeated.
    static std::string LineOf(std::string const& path, VDetail const& detail) {
        auto const isNamed = [&path](std::string const& text) {
            std::string const end = '[' + text + ']';
            return path.size() >= end.size() && path.compare(path.size() - end.size(), end.size(), end) == 0;
        };
        std::string const place = path.empty() ? "" : path + ": ";
        if (detail.oldText.has_value() && detail.newText.has_value()) {
            auto const [old, now] = Sides(*detail.oldText, *detail.newText);
            bool const isLong = place.size() + old.size() + now.size() + 8 > kWidth;
            return fmt::format("    {}{}{} -> {}", place, isLong && !place.empty() ? "\n      " : "", old, now);
        }
        std::string const text =
            InOneLine(detail.oldText.has_value() ? *detail.oldText : detail.newText.value_or(L"nothing"));
        char const sign = detail.oldText.has_value() ? '-' : '+';
        return isNamed(text) ? fmt::format("  {} {}", sign, path) : fmt::format("  {} {}{}", sign, place, text);
    }

    std::size_t EditOf(VChangeKind kind, NODX201::VOdxElement* old, NODX201::VOdxElement* now, VChange const& change) {
        auto const [known, isNew] = m_byPlace.try_emplace(VKey(kind, old, now), m_edits.size());
        if (isNew) {
            VEdit edit{kind, old, now};
            bool const isEntry = old == change.oldElement && now == change.newElement;
            edit.name = isEntry ? Shown(change.shortName) + ProtocolOf(*(now != nullptr ? now : old)) : ShownName(*now);
            edit.was = change.was != nullptr ? Shown(change.was) : "";
            edit.isElsewhere =
                kind == VChangeKind::Changed && old != nullptr && now != nullptr && IsElsewhere(*old, *now);
            m_edits.push_back(std::move(edit));
        }
        return known->second;
    }

    /// Whether an element is in another layer than before; a layer that was renamed, or is compared with another one,
    /// is the same.
    bool IsElsewhere(NODX201::VOdxElement const& old, NODX201::VOdxElement const& now) const {
        NODX201::VDiagLayer const* const from = LayerAround(old);
        NODX201::VDiagLayer const* const to = LayerAround(now);
        auto const counterpart = m_counterparts.find(from);
        bool const isSame = counterpart != m_counterparts.end() && counterpart->second == to;
        return from != nullptr && to != nullptr && !isSame && Titled(*from) != Titled(*to);
    }

    void NoteLayer(std::size_t index, NODX201::VDiagLayer const* layer) {
        auto& layers = m_edits[index].layers;
        if (layers.empty() || layers.back() != layer) {
            layers.push_back(layer);
        }
    }

    std::map<NODX201::VDiagLayer const*, NODX201::VDiagLayer const*> m_counterparts; // old ones, and the new ones
    std::vector<VEdit> m_edits; // in the order in which they were found
    std::map<VKey, std::size_t> m_byPlace;
    std::unordered_map<void const*, VIndices> m_byDetails;
    std::map<NODX201::VOdxElement const*, VLayers> m_seenBy; // by the new one of a renamed layer
    std::set<NODX201::VOdxElement const*> m_renamed;         // the old ones
};

/// Names with commas between, in lines of the width.
std::string Listed(std::string const& start, std::vector<std::string> const& names) {
    std::string text;
    std::string line = start;
    std::size_t const shown = std::min(names.size(), kMostNamesListed);
    for (std::size_t i = 0; i < shown; ++i) {
        std::string const word = names[i] + (i + 1 < names.size() ? "," : "");
        if (line.size() + 1 + word.size() > kWidth) {
            text += line + '\n';
            line = "   ";
        }
        line += ' ' + word;
    }
    if (names.size() > shown) {
        line += fmt::format(" and {} more", names.size() - shown);
    }
    return text + line + '\n';
}

std::string WhereOf(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerAround(element);
    return layer != nullptr ? Titled(*layer) : "outside layers";
}

/// The layer of an element; for a layer, the layer itself.
std::string InLayer(NODX201::VOdxElement const& element) {
    NODX201::VDiagLayer const* const layer = LayerAround(element);
    return layer != nullptr ? ", in " + Titled(*layer) : "";
}

std::string HeadingOf(VEdit const& edit) {
    NODX201::VOdxElement const& known = edit.now != nullptr ? *edit.now : *edit.old;
    std::string const what = fmt::format("{} {}", TagTextOf(known), edit.name);
    switch (edit.kind) {
    case VChangeKind::Added:
        return fmt::format("added: {}{}", what, InLayer(known));
    case VChangeKind::Removed:
        return fmt::format("removed: {}{}", what, InLayer(known));
    case VChangeKind::Renamed:
        return fmt::format("renamed: {}, formerly {}{}", what, edit.was, InLayer(known));
    case VChangeKind::Moved:
        return fmt::format("moved: {}, from {} to {}", what, WhereOf(*edit.old), WhereOf(*edit.now));
    case VChangeKind::Changed: {
        return edit.isElsewhere
                   ? fmt::format("changed: {}, from {} to {}", what, WhereOf(*edit.old), WhereOf(*edit.now))
                   : fmt::format("changed: {}{}", what, InLayer(known));
    }
    }
    return what;
}

void WriteSeenBy(std::vector<NODX201::VDiagLayer const*> const& layers, VOutput& output) {
    std::vector<std::string> names;
    for (NODX201::VDiagLayer const* const layer : layers) {
        names.push_back(ShownName(*layer));
    }
    output.Write(Listed(fmt::format("  seen in {}:", Counted(names.size(), "layer")), names));
}

void WriteEdit(VEdit const& edit, VOutput& output) {
    output.Write(output.Heading(HeadingOf(edit)) + '\n');
    for (std::string const& detail : edit.details) {
        output.Write(detail + '\n');
    }
    if (!edit.through.empty()) {
        output.Write(Listed("  through", edit.through));
    }
    WriteSeenBy(edit.layers, output);
    output.Write("\n");
}

/// A layer that is there on one side alone, or under another name.
void WriteLayer(NQuery::VLayerChange const& layer, VEdits const& edits, VOutput& output) {
    switch (layer.kind) {
    case VChangeKind::Added:
        output.Write(fmt::format("added: {}\n", Titled(*layer.newLayer)));
        break;
    case VChangeKind::Removed:
        output.Write(fmt::format("removed: {}\n", Titled(*layer.oldLayer)));
        break;
    case VChangeKind::Renamed:
        output.Write(fmt::format("renamed: {}, formerly {}\n", Titled(*layer.newLayer), ShownName(*layer.oldLayer)));
        if (!edits.SeenBy(*layer.newLayer).empty()) {
            WriteSeenBy(edits.SeenBy(*layer.newLayer), output);
        }
        break;
    case VChangeKind::Changed:
    case VChangeKind::Moved:
        break;
    }
}

} // namespace

void WriteDiff(NQuery::VDiff const& diff, VOutput& output) {
    if (diff.IsEqual()) {
        output.Write("No differences in what the layers see\n");
        return;
    }
    VEdits const edits(diff);
    std::size_t others = 0;
    for (NQuery::VLayerChange const& layer : diff.layers) {
        WriteLayer(layer, edits, output);
        others += layer.kind == VChangeKind::Changed ? 0 : 1;
    }
    output.Write(others > 0 ? "\n" : "");
    for (VEdit const& edit : edits.Edits()) {
        WriteEdit(edit, output);
    }
    output.Write(
        fmt::format("{} in {}", Counted(edits.Edits().size(), "edit"), Counted(diff.layers.size() - others, "layer")));
    output.Write(others > 0 ? fmt::format("; {} added, removed or renamed\n", Counted(others, "layer")) : "\n");
}

} // namespace NCli
