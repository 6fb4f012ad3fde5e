// SPDX-License-Identifier: Apache-2.0

// Interfaces of the contract are open to any class. An entry that claims to be what it is not is skipped.

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/tools/DiagLayerTraverser.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/oem/AudiVwHeuristic.h>

#include "strict/StrictElements.h"

namespace NTest {
namespace {

using namespace NODX201;

/// Returns true for every test and is none of them.
#define TWO_ALTERNATIVES(interface, first, second)                                                                     \
    struct VLying##interface : interface {                                                                             \
        virtual ~VLying##interface() = default;                                                                        \
        bool first() const override { return true; }                                                                   \
        bool second() const override { return true; }                                                                  \
    };
TWO_ALTERNATIVES(IAllValueDtcValuesChoice, IsAllValue, IsDtcValues)
TWO_ALTERNATIVES(IBasicStructureEnvDataDescChoice, IsBasicStructureLink, IsEnvDataDescLink)
TWO_ALTERNATIVES(ICompuConstCompuRationalCoeffsChoice, IsCompuConst, IsCompuRationalCoeffs)
TWO_ALTERNATIVES(ICompuScalesProgCodeChoice, IsCompuScales, IsProgCode)
TWO_ALTERNATIVES(IDiagVariableProxy, IsDiagVariableLink, IsDiagVariable)
TWO_ALTERNATIVES(IDtcProxy, IsDtcLink, IsDtc)
TWO_ALTERNATIVES(IEnvDataProxy, IsEnvDataLink, IsEnvData)
TWO_ALTERNATIVES(IOutParamIf, IsOutputParam, IsValue)
TWO_ALTERNATIVES(IRowWrapper, IsTableRowLink, IsTableRow)
TWO_ALTERNATIVES(ISdgSdChoice, IsSdg, IsSd)
TWO_ALTERNATIVES(ITableRefTableRowRefChoice, IsTableLink, IsTableRowLink)
struct VLyingIDiagCommProxy : IDiagCommProxy {
    virtual ~VLyingIDiagCommProxy() = default;
    bool IsDiagService() const override { return true; }
    bool IsSingleEcuJob() const override { return true; }
    bool IsDiagCommLink() const override { return true; }
};

/// Elements with one such alternative or entry, and in addition the contents of the elements behind them.
template <class Class>
using VElementOf = typename VStrict<Class>::Type;

#define WITH_LYING_CHOICE(element, name, interface)                                                                    \
    struct VLying##element : VElementOf<element> {                                                                     \
        using VBase = VElementOf<element>;                                                                             \
        using VBase::VBase;                                                                                            \
        bool Has##name() const override { return true; }                                                               \
        interface& Get##name() override {                                                                              \
            return m_lying;                                                                                            \
        }                                                                                                              \
        VLying##interface m_lying;                                                                                     \
    };
WITH_LYING_CHOICE(VEnvData, AllValueDtcValuesChoice, IAllValueDtcValuesChoice)
WITH_LYING_CHOICE(VStaticField, BasicStructureEnvDataDescChoice, IBasicStructureEnvDataDescChoice)
WITH_LYING_CHOICE(VCompuScale, CompuConstCompuRationalCoeffsChoice, ICompuConstCompuRationalCoeffsChoice)
WITH_LYING_CHOICE(VCompuInternalToPhys, CompuScalesProgCodeChoice, ICompuScalesProgCodeChoice)
WITH_LYING_CHOICE(VTableKey, TableRefTableRowRefChoice, ITableRefTableRowRefChoice)

template <class Collection, class Lying>
struct VLyingCollection : Collection {
    VLyingCollection() { this->m_elements.push_back(&m_lying); }
    Lying m_lying;
};
#define WITH_LYING_ENTRY(element, collection, interface)                                                               \
    struct VLying##element : VElementOf<element> {                                                                     \
        using VBase = VElementOf<element>;                                                                             \
        using VBase::VBase;                                                                                            \
        V##collection& collection() override { return m_lying; }                                                       \
        VLyingCollection<V##collection, VLying##interface> m_lying;                                                    \
    };
WITH_LYING_ENTRY(VDtcDop, DtcProxyCollection, IDtcProxy)
WITH_LYING_ENTRY(VDiagDataDictionarySpec, EnvDataProxyCollection, IEnvDataProxy)
WITH_LYING_ENTRY(VTable, RowWrapperCollection, IRowWrapper)
WITH_LYING_ENTRY(VSdg, SdgSdChoiceCollection, ISdgSdChoice)
WITH_LYING_ENTRY(VEcuSharedData, DiagVariableProxyCollection, IDiagVariableProxy)

struct VLyingLink : VElementOf<VOutParamIfLink> {
    using VBase = VElementOf<VOutParamIfLink>;
    using VBase::VBase;
    bool HasOutParamIf(VDiagComm&, VDiagLayer&, VSearchRange) override { return true; }
    IOutParamIf& GetOutParamIf() override { return m_lying; }
    VLyingIOutParamIf m_lying;
};

struct VLyingEnvDataDesc : VElementOf<VEnvDataDesc> {
    VLyingEnvDataDesc(VStrictModel& model, VEnvDataDesc& inner)
        : VElementOf<VEnvDataDesc>(model, inner), m_link(model, inner.GetParamSnref()) {}
    bool HasParamSnref() const override { return true; }
    VOutParamIfLink& GetParamSnref() override { return m_link; }
    VEnvDataProxyCollection& EnvDataProxyCollection() override { return m_lying; }
    VLyingLink m_link;
    VLyingCollection<VEnvDataProxyCollection, VLyingIEnvDataProxy> m_lying;
};

struct VLyingProtocol : VElementOf<VProtocol> {
    using VBase = VElementOf<VProtocol>;
    using VBase::VBase;
    bool HasDiagCommProxyCollection() const override { return true; }
    VDiagCommProxyCollection& DiagCommProxyCollection() override { return m_lying; }
    VLyingCollection<VDiagCommProxyCollection, VLyingIDiagCommProxy> m_lying;
};

/// Counts the elements it visits; its Visit operations are public for the tests.
class VCountingWalk : public NDIAGKIT::VDiagLayerTraverser {
public:
    explicit VCountingWalk(VDiagLayer& layer) : VDiagLayerTraverser(layer) {}

#define TRAVERSER_KIND(kind, element) using VDiagLayerTraverser::Visit##kind;
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>

    void SetCurrentDiagComm(VDiagComm& diagComm) { m_currentDiagComm = &diagComm; }

    std::size_t m_met = 0;

protected:
    void DefaultVisit(VOdxElement&) override { ++m_met; }
};

class LyingEntriesTest : public testing::Test {
protected:
    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
    NMemory::VMemProtocol& m_protocol = m_container.AddProtocol(L"PR_UDSOnCAN");
    NMemory::VMemEcuSharedData& m_layer = m_container.AddEcuSharedData(L"Layer");
    NMemory::VMemDiagDataDictionarySpec& m_dictionary = m_layer.MakeDiagDataDictionarySpec();
    VStrictModel m_model{VStrictModel::VParentRefs::Free};
    VCountingWalk m_walk{m_layer};
};

TEST_F(LyingEntriesTest, ChoicesOfADictionary) {
    VLyingVEnvData envData(m_model, m_dictionary.AddEnvData(L"EnvData"));
    m_walk.VisitEnvData(envData);
    VLyingVStaticField field(m_model, m_dictionary.AddStaticField(L"Field"));
    m_walk.VisitStaticField(field);
    auto& toPhys = m_dictionary.AddDataObjectProp(L"Dop").MakeCompuMethod().MakeCompuInternalToPhys();
    VLyingVCompuScale scale(m_model, toPhys.MakeCompuScales().AddCompuScale());
    m_walk.VisitCompuScale(scale);
    VLyingVCompuInternalToPhys internalToPhys(m_model, toPhys);
    m_walk.VisitCompuInternalToPhys(internalToPhys);
    VLyingVTableKey key(m_model, m_dictionary.AddStructure(L"Structure").AddTableKey(L"Key"));
    m_walk.VisitTableKey(key);
    EXPECT_EQ(m_walk.m_met, 5u) << "the five elements alone";
}

TEST_F(LyingEntriesTest, EntriesOfADictionary) {
    VLyingVDtcDop dtcDop(m_model, m_dictionary.AddDtcDop(L"DtcDop"));
    m_walk.VisitDtcDop(dtcDop);
    VLyingVTable table(m_model, m_dictionary.AddTable(L"Table"));
    m_walk.VisitTable(table);
    VLyingVSdg sdg(m_model, m_layer.AddDiagService(L"Service").AddSdg());
    m_walk.VisitSdg(sdg);
    EXPECT_EQ(m_walk.m_met, 3u) << "the three elements alone";
    NMemory::VMemDiagDataDictionarySpec& empty = m_protocol.MakeDiagDataDictionarySpec();
    VLyingVDiagDataDictionarySpec dictionary(m_model, empty);
    m_walk.TraverseDiagDataDictionarySpec(dictionary);
    EXPECT_EQ(m_walk.m_met, 3u) << "nothing of the dictionary";
}

TEST_F(LyingEntriesTest, EnvDatasAndTheParameterOfAnEnvDataDesc) {
    NMemory::VMemEnvDataDesc& inner = m_dictionary.AddEnvDataDesc(L"Desc");
    inner.SetParamSnref(NMemory::VReference::ByShortName(L"Param"));
    VLyingEnvDataDesc desc(m_model, inner);
    m_walk.SetCurrentDiagComm(m_layer.AddDiagService(L"Service"));
    m_walk.VisitEnvDataDesc(desc);
    EXPECT_EQ(m_walk.m_met, 1u);
}

TEST_F(LyingEntriesTest, DiagCommsAndDiagVariablesOfALayer) {
    VLyingProtocol protocol(m_model, m_protocol);
    VCountingWalk ofProtocol(protocol);
    ofProtocol.TraverseDiagLayer();
    EXPECT_EQ(ofProtocol.m_met, 1u);
    EXPECT_TRUE(NDIAGKIT::VDiagCommView(protocol).IsEmpty());
    NMemory::VMemEcuSharedData& library = m_container.AddEcuSharedData(L"Library");
    VLyingVEcuSharedData sharedData(m_model, library);
    VCountingWalk ofSharedData(sharedData);
    ofSharedData.TraverseDiagLayer();
    EXPECT_EQ(ofSharedData.m_met, 1u);
    EXPECT_TRUE(NDIAGKIT::VDiagVariableView(sharedData).IsEmpty());
}

TEST_F(LyingEntriesTest, RulesOfDetectionThatLookAtServices) {
    VLyingProtocol protocol(m_model, m_protocol);
    NDIAGKIT::VOemCheckContext context(m_database.GetOdx());
    context.m_protocols = {&protocol};
    EXPECT_TRUE(NDIAGKIT::VAudiVwCharacterRule(&context).Matches()) << "no service is named otherwise";
}

} // namespace
} // namespace NTest
