// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildProtocolView.h>

#include <type_traits>

#include "support/MockElements.h"
#include "support/RecordedLog.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VOpBuildProtocolView;
using NDIAGKIT::VProtocolView;

static_assert(!std::is_base_of_v<NODX201::VDiagLayerVisitor, VOpBuildProtocolView>);
static_assert(std::has_virtual_destructor_v<VOpBuildProtocolView>);
static_assert(std::is_copy_constructible_v<VOpBuildProtocolView> && std::is_copy_assignable_v<VOpBuildProtocolView>);

class OpBuildProtocolViewTest : public VContentTest {
protected:
    OpBuildProtocolViewTest() : VContentTest(VContent::Dops) {}

    void SetUp() override { Graph(L"prot Uds \n base Bv < Uds \n prot Kwp"); }

    NODX201::VDiagLayerContainer& Container() { return m_graph->Container(); }
};

TEST_F(OpBuildProtocolViewTest, CreateMakesTheViewOfTheContainer) {
    VRecordedLog log;
    VOpBuildProtocolView builder;
    VProtocolView* const view = builder.CreateProtocolView(Container());
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(*view == VProtocolView(Container()));
    EXPECT_EQ(view->Count(), 2u);
    builder.DestroyProtocolView(*view);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

TEST_F(OpBuildProtocolViewTest, ASecondCreateDestroysTheFirstView) {
    VOpBuildProtocolView builder; // the sanitizers see that nothing leaks or dies twice
    builder.CreateProtocolView(Container());
    VProtocolView* const last = builder.CreateProtocolView(Database().AddDiagLayerContainer(L"Empty"));
    EXPECT_TRUE(last->IsEmpty());
    builder.DestroyProtocolView(*last);
    EXPECT_EQ(VProtocolView(Container()).Count(), 2u) << "the PROTOCOLs live on";
}

TEST_F(OpBuildProtocolViewTest, ACopyAndAnAssignedBuilderRememberTheSameView) {
    VOpBuildProtocolView original;
    VProtocolView* const shared = original.CreateProtocolView(Container());
    VOpBuildProtocolView copy(original);
    VOpBuildProtocolView assigned;
    assigned = copy;
    EXPECT_EQ(shared->Count(), 2u) << "copying a builder leaves the view alone";
    VProtocolView* const last = assigned.CreateProtocolView(Container()); // destroys the shared view
    assigned.DestroyProtocolView(*last);
}

TEST_F(OpBuildProtocolViewTest, AnExceptionFromTheModelLeavesTheBuilderEmpty) {
    class VThrowingLayer : public VMockEcuVariant {
    public:
        void Accept(NODX201::VDiagLayerVisitor&) override { throw std::runtime_error("no layer today"); }
    } throwing;
    class VContainer : public VMockElement<NODX201::VDiagLayerContainer> {
    public:
        wchar_t const* GetId() const override { return L""; }
        NODX201::VDiagLayerCollection& DiagLayerCollection() override { return m_layers; }
        class VLayers : public NODX201::VDiagLayerCollection {
        public:
            NODX201::VOdxObject* GetOwner() const override { return nullptr; }
            void Add(NODX201::VDiagLayer& layer) { m_elements.push_back(&layer); }
        } m_layers;
    } container;
    container.m_layers.Add(throwing);
    VOpBuildProtocolView builder;
    builder.CreateProtocolView(Container());
    EXPECT_THROW(builder.CreateProtocolView(container), std::runtime_error);
    VProtocolView* const view = builder.CreateProtocolView(Container());
    EXPECT_EQ(view->Count(), 2u);
    builder.DestroyProtocolView(*view);
}

} // namespace
} // namespace NTest
