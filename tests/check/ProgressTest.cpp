// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {
namespace {

using VProgressTest = VCheckTest;

TEST_F(VProgressTest, GrowsWithEveryLayerAndEndsWithTheWhole) {
    std::string layers = LayerXml("BASE-VARIANT", "B", DiagComms(Service("S")));
    for (int index = 0; index < 20; ++index) {
        layers += LayerXml("ECU-VARIANT", "V" + std::to_string(index), ParentRefs({{"BASE-VARIANT", "B"}}));
    }
    Check(layers);
    std::uint64_t last = 0;
    std::uint64_t whole = 0;
    std::size_t calls = 0;
    bool isSound = true;
    NCheck::CheckDatabase(m_result, [&](std::uint64_t done, std::uint64_t all) {
        isSound = isSound && done >= last && done <= all && (whole == 0 || all == whole);
        last = done;
        whole = all;
        ++calls;
    });
    EXPECT_TRUE(isSound);
    EXPECT_EQ(last, whole);
    EXPECT_GT(calls, 21U);
}

TEST_F(VProgressTest, OfNoLayersEndsToo) {
    CheckDocument("<ODX MODEL-VERSION=\"2.2.0\"><FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME></FLASH></ODX>");
    std::uint64_t last = 0;
    std::uint64_t whole = 1;
    NCheck::CheckDatabase(m_result, [&](std::uint64_t done, std::uint64_t all) {
        last = done;
        whole = all;
    });
    EXPECT_EQ(last, whole);
}

} // namespace
} // namespace NTest
