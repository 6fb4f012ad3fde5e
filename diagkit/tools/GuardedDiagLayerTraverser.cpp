// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/GuardedDiagLayerTraverser.h>

#include <cstdint>

#include <diagkit/tools/TraverserKinds.h>

namespace NDIAGKIT {

/// An element that is being walked. Steps are on the call stack of the walk itself, so that an exception unwinds them
/// too; those whose elements fall into one bucket are linked, the innermost first.
struct VGuardedDiagLayerTraverser::VStep {
    VStep(VGuardedDiagLayerTraverser& traverser, NODX201::VOdxElement const& element)
        : m_traverser(traverser), m_element(element), m_bucket(traverser.BucketOf(element)), m_outer(m_bucket) {
        m_bucket = this;
        ++traverser.m_depth;
    }
    ~VStep() {
        m_bucket = m_outer;
        --m_traverser.m_depth;
    }
    VStep(VStep const&) = delete;
    VStep& operator=(VStep const&) = delete;

    VGuardedDiagLayerTraverser& m_traverser;
    NODX201::VOdxElement const& m_element;
    VStep const*& m_bucket;
    VStep const* m_outer;
};

VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser(NODX201::VDiagLayer& layer, std::size_t maxDepth)
    : VDiagLayerTraverser(layer), m_maxDepth(maxDepth) {}

VGuardedDiagLayerTraverser::~VGuardedDiagLayerTraverser() = default;

void VGuardedDiagLayerTraverser::OnCycle(wchar_t const*, NODX201::VOdxElement&) {}
void VGuardedDiagLayerTraverser::OnTooDeep(wchar_t const*, NODX201::VOdxElement&) {}

VGuardedDiagLayerTraverser::VStep const*& VGuardedDiagLayerTraverser::BucketOf(NODX201::VOdxElement const& x) {
    constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15; // addresses differ in their middle bits
    constexpr int kUnused = 54;                                // all bits but those of a bucket
    static_assert(kBuckets == std::size_t{1} << (64 - kUnused));
    return m_walking[(reinterpret_cast<std::uintptr_t>(&x) * kGoldenRatio) >> kUnused];
}

bool VGuardedDiagLayerTraverser::IsWalking(NODX201::VOdxElement const& x) {
    for (VStep const* step = BucketOf(x); step != nullptr; step = step->m_outer) {
        if (&step->m_element == &x) {
            return true;
        }
    }
    return false;
}

bool VGuardedDiagLayerTraverser::MayEnter(wchar_t const* kind, NODX201::VOdxElement& x) {
    if (IsWalking(x)) {
        OnCycle(kind, x);
        return false;
    }
    if (m_depth >= m_maxDepth) {
        OnTooDeep(kind, x);
        return false;
    }
    return true;
}

#define TRAVERSER_KIND(kind, element)                                                                                  \
    void VGuardedDiagLayerTraverser::Visit##kind(NODX201::element& x) {                                                \
        if (MayEnter(L## #kind, x)) {                                                                                  \
            VStep const step(*this, x);                                                                                \
            VDiagLayerTraverser::Visit##kind(x);                                                                       \
        }                                                                                                              \
    }
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>

} // namespace NDIAGKIT
