// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/FilePlace.h>

#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

class FilePlaceTest : public VReaderTest {
protected:
    FilePlaceTest() { m_options.keepsElements = true; }
};

TEST_F(FilePlaceTest, AnElementStandsWhereItsTagStarts) {
    Read(ContainerOfLayers(LayerXml("BASE-VARIANT", "BV")));
    NODX201::VOdxElement const* const layer = m_result.elements.back();
    ASSERT_STREQ(L"BV", layer->GetShortName());
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(*m_result.database, *layer);
    EXPECT_TRUE(place.file.size() >= 8 && place.file.substr(place.file.size() - 8) == "test.odx") << place.file;
    EXPECT_EQ(2U, place.line);
    EXPECT_EQ(16U, place.column);
}

TEST_F(FilePlaceTest, WhatAProgramMadeStandsNowhere) {
    NMemory::VDatabase database;
    NODX201::VOdxElement const& odx = database.GetOdx();
    NQuery::VFilePlace const place = NQuery::FilePlaceOf(database, odx);
    EXPECT_EQ("", place.file);
    EXPECT_EQ(0U, place.line);
}

} // namespace
} // namespace NTest
