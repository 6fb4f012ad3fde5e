// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/tools/oem/Heuristic.h>
#include <diagkit/tools/oem/OemChecker.h>

/// Common to the tests of manufacturer detection.

namespace NTest {

/// The root of another database that records its calls, and can return the COMPARAM-SPECs of a separate database.
class VObservedOdx final : public NODX201::VOdx {
public:
    explicit VObservedOdx(NODX201::VOdx& odx) : m_odx(odx), m_comparamSpecs(&odx) {}

    void TakeComparamSpecsFrom(NODX201::VOdx& odx) { m_comparamSpecs = &odx; }

    NODX201::VDiagLayerContainerCollection& DiagLayerContainerCollection() override {
        m_asked += "layers ";
        return m_odx.DiagLayerContainerCollection();
    }
    NODX201::VComparamSpecCollection& ComparamSpecCollection() override {
        m_asked += "specs ";
        return m_comparamSpecs->ComparamSpecCollection();
    }
    NODX201::VProcessingInstructionCollection& ProcessingInstructionCollection() override {
        m_asked += "instructions ";
        return m_odx.ProcessingInstructionCollection();
    }
    NODX201::VOdxTagEnum GetOdxTag() const override { return m_odx.GetOdxTag(); }
    wchar_t const* GetShortName() const override { return L""; }
    NODX201::VOdxObject* GetOwner() const override { return nullptr; }

    std::string m_asked;

private:
    NODX201::VOdx& m_odx;
    NODX201::VOdx* m_comparamSpecs;
};

class VOemTest : public testing::Test {
protected:
    NODX201::VOdx& Odx() { return m_database.GetOdx(); }

    /// A rule's result for the database, which is the same each time, with a report and without; only a "no" comes with
    /// a reason.
    template <class Rule, class... Arguments>
    bool Matches(Arguments... arguments) {
        NDIAGKIT::VOemCheckContext context(Odx());
        Rule rule(&context, arguments...);
        bool const answer = rule.Matches();
        EXPECT_EQ(rule.Matches(), answer) << "a rule keeps no state";
        NDIAGKIT::VOemRuleReport const report = ReportOf(rule, context);
        EXPECT_EQ(report.matches, answer);
        EXPECT_EQ(report.reason.expected.empty(), answer);
        EXPECT_EQ(report.reason.found.empty(), answer);
        EXPECT_FALSE(report.isVacuous && !answer);
        return answer;
    }

    /// A rule's result in a report: "yes", "vacuous", or "EXPECTED | FOUND | SHORT-NAME of where".
    template <class Rule, class... Arguments>
    std::wstring Told(Arguments... arguments) {
        NDIAGKIT::VOemCheckContext context(Odx());
        Rule rule(&context, arguments...);
        NDIAGKIT::VOemRuleReport const report = ReportOf(rule, context);
        if (report.matches) {
            return report.isVacuous ? L"vacuous" : L"yes";
        }
        NODX201::VOdxElement const* const where = report.reason.where;
        return report.reason.expected + L" | " + report.reason.found +
               (where != nullptr ? std::wstring(L" | ") + where->GetShortName() : L"");
    }

    /// Whether a heuristic matches; its report says the same.
    template <class Heuristic>
    bool HeuristicMatches() {
        NDIAGKIT::VOemCheckContext context(Odx());
        Heuristic heuristic(&context);
        heuristic.CreateRules();
        bool const answer = heuristic.Matches();
        EXPECT_EQ(heuristic.Report().matches, answer);
        return answer;
    }

    /// The code of the manufacturer. A checker that was used before gives the same result as a new one, and so does the
    /// report.
    int Code() {
        NDIAGKIT::VOemChecker checker;
        NDIAGKIT::VManufacturer const answer = checker.GetManufacturer(Odx());
        EXPECT_EQ(checker.GetManufacturer(Odx()), answer);
        EXPECT_EQ(checker.Report(Odx()).manufacturer, answer);
        return static_cast<int>(answer);
    }

    /// The calls of a heuristic to the root, from the context on.
    template <class Heuristic>
    std::string AskedBy() {
        VObservedOdx observed(Odx());
        NDIAGKIT::VOemCheckContext context(observed);
        observed.m_asked.clear();
        Heuristic heuristic(&context);
        heuristic.CreateRules();
        heuristic.Matches();
        return observed.m_asked;
    }

    static NDIAGKIT::VOemRuleReport ReportOf(NDIAGKIT::VHeuristicRule& rule, NDIAGKIT::VOemCheckContext& context) {
        NDIAGKIT::VOemRuleReport report{rule.GetName(), false, 1};
        context.m_report = &report;
        report.matches = rule.Matches();
        context.m_report = nullptr;
        return report;
    }

    template <class Element>
    static Element& Identify(Element& element, wchar_t const* id, wchar_t const* oid) {
        element.SetId(id);
        element.SetOid(oid);
        return element;
    }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
};

/// A name with this number of characters.
inline std::wstring LongText(wchar_t character = L'x') { return std::wstring(100000, character); }

} // namespace NTest
