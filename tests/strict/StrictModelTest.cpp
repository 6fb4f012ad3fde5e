// SPDX-License-Identifier: Apache-2.0

// The strict model is strict, and otherwise returns the same as the model behind it.

#include <gtest/gtest.h>

#include <diagkit/tools/GuardedDiagLayerTraverser.h>

#include "strict/Databases.h"
#include "strict/StrictElements.h"

namespace NTest {
namespace {

/// Tries the guarded getters of elements: before their Has, and after each of its answers.
class VTry {
public:
    template <class Has, class Get>
    void Guarded(std::string const& getter, Has has, Get get) {
        (Throws(get) ? m_thrownBefore : m_faults).insert(getter);
        if (has()) {
            (Throws(get) ? m_faults : m_gotAfterTrue).insert(getter);
        } else {
            (Throws(get) ? m_thrownAfterFalse : m_faults).insert(getter);
        }
    }

    void Element(VStrictModel& model, NODX201::VOdxElement& element, NODX201::VDiagLayer& layer,
                 NODX201::VDiagComm& diagComm);

    VOperations m_thrownBefore;
    VOperations m_thrownAfterFalse;
    VOperations m_gotAfterTrue;
    VOperations m_faults;

private:
    template <class Get>
    static bool Throws(Get get) {
        try {
            get();
            return false;
        } catch (VNotAsked const&) {
            return true;
        }
    }
};

void VTry::Element(VStrictModel& model, NODX201::VOdxElement& element, NODX201::VDiagLayer& layer,
                   NODX201::VDiagComm& diagComm) {
    NODX201::VOdxElement& strict = model.Of(element);
    std::string name;
#define PARTS(class_name)                                                                                              \
    if (auto* const x = dynamic_cast<NODX201::class_name*>(&strict); x != nullptr) {                                   \
        name = #class_name "::";
#define END }
#define TEXT(part)
#define PART(part)
#define CHILD(part)                                                                                                    \
    Guarded(                                                                                                           \
        name + "Get" #part, [&] { return x->Has##part(); }, [&] { x->Get##part(); });
#define OPTIONAL_TEXT(part) CHILD(part)
#define LIST(part)
#define OPTIONAL_LIST(part)                                                                                            \
    Guarded(                                                                                                           \
        name + #part, [&] { return x->Has##part(); }, [&] { x->part(); });
#define LINK()
#include <contract/Parts.def>
#define TRY_LINK(link, target, arguments)                                                                              \
    if (auto* const x = dynamic_cast<NODX201::link*>(&strict); x != nullptr) {                                         \
        Guarded(                                                                                                       \
            #link "::Get" #target, [&] { return x->Has##target arguments; }, [&] { x->Get##target(); });               \
    }
#define LINK(link, target) TRY_LINK(link, target, ())
#define LINK_IN_LAYER(link, target) TRY_LINK(link, target, (model.Of(layer)))
#include <contract/Links.def>
    TRY_LINK(VOutParamIfLink, OutParamIf, (model.Of(diagComm), model.Of(layer), NODX201::VSearchRange::Responses))
}

TEST(StrictModelTest, EveryGetterThrowsBeforeItsHasIsTrueAndOnlyThen) {
    VTry all;
    for (auto const& database : SmallDatabases()) {
        std::vector<NODX201::VDiagComm*> diagComms = database->All<NODX201::VDiagComm>();
        ASSERT_FALSE(diagComms.empty());
        VStrictModel model;
        all.Element(model, database->result.database->GetOdx(), *database->layers.front(), *diagComms.front());
        for (NODX201::VOdxElement* const element : database->result.elements) {
            all.Element(model, *element, *database->layers.back(), *diagComms.front());
        }
    }
    EXPECT_EQ(Lines(all.m_faults), "");
    EXPECT_EQ(Lines(all.m_thrownBefore), Lines(AllGuardedGetters()));
    EXPECT_GT(all.m_gotAfterTrue.size(), 100u);
    EXPECT_GT(all.m_thrownAfterFalse.size(), 40u);
}

TEST(StrictModelTest, AnElementRemembersForItselfAlone) {
    auto const databases = SmallDatabases();
    std::vector<NODX201::VDiagLayer*> const& layers = databases.front()->layers;
    VStrictModel model;
    NODX201::VDiagLayer& asked = model.Of(*layers.front());
    ASSERT_TRUE(asked.HasDiagCommProxyCollection());
    EXPECT_NO_THROW(asked.DiagCommProxyCollection());
    EXPECT_THROW(model.Of(*layers.back()).DiagCommProxyCollection(), VNotAsked);
}

TEST(StrictModelTest, ParentRefsAreFreeWhereTheTestSaysSo) {
    auto const databases = SmallDatabases();
    NODX201::VProtocol& protocol = *databases.front()->All<NODX201::VProtocol>().front();
    VStrictModel strict;
    EXPECT_THROW(strict.Of(protocol).ParentRefCollection(), VNotAsked);
    VStrictModel lenient(VStrictModel::VParentRefs::Free);
    EXPECT_NO_THROW(lenient.Of(protocol).ParentRefCollection());
}

/// The tags and names of the elements in a walk.
class VMet : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    static std::wstring In(NODX201::VDiagLayer& layer) {
        VMet met(layer);
        met.TraverseDiagLayer();
        return met.m_met;
    }

protected:
    void DefaultVisit(NODX201::VOdxElement& x) override {
        m_met += std::to_wstring(static_cast<int>(x.GetOdxTag())) + L' ' + x.GetShortName() + L'\n';
    }

private:
    explicit VMet(NODX201::VDiagLayer& layer) : VGuardedDiagLayerTraverser(layer) {}

    std::wstring m_met;
};

TEST(StrictModelTest, AWalkMeetsTheSameElementsAsInTheModelBehindIt) {
    for (auto const& database : SmallDatabases()) {
        for (NODX201::VDiagLayer* const layer : database->layers) {
            VStrictModel model;
            EXPECT_TRUE(VMet::In(model.Of(*layer)) == VMet::In(*layer)) << layer->GetShortName();
            EXPECT_FALSE(VMet::In(*layer).empty());
        }
    }
}

} // namespace
} // namespace NTest
