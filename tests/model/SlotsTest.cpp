// SPDX-License-Identifier: Apache-2.0

// Where the virtual operations stand in their classes' tables. A host that overrides or calls them from a library of
// its own relies on it.

#include <gtest/gtest.h>

#include <diagkit/logging/SharedLogger.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/StringContainer.h>

#include "support/Slots.h"

#ifdef DIAGKIT_TEST_SLOTS

namespace NTest {
namespace {

TEST(SlotsTest, DiagLayerVisitor) {
    using V = NODX201::VDiagLayerVisitor;
    EXPECT_EQ(SlotsOf(&V::VisitBaseVariant, &V::VisitProtocol, &V::VisitFunctionalGroup, &V::VisitEcuVariant,
                      &V::VisitEcuSharedData, &V::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}

TEST(SlotsTest, DiagCommVisitor) {
    using V = NODX201::VDiagCommVisitor;
    EXPECT_EQ(SlotsOf(&V::VisitDiagService, &V::VisitSingleEcuJob, &V::DispatchDiagComm), SlotsAfterDestructor(3));
}

TEST(SlotsTest, DopBaseVisitor) {
    using V = NODX201::VDopBaseVisitor;
    EXPECT_EQ(SlotsOf(&V::VisitEnvData, &V::VisitStructure, &V::VisitEnvDataDesc, &V::VisitStaticField,
                      &V::VisitDynamicLengthField, &V::VisitDynamicEndmarkerField, &V::VisitEndOfPduField, &V::VisitMux,
                      &V::VisitDataObjectProp, &V::VisitDtcDop, &V::DispatchDopBase),
              SlotsAfterDestructor(11));
}

TEST(SlotsTest, ParamVisitor) {
    using V = NODX201::VParamVisitor;
    EXPECT_EQ(SlotsOf(&V::VisitCodedConst, &V::VisitDynamic, &V::VisitLengthKey, &V::VisitMatchingRequestParam,
                      &V::VisitPhysConst, &V::VisitReserved, &V::VisitSystem, &V::VisitTableKey, &V::VisitTableStruct,
                      &V::VisitValue, &V::VisitTableEntry, &V::DispatchParam),
              SlotsAfterDestructor(12));
}

TEST(SlotsTest, DiagCommProxy) {
    using V = NODX201::IDiagCommProxy;
    EXPECT_EQ(SlotsOf(&V::IsDiagService, &V::IsSingleEcuJob, &V::IsDiagCommLink),
              (std::vector<std::ptrdiff_t>{0, 1, 2}));
}

TEST(SlotsTest, DiagVariableProxy) {
    using V = NODX201::IDiagVariableProxy;
    EXPECT_EQ(SlotsOf(&V::IsDiagVariable), std::vector<std::ptrdiff_t>{1});
}

TEST(SlotsTest, StringContainer) {
    using V = NDIAGKIT::VStringContainer;
    EXPECT_EQ(SlotsOf(&V::Destroy), SlotsAfterDestructor(1));
}

TEST(SlotsTest, OpBuildDiagCommView) {
    using V = NDIAGKIT::VOpBuildDiagCommView;
    EXPECT_EQ(SlotsOf(&V::VisitBaseVariant, &V::VisitProtocol, &V::VisitFunctionalGroup, &V::VisitEcuVariant,
                      &V::VisitEcuSharedData, &V::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}

TEST(SlotsTest, LogListener) { EXPECT_EQ(SlotsOf(&NLogging::ILogListener::Log), std::vector<std::ptrdiff_t>{0}); }

} // namespace
} // namespace NTest

#endif
