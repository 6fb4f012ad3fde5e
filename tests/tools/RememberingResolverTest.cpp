// SPDX-License-Identifier: Apache-2.0

// The same results as its base, in any order of calls, and after changes.

#include <diagkit/tools/RememberingResolver.h>

#include <random>

#include <diagkit/memory/Flash.h>
#include <diagkit/model/SearchRange.h>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOpResolveSnref;
using NDIAGKIT::VRememberingResolver;
using NMemory::VReference;
using NODX201::VSearchRange;

constexpr wchar_t const* kNames[] = {L"A", L"B", L"C", L"D", L"Absent"};

class RememberingResolverTest : public VParamTest {
protected:
    RememberingResolverTest() {
        auto& parent = m_container.AddBaseVariant(L"Parent");
        m_layer.AddParentRef(parent);
        parent.AddDiagService(L"A");
        parent.AddDiagService(L"B");
        m_layer.AddDiagService(L"B");
        parent.AddDiagVariable(L"C");
        m_container.AddProtocol(L"D");
        auto& mem = m_flash.AddEcuMem(L"Mem").GetMem();
        mem.AddSession(L"A").AddExpectedIdent(L"B");
        auto& structure = m_dictionary.AddStructure(L"Structure");
        structure.AddValue(L"A");
        structure.AddValue(L"D");
        auto& response = PosResponse();
        response.AddValue(L"C").SetDopBaseLink(structure);
        response.AddValue(L"A");
        Request().AddValue(L"B");
        m_singleJob.AddInputParam(L"A");
        m_singleJob.AddOutputParam(L"B");
        m_multipleJob.AddInputParam(L"C");
        m_multipleJob.AddOutputParam(L"D");
    }

    /// Every query, by number.
    void const* Ask(NODX201::VAbstractSnrefResolver& resolver, unsigned question, wchar_t const* name) {
        NODX201::VDiagLayer& parent = *m_container.DiagLayerCollection().Begin();
        switch (question) {
        case 0:
            return resolver.ResolveDiagCommSnref(name, m_layer);
        case 1:
            return resolver.ResolveDiagCommSnref(name, parent);
        case 2:
            return resolver.ResolveDiagVariableSnref(name, m_layer);
        case 3:
            return resolver.ResolveProtocolSnref(name, m_container);
        case 4:
            return resolver.ResolveSessionSnref(name, m_flash);
        case 5:
            return resolver.ResolveIdentIfSnref(name, m_flash);
        case 6:
            return resolver.ResolveInParamIfSnref(name, m_service);
        case 7:
            return resolver.ResolveInParamIfSnref(name, m_singleJob);
        case 8:
            return resolver.ResolveInParamIfSnref(name, m_multipleJob);
        case 9:
            return resolver.ResolveOutParamIfSnref(name, m_singleJob, m_layer, VSearchRange::PosResponses);
        case 10:
            return resolver.ResolveOutParamIfSnref(name, m_multipleJob, m_layer);
        case 11:
            return resolver.ResolveOutParamIfSnref(name, MultipleJobAsDiagComm(), m_layer, VSearchRange{});
        case 12:
            return resolver.ResolveDopBaseSnref(name, m_layer);
        default:
            return resolver.ResolveOutParamIfSnref(name, m_service, m_layer,
                                                   static_cast<VSearchRange>(question - kQuestions));
        }
    }

    static constexpr unsigned kQuestions = 13; // and one for each search range

    NMemory::VMemFlash& m_flash = m_database.AddFlash(L"Flash");
};

TEST_F(RememberingResolverTest, AnswersAreThoseOfTheBaseWhateverWasAskedBefore) {
    VRememberingResolver resolver;
    std::mt19937 random(1);
    for (int count = 0; count < 20'000; ++count) {
        unsigned const question = random() % (kQuestions + 6);
        for (unsigned again = random() % 4; again > 0; --again) { // in a row
            wchar_t const* const name = kNames[random() % std::size(kNames)];
            VOpResolveSnref base;
            ASSERT_EQ(Ask(resolver, question, name), Ask(base, question, name)) << question << ' ' << name;
        }
    }
}

TEST_F(RememberingResolverTest, WhatChangesIsSeenWhereItIsTold) {
    VRememberingResolver resolver([this] { return m_database.GetGeneration(); });
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(resolver.ResolveDiagCommSnref(L"Added", m_layer), nullptr);
    }
    auto& added = m_layer.AddDiagService(L"Added");
    EXPECT_EQ(resolver.ResolveDiagCommSnref(L"Added", m_layer), &added);
    EXPECT_EQ(resolver.ResolveDiagCommSnref(L"Added", m_layer), &added);
    delete &added;
    EXPECT_EQ(resolver.ResolveDiagCommSnref(L"Added", m_layer), nullptr);
}

TEST_F(RememberingResolverTest, EveryEditThatChangesAnAnswerIsSeen) {
    VRememberingResolver resolver([this] { return m_database.GetGeneration(); });
    auto& other = m_container.AddBaseVariant(L"Other");
    auto& moved = other.AddDiagService(L"Moved");
    auto const isFound = [&](wchar_t const* name) {
        resolver.ResolveDiagCommSnref(name, m_layer);
        return resolver.ResolveDiagCommSnref(name, m_layer) != nullptr;
    };
    EXPECT_FALSE(isFound(L"Moved"));
    auto& parentRef = dynamic_cast<NMemory::VMemBaseVariantRef&>(m_layer.AddParentRef(other).ParentRef());
    EXPECT_TRUE(isFound(L"Moved")) << "a PARENT-REF more";
    parentRef.ExcludeDiagComm(L"Moved");
    EXPECT_FALSE(isFound(L"Moved")) << "an exclusion more";
    m_layer.MakeDiagCommProxyCollection().Adopt(m_layer, moved);
    EXPECT_TRUE(isFound(L"Moved")) << "an element that has moved";
    moved.SetShortName(L"Renamed");
    EXPECT_FALSE(isFound(L"Moved")) << "an element that is called otherwise";
    auto& link = m_layer.AddDiagCommRef(VReference::ById(L"Linked"));
    EXPECT_FALSE(isFound(L"InOther"));
    auto& inOther = m_container.AddBaseVariant(L"Third").AddDiagService(L"InOther");
    link.SetReference(inOther);
    EXPECT_TRUE(isFound(L"InOther")) << "a DIAG-COMM-REF that names something else";
}

TEST_F(RememberingResolverTest, ANameThatIsNoneIsThatOfNothing) {
    VRememberingResolver resolver;
    resolver.ResolveDiagCommSnref(L"A", m_layer);
    resolver.ResolveDiagCommSnref(L"A", m_layer);
    EXPECT_EQ(resolver.ResolveDiagCommSnref(L"", m_layer), nullptr);
}

} // namespace
} // namespace NTest
