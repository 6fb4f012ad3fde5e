// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Check.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <unordered_map>

#include <diagkit/check/Topics.h>

namespace NCheck {
namespace {

constexpr void (*kTopics[])(VChecked const& checked, VFindings& findings) = {
    &CheckShortNames,  &CheckDocrefs,        &CheckLayerReferences,
    &CheckExclusions,  &CheckAmbiguousNames, &CheckShortNameReferences,
    &CheckCycles,      &CheckCodedTypes,     &CheckConstants,
    &CheckConversions, &CheckKeys,           &CheckUnits,
    &CheckPlacement,   &CheckRequestsAlike,
};

/// The progress of a check: a step for each layer of each topic.
class VSteps {
public:
    VSteps(std::size_t layers, std::function<void(std::uint64_t done, std::uint64_t all)> const& progress)
        : m_layers(layers + 1), m_progress(progress) {}

    void LayerDone() { Tell(m_done + 1); }

    void TopicDone() { Tell(++m_topics * m_layers); }

private:
    void Tell(std::uint64_t done) {
        m_done = std::min(done, (m_topics + 1) * m_layers);
        if (m_progress) {
            m_progress(m_done, std::size(kTopics) * m_layers);
        }
    }

    std::uint64_t m_layers;
    std::function<void(std::uint64_t done, std::uint64_t all)> const& m_progress;
    std::uint64_t m_done = 0;
    std::uint64_t m_topics = 0;
};

/// The files by name, in the order in which they were read.
std::unordered_map<std::string, std::uint32_t> FileOrder(NMemory::VDatabase const& database) {
    std::unordered_map<std::string, std::uint32_t> order;
    for (std::uint32_t document = 1; !database.GetDocumentName({document, 0, 0}).empty(); ++document) {
        order.emplace(database.GetDocumentName({document, 0, 0}), document);
    }
    return order;
}

} // namespace

std::vector<NReader::VDiagnostic>
CheckDatabase(NReader::VReadResult& result,
              std::function<void(std::uint64_t done, std::uint64_t all)> const& progress) {
    std::vector<NReader::VDiagnostic> diagnostics = result.diagnostics;
    if (result.database == nullptr) {
        return diagnostics;
    }
    NMemory::VDatabase& database = *result.database;
    VFindings findings(result.maxDiagnostics);
    VSteps steps(LayersOf(database).size(), progress);
    std::function<void()> const layerDone = [&steps] { steps.LayerDone(); };
    VViews views;
    for (auto const topic : kTopics) {
        topic({database, result.elements, views, layerDone}, findings);
        database.StartNewResolver(); // most programs do not need the views of all layers, which use much memory
        steps.TopicDone();
    }
    std::vector<NReader::VDiagnostic> found = findings.Sorted(database);
    diagnostics.insert(diagnostics.end(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
    auto order = FileOrder(database);
    std::stable_sort(
        diagnostics.begin(), diagnostics.end(), [&order](NReader::VDiagnostic const& a, NReader::VDiagnostic const& b) {
            return std::make_tuple(order[a.file], a.line, a.column) < std::make_tuple(order[b.file], b.line, b.column);
        });
    return diagnostics;
}

} // namespace NCheck
