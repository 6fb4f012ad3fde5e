// SPDX-License-Identifier: Apache-2.0

// Building a database by hand while memory runs out at every point: what was there before stays as it was.

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
        // Long enough that no buffer inside strings holds it, and new each time, so that pool and index grow.
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

} // namespace
} // namespace NTest
