// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <diagkit/model/Reference.h>

/// Cycle detection, whatever the elements and the ways between them.

namespace NReader {

using VReferencables = std::vector<NODX201::VReferencable*>;

/// A way from one element into another: by a reference, or from a container to an element inside it.
struct VEdge {
    NODX201::VReferencable* target;
    NODX201::VLink* link = nullptr; ///< the reference; null where the target is inside
    bool isByShortName = false;     ///< the kind of the reference
};
using VEdges = std::vector<VEdge>;
using VEdgesOf = std::function<VEdges(NODX201::VReferencable& element)>;

/// Whether a way may be reported as closing a cycle.
using VCanClose = bool (*)(VEdge const& edge);

inline bool IsReference(VEdge const& edge) { return edge.link != nullptr; }
inline bool IsByShortName(VEdge const& edge) { return edge.isByShortName; }

/// A depth-first search with its own stack: chains may be longer than the call stack allows.
class VCycleSearch {
public:
    /// A chain of elements that leads back to its start, valid until the search continues.
    class VChain {
    public:
        std::size_t Count() const { return m_end - m_begin; }
        NODX201::VReferencable& operator[](std::size_t index) const; ///< 0 is the target of the closing way
        bool HasMarked() const; ///< whether the chain has one of the elements that the search marks

    private:
        friend class VCycleSearch;

        VChain(VCycleSearch const& search, std::size_t begin, std::size_t start)
            : m_search(search), m_begin(begin), m_end(search.m_path.size()), m_start(start) {}

        VCycleSearch const& m_search;
        std::size_t m_begin; // in the path
        std::size_t m_end;
        std::size_t m_start;
    };

    /// Called for every way that closes a cycle, with the chain that it closes. From then on the edges must not contain
    /// that way.
    using VFound = std::function<void(VEdge const& closing, VChain const& chain)>;
    using VMarks = bool (*)(NODX201::VReferencable const& element);

    VCycleSearch(VEdgesOf edgesOf, VCanClose canClose, VFound found, VMarks marks = nullptr)
        : m_edgesOf(std::move(edgesOf)), m_canClose(canClose), m_found(std::move(found)), m_marks(marks) {}

    /// Follows every way out of an element, except those that an earlier call has followed.
    void From(NODX201::VReferencable& root);

private:
    struct VStep {
        NODX201::VReferencable* element;
        VEdges edges;
        std::size_t next;
        VEdge entered;      ///< the way by which the search entered
        std::size_t marked; ///< elements up to this one
    };

    // The position of an element in the path, or else whether it has been searched.
    static constexpr std::size_t kNew = static_cast<std::size_t>(-1);
    static constexpr std::size_t kDone = static_cast<std::size_t>(-2);

    std::size_t& StateOf(NODX201::VReferencable& element) { return m_states.try_emplace(&element, kNew).first->second; }
    void Enter(NODX201::VReferencable& element, VEdge const& edge);
    void Close(VEdge const& edge, std::size_t target);

    VEdgesOf m_edgesOf;
    VCanClose m_canClose;
    VFound m_found;
    VMarks m_marks;
    std::unordered_map<NODX201::VReferencable*, std::size_t> m_states;
    std::vector<VStep> m_path;
};

/// Possible targets of an element: elements, and all elements with one of these short names.
struct VMayLead {
    VReferencables elements;
    std::vector<std::wstring_view> shortNames;
};
using VMayLeadFrom = std::function<VMayLead(NODX201::VReferencable& element)>;

/// Those of the elements from which a way leads into a cycle, in their order, where a short name leads to each of the
/// elements with that name. Linear, however many have the same name.
VReferencables LeadingIntoCycles(VReferencables const& elements, VMayLeadFrom const& mayLeadFrom);

} // namespace NReader
