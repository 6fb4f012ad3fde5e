// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/Heuristic.h>

#include "oem/OemTest.h"
#include "support/Slots.h"

namespace NTest {
namespace {

using NDIAGKIT::VHeuristic;
using NDIAGKIT::VHeuristicRule;
using NDIAGKIT::VOemCheckContext;

std::string s_asked;

/// A rule that gives the answer it was made for and writes down that it was asked.
class VKnownRule final : public VHeuristicRule {
public:
    VKnownRule(VOemCheckContext* context, char answer) : VHeuristicRule(context), m_answer(answer) {}
    ~VKnownRule() override { s_asked += '~'; }

    bool Matches() override {
        s_asked += m_answer;
        return m_answer == 'y';
    }
    wchar_t const* GetName() const override { return m_answer == 'y' ? L"Yes" : L"No"; }

private:
    char m_answer;
};

/// A heuristic with one list or two, given by the answers of their rules.
class VKnownHeuristic final : public VHeuristic {
public:
    VKnownHeuristic(VOemCheckContext* context, std::string first, std::string second = "-")
        : VHeuristic(context), m_first(std::move(first)), m_second(std::move(second)) {
        s_asked.clear();
        CreateRules();
    }

    bool Matches() override {
        bool const isMet = VHeuristic::Matches();
        return m_second == "-" ? isMet : AllMatch(m_secondRules) || isMet;
    }
    void CreateRules() override {
        for (char const answer : m_first) {
            Add<VKnownRule>(answer);
        }
        for (char const answer : m_second) {
            AddTo<VKnownRule>(m_secondRules, answer);
        }
    }
    wchar_t const* GetName() const override { return L"Known"; }

private:
    std::string m_first;
    std::string m_second;
    VRules m_secondRules;
};

class HeuristicTest : public VOemTest {
protected:
    VOemCheckContext m_context{Odx()};
};

TEST_F(HeuristicTest, MatchesWhenEveryRuleDoes) {
    EXPECT_TRUE(VKnownHeuristic(&m_context, "yyy").Matches());
    EXPECT_FALSE(VKnownHeuristic(&m_context, "yyn").Matches());
    EXPECT_FALSE(VKnownHeuristic(&m_context, "nyy").Matches());
}

TEST_F(HeuristicTest, AnEmptyListMatches) { EXPECT_TRUE(VKnownHeuristic(&m_context, "").Matches()); }

TEST_F(HeuristicTest, RulesBehindTheFirstFailureAreNotAsked) {
    VKnownHeuristic heuristic(&m_context, "yynyn");
    EXPECT_FALSE(heuristic.Matches());
    EXPECT_EQ(s_asked, "yyn");
}

TEST_F(HeuristicTest, ItOwnsItsRules) {
    { VKnownHeuristic const heuristic(&m_context, "yn", "y"); }
    EXPECT_EQ(s_asked, "~~~");
}

TEST_F(HeuristicTest, AReportAsksEveryRule) {
    VKnownHeuristic heuristic(&m_context, "ynyn");
    NDIAGKIT::VOemHeuristicReport const report = heuristic.Report();
    EXPECT_EQ(s_asked, "ynyn");
    EXPECT_STREQ(report.name, L"Known");
    EXPECT_FALSE(report.matches);
    EXPECT_EQ(report.lists, 1);
    ASSERT_EQ(report.rules.size(), 4U);
    for (std::size_t index = 0; index < 4; ++index) {
        bool const answer = index % 2 == 0;
        EXPECT_EQ(report.rules[index].matches, answer);
        EXPECT_STREQ(report.rules[index].name, answer ? L"Yes" : L"No");
        EXPECT_EQ(report.rules[index].list, 1);
        EXPECT_EQ(report.rules[index].isDecisive, index == 1) << "the first that fails decides";
    }
}

TEST_F(HeuristicTest, AReportDoesNotChangeWhatIsAskedAfterwards) {
    VKnownHeuristic heuristic(&m_context, "nyy");
    heuristic.Report();
    s_asked.clear();
    EXPECT_FALSE(heuristic.Matches());
    EXPECT_EQ(s_asked, "n");
}

TEST_F(HeuristicTest, AReportOfTwoLists) {
    VKnownHeuristic heuristic(&m_context, "yn", "ny");
    NDIAGKIT::VOemHeuristicReport const report = heuristic.Report();
    EXPECT_FALSE(report.matches);
    EXPECT_EQ(report.lists, 2);
    std::string text;
    for (NDIAGKIT::VOemRuleReport const& rule : report.rules) {
        text += std::to_string(rule.list) + (rule.matches ? "y" : "n") + (rule.isDecisive ? "! " : " ");
    }
    EXPECT_EQ(text, "1y 1n! 2n! 2y ");
    EXPECT_TRUE(VKnownHeuristic(&m_context, "n", "y").Report().matches);
    EXPECT_TRUE(VKnownHeuristic(&m_context, "y", "n").Report().matches);
}

#ifdef DIAGKIT_TEST_SLOTS
TEST(HeuristicSlotsTest, DestructorAndMatchesComeFirst) {
    EXPECT_EQ(SlotsOf(&VHeuristic::Matches, &VHeuristic::CreateRules), SlotsAfterDestructor(2));
    EXPECT_EQ(SlotOf(&VHeuristicRule::Matches), 2);
}
#endif

} // namespace
} // namespace NTest
