// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/CycleSearch.h>

namespace NReader {

void VCycleSearch::From(NODX201::VReferencable& root) {
    if (StateOf(root) == kNew) {
        Enter(root, {nullptr});
    }
    while (!m_path.empty()) {
        VStep& step = m_path.back();
        if (step.next == step.edges.size()) {
            StateOf(*step.element) = kDone;
            m_path.pop_back();
            continue;
        }
        VEdge const edge = step.edges[step.next++];
        std::size_t const state = StateOf(*edge.target);
        if (state == kNew) {
            Enter(*edge.target, edge);
        } else if (state != kDone) {
            Close(edge, state);
        }
    }
}

void VCycleSearch::Enter(NODX201::VReferencable& element, VEdge const& edge) {
    StateOf(element) = m_path.size();
    std::size_t const before = m_path.empty() ? 0 : m_path.back().marked;
    bool const isMarked = m_marks != nullptr && m_marks(element);
    m_path.push_back({&element, m_edgesOf(element), 0, edge, before + (isMarked ? 1 : 0)});
}

/// The edge leads back into the path. It is the one that closes the cycle, or else the last one before it that may be:
/// an element inside its container closes a cycle without a reference, and an ID may close a cycle that is not one in
/// other layers.
void VCycleSearch::Close(VEdge const& edge, std::size_t target) {
    if (m_canClose(edge)) {
        m_found(edge, VChain(*this, target, target));
        return;
    }
    std::size_t last = m_path.size() - 1;
    while (last > target && !m_canClose(m_path[last].entered)) {
        --last;
    }
    if (last > target) {
        VEdge const closing = m_path[last].entered;
        m_found(closing, VChain(*this, target, last));
    } else {
        last = target + 1;
    }
    while (m_path.size() > last) { // these are not searched completely
        StateOf(*m_path.back().element) = kNew;
        m_path.pop_back();
    }
}

NODX201::VReferencable& VCycleSearch::VChain::operator[](std::size_t index) const {
    std::size_t const place = m_start + index;
    return *m_search.m_path[place < m_end ? place : place - Count()].element;
}

bool VCycleSearch::VChain::HasMarked() const {
    std::size_t const before = m_begin > 0 ? m_search.m_path[m_begin - 1].marked : 0;
    return m_search.m_path[m_end - 1].marked > before;
}

namespace {

/// Elements and short names as numbers, and the ways between them.
class VGraph {
public:
    explicit VGraph(VMayLeadFrom const& mayLeadFrom) : m_mayLeadFrom(mayLeadFrom) {}

    /// Adds everything that can be reached from the elements.
    void Add(VReferencables const& elements) {
        for (NODX201::VReferencable* const element : elements) {
            NumberOf(*element);
        }
        for (std::size_t next = 0; next < m_elements.size(); ++next) { // grows during the loop
            AddWaysFrom(*m_elements[next]);
        }
        for (NODX201::VReferencable* const element : elements) {
            auto const name = m_names.find(element->GetShortName());
            if (name != m_names.end()) {
                m_ways.push_back({name->second, m_numbers.at(element)});
            }
        }
    }

    /// Whether each node, by its number, leads into a cycle: such nodes remain when those that lead nowhere are removed
    /// repeatedly.
    std::vector<bool> LeadsIntoCycle() const {
        std::vector<std::size_t> out(m_nodes);
        std::vector<std::vector<std::size_t>> in(m_nodes);
        for (auto const& [from, to] : m_ways) {
            ++out[from];
            in[to].push_back(from);
        }
        std::vector<std::size_t> ended;
        for (std::size_t node = 0; node < m_nodes; ++node) {
            if (out[node] == 0) {
                ended.push_back(node);
            }
        }
        for (std::size_t next = 0; next < ended.size(); ++next) { // grows during the loop
            for (std::size_t const from : in[ended[next]]) {
                if (--out[from] == 0) {
                    ended.push_back(from);
                }
            }
        }
        std::vector<bool> leads(m_nodes, true);
        for (std::size_t const node : ended) {
            leads[node] = false;
        }
        return leads;
    }

    std::size_t NumberOf(NODX201::VReferencable& element) {
        auto const [number, isNew] = m_numbers.try_emplace(&element, m_nodes);
        if (isNew) {
            ++m_nodes;
            m_elements.push_back(&element);
        }
        return number->second;
    }

private:
    void AddWaysFrom(NODX201::VReferencable& element) {
        std::size_t const from = NumberOf(element);
        VMayLead const mayLead = m_mayLeadFrom(element);
        for (NODX201::VReferencable* const target : mayLead.elements) {
            m_ways.push_back({from, NumberOf(*target)});
        }
        for (std::wstring_view const shortName : mayLead.shortNames) {
            auto const [number, isNew] = m_names.try_emplace(shortName, m_nodes);
            m_nodes += isNew ? 1 : 0;
            m_ways.push_back({from, number->second});
        }
    }

    VMayLeadFrom const& m_mayLeadFrom;
    std::unordered_map<NODX201::VReferencable*, std::size_t> m_numbers;
    std::unordered_map<std::wstring_view, std::size_t> m_names;
    VReferencables m_elements; // in the order in which they were met
    std::vector<std::pair<std::size_t, std::size_t>> m_ways;
    std::size_t m_nodes = 0;
};

} // namespace

VReferencables LeadingIntoCycles(VReferencables const& elements, VMayLeadFrom const& mayLeadFrom) {
    VGraph graph(mayLeadFrom);
    graph.Add(elements);
    std::vector<bool> const leads = graph.LeadsIntoCycle();
    VReferencables leading;
    for (NODX201::VReferencable* const element : elements) {
        if (leads[graph.NumberOf(*element)]) {
            leading.push_back(element);
        }
    }
    return leading;
}

} // namespace NReader
