// SPDX-License-Identifier: Apache-2.0

// Building a database by hand while memory runs out at every point: the existing contents do not change.

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Layers.h>

#include "faults/FailEverywhere.h"
#include "support/PrintView.h"

namespace NTest {
namespace {

using Tag = NODX201::VOdxTagEnum;

TEST(ModelFaultsTest, AnElementIsAddedWholeOrNotAtAll) {
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Doors");
    NMemory::VMemProtocol& protocol = container.AddProtocol(L"Protocol");
    NMemory::VMemBaseVariant& base = container.AddBaseVariant(L"Door");
    protocol.AddDiagService(L"Read");
    base.AddParentRef(protocol);
    std::wstring expected = L"Read@Protocol";
    for (std::size_t round = 0; round < 40; ++round) {
        // Too long for the buffer inside strings, and different each time, so that pool and index grow.
        std::wstring const name = L"AServiceOfALongName_" + std::to_wstring(round);
        std::size_t const services = database.Count(Tag::DiagService);
        for (std::size_t after = 0;; ++after) {
            bool isDone = false;
            try {
                VFailingAllocations const failing(after);
                base.AddDiagService(name.c_str());
                isDone = true;
            } catch (std::bad_alloc const&) {
            }
            if (isDone) {
                break;
            }
            ASSERT_EQ(database.Count(Tag::DiagService), services) << "round " << round << " after " << after;
            ASSERT_EQ(PrintDiagComms(base), expected) << "round " << round << " after " << after;
        }
        expected = expected.substr(0, expected.rfind(L"Read@")) + name + L"@Door Read@Protocol";
        ASSERT_EQ(PrintDiagComms(base), expected);
    }
}

TEST(ModelFaultsTest, RemovingTakesNoMemory) {
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Doors");
    NMemory::VMemProtocol& protocol = container.AddProtocol(L"Protocol");
    for (wchar_t const* const name : {L"A", L"B", L"C", L"D"}) {
        protocol.AddDiagService(name).SetId(L"TheSameIdOfThemAll");
    }
    std::size_t const before = AllocationCount();
    {
        VFailingAllocations const failing(0);
        for (std::size_t left = 4; left > 0; --left) {
            NODX201::IDiagCommProxy& first = *protocol.DiagCommProxyCollection().begin();
            delete dynamic_cast<NODX201::VDiagComm*>(&first);
        }
    }
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(database.Count(Tag::DiagService), 0u);
}

TEST(ModelFaultsTest, ALinkNamesWhatItNamedBeforeWhenItCannotBeGivenAnotherReference) {
    NMemory::VDatabase database;
    NMemory::VMemProtocol& protocol = database.AddDiagLayerContainer(L"Doors").AddProtocol(L"Protocol");
    NMemory::VMemRequest& request = protocol.AddRequest(L"Request");
    NMemory::VMemRequestLink& link = protocol.AddDiagService(L"Read").SetRequestRef(request);
    ASSERT_TRUE(link.HasRequest());
    bool isDone = false;
    for (std::size_t after = 0; !isDone; ++after) {
        std::wstring const unknown(20'000 + after, L'x'); // more than the free memory of a pool
        try {
            VFailingAllocations const failing(after);
            link.SetReference(NMemory::VReference::ById(unknown.c_str()));
            isDone = true;
        } catch (std::bad_alloc const&) {
            ASSERT_TRUE(link.HasRequest()) << after;
            ASSERT_STREQ(dynamic_cast<NODX201::VOdxLink&>(link.GetLink()).GetIdRef(), request.GetId()) << after;
        }
    }
    EXPECT_FALSE(link.HasRequest());
}

TEST(ModelFaultsTest, AnAnswerThatFailsForLackOfMemoryIsNotRemembered) {
    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Doors");
    NMemory::VMemProtocol& last = container.AddProtocol(L"Last");
    for (int number = 0; number < 20; ++number) { // so many that they are sorted by place
        container.AddProtocol(L"Library").AddRequest(L"Request").SetId(L"Same");
    }
    NMemory::VMemRequest& wanted = last.AddRequest(L"Request");
    wanted.SetId(L"Same");
    NMemory::VMemRequestLink& link = last.AddDiagService(L"Read").SetRequestRef(NMemory::VReference::ById(L"Same"));
    std::size_t failures = 0;
    for (std::size_t after = 0;; ++after) {
        database.NoteChange();
        bool isDone = false;
        try {
            VFailingAllocations const failing(after);
            isDone = link.HasRequest();
        } catch (std::bad_alloc const&) {
            ++failures;
        }
        ASSERT_TRUE(link.HasRequest()) << "after " << after;
        ASSERT_EQ(&link.GetRequest(), &wanted) << "after " << after;
        if (isDone) {
            break;
        }
    }
    EXPECT_GT(failures, 10u);
}

} // namespace
} // namespace NTest
