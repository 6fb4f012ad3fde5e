// SPDX-License-Identifier: Apache-2.0

// Comparing while memory runs out at every point.

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/query/Diff.h>

#include "faults/FailEverywhere.h"

namespace NTest {
namespace {

/// A base with a service over a DOP, and a variant with its own DOP.
struct VSmall {
    VSmall(wchar_t const* service, wchar_t const* bits) {
        auto& container = database.AddDiagLayerContainer(L"C");
        auto& base = container.AddBaseVariant(L"B");
        auto& variant = container.AddEcuVariant(L"V");
        variant.AddParentRef(base);
        auto& dop = base.MakeDiagDataDictionarySpec().AddDataObjectProp(L"D");
        dop.MakeStandardLengthType().SetBitLength(bits);
        variant.MakeDiagDataDictionarySpec().AddDataObjectProp(L"D");
        auto& request = base.AddRequest(L"R");
        request.AddValue(L"ById").SetDopBaseLink(dop);
        request.AddValue(L"ByName").SetDopBaseLink(NMemory::VReference::ByShortName(L"D"));
        base.AddDiagService(service).SetRequestRef(request);
        base.AddDiagService(L"Same").SetRequestRef(request);
    }

    NMemory::VDatabase database;
};

TEST(DiffFaultsTest, DatabasesAreComparedOrNot) {
    VSmall old(L"Old", L"8");
    VSmall now(L"New", L"16");
    VSmall same(L"Old", L"8");
    ASSERT_FALSE(NQuery::DiffDatabases(old.database, now.database).IsEqual()); // and makes what is kept
    EXPECT_GT(FailEverywhere([&] { NQuery::DiffDatabases(old.database, now.database); }), 100U);
    EXPECT_GT(FailEverywhere([&] { NQuery::DiffDatabases(old.database, same.database); }), 50U);
    EXPECT_TRUE(NQuery::DiffDatabases(old.database, same.database).IsEqual());
}

} // namespace
} // namespace NTest
