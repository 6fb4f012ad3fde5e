// SPDX-License-Identifier: Apache-2.0

// The choices of the traverser that look like mistakes and are none.

#include <diagkit/tools/DiagLayerTraverser.h>

#include <vector>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>

#include "support/VerifyModel.h"

namespace NTest {
namespace {

/// Writes down the DIAG-COMMs and DIAG-VARIABLEs that it enters and leaves, and the current DIAG-COMM.
class VRecording : public NDIAGKIT::VDiagLayerTraverser {
public:
    using VDiagLayerTraverser::VDiagLayerTraverser;

    std::vector<std::wstring> Recorded() {
        TraverseDiagLayer();
        return m_recorded;
    }

protected:
    void PreProcessDiagService(NODX201::VDiagService& x) override { Note(L"service ", x); }
    void PostProcessDiagService(NODX201::VDiagService& x) override { Note(L"/service ", x); }
    void PreProcessSingleEcuJob(NODX201::VSingleEcuJob& x) override { Note(L"job ", x); }
    void PreProcessDiagComm(NODX201::VDiagComm& x) override { Note(L"comm ", x); }
    void PreProcessDiagVariable(NODX201::VDiagVariable& x) override { Note(L"variable ", x); }

private:
    void Note(std::wstring const& what, NODX201::VOdxElement& x) {
        std::wstring const current = m_currentDiagComm != nullptr ? m_currentDiagComm->GetShortName() : L"none";
        m_recorded.push_back(what + x.GetShortName() + L", current " + current);
    }

    std::vector<std::wstring> m_recorded;
};

class DiagLayerTraverserTest : public testing::Test {
protected:
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
    NMemory::VMemEcuVariant& m_layer = m_container.AddEcuVariant(L"Layer");
    NMemory::VMemEcuSharedData& m_library = m_container.AddEcuSharedData(L"Library");
};

TEST_F(DiagLayerTraverserTest, CurrentDiagCommIsNullAfterANestedDiagComm) {
    NMemory::VMemDiagService& nested = m_library.AddDiagService(L"Nested");
    m_layer.AddDiagService(L"Outer").AddRelatedDiagCommRef(nested);
    VerifyModel(m_database);
    EXPECT_EQ(VRecording(m_layer).Recorded(),
              (std::vector<std::wstring>{L"service Outer, current Outer", L"comm Nested, current Nested",
                                         L"/service Outer, current none"}));
}

TEST_F(DiagLayerTraverserTest, MatchingParameterVisitsDiagCommWithoutDispatch) {
    NMemory::VMemSingleEcuJob& job = m_library.AddSingleEcuJob(L"Job");
    m_layer.AddEcuVariantPattern().AddMatchingParameter().SetDiagCommSnref(job);
    EXPECT_EQ(VRecording(m_layer).Recorded(), (std::vector<std::wstring>{L"comm Job, current Job"}));
}

TEST_F(DiagLayerTraverserTest, DiagVariableReferencesAreNotFollowed) {
    NMemory::VMemDiagVariable& referenced = m_library.AddDiagVariable(L"Referenced");
    m_layer.AddDiagVariable(L"First");
    m_layer.AddDiagVariableRef(referenced);
    m_layer.AddDiagVariable(L"Last");
    EXPECT_EQ(VRecording(m_layer).Recorded(),
              (std::vector<std::wstring>{L"variable First, current none", L"variable Last, current none"}));
}

} // namespace
} // namespace NTest
