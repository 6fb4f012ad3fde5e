// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/query/ContentFacets.h>

/// Digests of the contents of elements, with all data to which references lead. For the sources of this folder.

namespace NQuery {

/// Caches the digest of every element, in the layers that it was requested for. Elements that do not depend on the
/// layer are examined once. An element that is found again inside itself counts by its short name: elements that lead
/// to each other have digests of the whole cycle.
class VContentHashes {
public:
    VContentHashes(VFacets& facets, VDiffOptions const& options) : m_facets(facets), m_options(options) {}

    struct VKnown {
        VHash hash;
        NODX201::VDiagLayer* owner; ///< the layer that contains it; null outside layers
        bool dependsOnLayer;
    };

    /// The digest of an element without its own short name.
    VKnown Of(NODX201::VOdxElement& element, VSeenFrom& from);

    /// The set that collects the references without a target from now on; null for none.
    void SetMissing(std::unordered_set<NODX201::VOdxElement const*>* missing) { m_missing = missing; }
    std::size_t TooDeep() const { return m_tooDeep; }

private:
    using VElements = std::vector<NODX201::VOdxElement*>;
    struct VFrame {
        NODX201::VOdxElement* element;
        std::size_t index;
        std::size_t low;
        VElements wanted;
        std::size_t next = 0;
    };

    std::optional<VKnown> Find(NODX201::VOdxElement& element, VSeenFrom& from);
    void Store(NODX201::VOdxElement& element, VSeenFrom& from, VHash const& hash, bool dependsOnLayer);
    void Evaluate(NODX201::VOdxElement& element, VSeenFrom& from);
    void Open(NODX201::VOdxElement& element, VSeenFrom& from);
    void Close(VFrame const& frame, VSeenFrom& from);

    VHash Walk(NODX201::VOdxElement& element, VSeenFrom& from);
    VHash HashOfElement(NODX201::VOdxElement& element, VSeenFrom& from, bool isNamed, std::size_t depth);
    VHash HashOfFacet(VFacet const& facet, VSeenFrom& from, std::size_t depth);
    VHash HashOfReference(VFacet const& facet, VSeenFrom& from, std::size_t depth);

    VFacets& m_facets;
    VDiffOptions const& m_options;
    std::unordered_map<NODX201::VOdxElement const*, VKnown> m_known;
    std::unordered_map<VHash, VHash, VHashOfHash> m_inLayers; // by element and what short names mean
    std::unordered_set<NODX201::VOdxElement const*>* m_missing = nullptr;
    std::size_t m_tooDeep = 0;

    // Of the current evaluation.
    std::vector<VFrame> m_frames;
    VElements m_stack;
    std::unordered_map<NODX201::VOdxElement const*, std::size_t> m_open; // index of the elements on the stack
    std::unordered_set<NODX201::VOdxElement const*> m_circle;            // the cycle that is being closed
    std::vector<VFacet> m_read;
    VElements m_wanted;            // data found by the walk whose digests are not known yet
    bool m_dependsOnLayer = false; // result of the walk
};

} // namespace NQuery
