// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/LayerRuns.h>

#include <algorithm>

namespace NQuery {

void VLayerRuns::Add(std::uint32_t layer) { AddRun({layer, layer + 1}); }

void VLayerRuns::AddRun(VRun const& run) {
    if (m_runs.empty() || m_runs.back().end < run.first) {
        m_runs.push_back(run);
    } else {
        m_runs.back().end = std::max(m_runs.back().end, run.end);
    }
}

/// Calls `take` with the common runs until it returns that this is enough.
template <class Take>
void VLayerRuns::ForEachCommon(VLayerRuns const& one, VLayerRuns const& other, Take take) {
    auto left = one.m_runs.begin();
    auto right = other.m_runs.begin();
    while (left != one.m_runs.end() && right != other.m_runs.end()) {
        VRun const common{std::max(left->first, right->first), std::min(left->end, right->end)};
        if (common.first < common.end && !take(common)) {
            return;
        }
        if (left->end < right->end) {
            ++left;
        } else {
            ++right;
        }
    }
}

bool VLayerRuns::Meets(VLayerRuns const& other) const {
    bool meets = false;
    ForEachCommon(*this, other, [&meets](VRun const&) {
        meets = true;
        return false;
    });
    return meets;
}

VLayerRuns VLayerRuns::Common(VLayerRuns const& one, VLayerRuns const& other) {
    VLayerRuns common;
    ForEachCommon(one, other, [&common](VRun const& run) {
        common.AddRun(run);
        return true;
    });
    return common;
}

VLayerRuns VLayerRuns::Joined(VLayerRuns const& one, VLayerRuns const& other) {
    std::vector<VRun> runs(one.m_runs.size() + other.m_runs.size());
    std::merge(one.m_runs.begin(), one.m_runs.end(), other.m_runs.begin(), other.m_runs.end(), runs.begin(),
               [](VRun const& a, VRun const& b) { return a.first < b.first; });
    VLayerRuns joined;
    for (VRun const& run : runs) {
        joined.AddRun(run);
    }
    return joined;
}

} // namespace NQuery
