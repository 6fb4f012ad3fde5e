// SPDX-License-Identifier: Apache-2.0

// The allocations of building, walking and releasing views, block by block.

#include <new>
#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/StringContainer.h>

#include "allocations/CountedAllocations.h"
#include "support/MockElements.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagCommView;
using NDIAGKIT::VOpBuildDiagCommView;

/// The number of blocks that `action` allocates.
template <class Action>
std::size_t AllocationsOf(Action action) {
    std::size_t const before = AllocationCount();
    action();
    return AllocationCount() - before;
}

class DiagCommViewAllocationsTest : public testing::Test {
protected:
    /// ECU-VARIANT < BASE-VARIANT < FUNCTIONAL-GROUP and PROTOCOL < ECU-SHARED-DATA, with the given number of own
    /// services each.
    void MakeStack(std::size_t services) {
        AddServices(m_shared, L"Shared_", services);
        AddServices(m_protocol, L"Protocol_", services);
        AddServices(m_group, L"Group_", services);
        AddServices(m_base, L"Base_", services);
        AddServices(m_ecu, L"Ecu_", services);
        m_protocol.AddParentRef(m_shared);
        m_group.AddParentRef(m_protocol);
        m_base.AddParentRef(m_group);
        m_base.AddParentRef(m_protocol);
        m_ecu.AddParentRef(m_base);
        VDiagCommView const resolved(m_ecu); // what links remember afterwards does not belong to the view
    }

    template <class Layer>
    static void AddServices(Layer& layer, std::wstring const& prefix, std::size_t count) {
        for (std::size_t number = 0; number < count; ++number) {
            layer.AddDiagService((prefix + std::to_wstring(number)).c_str());
        }
    }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Stack");
    NMemory::VMemEcuSharedData& m_shared = m_container.AddEcuSharedData(L"Shared");
    NMemory::VMemProtocol& m_protocol = m_container.AddProtocol(L"Protocol");
    NMemory::VMemFunctionalGroup& m_group = m_container.AddFunctionalGroup(L"Group");
    NMemory::VMemBaseVariant& m_base = m_container.AddBaseVariant(L"Base");
    NMemory::VMemEcuVariant& m_ecu = m_container.AddEcuVariant(L"Ecu");
};

TEST_F(DiagCommViewAllocationsTest, AnEntryTakesAListNodeAndANameNodeAndNothingElse) {
    constexpr std::size_t kServices = 1000;
    MakeStack(kServices);
    // The entries of the layers' views, every view counted as often as the passes build it: the PROTOCOL's and its
    // parent's twice.
    constexpr std::size_t kEntries = (5 + 4 + 3 + 2 + 2 + 1 + 1) * kServices;
    constexpr std::size_t kGrowth = 7 * 20; // bucket arrays of each view's set
    std::size_t const allocations = AllocationsOf([&] { VDiagCommView const view(m_ecu); });
    EXPECT_LE(allocations, 2 * kEntries + kGrowth);
    EXPECT_GE(allocations, 5 * kServices) << "or nothing was counted";
}

TEST_F(DiagCommViewAllocationsTest, WithoutParentsAnEntryTakesAListNodeOnly) {
    AddServices(m_shared, L"Shared_", 1000);
    EXPECT_EQ(AllocationsOf([&] { VDiagCommView const view(m_shared); }), 1000u + 1) << "and the list that is merged";
}

TEST_F(DiagCommViewAllocationsTest, AnEntryOfAParentTakesAListNodeAndANameNode) {
    AddServices(m_shared, L"Shared_", 1000);
    m_protocol.AddParentRef(m_shared);
    std::size_t const allocations = AllocationsOf([&] { VDiagCommView const view(m_protocol); });
    EXPECT_LE(allocations, 2 * 1000u + 40) << "and the lists that are merged";
}

TEST_F(DiagCommViewAllocationsTest, ManyParentsDoNotMakeTheSetOfNamesAnew) {
    AddServices(m_base, L"Name_", 1000);
    std::size_t entriesOfParents = 0;
    for (std::size_t parent = 0; parent < 200; ++parent) {
        std::size_t const entries = parent % 2 == 0 ? 90 : 1;
        auto& protocol = m_container.AddProtocol(L"Parent");
        AddServices(protocol, L"Name_", entries);
        m_base.AddParentRef(protocol);
        entriesOfParents += entries;
    }
    { VDiagCommView const resolved(m_base); }
    std::size_t const allocations = AllocationsOf([&] { VDiagCommView const view(m_base); });
    EXPECT_LE(allocations, 2 * 1000u + entriesOfParents + 20);
}

TEST_F(DiagCommViewAllocationsTest, WalkingAndSearchingAViewAllocatesNothing) {
    MakeStack(100);
    VDiagCommView view(m_ecu);
    NODX201::VDiagComm& last = *view.Find(L"Shared_99");
    std::size_t walked = 0;
    EXPECT_EQ(AllocationsOf([&] {
                  for (auto iter = view.Begin(); iter != view.End(); ++iter) {
                      walked += (*iter).GetShortName()[0] != L'\0';
                  }
                  for (NODX201::VDiagComm& diagComm : view) {
                      walked += diagComm.GetShortName()[0] != L'\0';
                  }
              }),
              0u);
    EXPECT_EQ(walked, 1000u);
    EXPECT_EQ(AllocationsOf([&] {
                  walked += view.Find(L"Shared_99") != view.End();
                  walked += view.Find(L"Gone") != view.End();
                  walked += view.Find(last) != view.End();
                  walked += view == view;
                  walked += view.Count();
              }),
              0u);
    EXPECT_EQ(walked, 1000u + 3u + 500u);
}

TEST_F(DiagCommViewAllocationsTest, WalkingTheModelAllocatesNothing) {
    MakeStack(100);
    std::size_t walked = 0;
    EXPECT_EQ(AllocationsOf([&] {
                  for (NODX201::IDiagCommProxy& proxy : m_ecu.DiagCommProxyCollection()) {
                      walked += proxy.IsDiagService();
                  }
                  for (NODX201::VParentRef& parentRef : m_ecu.ParentRefCollection()) {
                      walked += dynamic_cast<NODX201::VBaseVariantRef&>(parentRef).HasBaseVariant();
                  }
              }),
              0u);
    EXPECT_EQ(walked, 101u);
}

TEST_F(DiagCommViewAllocationsTest, AViewReleasesAllThatItTook) {
    MakeStack(100);
    m_base.AddParentRef(m_shared).ExcludeDiagComm(L"Shared_1").ExcludeDiagComm(L"Shared_2");
    { VDiagCommView const warm(m_ecu); }
    std::size_t const before = LiveBlocks();
    {
        VDiagCommView view(m_ecu);
        EXPECT_GT(LiveBlocks(), before);
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST_F(DiagCommViewAllocationsTest, AFinishedViewHoldsItsListNodesAndTheLastExclusionsOnly) {
    MakeStack(100);
    std::size_t const before = LiveBlocks();
    VDiagCommView view(m_ecu);
    EXPECT_EQ(LiveBlocks() - before, view.Count()) << "the names live for the construction alone";
}

// Which object destroys which view. A view uses one block for itself and one for each entry.

class BuilderLifetimeTest : public DiagCommViewAllocationsTest {
protected:
    void SetUp() override {
        AddServices(m_shared, L"Shared_", 10);
        AddServices(m_protocol, L"Protocol_", 3);
        m_before = LiveBlocks();
    }

    std::size_t LiveNow() const { return LiveBlocks() - m_before; }

    static constexpr std::size_t kSharedView = 11;
    static constexpr std::size_t kProtocolView = 4;
    std::size_t m_before = 0;
};

TEST_F(BuilderLifetimeTest, ASecondCreateDestroysTheFirstView) {
    VOpBuildDiagCommView builder;
    EXPECT_EQ(LiveNow(), 0u) << "a new builder has no view";
    builder.CreateDiagCommView(m_shared);
    EXPECT_EQ(LiveNow(), kSharedView);
    VDiagCommView* const view = builder.CreateDiagCommView(m_protocol);
    EXPECT_EQ(LiveNow(), kProtocolView);
    builder.DestroyDiagCommView(*view);
    EXPECT_EQ(LiveNow(), 0u);
}

TEST_F(BuilderLifetimeTest, TheBuildersDestructorLeavesTheViewAlive) {
    VDiagCommView* view = nullptr;
    {
        VOpBuildDiagCommView builder;
        view = builder.CreateDiagCommView(m_shared);
    }
    EXPECT_EQ(LiveNow(), kSharedView);
    delete view;
    EXPECT_EQ(LiveNow(), 0u);
}

TEST_F(BuilderLifetimeTest, CopyingABuilderCopiesNoView) {
    VOpBuildDiagCommView original;
    original.CreateDiagCommView(m_shared);
    VOpBuildDiagCommView copy(original);
    VOpBuildDiagCommView assigned;
    assigned = original;
    EXPECT_EQ(LiveNow(), kSharedView);
    VDiagCommView* const view = copy.CreateDiagCommView(m_protocol);
    EXPECT_EQ(LiveNow(), kProtocolView) << "the copy remembered the view and destroyed it";
    delete view;
}

TEST_F(BuilderLifetimeTest, VisitOperationsDestroyNothing) {
    VOpBuildDiagCommView builder;
    VOpBuildDiagCommView earlier;
    builder.VisitEcuSharedData(m_shared);
    earlier = builder; // keeps the view that the second Visit forgets
    builder.VisitProtocol(m_protocol);
    EXPECT_EQ(LiveNow(), kSharedView + kProtocolView);
    delete builder.CreateDiagCommView(m_shared);
    EXPECT_EQ(LiveNow(), kSharedView) << "Create destroyed the view of the second Visit";
    delete earlier.CreateDiagCommView(m_shared);
    EXPECT_EQ(LiveNow(), 0u);
}

TEST_F(BuilderLifetimeTest, CreateDestroysTheRememberedViewBeforeItDispatches) {
    class VLayer : public VMockEcuVariant {
    public:
        void Accept(NODX201::VDiagLayerVisitor& visitor) override {
            m_liveInAccept = LiveBlocks();
            visitor.VisitEcuVariant(*this);
        }
        std::size_t m_liveInAccept = 0;
    };
    VLayer layer;
    VOpBuildDiagCommView builder;
    builder.CreateDiagCommView(m_shared);
    VDiagCommView* const view = builder.CreateDiagCommView(layer);
    EXPECT_EQ(layer.m_liveInAccept, m_before);
    delete view;
}

// Allocation failure is passed on as the standard exception, at any point, and nothing is lost.

TEST_F(DiagCommViewAllocationsTest, AFailedAllocationPropagatesAndLeaksNothing) {
    MakeStack(3);
    m_ecu.AddParentRef(m_shared).ExcludeDiagComm(L"Shared_1").ExcludeDiagComm(L"Shared_2");
    std::size_t needed = 0;
    {
        VOpBuildDiagCommView builder;
        VDiagCommView* view = nullptr;
        needed = AllocationsOf([&] { view = builder.CreateDiagCommView(m_ecu); });
        builder.DestroyDiagCommView(*view);
    }
    ASSERT_GT(needed, 30u);
    std::size_t const before = LiveBlocks();
    for (std::size_t after = 0; after < needed; ++after) {
        VOpBuildDiagCommView builder;
        bool hasThrown = false;
        builder.CreateDiagCommView(m_shared);
        try {
            VFailingAllocations const failing(after);
            builder.CreateDiagCommView(m_ecu);
        } catch (std::bad_alloc const&) {
            hasThrown = true;
        }
        EXPECT_TRUE(hasThrown) << after;
        EXPECT_EQ(LiveBlocks(), before) << after;
        VDiagCommView* const view = builder.CreateDiagCommView(m_shared);
        EXPECT_EQ(view->Count(), 3u) << "the builder works on";
        builder.DestroyDiagCommView(*view);
    }
}

TEST(StringContainerAllocationsTest, EveryCopyIsReleased) {
    std::size_t const before = LiveBlocks();
    {
        NDIAGKIT::VStringContainer container;
        container.AddCopy(L"a text that is too long to be kept inside a string object");
        container.AddCopy(L"another text that is too long to be kept inside a string object");
        std::size_t const two = LiveBlocks() - before;
        container.Remove(container.Begin());
        EXPECT_EQ((LiveBlocks() - before) * 2, two) << "one of two is released";
        container.Clear();
        EXPECT_EQ(LiveBlocks(), before);
        container.AddCopy(L"a text that is too long to be kept inside a string object");
    }
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(StringContainerAllocationsTest, DestroyReleasesTheContainerToo) {
    std::size_t const before = LiveBlocks();
    auto* const container = new NDIAGKIT::VStringContainer;
    container->AddCopy(L"a text that is too long to be kept inside a string object");
    container->Destroy();
    EXPECT_EQ(LiveBlocks(), before);
}

TEST(StringContainerAllocationsTest, AFailedAllocationChangesNothing) {
    NDIAGKIT::VStringContainer container;
    container.AddCopy(L"Read");
    std::size_t const before = LiveBlocks();
    for (std::size_t after = 0; after < 3; ++after) {
        bool hasThrown = false;
        try {
            VFailingAllocations const failing(after);
            container.AddCopy(L"a text that is too long to be kept inside a string object");
        } catch (std::bad_alloc const&) {
            hasThrown = true;
        }
        EXPECT_TRUE(hasThrown) << after;
        EXPECT_EQ(LiveBlocks(), before) << after;
        EXPECT_EQ(container.Count(), 1u) << after;
    }
}

} // namespace
} // namespace NTest
