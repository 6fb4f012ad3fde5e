// SPDX-License-Identifier: Apache-2.0

// The slots of the virtual operations in the tables of their classes. A host that overrides or calls them from its own
// library relies on them.

#include <gtest/gtest.h>

#include <diagkit/logging/SharedLogger.h>
#include <diagkit/model/Collections.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/StringContainer.h>
#include <diagkit/util/TextConv.h>

#include "support/Slots.h"

#ifdef DIAGKIT_TEST_SLOTS

namespace NTest {
namespace {

using VSlots = std::vector<std::ptrdiff_t>;

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
    EXPECT_EQ(SlotsOf(&V::IsDiagService, &V::IsSingleEcuJob, &V::IsDiagCommLink), (VSlots{0, 1, 2}));
}

TEST(SlotsTest, ProxiesOfReferencesAndElementsAskForTheReferenceFirst) {
    using NODX201::IDiagVariableProxy;
    using NODX201::IDtcProxy;
    using NODX201::IEnvDataProxy;
    using NODX201::IRowWrapper;
    VSlots const slots = {0, 1};
    EXPECT_EQ(SlotsOf(&IDiagVariableProxy::IsDiagVariableLink, &IDiagVariableProxy::IsDiagVariable), slots);
    EXPECT_EQ(SlotsOf(&IDtcProxy::IsDtcLink, &IDtcProxy::IsDtc), slots);
    EXPECT_EQ(SlotsOf(&IEnvDataProxy::IsEnvDataLink, &IEnvDataProxy::IsEnvData), slots);
    EXPECT_EQ(SlotsOf(&IRowWrapper::IsTableRowLink, &IRowWrapper::IsTableRow), slots);
}

TEST(SlotsTest, ChoicesAskInTheOrderOfTheirNames) {
    using Values = NODX201::IAllValueDtcValuesChoice;
    using Structures = NODX201::IBasicStructureEnvDataDescChoice;
    using Functions = NODX201::ICompuConstCompuRationalCoeffsChoice;
    using Methods = NODX201::ICompuScalesProgCodeChoice;
    using Groups = NODX201::ISdgSdChoice;
    using Tables = NODX201::ITableRefTableRowRefChoice;
    VSlots const slots = {0, 1};
    EXPECT_EQ(SlotsOf(&Values::IsAllValue, &Values::IsDtcValues), slots);
    EXPECT_EQ(SlotsOf(&Structures::IsBasicStructureLink, &Structures::IsEnvDataDescLink), slots);
    EXPECT_EQ(SlotsOf(&Functions::IsCompuConst, &Functions::IsCompuRationalCoeffs), slots);
    EXPECT_EQ(SlotsOf(&Methods::IsCompuScales, &Methods::IsProgCode), slots);
    EXPECT_EQ(SlotsOf(&Groups::IsSdg, &Groups::IsSd), slots);
    EXPECT_EQ(SlotsOf(&Tables::IsTableLink, &Tables::IsTableRowLink), slots);
}

// Views destroy elements that are removed by position, so these have a destructor.
TEST(SlotsTest, InterfacesOfViewsHaveADestructorFirst) {
    using NODX201::IIdentIf;
    using NODX201::IInParamIf;
    using NODX201::IOutParamIf;
    EXPECT_EQ(SlotsOf(&IInParamIf::IsInputParam, &IInParamIf::IsValue), SlotsAfterDestructor(2));
    EXPECT_EQ(SlotsOf(&IOutParamIf::IsOutputParam, &IOutParamIf::IsValue), SlotsAfterDestructor(2));
    EXPECT_EQ(SlotsOf(&IIdentIf::IsExpectedIdent, &IIdentIf::IsOwnIdent), SlotsAfterDestructor(2));
}

TEST(SlotsTest, BuffersHaveTheirDestructorLast) {
    using NPavonaUtil::IBuffers;
    EXPECT_EQ(SlotsOf(&IBuffers::CharBuffer, &IBuffers::WideBuffer), (VSlots{0, 1}));
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

TEST(SlotsTest, LogListener) { EXPECT_EQ(SlotsOf(&NLogging::ILogListener::Log), VSlots{0}); }

} // namespace
} // namespace NTest

#endif
