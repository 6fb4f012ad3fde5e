// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>

namespace NTest {
namespace {

using NMemory::VReference;
using NODX201::VOdxTagEnum;

TEST(CountsTest, ANewDatabaseHoldsItsRootOnly) {
    NMemory::VDatabase database;
    std::size_t total = 0;
    for (int tag = 0; tag < 400; ++tag) {
        total += database.Count(static_cast<VOdxTagEnum>(tag));
    }
    EXPECT_EQ(database.Count(VOdxTagEnum::Odx), 1u);
    EXPECT_EQ(total, 1u);
}

TEST(CountsTest, EveryElementCountsUnderItsTag) {
    NMemory::VDatabase database;
    auto& container = database.AddDiagLayerContainer(L"C");
    auto& protocol = container.AddProtocol(L"P");
    container.AddProtocol(L"Q");
    auto& service = protocol.AddDiagService(L"Read");
    protocol.AddDiagService(L"Start");
    protocol.AddSingleEcuJob(L"Reset");
    service.SetRequestRef(protocol.AddRequest(L"Request"));
    protocol.AddGlobalNegResponse(L"Global");
    auto& base = container.AddBaseVariant(L"B");
    base.AddParentRef(protocol).ExcludeDiagComm(L"Read").ExcludeDiagComm(L"Start").ExcludeVariable(L"Speed");
    EXPECT_EQ(database.Count(VOdxTagEnum::DiagLayerContainer), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::Protocol), 2u);
    EXPECT_EQ(database.Count(VOdxTagEnum::BaseVariant), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::EcuVariant), 0u);
    EXPECT_EQ(database.Count(VOdxTagEnum::DiagService), 2u);
    EXPECT_EQ(database.Count(VOdxTagEnum::SingleEcuJob), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::RequestRef), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::Request), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::GlobalNegResponse), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::ProtocolRef), 1u);
    EXPECT_EQ(database.Count(VOdxTagEnum::NotInheritedDiagComm), 2u);
    EXPECT_EQ(database.Count(VOdxTagEnum::NotInheritedVariable), 1u);
}

TEST(CountsTest, CountsFollowRemoval) {
    NMemory::VDatabase database;
    auto& container = database.AddDiagLayerContainer(L"C");
    auto& protocol = container.AddProtocol(L"P");
    auto& service = protocol.AddDiagService(L"Read");
    service.SetRequestRef(VReference::ById(L"Gone"));
    service.RemoveRequestRef();
    EXPECT_EQ(database.Count(VOdxTagEnum::RequestRef), 0u);
    service.SetRequestRef(VReference::ById(L"Gone"));
    delete &service;
    EXPECT_EQ(database.Count(VOdxTagEnum::RequestRef), 0u);
    EXPECT_EQ(database.Count(VOdxTagEnum::DiagService), 0u);
    delete &container;
    EXPECT_EQ(database.Count(VOdxTagEnum::Protocol), 0u);
    EXPECT_EQ(database.Count(VOdxTagEnum::DiagLayerContainer), 0u);
}

} // namespace
} // namespace NTest
