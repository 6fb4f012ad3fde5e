// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

namespace NQuery {

/// Layers by their numbers in document order, stored as runs: variants of one base are nearly always adjacent.
class VLayerRuns {
public:
    void Add(std::uint32_t layer); ///< REQUIRES: no layer with a higher number was added before

    bool IsEmpty() const { return m_runs.empty(); }
    bool Meets(VLayerRuns const& other) const; ///< whether both have a layer

    static VLayerRuns Common(VLayerRuns const& one, VLayerRuns const& other); ///< the layers that both have
    static VLayerRuns Joined(VLayerRuns const& one, VLayerRuns const& other); ///< the layers that either has

    /// Calls `take` with every layer, in ascending order.
    template <class Take>
    void ForEach(Take take) const {
        for (VRun const& run : m_runs) {
            for (std::uint32_t layer = run.first; layer < run.end; ++layer) {
                take(layer);
            }
        }
    }

private:
    struct VRun {
        std::uint32_t first;
        std::uint32_t end;
    };

    template <class Take>
    static void ForEachCommon(VLayerRuns const& one, VLayerRuns const& other, Take take);
    void AddRun(VRun const& run);

    std::vector<VRun> m_runs; // in ascending order, with gaps between them
};

} // namespace NQuery
