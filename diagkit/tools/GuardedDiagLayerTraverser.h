// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>

#include <diagkit/tools/DiagLayerTraverser.h>

namespace NDIAGKIT {

/// A `VDiagLayerTraverser` that terminates on every database. It never enters an element that is already being walked,
/// whatever led back to it (related DIAG-COMMs that refer to each other, tables whose rows lead back to them, ...), and
/// calls `OnCycle` instead. It does not go deeper than a limit either, so that no data can overflow the stack, and
/// calls `OnTooDeep` there. Otherwise the walk is the same: the same elements in the same order, and an element that is
/// reached in several ways, none inside the other, is visited once for each. In data with many cross-references, such
/// as a dozen related DIAG-COMMs that all refer to each other, the number of visits can make the walk impractically
/// long; a client that walks such data leaves the walk by an exception.
///
/// Derive from it, override the hooks you care about, and call `TraverseDiagLayer` or, for the dictionary alone,
/// `TraverseDiagDataDictionarySpec`. An element counts as being walked from before its PreProcess until after its
/// PostProcess; an overridden Visit is guarded as far as it calls the one of this class. Exceptions may leave the walk
/// at any point. The guard allocates nothing; its cost per visit does not grow with the depth, as long as the depth is
/// not far above the usual limit.
class DIAGKIT_EXPORT VGuardedDiagLayerTraverser : public VDiagLayerTraverser {
public:
    static constexpr std::size_t kMaxDepth = 2000; ///< nesting depth of elements; real data stay below 200

    /// The layer must outlive the traverser.
    explicit VGuardedDiagLayerTraverser(NODX201::VDiagLayer& layer, std::size_t maxDepth = kMaxDepth);
    ~VGuardedDiagLayerTraverser() override;

protected:
    /// Called in place of `Visit<kind>(x)`, which is left out with all that it would call: `x` is already being walked,
    /// perhaps as another kind. `kind` is static text, L"DiagComm" for `VisitDiagComm`. The current DIAG-COMM does not
    /// change. Does nothing here.
    virtual void OnCycle(wchar_t const* kind, NODX201::VOdxElement& x);

    /// Called in place of `Visit<kind>(x)`, which is left out with all that it would call: `x` would be one element
    /// deeper than the limit. Does nothing here.
    virtual void OnTooDeep(wchar_t const* kind, NODX201::VOdxElement& x);

#define TRAVERSER_KIND(kind, element) void Visit##kind(NODX201::element& x) override;
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>

private:
    struct VStep;

    static constexpr std::size_t kBuckets = 1024;

    VStep const*& BucketOf(NODX201::VOdxElement const& x);
    bool IsWalking(NODX201::VOdxElement const& x);
    bool MayEnter(wchar_t const* kind, NODX201::VOdxElement& x);

    std::size_t m_maxDepth;
    std::size_t m_depth = 0;                        // of what is being walked
    std::array<VStep const*, kBuckets> m_walking{}; // what is being walked, in each bucket from the inside out
};

} // namespace NDIAGKIT
