// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <unordered_map>
#include <unordered_set>

#include <diagkit/query/ContentHashes.h>

/// The differences between the contents of two elements. For the sources of this folder.

namespace NQuery {

/// Caches its results. Two elements to which many others lead are compared once.
class VContentDifferences {
public:
    using VDetails = std::shared_ptr<std::vector<VDetail> const>;

    VContentDifferences(VFacets& facets, VContentHashes& hashes, VDiffOptions const& options)
        : m_facets(facets), m_hashes(hashes), m_options(options) {}

    /// An element as seen from a layer.
    struct VSeen {
        NODX201::VOdxElement* element;
        VSeenFrom* from;
    };

    /// Null when there are no differences after all.
    VDetails Between(VSeen const& old, VSeen const& now);

    std::size_t CutDetails() const { return m_cut; }

private:
    /// The differences between two elements themselves, or between two data to which they lead.
    struct VStep {
        std::wstring path;
        std::optional<std::wstring> oldText;
        std::optional<std::wstring> newText;
        NODX201::VOdxElement* oldTarget = nullptr;
        NODX201::VOdxElement* newTarget = nullptr;
    };
    using VSteps = std::shared_ptr<std::vector<VStep> const>;
    using VFacetList = std::vector<VFacet>;
    using VByKey = std::unordered_map<VHash, std::size_t, VHashOfHash>;
    class VEnumeration;

    VHash KeyOf(VSeen const& old, VSeen const& now);
    VSteps StepsBetween(VSeen const& old, VSeen const& now);
    void Compare(VSeen const& old, VSeen const& now, std::wstring const& path, bool isNamed, std::size_t depth,
                 std::vector<VStep>& steps);
    void CompareFacets(VFacet const& old, VSeenFrom& oldFrom, VFacet const& now, VSeenFrom& newFrom,
                       std::wstring const& path, std::size_t depth, std::vector<VStep>& steps);
    void CompareReferences(VFacet const& old, VSeenFrom& oldFrom, VFacet const& now, VSeenFrom& newFrom,
                           std::wstring const& path, std::size_t depth, std::vector<VStep>& steps);
    std::vector<VHash> KeysOf(VFacetList const& facets, VSeenFrom& from);
    std::wstring PathOf(std::wstring const& path, VFacet const& facet) const;
    std::wstring TextOf(VFacet const& facet, VSeenFrom& from);
    void AddTexts(NODX201::VOdxElement& element, VSeenFrom& from, bool areAttributes, std::size_t depth,
                  std::wstring& text);

    VFacets& m_facets;
    VContentHashes& m_hashes;
    VDiffOptions const& m_options;
    std::unordered_map<VHash, VSteps, VHashOfHash> m_steps;
    std::unordered_map<VHash, VDetails, VHashOfHash> m_details;
    std::size_t m_cut = 0;
};

} // namespace NQuery
