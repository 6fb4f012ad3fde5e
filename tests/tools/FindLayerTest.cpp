// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/FindLayer.h>

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>

namespace NTest {
namespace {

using VLayers = std::vector<NODX201::VDiagLayer*>;

class FindLayerTest : public testing::Test {
protected:
    FindLayerTest() { m_seat.SetId(L"Seats/Door"); }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_doors = m_database.AddDiagLayerContainer(L"Doors");
    NMemory::VMemDiagLayerContainer& m_seats = m_database.AddDiagLayerContainer(L"Seats");
    NODX201::VDiagLayer& m_door = m_doors.AddBaseVariant(L"Door");
    NMemory::VMemEcuVariant& m_seat = m_seats.AddEcuVariant(L"Seat");
    NODX201::VDiagLayer& m_other = m_seats.AddBaseVariant(L"Door");
};

TEST_F(FindLayerTest, LayersAreThoseOfAllContainersInOrder) {
    EXPECT_EQ(NDIAGKIT::LayersOf(m_database), (VLayers{&m_door, &m_seat, &m_other}));
    EXPECT_EQ(NDIAGKIT::LayersOf(m_database.GetOdx()), NDIAGKIT::LayersOf(m_database));
    NMemory::VDatabase empty;
    EXPECT_EQ(NDIAGKIT::LayersOf(empty), VLayers{});
}

TEST_F(FindLayerTest, AShortNameIsThatOfTheFirstLayerThatHasIt) {
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"Seat"), &m_seat);
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"Door"), &m_door);
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database.GetOdx(), L"Door"), &m_door);
}

TEST_F(FindLayerTest, AllLayersThatANameFitsAreFound) {
    EXPECT_EQ(NDIAGKIT::FindLayers(m_database, L"Door"), (VLayers{&m_door, &m_other}));
    EXPECT_EQ(NDIAGKIT::FindLayers(m_database, L"Seats/Door"), (VLayers{&m_seat, &m_other})); // the first by its ID
    EXPECT_EQ(NDIAGKIT::FindLayers(m_database, L"Roof"), VLayers{});
}

TEST_F(FindLayerTest, AnIdNamesALayer) {
    m_seat.SetId(L"S.1");
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"S.1"), &m_seat);
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"Seats/S.1"), &m_seat);
}

TEST_F(FindLayerTest, TheContainerMayGoBeforeTheName) {
    m_seat.SetId(L"S.1");
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"Seats/Door"), &m_other);
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"Doors/Door"), &m_door);
    EXPECT_EQ(NDIAGKIT::FindLayer(m_database, L"Doors/Seat"), nullptr);
}

TEST_F(FindLayerTest, NothingElseFits) {
    for (wchar_t const* const name :
         {L"", L"/", L"door", L"Door ", L"Doors", L"Doors/", L"/Door", L"Doors/Doors/Door"}) {
        EXPECT_EQ(NDIAGKIT::FindLayer(m_database, name), nullptr) << name;
    }
}

} // namespace
} // namespace NTest
