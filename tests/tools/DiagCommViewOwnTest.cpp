// SPDX-License-Identifier: Apache-2.0

// A layer's own DIAG-COMMS: services, jobs, references, and entries that are not what they say.

#include <diagkit/tools/DiagCommView.h>

#include "support/GraphTest.h"
#include "support/MockElements.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagCommView;

class DiagCommViewOwnTest : public VGraphTest {};

TEST_F(DiagCommViewOwnTest, ServicesJobsAndReferencesAreShownInDocumentOrder) {
    Graph(LR"(
        esd Lib : Ident Reset!
        ecu Ecu : Start ->Lib.Reset Stop! ->Lib.Ident
    )");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Reset@Lib Stop@Ecu Ident@Lib");
}

TEST_F(DiagCommViewOwnTest, EveryKindOfLayerFollowsItsReferences) {
    Graph(LR"(
        esd  Lib   : Ident
        esd  Other : ->Lib.Ident
        prot Uds   : ->Lib.Ident
        func Doors : ->Lib.Ident
        base Bv    : ->Lib.Ident
        ecu  Ecu   : ->Lib.Ident
    )");
    for (wchar_t const* const layer : {L"Lib", L"Other", L"Uds", L"Doors", L"Bv", L"Ecu"}) {
        EXPECT_EQ(DiagComms(layer), L"Ident@Lib") << layer;
    }
}

TEST_F(DiagCommViewOwnTest, AReferenceThatDoesNotResolveIsSkipped) {
    Graph(L"esd Lib : Ident \n ecu Ecu : ->Lib.Gone Start ->Lib ->Lib.Ident");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Ident@Lib");
}

TEST_F(DiagCommViewOwnTest, AReferencedDiagCommIsInheritedFromTheReferringLayer) {
    Graph(LR"(
        esd  Lib : Ident
        prot Uds : ->Lib.Ident
        base Bv                 < Uds
        ecu  Ecu                < Bv-Ident
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Ident@Lib");
    EXPECT_EQ(DiagComms(L"Ecu"), L"");
}

TEST(DiagCommViewMockTest, AReferenceIsResolvedInTheLayerThatListsIt) {
    VMockDiagService ident(L"Ident");
    VMockDiagCommLink found(&ident);
    VMockDiagCommLink notFound(nullptr);
    VMockEcuSharedData layer;
    layer.AddOwn(found);
    layer.AddOwn(notFound);

    VDiagCommView view(layer);

    EXPECT_EQ(Print(view), L"Ident@");
    EXPECT_EQ(found.m_askedFor, std::vector<NODX201::VDiagLayer*>{&layer});
    EXPECT_EQ(notFound.m_askedFor, std::vector<NODX201::VDiagLayer*>{&layer});
}

TEST(DiagCommViewMockTest, ADiagCommListedTwiceDirectlyIsShownTwice) {
    VMockDiagService ident(L"Ident");
    VMockDiagService start(L"Start");
    VMockEcuVariant layer;
    layer.AddOwn(ident);
    layer.AddOwn(start);
    layer.AddOwn(ident);
    VDiagCommView view(layer);
    EXPECT_EQ(Print(view), L"Ident@ Start@ Ident@");
}

TEST(DiagCommViewMockTest, AnEntryThatIsNotWhatItSaysIsSkipped) {
    VMockDiagService start(L"Start");
    VMockProxy noService(true, false, false);
    VMockProxy noJob(false, true, false);
    VMockProxy noLink(false, false, true);
    VMockProxy nothing(false, false, false);
    VMockEcuVariant layer;
    layer.AddOwn(noService);
    layer.AddOwn(noJob);
    layer.AddOwn(noLink);
    layer.AddOwn(nothing);
    layer.AddOwn(start);
    VDiagCommView view(layer);
    EXPECT_EQ(Print(view), L"Start@");
}

/// A link whose entry says that it is a service as well as a link.
class VServiceLink : public VMockDiagCommLink, public VMockProxy {
public:
    explicit VServiceLink(NODX201::VDiagComm& target) : VMockDiagCommLink(&target), VMockProxy(true, false, true) {}
};

TEST(DiagCommViewMockTest, AnEntryThatSaysItIsAServiceIsNotTriedAsALink) {
    VMockDiagService target(L"Target");
    VServiceLink both(target);
    VMockEcuVariant layer;
    layer.AddOwn(static_cast<VMockProxy&>(both));
    VDiagCommView view(layer);
    EXPECT_EQ(Print(view), L"");
    EXPECT_TRUE(both.m_askedFor.empty());
}

} // namespace
} // namespace NTest
