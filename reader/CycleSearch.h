// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include <diagkit/model/Reference.h>

namespace NMemory {
class VMemDopBaseLink;
}

/// Finding what leads back to itself, whatever the elements and the ways between them.

namespace NReader {

using VReferencables = std::vector<NODX201::VReferencable*>;

/// A way from one element into another: by a reference, or by standing inside it.
struct VEdge {
    NODX201::VReferencable* target;
    NODX201::VLink* link = nullptr;                ///< the reference; null where the target stands inside
    std::function<void()> sever{};                 ///< of a reference by ID, where it can be severed
    NMemory::VMemDopBaseLink* shortName = nullptr; ///< of a reference by short name
};
using VEdges = std::vector<VEdge>;
using VEdgesOf = std::function<VEdges(NODX201::VReferencable& element)>;

/// Whether a way may be the one that is said to close a cycle.
using VCanClose = bool (*)(VEdge const& edge);

inline bool IsReference(VEdge const& edge) { return edge.link != nullptr; }
inline bool IsByShortName(VEdge const& edge) { return edge.shortName != nullptr; }

/// A depth-first search with a stack of its own: chains may be longer than the machine's stack is deep.
class VCycleSearch {
public:
    /// Told of every way that closes a cycle, with the chain that it closes, from its target on. From then on the edges
    /// must not have that way any more.
    using VFound = std::function<void(VEdge const& closing, VReferencables const& chain)>;

    VCycleSearch(VEdgesOf edgesOf, VCanClose canClose, VFound found)
        : m_edgesOf(std::move(edgesOf)), m_canClose(canClose), m_found(std::move(found)) {}

    /// Follows every way out of an element, but none that an earlier call has followed.
    void From(NODX201::VReferencable& root);

private:
    enum class VState { New, Open, Done };

    struct VStep {
        NODX201::VReferencable* element;
        VEdges edges;
        std::size_t next = 0;
        VEdge entered{nullptr}; ///< the way by which the search came here
    };

    void Enter(NODX201::VReferencable& element, VEdge const& edge);
    void Close(VEdge const& edge);
    VReferencables ChainFrom(NODX201::VReferencable const& target) const;

    VEdgesOf m_edgesOf;
    VCanClose m_canClose;
    VFound m_found;
    std::unordered_map<NODX201::VReferencable*, VState> m_states;
    std::vector<VStep> m_path;
};

/// Those of the elements from which a way leads into a cycle, in their order.
VReferencables LeadingIntoCycles(VReferencables const& elements, VEdgesOf const& edgesOf);

} // namespace NReader
