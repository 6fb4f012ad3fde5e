// SPDX-License-Identifier: Apache-2.0
#include "query/DiffInPrint.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <diagkit/reader/Utf8.h>

namespace NTest {
namespace {

using NQuery::VChangeKind;
using VBlocks = std::vector<std::string>;

/// Prints a result as it is, or as that for exchanged sides.
class VPrinter {
public:
    VPrinter(bool isMirrored, bool isSorted) : m_isMirrored(isMirrored), m_isSorted(isSorted) {}

    std::string Print(NQuery::VDiff const& diff) const {
        VBlocks layers;
        for (NQuery::VLayerChange const& layer : diff.layers) {
            layers.push_back(PrintLayer(layer));
        }
        return Joined(std::move(layers));
    }

private:
    std::string Kind(VChangeKind kind) const {
        static constexpr char const* kNames[] = {"added", "removed", "renamed", "changed", "moved"};
        if (m_isMirrored && (kind == VChangeKind::Added || kind == VChangeKind::Removed)) {
            kind = kind == VChangeKind::Added ? VChangeKind::Removed : VChangeKind::Added;
        }
        return kNames[static_cast<int>(kind)];
    }

    std::string Joined(VBlocks blocks) const {
        if (m_isSorted) {
            std::sort(blocks.begin(), blocks.end());
        }
        std::string text;
        for (std::string const& block : blocks) {
            text += block;
        }
        return text;
    }

    template <class T>
    std::pair<T, T> Sides(T old, T now) const {
        return m_isMirrored ? std::pair(now, old) : std::pair(old, now);
    }

    std::string PrintLayer(NQuery::VLayerChange const& layer) const {
        auto const [old, now] = Sides(layer.oldLayer, layer.newLayer);
        std::string text = NReader::ToUtf8((now != nullptr ? now : old)->GetShortName()) + ' ' + Kind(layer.kind);
        if (layer.kind == VChangeKind::Renamed) {
            text += " from " + NReader::ToUtf8(old->GetShortName());
        }
        VBlocks views;
        for (NQuery::VViewChanges const& view : layer.views) {
            VBlocks changes;
            for (NQuery::VChange const& change : view.changes) {
                changes.push_back(PrintChange(change));
            }
            views.push_back(std::string("  ") + NQuery::NameOf(view.view) + '\n' + Joined(std::move(changes)));
        }
        return text + '\n' + Joined(std::move(views));
    }

    std::string PrintChange(NQuery::VChange const& change) const {
        auto const [was, name] = Sides(change.was, change.shortName);
        std::string text = "    " + NReader::ToUtf8(name != nullptr ? name : was) + ' ' + Kind(change.kind);
        if (change.kind == VChangeKind::Renamed) {
            text += " from " + NReader::ToUtf8(was);
        }
        VBlocks details;
        if (change.details != nullptr) {
            for (NQuery::VDetail const& detail : *change.details) {
                auto const [old, now] = Sides(detail.oldText, detail.newText);
                details.push_back("      " + NReader::ToUtf8(detail.path) + ": " + Text(old) + " -> " + Text(now) +
                                  '\n');
            }
        }
        return text + '\n' + Joined(std::move(details));
    }

    static std::string Text(std::optional<std::wstring> const& text) {
        return text.has_value() ? NReader::ToUtf8(*text) : "null";
    }

    bool m_isMirrored;
    bool m_isSorted;
};

} // namespace

std::string InPrint(NQuery::VDiff const& diff) { return VPrinter(false, false).Print(diff); }

std::string Mirrored(NQuery::VDiff const& diff) { return VPrinter(true, true).Print(diff); }

std::string Sorted(NQuery::VDiff const& diff) { return VPrinter(false, true).Print(diff); }

} // namespace NTest
