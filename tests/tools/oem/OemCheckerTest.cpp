// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/OemChecker.h>

#include <stdexcept>
#include <type_traits>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VManufacturer;
using NDIAGKIT::VOemChecker;

static_assert(!std::is_copy_constructible_v<VOemChecker> && !std::is_copy_assignable_v<VOemChecker>);
static_assert(!std::is_polymorphic_v<VOemChecker>);

class OemCheckerTest : public VOemTest {
protected:
    void MakeDaimler() {
        m_container.AddBaseVariant(L"Engine").SetId(L"BV.Engine");
        NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Uds");
        protocol.SetId(L"PT.Uds");
        NMemory::VMemComparamSpec& spec = m_database.AddComparamSpec(L"Spec");
        spec.SetId(L"ISO_15765_3_on_ISO_15765_2");
        protocol.SetComparamSpecRef(spec);
    }

    void MakePsa() {
        NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"Shared");
        layer.AddFunctClass(L"DIAGNOSTIC_CONSTRUCTEUR");
        layer.AddFunctClass(L"DIAGNOSTIC_REGLEMENTAIRE");
    }

    void MakeOlderBmw() {
        NMemory::VMemEcuSharedData& library = m_container.AddEcuSharedData(L"ISO_14229_SERVICES_BMW");
        NMemory::VMemCompanyData& company = library.AddCompanyData(L"BMW");
        company.SetLongName(L"BMW");
        company.AddRole(L"MANUFACTURER");
        m_container.AddProtocol(L"Protocol").AddParentRef(library);
    }

    void MakeNewerBmw() {
        m_container.AddEcuSharedData(L"BMW_LIB");
        NMemory::VMemDiagDataDictionarySpec& dictionary =
            m_container.AddFunctionalGroup(L"Group").MakeDiagDataDictionarySpec();
        dictionary.AddMux(L"PRIM_DTC_MUX");
        dictionary.AddMux(L"SEC_DTC_MUX");
    }

    /// The names of the heuristics that match.
    std::wstring Matching() {
        std::wstring names;
        for (auto const& heuristic : VOemChecker().Report(Odx()).heuristics) {
            names += heuristic.matches ? std::wstring(heuristic.name) + L' ' : L"";
        }
        return names;
    }
};

TEST_F(OemCheckerTest, TheCodesOfTheManufacturers) {
    EXPECT_EQ(sizeof(VManufacturer), 4U);
    EXPECT_EQ(static_cast<int>(VManufacturer::Daimler), 1);
    EXPECT_EQ(static_cast<int>(VManufacturer::Claas), 3);
    EXPECT_EQ(static_cast<int>(VManufacturer::Pag), 4);
    EXPECT_EQ(static_cast<int>(VManufacturer::AudiVw), 8);
    EXPECT_EQ(static_cast<int>(VManufacturer::Bmw), 10);
    EXPECT_EQ(static_cast<int>(VManufacturer::Fiat), 12);
    EXPECT_EQ(static_cast<int>(VManufacturer::Gm), 15);
    EXPECT_EQ(static_cast<int>(VManufacturer::Psa), 19);
    EXPECT_EQ(static_cast<int>(VManufacturer::Unknown), 36);
}

TEST_F(OemCheckerTest, AnEmptyDatabaseIsUndetermined) {
    NMemory::VDatabase database;
    EXPECT_EQ(VOemChecker().GetManufacturer(database.GetOdx()), VManufacturer::Unknown);
    EXPECT_EQ(Code(), 36) << "as is one with an empty container";
}

TEST_F(OemCheckerTest, TheRulesOfEveryHeuristicInTheOrderOfTheCodes) {
    std::wstring text;
    for (auto const& heuristic : VOemChecker().Report(Odx()).heuristics) {
        text += std::to_wstring(static_cast<int>(heuristic.manufacturer)) + L' ' + heuristic.name;
        int list = 1;
        for (auto const& rule : heuristic.rules) {
            text += rule.list == list ? L" " : L" | ";
            text += rule.name;
            list = rule.list;
        }
        EXPECT_EQ(heuristic.lists, list);
        text += L'\n';
    }
    EXPECT_EQ(text,
              L"1 VDaimlerHeuristic VDaimlerHierarchicalIdsRule VDaimlerComparamsRule VProcessingInstructionRule\n"
              L"3 VClaasHeuristic VClaasProcessingInstructionRule VProcessingInstructionRule\n"
              L"4 VPagHeuristic VPagOidRule VPagModelRule VPagFunctionalGroupRule VProcessingInstructionRule"
              L" | VPagComparamSpecRule VPagDopRule VProcessingInstructionRule\n"
              L"8 VAudiVwHeuristic VAudiVwProtocolRule VAudiVwTeamMembersRule VAudiVwCharacterRule"
              L" VProcessingInstructionRule\n"
              L"10 VBmwHeuristic VBmwIdRule VBmwEcuSharedDataRule VBmwProtocolRule VProcessingInstructionRule\n"
              L"10 VBmwHeuristicNew VBmwIdRule VBmwEcuSharedDataRuleNew VBmwFunctionalGroupRule"
              L" VProcessingInstructionRule\n"
              L"12 VFiatHeuristic VFiatStateSdgRule VFiatAdditionalComparamsRule VProcessingInstructionRule\n"
              L"15 VGmHeuristic VGmProtocolRule VGmFunctionalGroupRule VProcessingInstructionRule"
              L" VGmComparamSpecRule\n"
              L"19 VPSAHeuristic VPSAEcuSharedDataRule VProcessingInstructionRule\n");
}

TEST_F(OemCheckerTest, TheOnlyOneThatMatchesIsTheAnswer) {
    MakeDaimler();
    EXPECT_EQ(Matching(), L"VDaimlerHeuristic ");
    EXPECT_EQ(Code(), 1);
}

TEST_F(OemCheckerTest, TwoManufacturersAreUndetermined) {
    MakeDaimler();
    MakePsa();
    EXPECT_EQ(Matching(), L"VDaimlerHeuristic VPSAHeuristic ");
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemCheckerTest, BothBmwLayoutsAtOnceAreUndetermined) {
    MakeOlderBmw();
    EXPECT_EQ(Code(), 10);
    MakeNewerBmw();
    EXPECT_EQ(Matching(), L"VBmwHeuristic VBmwHeuristicNew ");
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemCheckerTest, EveryManufacturerHearsTheProcessingInstruction) {
    MakeDaimler();
    MakePsa();
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"19");
    EXPECT_EQ(Code(), 19) << "it tells the two apart";
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"1");
    EXPECT_EQ(Code(), 36) << "two with different contents help both";
}

TEST_F(OemCheckerTest, HeuristicsAreAskedInTheOrderOfTheirCodes) {
    // Six walks for the context; Daimler passes up to its instruction; Porsche asks for the COMPARAM-SPECs in its
    // second list, Fiat after its state model, which no service contradicts; GM passes the PROTOCOLs and stops at them;
    // PSA passes up to its instruction.
    MakeDaimler();
    MakePsa();
    VObservedOdx observed(Odx());
    EXPECT_EQ(VOemChecker().GetManufacturer(observed), VManufacturer::Unknown);
    EXPECT_EQ(observed.m_asked, "layers layers layers layers layers layers instructions specs specs instructions specs "
                                "instructions ");
}

TEST_F(OemCheckerTest, HeuristicsBehindTheSecondMatchAreNotAsked) {
    // A model whose root does not list the COMPARAM-SPEC that Daimler's PROTOCOL refers to, but one of GM.
    MakeDaimler();
    MakePsa();
    NMemory::VDatabase other;
    Identify(other.AddComparamSpec(L"Spec"), L"ID7", L"7");
    VObservedOdx observed(Odx());
    observed.TakeComparamSpecsFrom(other.GetOdx());
    EXPECT_EQ(VOemChecker().GetManufacturer(observed), VManufacturer::Unknown);
    EXPECT_EQ(observed.m_asked,
              "layers layers layers layers layers layers instructions specs specs instructions specs ")
        << "GM asks for the instructions, then for the specs, and is the second; PSA is not asked for its instruction";
    observed.m_asked.clear();
    VOemChecker().Report(observed);
    EXPECT_EQ(observed.m_asked.substr(observed.m_asked.size() - 13), "instructions ") << "a report asks PSA too";
}

TEST_F(OemCheckerTest, ACheckerMayBeAskedAgainAboutAnotherDatabase) {
    VOemChecker checker;
    MakeDaimler();
    EXPECT_EQ(checker.GetManufacturer(Odx()), VManufacturer::Daimler);
    {
        NMemory::VDatabase empty;
        EXPECT_EQ(checker.GetManufacturer(empty.GetOdx()), VManufacturer::Unknown);
    }
    EXPECT_EQ(checker.Report(Odx()).heuristics.size(), 9U);
    EXPECT_EQ(checker.GetManufacturer(Odx()), VManufacturer::Daimler);
    EXPECT_EQ(checker.Report(Odx()).heuristics.size(), 9U);
}

/// A root whose processing instructions cannot be read.
class VThrowingOdx final : public NODX201::VOdx {
public:
    explicit VThrowingOdx(NODX201::VOdx& odx) : m_odx(odx) {}
    NODX201::VDiagLayerContainerCollection& DiagLayerContainerCollection() override {
        return m_odx.DiagLayerContainerCollection();
    }
    NODX201::VComparamSpecCollection& ComparamSpecCollection() override { return m_odx.ComparamSpecCollection(); }
    NODX201::VProcessingInstructionCollection& ProcessingInstructionCollection() override {
        throw std::runtime_error("not to be had");
    }
    NODX201::VOdxTagEnum GetOdxTag() const override { return m_odx.GetOdxTag(); }
    wchar_t const* GetShortName() const override { return L""; }
    NODX201::VOdxObject* GetOwner() const override { return nullptr; }

private:
    NODX201::VOdx& m_odx;
};

TEST_F(OemCheckerTest, AnExceptionOfTheModelLeavesTheCheckerAsNew) {
    MakeDaimler();
    VThrowingOdx throwing(Odx());
    VOemChecker checker;
    EXPECT_THROW(checker.GetManufacturer(throwing), std::runtime_error);
    EXPECT_THROW(checker.Report(throwing), std::runtime_error);
    EXPECT_EQ(checker.GetManufacturer(Odx()), VManufacturer::Daimler);
    EXPECT_EQ(checker.Report(Odx()).heuristics.size(), 9U);
}

TEST_F(OemCheckerTest, NothingIsChanged) {
    MakeDaimler();
    MakeOlderBmw();
    std::uint64_t const generation = m_database.GetGeneration();
    Code();
    EXPECT_EQ(m_database.GetGeneration(), generation);
}

// Unrealistic data

TEST_F(OemCheckerTest, EmptyNamesEverywhere) {
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"");
    protocol.AddDiagService(L"");
    protocol.AddCompanyData(L"").AddTeamMember(L"").AddRole(L"");
    protocol.AddFunctClass(L"");
    m_container.AddFunctionalGroup(L"").MakeDiagDataDictionarySpec().AddMux(L"");
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"");
    variant.MakeDiagDataDictionarySpec().AddDataObjectProp(L"");
    variant.AddPosResponse(L"").AddValue(L"").AddProcessingInstruction(L"", L"");
    variant.AddDiagService(L"").AddSdg().MakeSdgCaption(L"");
    m_container.AddEcuVariant(L"").AddDiagService(L"");
    m_container.AddEcuSharedData(L"").AddCompanyData(L"").SetLongName(L"");
    m_database.AddComparamSpec(L"").AddComparam(L"");
    m_database.AddProcessingInstruction(L"", L"");
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemCheckerTest, NamesOf100000Characters) {
    std::wstring const text = LongText();
    wchar_t const* const name = text.c_str();
    NMemory::VMemProtocol& protocol = Identify(m_container.AddProtocol(name), name, name);
    protocol.SetLongName(name);
    protocol.AddDiagService((L"DiagnServi_" + text).c_str()).SetLongName(name);
    protocol.AddFunctClass(name).SetId(name);
    NMemory::VMemEcuSharedData& shared = m_container.AddEcuSharedData(name);
    NMemory::VMemCompanyData& company = shared.AddCompanyData(name);
    company.SetLongName(name);
    company.AddRole(name);
    company.AddTeamMember(name).AddRole(name);
    protocol.AddParentRef(shared);
    m_container.AddFunctionalGroup(name).MakeDiagDataDictionarySpec().AddMux(name);
    NMemory::VMemBaseVariant& variant = Identify(m_container.AddBaseVariant(name), name, name);
    variant.MakeDiagDataDictionarySpec().AddDataObjectProp(name).SetId(name);
    variant.AddPosResponse(name).AddValue(name).AddProcessingInstruction(name, name);
    variant.AddDiagService(name).AddSdg().MakeSdgCaption(name);
    Identify(Identify(m_database.AddComparamSpec(name), name, name).AddComparam(name), name, name);
    m_database.AddProcessingInstruction(name, name);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", name);
    EXPECT_EQ(Code(), 36);
}

TEST_F(OemCheckerTest, LayersWithoutCompanyData) {
    m_container.AddProtocol(L"PR_UDSOnCAN").AddSingleEcuJob(L"Job");
    m_container.AddEcuSharedData(L"Shared");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
