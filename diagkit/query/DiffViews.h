// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <unordered_map>
#include <vector>

#include <diagkit/check/Views.h>
#include <diagkit/query/Diff.h>

/// The views that are compared. For the sources of this folder.

namespace NQuery {

/// An entry of a view, and its key for matching.
struct VDiffEntry {
    NODX201::VOdxElement* element;
    wchar_t const* shortName;
    wchar_t const* protocol = L""; ///< the PROTOCOL-SNREF of a COMPARAM-REF

    bool IsNamedAs(VDiffEntry const& other) const;
};

inline constexpr std::array kDiffViews = {VDiffView::DiagComms, VDiffView::DiagVariables, VDiffView::GlobalNegResponses,
                                          VDiffView::Dops,      VDiffView::Protocols,     VDiffView::Comparams};

/// The views of one layer, in the order of `kDiffViews`.
struct VLayerViews {
    std::array<std::vector<VDiffEntry>, kDiffViews.size()> views;
    std::vector<NODX201::VDopBase*> dops;
};

/// Makes the views of the layers of a database; parents are computed once.
class VDiffViewMaker {
public:
    VLayerViews ViewsOf(NODX201::VDiagLayer& layer);

private:
    using VComparams = std::vector<VDiffEntry>;

    /// The layer's own COMPARAM-REFs, then those of its parents; of a COMPARAM and PROTOCOL-SNREF the first.
    VComparams ComparamsIn(NODX201::VDiagLayer& layer);
    VComparams const& ComparamsOfParent(NODX201::VDiagLayer& layer);

    NCheck::VViews m_views;
    std::unordered_map<NODX201::VDiagLayer const*, VComparams> m_comparams;
};

} // namespace NQuery
