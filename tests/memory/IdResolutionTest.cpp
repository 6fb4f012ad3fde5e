// SPDX-License-Identifier: Apache-2.0

// The places where a reference by ID looks, step by step. The short names of several DIAG-COMMs of one ID show which
// one a reference found.

#include <gtest/gtest.h>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>

namespace NTest {
namespace {

using NMemory::VReference;

class IdResolutionTest : public testing::Test {
protected:
    /// A DIAG-SERVICE of ID "X"; its name shows where it is.
    template <class Layer>
    NMemory::VMemDiagService& AddX(Layer& layer, wchar_t const* shortName) {
        auto& service = layer.AddDiagService(shortName);
        service.SetId(L"X");
        return service;
    }

    /// The short name of the target of a DIAG-COMM-REF to "X" in this layer; "-" for none.
    template <class Layer>
    std::wstring Hit(Layer& layer, wchar_t const* docref = L"", wchar_t const* doctype = L"") {
        auto& link = layer.AddDiagCommRef(VReference::ById(L"X", docref, doctype));
        std::wstring hit = HitOf(link, layer);
        delete &link;
        return hit;
    }

    static std::wstring HitOf(NODX201::VDiagCommLink& link, NODX201::VDiagLayer& layer) {
        return link.HasDiagComm(layer) ? link.GetDiagComm().GetShortName() : L"-";
    }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_first = m_database.AddDiagLayerContainer(L"First");
    NMemory::VMemDiagLayerContainer& m_second = m_database.AddDiagLayerContainer(L"Second");
};

// DOCREF with DOCTYPE

TEST_F(IdResolutionTest, DoctypeLayerNamesALayerInAnyContainer) {
    auto& own = m_first.AddProtocol(L"Own");
    auto& other = m_second.AddProtocol(L"Other");
    AddX(own, L"InOwn");
    AddX(other, L"InOther");
    EXPECT_EQ(Hit(own, L"Other", L"LAYER"), L"InOther");
    EXPECT_EQ(Hit(other, L"Own", L"LAYER"), L"InOwn");
}

TEST_F(IdResolutionTest, DoctypeContainerNamesAContainer) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InFirst");
    AddX(m_second.AddProtocol(L"Other"), L"InSecond");
    EXPECT_EQ(Hit(own, L"Second", L"CONTAINER"), L"InSecond");
    EXPECT_EQ(Hit(own, L"First", L"CONTAINER"), L"InFirst");
}

TEST_F(IdResolutionTest, DoctypeTellsALayerFromAContainerOfTheSameName) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(m_first.AddProtocol(L"Second"), L"InTheLayer");
    AddX(m_second.AddProtocol(L"Other"), L"InTheContainer");
    EXPECT_EQ(Hit(own, L"Second", L"LAYER"), L"InTheLayer");
    EXPECT_EQ(Hit(own, L"Second", L"CONTAINER"), L"InTheContainer");
}

TEST_F(IdResolutionTest, DoctypeTellsALayerFromAContainerLoadedBeforeIt) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InTheContainer");
    AddX(m_second.AddProtocol(L"First"), L"InTheLayer");
    EXPECT_EQ(Hit(own, L"First", L"LAYER"), L"InTheLayer");
    EXPECT_EQ(Hit(own, L"First", L"CONTAINER"), L"InTheContainer");
}

TEST_F(IdResolutionTest, EveryDoctypeNamesItsKindOfDocument) {
    // A COMPANY-DATA of one ID in a document of each kind, all of one name.
    auto const addCompany = [](auto& document, wchar_t const* shortName) {
        document.AddCompanyData(shortName).SetId(L"C");
    };
    m_second.SetShortName(L"Doc");
    addCompany(m_database.AddComparamSpec(L"Doc"), L"InComparamSpec");
    addCompany(m_second, L"InContainer");
    addCompany(m_database.AddFlash(L"Doc"), L"InFlash");
    addCompany(m_first.AddProtocol(L"Doc"), L"InLayer");
    addCompany(m_database.AddMultipleEcuJobSpec(L"Doc"), L"InMultipleEcuJobSpec");
    auto& info = m_database.AddDiagLayerContainer(L"Own").MakeAdminData().AddCompanyDocInfo();
    auto const hit = [&](wchar_t const* doctype) -> std::wstring {
        auto& link = info.SetCompanyDataRef(VReference::ById(L"C", L"Doc", doctype));
        return link.HasCompanyData() ? link.GetCompanyData().GetShortName() : L"-";
    };
    EXPECT_EQ(hit(L"COMPARAM-SPEC"), L"InComparamSpec");
    EXPECT_EQ(hit(L"CONTAINER"), L"InContainer");
    EXPECT_EQ(hit(L"FLASH"), L"InFlash");
    EXPECT_EQ(hit(L"LAYER"), L"InLayer");
    EXPECT_EQ(hit(L"MULTIPLE-ECU-JOB-SPEC"), L"InMultipleEcuJobSpec");
    EXPECT_EQ(hit(L""), L"InComparamSpec") << "without DOCTYPE the first loaded";
}

// DOCREF that DOCTYPE does not help, or without DOCTYPE

TEST_F(IdResolutionTest, ADoctypeThatDoesNotFitTheDocrefIsLeftAside) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    AddX(m_second.AddProtocol(L"Other"), L"InOther");
    EXPECT_EQ(Hit(own, L"Other", L"CONTAINER"), L"InOther");
    EXPECT_EQ(Hit(own, L"Second", L"LAYER"), L"InOther");
    EXPECT_EQ(Hit(own, L"Second", L"COMPARAM-SPEC"), L"InOther");
}

TEST_F(IdResolutionTest, AnUnknownDoctypeIsLeftAside) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    AddX(m_second.AddProtocol(L"Other"), L"InOther");
    EXPECT_EQ(Hit(own, L"Other", L"PROTOCOL"), L"InOther");
    EXPECT_EQ(Hit(own, L"Other", L"layer"), L"InOther");
}

TEST_F(IdResolutionTest, DocrefAloneNamesALayerOrADocument) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    AddX(m_second.AddProtocol(L"Other"), L"InOther");
    EXPECT_EQ(Hit(own, L"Other"), L"InOther");
    EXPECT_EQ(Hit(own, L"Second"), L"InOther");
    EXPECT_EQ(Hit(own, L"First"), L"InOwn");
}

TEST_F(IdResolutionTest, ADocrefThatNamesNothingFallsBackToTheWholeDatabaseNotToTheOwnLayer) {
    auto& first = m_first.AddProtocol(L"LoadedFirst");
    AddX(first, L"FirstLoaded");
    auto& own = m_second.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    EXPECT_EQ(Hit(own, L"Gone", L"LAYER"), L"FirstLoaded");
    EXPECT_EQ(Hit(own, L"Gone"), L"FirstLoaded");
}

TEST_F(IdResolutionTest, ADocrefWhoseDocumentLacksTheIdFallsBackToTheWholeDatabase) {
    AddX(m_first.AddProtocol(L"LoadedFirst"), L"FirstLoaded");
    m_first.AddProtocol(L"Lacking");
    auto& own = m_second.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    EXPECT_EQ(Hit(own, L"Lacking", L"LAYER"), L"FirstLoaded");
}

TEST_F(IdResolutionTest, DocrefIsComparedExactly) {
    AddX(m_first.AddProtocol(L"LoadedFirst"), L"FirstLoaded");
    auto& other = m_second.AddProtocol(L"Other");
    AddX(other, L"InOther");
    EXPECT_EQ(Hit(other, L"other", L"LAYER"), L"FirstLoaded");
}

// No DOCREF

TEST_F(IdResolutionTest, TheOwnLayerComesFirst) {
    AddX(m_first.AddProtocol(L"Before"), L"Before");
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    EXPECT_EQ(Hit(own), L"InOwn");
}

TEST_F(IdResolutionTest, ADoctypeAloneIsIgnored) {
    AddX(m_first.AddProtocol(L"Before"), L"Before");
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    EXPECT_EQ(Hit(own, L"", L"CONTAINER"), L"InOwn");
}

TEST_F(IdResolutionTest, TheOwnDocumentComesSecond) {
    AddX(m_first.AddProtocol(L"Elsewhere"), L"InFirst");
    auto& own = m_second.AddProtocol(L"Own");
    AddX(m_second.AddProtocol(L"Neighbour"), L"InSecond");
    EXPECT_EQ(Hit(own), L"InSecond");
}

TEST_F(IdResolutionTest, AReferenceOutsideLayersLooksInItsDocument) {
    m_first.AddCompanyData(L"InFirst").SetId(L"C");
    auto& inSecond = m_second.AddCompanyData(L"InSecond");
    inSecond.SetId(L"C");
    auto& link = m_second.MakeAdminData().AddCompanyDocInfo().SetCompanyDataRef(VReference::ById(L"C"));
    ASSERT_TRUE(link.HasCompanyData());
    EXPECT_EQ(&link.GetCompanyData(), &inSecond);
}

TEST_F(IdResolutionTest, ImportedLayersComeThirdInTheirOrder) {
    auto& lacking = m_first.AddEcuSharedData(L"Lacking");
    AddX(m_first.AddProtocol(L"Elsewhere"), L"Elsewhere");
    auto& one = m_first.AddEcuSharedData(L"One");
    AddX(one, L"InOne");
    auto& two = m_first.AddEcuSharedData(L"Two");
    AddX(two, L"InTwo");

    auto& own = m_second.AddBaseVariant(L"Own");
    EXPECT_EQ(Hit(own), L"Elsewhere") << "without imports: the first loaded";
    own.AddImportRef(lacking);
    own.AddImportRef(two);
    own.AddImportRef(one);
    EXPECT_EQ(Hit(own), L"InTwo");
    AddX(m_second.AddProtocol(L"Neighbour"), L"InSecond");
    EXPECT_EQ(Hit(own), L"InSecond") << "the own document comes before imports";
}

TEST_F(IdResolutionTest, EveryKindOfLayerImports) {
    AddX(m_first.AddProtocol(L"Elsewhere"), L"Elsewhere");
    auto& library = m_first.AddEcuSharedData(L"Library");
    AddX(library, L"Imported");
    auto const hitWithImport = [&](auto& layer) {
        layer.AddImportRef(library);
        return Hit(layer);
    };
    EXPECT_EQ(hitWithImport(m_second.AddProtocol(L"P")), L"Imported");
    EXPECT_EQ(hitWithImport(m_second.AddFunctionalGroup(L"F")), L"Imported");
    EXPECT_EQ(hitWithImport(m_second.AddBaseVariant(L"B")), L"Imported");
    EXPECT_EQ(hitWithImport(m_second.AddEcuVariant(L"E")), L"Imported");
    EXPECT_EQ(hitWithImport(m_second.AddEcuSharedData(L"S")), L"Imported");
}

TEST_F(IdResolutionTest, ImportsDoNotChain) {
    AddX(m_first.AddProtocol(L"Elsewhere"), L"Elsewhere");
    auto& far = m_first.AddEcuSharedData(L"Far");
    AddX(far, L"InFar");
    auto& near = m_first.AddEcuSharedData(L"Near");
    near.AddImportRef(far);
    auto& own = m_second.AddBaseVariant(L"Own");
    own.AddImportRef(near);
    EXPECT_EQ(Hit(own), L"Elsewhere");
}

TEST_F(IdResolutionTest, AnImportRefItselfDoesNotLookInImports) {
    auto& firstLoaded = m_first.AddEcuSharedData(L"FirstLoaded");
    firstLoaded.SetId(L"L");
    m_first.AddEcuSharedData(L"Imported").SetId(L"L");
    auto& own = m_second.AddBaseVariant(L"Own");
    own.AddImportRef(VReference::ById(L"L", L"Imported", L"LAYER"));
    auto& import = own.AddImportRef(VReference::ById(L"L"));
    ASSERT_TRUE(import.HasDiagLayer());
    EXPECT_EQ(&import.GetDiagLayer(), &firstLoaded);
}

TEST_F(IdResolutionTest, AnImportThatDoesNotResolveIsSkipped) {
    AddX(m_first.AddProtocol(L"Elsewhere"), L"Elsewhere");
    auto& library = m_first.AddEcuSharedData(L"Library");
    AddX(library, L"Imported");
    auto& own = m_second.AddBaseVariant(L"Own");
    own.AddImportRef(VReference::ById(L"Gone"));
    own.AddImportRef(library);
    EXPECT_EQ(Hit(own), L"Imported");
}

TEST_F(IdResolutionTest, ImportsInheritNothing) {
    auto& library = m_first.AddEcuSharedData(L"Library");
    AddX(library, L"Imported");
    auto& own = m_second.AddBaseVariant(L"Own");
    own.AddImportRef(library);
    EXPECT_FALSE(own.HasDiagCommProxyCollection());
    EXPECT_FALSE(own.HasParentRefCollection());
}

// Last

TEST_F(IdResolutionTest, TheWholeDatabaseComesLastAndTheFirstLoadedWins) {
    auto& own = m_second.AddProtocol(L"Own");
    EXPECT_EQ(Hit(own), L"-");
    AddX(m_first.AddProtocol(L"A"), L"FirstLoaded");
    AddX(m_first.AddProtocol(L"B"), L"SecondLoaded");
    EXPECT_EQ(Hit(own), L"FirstLoaded");
}

TEST_F(IdResolutionTest, AnIdThatNothingHasDoesNotResolve) {
    auto& own = m_first.AddProtocol(L"Own");
    EXPECT_EQ(Hit(own), L"-");
    EXPECT_EQ(Hit(own, L"Own", L"LAYER"), L"-");
}

TEST_F(IdResolutionTest, TheEmptyIdDoesNotResolve) {
    auto& own = m_first.AddProtocol(L"Own");
    own.AddDiagService(L"WithoutId");
    auto& link = own.AddDiagCommRef(VReference::ById(L""));
    EXPECT_FALSE(link.HasDiagComm(own));
}

// An element of another class is not a target, at every step.

TEST_F(IdResolutionTest, AHitOfAnotherClassIsAMissInTheNamedDocument) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    auto& other = m_second.AddProtocol(L"Other");
    other.AddRequest(L"Request").SetId(L"X");
    EXPECT_EQ(Hit(own, L"Other", L"LAYER"), L"InOwn") << "back to the whole database";
    AddX(other, L"InOther");
    EXPECT_EQ(Hit(own, L"Other", L"LAYER"), L"InOther");
}

TEST_F(IdResolutionTest, AHitOfAnotherClassIsAMissInTheOwnLayerAndDocument) {
    AddX(m_first.AddProtocol(L"Elsewhere"), L"Elsewhere");
    auto& own = m_second.AddProtocol(L"Own");
    own.AddRequest(L"Request").SetId(L"X");
    EXPECT_EQ(Hit(own), L"Elsewhere");
    AddX(m_second.AddProtocol(L"Neighbour"), L"InSecond");
    EXPECT_EQ(Hit(own), L"InSecond");
}

TEST_F(IdResolutionTest, AHitOfAnotherClassIsAMissInImportsAndInTheWholeDatabase) {
    m_first.AddProtocol(L"P").AddRequest(L"Request").SetId(L"X");
    auto& library = m_first.AddEcuSharedData(L"Library");
    library.AddRequest(L"Request").SetId(L"X");
    auto& own = m_second.AddProtocol(L"Own");
    own.AddImportRef(library);
    EXPECT_EQ(Hit(own), L"-");
    AddX(m_first.AddProtocol(L"Q"), L"Elsewhere");
    EXPECT_EQ(Hit(own), L"Elsewhere");
}

TEST_F(IdResolutionTest, AnIdThatOccursOnceMustStillBeOfTheClass) {
    auto& own = m_first.AddProtocol(L"Own");
    own.AddRequest(L"Request").SetId(L"X");
    EXPECT_EQ(Hit(own), L"-");
}

TEST_F(IdResolutionTest, AMultipleEcuJobIsNoTargetOfADiagCommRef) {
    auto& job = m_database.AddMultipleEcuJobSpec(L"Jobs").AddMultipleEcuJob(L"Job");
    job.SetId(L"X");
    auto& own = m_first.AddProtocol(L"Own");
    EXPECT_EQ(Hit(own), L"-");
}

TEST_F(IdResolutionTest, AParentRefHitsLayersOfItsKindOnly) {
    auto& protocol = m_first.AddProtocol(L"P");
    auto& own = m_first.AddBaseVariant(L"Own");
    auto& right = dynamic_cast<NODX201::VProtocolRef&>(own.AddParentRef(protocol).ParentRef());
    auto& wrong = dynamic_cast<NODX201::VFunctionalGroupRef&>(
        own.AddParentRef(NMemory::VParentRefKind::FunctionalGroup, protocol).ParentRef());
    ASSERT_TRUE(right.HasProtocol());
    EXPECT_EQ(&right.GetProtocol(), &protocol);
    EXPECT_FALSE(wrong.HasFunctionalGroup());
}

// The result follows changes of the database.

TEST_F(IdResolutionTest, AnswersFollowWhatIsAddedRenamedAndRenumbered) {
    auto& own = m_first.AddProtocol(L"Own");
    auto& other = m_second.AddProtocol(L"Other");
    auto& link = own.AddDiagCommRef(VReference::ById(L"X", L"Renamed", L"LAYER"));
    EXPECT_EQ(HitOf(link, own), L"-");
    AddX(own, L"InOwn");
    EXPECT_EQ(HitOf(link, own), L"InOwn") << "added";
    auto& inOther = AddX(other, L"InOther");
    EXPECT_EQ(HitOf(link, own), L"InOwn");
    other.SetShortName(L"Renamed");
    EXPECT_EQ(HitOf(link, own), L"InOther") << "the layer now has the name";
    inOther.SetId(L"Y");
    EXPECT_EQ(HitOf(link, own), L"InOwn") << "another ID";
    link.SetReference(VReference::ById(L"Y"));
    EXPECT_EQ(HitOf(link, own), L"InOther") << "another reference";
    inOther.SetId(L"");
    EXPECT_EQ(HitOf(link, own), L"-") << "no ID";
    inOther.SetId(L"Y");
    EXPECT_EQ(HitOf(link, own), L"InOther") << "an ID again";
}

TEST_F(IdResolutionTest, AnswersFollowAnImportThatIsAddedRedirectedAndRemoved) {
    AddX(m_first.AddProtocol(L"Elsewhere"), L"Elsewhere");
    auto& one = m_first.AddEcuSharedData(L"One");
    AddX(one, L"InOne");
    auto& two = m_first.AddEcuSharedData(L"Two");
    AddX(two, L"InTwo");
    auto& own = m_second.AddBaseVariant(L"Own");
    auto& link = own.AddDiagCommRef(VReference::ById(L"X"));
    EXPECT_EQ(HitOf(link, own), L"Elsewhere");
    NMemory::VReference const toTwo(two); // may assign an ID, so before the result is remembered
    auto& import = own.AddImportRef(one);
    EXPECT_EQ(HitOf(link, own), L"InOne") << "added";
    import.SetReference(toTwo);
    EXPECT_EQ(HitOf(link, own), L"InTwo") << "redirected";
    delete &import;
    EXPECT_EQ(HitOf(link, own), L"Elsewhere") << "removed";
}

TEST_F(IdResolutionTest, TheLayerAskedForDoesNotMatterToAReferenceById) {
    auto& own = m_first.AddProtocol(L"Own");
    AddX(own, L"InOwn");
    auto& other = m_second.AddProtocol(L"Other");
    AddX(other, L"InOther");
    auto& link = own.AddDiagCommRef(VReference::ById(L"X"));
    EXPECT_EQ(HitOf(link, own), L"InOwn");
    EXPECT_EQ(HitOf(link, other), L"InOwn");
}

TEST_F(IdResolutionTest, AReferenceKeepsItsAttributes) {
    auto& own = m_first.AddProtocol(L"Own");
    auto& link = own.AddDiagCommRef(VReference::ById(L"X", L"Doc", L"LAYER", L"1.0"));
    auto const* const byId = dynamic_cast<NODX201::VOdxLink const*>(&link.GetLink());
    ASSERT_NE(byId, nullptr);
    EXPECT_EQ(dynamic_cast<NODX201::VSnref const*>(&link.GetLink()), nullptr);
    EXPECT_STREQ(byId->GetIdRef(), L"X");
    EXPECT_STREQ(byId->GetDocref(), L"Doc");
    EXPECT_STREQ(byId->GetDoctype(), L"LAYER");
    EXPECT_STREQ(byId->GetRevision(), L"1.0");
}

} // namespace
} // namespace NTest
