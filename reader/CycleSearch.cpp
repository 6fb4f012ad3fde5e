// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/CycleSearch.h>

#include <algorithm>

namespace NReader {

void VCycleSearch::From(NODX201::VReferencable& root) {
    if (m_states[&root] == VState::New) {
        Enter(root, {nullptr});
    }
    while (!m_path.empty()) {
        VStep& step = m_path.back();
        if (step.next == step.edges.size()) {
            m_states[step.element] = VState::Done;
            m_path.pop_back();
            continue;
        }
        VEdge const edge = step.edges[step.next++];
        switch (m_states[edge.target]) {
        case VState::New:
            Enter(*edge.target, edge);
            break;
        case VState::Open:
            Close(edge);
            break;
        case VState::Done:
            break;
        }
    }
}

void VCycleSearch::Enter(NODX201::VReferencable& element, VEdge const& edge) {
    m_states[&element] = VState::Open;
    m_path.push_back({&element, m_edgesOf(element), 0, edge});
}

/// The edge leads back into the path. It is the one that closes the cycle, or else the last one before it that may be:
/// what stands inside its container closes a cycle without a reference, and an ID may close one that is none in other
/// layers.
void VCycleSearch::Close(VEdge const& edge) {
    VReferencables chain = ChainFrom(*edge.target);
    if (m_canClose(edge)) {
        m_found(edge, chain);
        return;
    }
    while (m_path.back().element != edge.target) {
        VEdge const entered = m_path.back().entered;
        m_states[entered.target] = VState::New; // not searched to its end
        m_path.pop_back();
        if (m_canClose(entered)) {
            std::rotate(chain.begin(), std::find(chain.begin(), chain.end(), entered.target), chain.end());
            m_found(entered, chain);
            return;
        }
    }
}

/// The elements of the path from one of them on.
VReferencables VCycleSearch::ChainFrom(NODX201::VReferencable const& target) const {
    VReferencables chain;
    for (VStep const& step : m_path) {
        if (!chain.empty() || step.element == &target) {
            chain.push_back(step.element);
        }
    }
    return chain;
}

VReferencables LeadingIntoCycles(VReferencables const& elements, VEdgesOf const& edgesOf) {
    std::unordered_map<NODX201::VReferencable*, VReferencables> waysIn;
    std::unordered_map<NODX201::VReferencable*, std::size_t> waysOut; // that are not yet known to end
    VReferencables ended;
    VReferencables toVisit(elements.rbegin(), elements.rend());
    while (!toVisit.empty()) {
        NODX201::VReferencable* const element = toVisit.back();
        toVisit.pop_back();
        if (waysOut.count(element) != 0) {
            continue;
        }
        VEdges const edges = edgesOf(*element);
        waysOut[element] = edges.size();
        for (VEdge const& edge : edges) {
            waysIn[edge.target].push_back(element);
            toVisit.push_back(edge.target);
        }
        if (edges.empty()) {
            ended.push_back(element);
        }
    }
    while (!ended.empty()) {
        NODX201::VReferencable* const end = ended.back();
        ended.pop_back();
        for (NODX201::VReferencable* const element : waysIn[end]) {
            if (--waysOut[element] == 0) {
                ended.push_back(element);
            }
        }
    }
    VReferencables leading;
    for (NODX201::VReferencable* const element : elements) {
        if (waysOut[element] > 0) {
            leading.push_back(element);
        }
    }
    return leading;
}

} // namespace NReader
