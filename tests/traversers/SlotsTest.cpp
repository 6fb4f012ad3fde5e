// SPDX-License-Identifier: Apache-2.0

// Where the traversers' operations stand in their tables. Clients of the shared library rely on it.

#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/tools/DiagLayerTraverser.h>

#include "support/Slots.h"

#ifdef DIAGKIT_TEST_SLOTS

namespace NTest {
namespace {

constexpr std::size_t kDictionaryKinds = 66;
constexpr std::size_t kLayerKinds = 26;

/// All operations in the open, none overridden.
class VOpen : public NDIAGKIT::VDiagLayerTraverser {
public:
#define TRAVERSER_KIND(kind, element)                                                                                  \
    using VDiagLayerTraverser::PreProcess##kind;                                                                       \
    using VDiagLayerTraverser::PostProcess##kind;
#define TRAVERSER_TEXT_KIND(kind) TRAVERSER_KIND(kind, )
#include <diagkit/tools/TraverserKinds.def>

    using VDiagDataDictionarySpecTraverser::DefaultVisit;
    using VDiagDataDictionarySpecTraverser::DescendEnvData;
    using VDiagDataDictionarySpecTraverser::DescendRelatedDoc;
    using VDiagDataDictionarySpecTraverser::VisitAdminData;
    using VDiagDataDictionarySpecTraverser::VisitXdoc;
    using VDiagLayerTraverser::DescendDiagComm;
    using VDiagLayerTraverser::DescendDiagLayer;
    using VDiagLayerTraverser::VisitComparamRef;
    using VDiagLayerTraverser::VisitFunctClass;
};

using VSlots = std::vector<std::ptrdiff_t>;

VSlots Row(std::ptrdiff_t first, std::size_t count) {
    VSlots slots(count);
    std::iota(slots.begin(), slots.end(), first);
    return slots;
}

VSlots Joined(VSlots slots, VSlots const& more) {
    slots.insert(slots.end(), more.begin(), more.end());
    return slots;
}

VSlots const kPreProcess = {
#define TRAVERSER_KIND(kind, element) SlotOf(&VOpen::PreProcess##kind),
#define TRAVERSER_TEXT_KIND(kind) TRAVERSER_KIND(kind, )
#include <diagkit/tools/TraverserKinds.def>
};

VSlots const kPostProcess = {
#define TRAVERSER_KIND(kind, element) SlotOf(&VOpen::PostProcess##kind),
#define TRAVERSER_TEXT_KIND(kind) TRAVERSER_KIND(kind, )
#include <diagkit/tools/TraverserKinds.def>
};

// The dictionary's hooks stand in the table of its traverser, those of the layers in that of theirs.

TEST(TraverserSlotsTest, PreProcess) {
    VSlots layers = Row(49, kLayerKinds);
    std::swap(layers[0], layers[1]); // Protocol comes before BaseVariant here, and only here
    EXPECT_EQ(kPreProcess, Joined(Row(109, kDictionaryKinds), layers));
}

TEST(TraverserSlotsTest, PostProcess) {
    EXPECT_EQ(kPostProcess, Joined(Row(175, kDictionaryKinds), Row(75, kLayerKinds)));
}

TEST(TraverserSlotsTest, VisitsDescendsAndWalksOfDictionaries) {
    EXPECT_EQ(SlotsOf(&VOpen::VisitAdminData, &VOpen::VisitXdoc, &VOpen::DescendEnvData, &VOpen::DescendRelatedDoc),
              (VSlots{14, 58, 59, 108}));
    EXPECT_EQ(SlotsOf(&VOpen::DefaultVisit, &VOpen::TraverseDiagDataDictionarySpec, &VOpen::TraverseParam,
                      &VOpen::TraverseParamCollection),
              Row(241, 4));
}

TEST(TraverserSlotsTest, VisitsDescendsAndWalksOfLayers) {
    EXPECT_EQ(SlotsOf(&VOpen::TraverseDiagLayer, &VOpen::VisitFunctClass, &VOpen::VisitComparamRef,
                      &VOpen::DescendDiagLayer, &VOpen::DescendDiagComm),
              (VSlots{8, 9, 27, 28, 48}));
}

} // namespace
} // namespace NTest

#endif
