// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/Heuristic.h>

#include <diagkit/tools/oem/Reasons.h>

#include "tools/oem/OemTest.h"
#include "support/Slots.h"

namespace NTest {
namespace {

using NDIAGKIT::VHeuristic;
using NDIAGKIT::VHeuristicRule;
using NDIAGKIT::VOemCheckContext;

std::string s_asked;

/// A rule with a fixed result that records that it was evaluated.
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

/// A heuristic with one list or two, given by the results of their rules.
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
        EXPECT_EQ(report.rules[index].isDecisive, !answer) << "each that says no rules the manufacturer out";
    }
}

/// Reports that there was nothing to look at, or why it does not match.
class VTellingRule final : public VHeuristicRule {
public:
    VTellingRule(VOemCheckContext* context, bool answer) : VHeuristicRule(context), m_answer(answer) {}

    bool Matches() override {
        auto const why = [this] {
            ++m_made;
            return NDIAGKIT::VOemReason{L"this", L"that", &mpContext->m_odx};
        };
        return m_answer ? NDIAGKIT::Yes(*mpContext, false) : NDIAGKIT::No(*mpContext, why);
    }
    wchar_t const* GetName() const override { return L"Telling"; }

    int m_made = 0;

private:
    bool m_answer;
};

TEST_F(HeuristicTest, AReasonIsMadeForAReportAlone) {
    VTellingRule rule(&m_context, false);
    EXPECT_FALSE(rule.Matches());
    EXPECT_EQ(rule.m_made, 0);
    NDIAGKIT::VOemRuleReport const report = ReportOf(rule, m_context);
    EXPECT_EQ(rule.m_made, 1);
    EXPECT_EQ(report.reason.expected, L"this");
    EXPECT_EQ(report.reason.found, L"that");
    EXPECT_EQ(report.reason.where, &Odx());
    EXPECT_FALSE(report.isVacuous);
}

TEST_F(HeuristicTest, AYesToNothingIsToldFromOthers) {
    VTellingRule rule(&m_context, true);
    EXPECT_TRUE(rule.Matches());
    EXPECT_TRUE(ReportOf(rule, m_context).isVacuous);
    VKnownRule known(&m_context, 'y');
    EXPECT_FALSE(ReportOf(known, m_context).isVacuous);
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
}

TEST_F(HeuristicTest, InAHeuristicThatMatchesNoRuleDecidesAgainstIt) {
    for (auto const& [first, second] : {std::pair{"n", "y"}, std::pair{"y", "n"}}) {
        NDIAGKIT::VOemHeuristicReport const report = VKnownHeuristic(&m_context, first, second).Report();
        EXPECT_TRUE(report.matches);
        for (NDIAGKIT::VOemRuleReport const& rule : report.rules) {
            EXPECT_FALSE(rule.isDecisive);
        }
    }
}

#ifdef DIAGKIT_TEST_SLOTS
TEST(HeuristicSlotsTest, DestructorAndMatchesComeFirst) {
    EXPECT_EQ(SlotsOf(&VHeuristic::Matches, &VHeuristic::CreateRules), SlotsAfterDestructor(2));
    EXPECT_EQ(SlotOf(&VHeuristicRule::Matches), 2);
}
#endif

} // namespace
} // namespace NTest
