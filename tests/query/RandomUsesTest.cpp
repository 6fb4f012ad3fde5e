// SPDX-License-Identifier: Apache-2.0
#include "query/NaiveUses.h"
#include "query/UsesTest.h"

namespace NTest {
namespace {

class VRandomUsesTest : public VUsesTest {
protected:
    /// Compares every result with that of the plain lists.
    void Compare(VNaiveDatabase const& naive) {
        for (std::string const& id : naive.Ids()) {
            ASSERT_EQ(Uses(id), naive.Uses(id)) << id << " in\n" << XmlOf(naive);
        }
        ASSERT_EQ(Unused(), naive.Unused()) << "in\n" << XmlOf(naive);
    }
};

TEST_F(VRandomUsesTest, AreThoseOfLookingAtEverythingInEveryLayer) {
    std::mt19937 random(1);
    for (int round = 0; round < 150 && !HasFatalFailure(); ++round) {
        VNaiveDatabase const naive = RandomNaiveDatabase(random);
        Forget();
        Read(XmlOf(naive));
        Compare(naive);
    }
}

TEST_F(VRandomUsesTest, AreSoAfterEachRemovalOfAnElement) {
    std::mt19937 random(2);
    for (int round = 0; round < 15 && !HasFatalFailure(); ++round) {
        VNaiveDatabase naive = RandomNaiveDatabase(random);
        Forget();
        Read(XmlOf(naive));
        for (int removals = 0; removals < 5 && !HasFatalFailure(); ++removals) {
            std::vector<std::string> const ids = naive.Ids();
            std::string const& removed = ids[random() % ids.size()];
            Remove(removed);
            naive.Remove(removed);
            Compare(naive);
        }
    }
}

} // namespace
} // namespace NTest
