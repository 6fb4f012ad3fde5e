// SPDX-License-Identifier: Apache-2.0

// The whole toolkit over the strict model: it gets only what it has asked for. Each use has its own model, so that it
// cannot rely on what another use asked.

#include <gtest/gtest.h>

#include <diagkit/conformance/Conformance.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildProtocolView.h>
#include <diagkit/tools/OpResolveSnref.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/SessionView.h>
#include <diagkit/tools/oem/AudiVwHeuristic.h>
#include <diagkit/tools/oem/BmwHeuristic.h>
#include <diagkit/tools/oem/ClaasHeuristic.h>
#include <diagkit/tools/oem/DaimlerHeuristic.h>
#include <diagkit/tools/oem/FiatHeuristic.h>
#include <diagkit/tools/oem/GmHeuristic.h>
#include <diagkit/tools/oem/OemChecker.h>
#include <diagkit/tools/oem/PSAHeuristic.h>
#include <diagkit/tools/oem/PagHeuristic.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

#include "strict/Databases.h"
#include "strict/StrictModel.h"

namespace NTest {
namespace {

using namespace NDIAGKIT;
using namespace NODX201;

constexpr wchar_t const* kNowhere = L"NoSuchName"; // makes searches look everywhere

/// Uses the toolkit and records what was got without asking, and everything that was got.
class VUses {
public:
    template <class Action, class... Starts>
    void Use(Action action, Starts&... starts) {
        UseIn(VStrictModel::VParentRefs::BehindHas, action, starts...);
    }

    /// For code that may call `ParentRefCollection()` without asking.
    template <class Action, class... Starts>
    void UseWithFreeParentRefs(Action action, Starts&... starts) {
        UseIn(VStrictModel::VParentRefs::Free, action, starts...);
    }

    VOperations m_got;
    std::set<std::string> m_faults;
    int m_count = 0;

private:
    template <class Action, class... Starts>
    void UseIn(VStrictModel::VParentRefs parentRefs, Action action, Starts&... starts) {
        VStrictModel model(parentRefs, &m_got);
        try {
            action(model.Of(starts)...);
        } catch (VNotAsked const& fault) {
            m_faults.insert(fault.what());
        }
        ++m_count;
    }
};

// clang-format off

void Views(VUses& uses, VLoaded const& database) {
    for (VDiagLayer* const layer : database.layers) {
        uses.Use([](auto& x) { VOpBuildDiagCommView builder;          builder.DestroyDiagCommView(*builder.CreateDiagCommView(x)); }, *layer);
        uses.Use([](auto& x) { VOpBuildGlobalNegResponseView builder; builder.DestroyGlobalNegResponseView(*builder.CreateGlobalNegResponseView(x)); }, *layer);
        uses.UseWithFreeParentRefs([](auto& x) { VOpBuildDiagVariableView builder; builder.DestroyDiagVariableView(*builder.CreateDiagVariableView(x)); }, *layer);
        uses.UseWithFreeParentRefs([](auto& x) { VOpBuildDopView builder;          builder.DestroyDopView(*builder.CreateDopView(x)); }, *layer);
    }
    for (VDiagLayerContainer* const container : database.containers) {
        uses.Use([](auto& x) { VOpBuildProtocolView builder; builder.DestroyProtocolView(*builder.CreateProtocolView(x)); }, *container);
    }
    for (VBaseVariant* const layer : database.All<VBaseVariant>()) {
        uses.UseWithFreeParentRefs([](auto& x) { VProtocolView view(x); }, *layer);
    }
}

void ParamViews(VUses& uses, VLoaded const& database) {
    VDiagLayer& layer = *database.layers.back();
    for (VDiagService* const service : database.All<VDiagService>()) {
        uses.Use([](auto& x) { VInParamIfView(x).Find(kNowhere); }, *service);
        for (int range = 0; range < 6; ++range) {
            uses.Use([range](auto& x, auto& context) { VOutParamIfView(x, static_cast<VSearchRange>(range)).Find(kNowhere, context); }, *service, layer);
        }
    }
    auto const useJob = [&](auto& job) {
        uses.Use([](auto& x) { VInParamIfView(x).Find(kNowhere); }, job);
        uses.Use([](auto& x, auto& context) { VOutParamIfView(x).Find(kNowhere, context); }, job, layer);
    };
    for (VSingleEcuJob* const job : database.All<VSingleEcuJob>())     { useJob(*job); }
    for (VMultipleEcuJob* const job : database.All<VMultipleEcuJob>()) { useJob(*job); }
    for (VFlash* const flash : database.All<VFlash>()) {
        uses.Use([](auto& x) { VIdentIfView(x).Find(kNowhere); }, *flash);
        uses.Use([](auto& x) { VSessionView(x).Find(kNowhere); }, *flash);
    }
}

void Walks(VUses& uses, VLoaded const& database) {
    for (VDiagLayer* const layer : database.layers) {
        uses.Use([](auto& x) { VGuardedDiagLayerTraverser(x).TraverseDiagLayer(); }, *layer);
        if (layer->HasDiagDataDictionarySpec()) {
            uses.Use([](auto& x, auto& dictionary) { VGuardedDiagLayerTraverser(x).TraverseDiagDataDictionarySpec(dictionary); }, *layer, layer->GetDiagDataDictionarySpec());
        }
    }
}

void Resolutions(VUses& uses, VLoaded const& database) {
    for (VDiagLayer* const layer : database.layers) {
        uses.Use([](auto& x) { VOpResolveSnref().ResolveDiagCommSnref(kNowhere, x); }, *layer);
        uses.UseWithFreeParentRefs([](auto& x) { VOpResolveSnref().ResolveDopBaseSnref(kNowhere, x); }, *layer);
        uses.UseWithFreeParentRefs([](auto& x) { VOpResolveSnref().ResolveDataObjectPropSnref(kNowhere, x); }, *layer);
        uses.UseWithFreeParentRefs([](auto& x) { VOpResolveSnref().ResolveDiagVariableSnref(kNowhere, x); }, *layer);
    }
    for (VDiagLayerContainer* const container : database.containers) {
        uses.Use([](auto& x) { VOpResolveSnref().ResolveProtocolSnref(kNowhere, x); }, *container);
    }
    for (VFlash* const flash : database.All<VFlash>()) {
        uses.Use([](auto& x) { VOpResolveSnref().ResolveIdentIfSnref(kNowhere, x); }, *flash);
        uses.Use([](auto& x) { VOpResolveSnref().ResolveSessionSnref(kNowhere, x); }, *flash);
    }
    VDiagLayer& layer = *database.layers.back();
    for (VDiagComm* const diagComm : database.All<VDiagComm>()) {
        if (auto* const job = dynamic_cast<VMultipleEcuJob*>(diagComm)) {
            uses.Use([](auto& x) { VOpResolveSnref().ResolveInParamIfSnref(kNowhere, x); }, *job);
            uses.Use([](auto& x, auto& context) { VOpResolveSnref().ResolveOutParamIfSnref(kNowhere, x, context); }, *job, layer);
        } else {
            uses.Use([](auto& x) { VOpResolveSnref().ResolveInParamIfSnref(kNowhere, x); }, *diagComm);
            uses.Use([](auto& x, auto& context) { VOpResolveSnref().ResolveOutParamIfSnref(kNowhere, x, context, VSearchRange::RequestAndResponses); }, *diagComm, layer);
        }
    }
}

// clang-format on

template <class Rule, class... Arguments>
void Detection(VUses& uses, VOdx& odx, Arguments... arguments) {
    uses.Use(
        [arguments...](auto& x) {
            VOemCheckContext context(x);
            Rule(&context, arguments...).Matches();
        },
        odx);
}

void Detections(VUses& uses, VLoaded const& database) {
    VOdx& odx = database.result.database->GetOdx();
    Detection<VAudiVwProtocolRule>(uses, odx);
    Detection<VAudiVwTeamMembersRule>(uses, odx);
    Detection<VAudiVwCharacterRule>(uses, odx);
    Detection<VBmwIdRule>(uses, odx);
    Detection<VBmwEcuSharedDataRule>(uses, odx);
    Detection<VBmwProtocolRule>(uses, odx);
    Detection<VBmwEcuSharedDataRuleNew>(uses, odx);
    Detection<VBmwFunctionalGroupRule>(uses, odx);
    Detection<VClaasProcessingInstructionRule>(uses, odx);
    Detection<VDaimlerHierarchicalIdsRule>(uses, odx);
    Detection<VDaimlerComparamsRule>(uses, odx);
    Detection<VFiatStateSdgRule>(uses, odx);
    Detection<VFiatAdditionalComparamsRule>(uses, odx);
    Detection<VGmProtocolRule>(uses, odx);
    Detection<VGmFunctionalGroupRule>(uses, odx);
    Detection<VGmComparamSpecRule>(uses, odx);
    Detection<VPagOidRule>(uses, odx);
    Detection<VPagModelRule>(uses, odx);
    Detection<VPagFunctionalGroupRule>(uses, odx);
    Detection<VPagComparamSpecRule>(uses, odx);
    Detection<VPagDopRule>(uses, odx);
    Detection<VPSAEcuSharedDataRule>(uses, odx);
    Detection<VProcessingInstructionRule>(uses, odx, L"8");
    uses.Use([](auto& x) { VOemChecker().GetManufacturer(x); }, odx);
    uses.Use([](auto& x) { VOemChecker().Report(x); }, odx);
}

/// The faults of uses that start from each database.
std::string Faults(std::vector<std::unique_ptr<VLoaded>> const& databases, void (*use)(VUses&, VLoaded const&)) {
    VUses uses;
    for (auto const& database : databases) {
        use(uses, *database);
    }
    EXPECT_GT(uses.m_count, 5);
    EXPECT_FALSE(uses.m_got.empty());
    return Lines(uses.m_faults);
}

TEST(AskingTest, ViewsAndTheirBuilders) { EXPECT_EQ(Faults(SmallDatabases(), &Views), ""); }

TEST(AskingTest, ViewsOfParametersAndOfFlashesAndTheSearchBelow) {
    EXPECT_EQ(Faults(SmallDatabases(), &ParamViews), "");
}

TEST(AskingTest, Walks) { EXPECT_EQ(Faults(SmallDatabases(), &Walks), ""); }

TEST(AskingTest, TheResolver) { EXPECT_EQ(Faults(SmallDatabases(), &Resolutions), ""); }

TEST(AskingTest, EveryRuleOfDetection) { EXPECT_EQ(Faults(DatabasesOfManufacturers(), &Detections), ""); }

TEST(AskingTest, TheUsesReachEveryGetterThatTheToolkitHasAUseFor) {
    VUses uses;
    for (auto const& database : SmallDatabases()) {
        Views(uses, *database);
        ParamViews(uses, *database);
        Walks(uses, *database);
        Resolutions(uses, *database);
    }
    for (auto const& database : DatabasesOfManufacturers()) {
        Detections(uses, *database);
    }
    VOperations never = AllGuardedGetters();
    for (std::string const& getter : uses.m_got) {
        never.erase(getter);
    }
    // The toolkit calls it nowhere.
    EXPECT_EQ(Lines(never), "VParentRef::NotInheritedVariableCollection\n");
}

/// The conformance suite is made from the facts about ODX; parts of the contract that are missing there would not be
/// queried.
TEST(AskingTest, TheConformanceSuiteAsksForEverything) {
    VOperations called;
    for (auto const& database : SmallDatabases()) {
        // No DOP of these databases has one, and absent ones are not requested.
        database->All<NMemory::VMemDataObjectProp>().front()->SetOid(L"1.2.3");
        VStrictModel model(VStrictModel::VParentRefs::BehindHas, &called);
        NConformance::VModel checked{model.Of<NODX201::VOdx>(database->result.database->GetOdx())};
        for (auto* const flash : database->All<NODX201::VFlash>()) {
            checked.flashes.push_back(&model.Of(*flash));
        }
        for (auto* const job : database->All<NODX201::VMultipleEcuJob>()) {
            checked.multipleEcuJobs.push_back(&model.Of(*job));
        }
        // It also requests absent collections, which this model refuses; only the calls count.
        NConformance::CheckModel(checked);
    }
    VOperations never = AllGuardedGetters();
    for (std::string const& getter : called) {
        never.erase(getter);
    }
    EXPECT_EQ(Lines(never), "");
}

} // namespace
} // namespace NTest
