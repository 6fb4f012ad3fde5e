// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/GuardedDiagLayerTraverser.h>

#include <diagkit/tools/TraverserKinds.h>

namespace NDIAGKIT {

/// An element that is being walked. Steps stand on the stack of the walk itself, so that an exception unwinds them too.
struct VGuardedDiagLayerTraverser::VStep {
    VStep(VGuardedDiagLayerTraverser& traverser, NODX201::VOdxElement const& element)
        : m_traverser(traverser), m_element(element), m_outer(traverser.m_innermost) {
        traverser.m_innermost = this;
        ++traverser.m_depth;
    }
    ~VStep() {
        m_traverser.m_innermost = m_outer;
        --m_traverser.m_depth;
    }
    VStep(VStep const&) = delete;
    VStep& operator=(VStep const&) = delete;

    VGuardedDiagLayerTraverser& m_traverser;
    NODX201::VOdxElement const& m_element;
    VStep const* m_outer;
};

VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser(NODX201::VDiagLayer& layer, std::size_t maxDepth)
    : VDiagLayerTraverser(layer), m_maxDepth(maxDepth) {}

VGuardedDiagLayerTraverser::~VGuardedDiagLayerTraverser() = default;

void VGuardedDiagLayerTraverser::OnCycle(wchar_t const*, NODX201::VOdxElement&) {}
void VGuardedDiagLayerTraverser::OnTooDeep(wchar_t const*, NODX201::VOdxElement&) {}

bool VGuardedDiagLayerTraverser::IsWalking(NODX201::VOdxElement const& x) const {
    for (VStep const* step = m_innermost; step != nullptr; step = step->m_outer) {
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
