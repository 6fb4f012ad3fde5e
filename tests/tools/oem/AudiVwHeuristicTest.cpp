// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/AudiVwHeuristic.h>

#include <clocale>
#include <cwctype>
#include <random>

#include "tools/oem/OemTest.h"
#include "support/MockElements.h"

namespace NTest {
namespace {

using NDIAGKIT::VAudiVwCharacterRule;
using NDIAGKIT::VAudiVwHeuristic;
using NDIAGKIT::VAudiVwProtocolRule;
using NDIAGKIT::VAudiVwTeamMembersRule;

class AudiVwHeuristicTest : public VOemTest {
protected:
    NMemory::VMemProtocol& AddProtocol(wchar_t const* name = L"PR_UDSOnCAN") {
        NMemory::VMemProtocol& protocol = m_container.AddProtocol(name);
        protocol.AddSingleEcuJob(L"Job");
        return protocol;
    }

    /// A company with a person of that role, in a layer whose staff is not checked.
    NMemory::VMemTeamMember& AddPerson(wchar_t const* company, wchar_t const* role) {
        NMemory::VMemCompanyData& data = m_container.AddBaseVariant(L"Variant").AddCompanyData(L"Company");
        data.SetLongName(company);
        NMemory::VMemTeamMember& person = data.AddTeamMember(L"Person");
        person.AddRole(role);
        return person;
    }
};

// VAudiVwProtocolRule

TEST_F(AudiVwHeuristicTest, WithoutProtocolsTheProtocolRuleFails) { EXPECT_FALSE(Matches<VAudiVwProtocolRule>()); }

TEST_F(AudiVwHeuristicTest, TheNameOfAProtocolBeginsInTheVolkswagenWayInAnyCase) {
    NMemory::VMemProtocol& protocol = AddProtocol();
    for (wchar_t const* const name :
         {L"PR_UDSOnCAN", L"PR_OBDOnCAN", L"pr_udsoncan", L"PR_UDSOnCAN_Ext", L"PR_OBDONCANx"}) {
        protocol.SetShortName(name);
        EXPECT_TRUE(Matches<VAudiVwProtocolRule>()) << testing::PrintToString(name);
    }
    for (wchar_t const* const name : {L"PR_UDSOnCA", L"", L"UDSOnCAN", L"xPR_UDSOnCAN", L"PR_KWPOnCAN"}) {
        protocol.SetShortName(name);
        EXPECT_FALSE(Matches<VAudiVwProtocolRule>()) << testing::PrintToString(name);
    }
}

TEST_F(AudiVwHeuristicTest, OneProtocolOfTheNameIsEnough) {
    AddProtocol(L"First");
    AddProtocol();
    AddProtocol(L"Last");
    EXPECT_TRUE(Matches<VAudiVwProtocolRule>());
}

TEST_F(AudiVwHeuristicTest, EveryProtocolHasDiagComms) {
    m_container.AddProtocol(L"PR_UDSOnCAN_Ext");
    EXPECT_FALSE(Matches<VAudiVwProtocolRule>());
    AddProtocol();
    EXPECT_FALSE(Matches<VAudiVwProtocolRule>());
}

TEST_F(AudiVwHeuristicTest, AProtocolOfAnotherNameHasDiagCommsToo) {
    AddProtocol();
    m_container.AddProtocol(L"Last");
    EXPECT_FALSE(Matches<VAudiVwProtocolRule>());
}

// VAudiVwTeamMembersRule

TEST_F(AudiVwHeuristicTest, WithoutTeamMembersTheirRuleFails) { EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>()); }

TEST_F(AudiVwHeuristicTest, AContactPersonOfAudiOrVolkswagen) {
    AddPerson(L"AUDI AG", L"Contact Person OEM");
    EXPECT_TRUE(Matches<VAudiVwTeamMembersRule>()) << "without ECU-SHARED-DATA that is enough";
}

TEST_F(AudiVwHeuristicTest, TheNamesOfTheCompany) {
    NMemory::VMemTeamMember& person = AddPerson(L"", L"contact person oem");
    auto& company = dynamic_cast<NMemory::VMemCompanyData&>(*person.GetOwner());
    for (wchar_t const* const name : {L"audi", L"Audi AG", L"VOLKSWAGEN AG", L"Volkswagen", L"VAG"}) {
        company.SetLongName(name);
        EXPECT_TRUE(Matches<VAudiVwTeamMembersRule>()) << testing::PrintToString(name);
    }
    for (wchar_t const* const name : {L"", L"Audi AG Ingolstadt", L"VW", L"VAG ", L"Volks"}) {
        company.SetLongName(name);
        EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>()) << testing::PrintToString(name);
    }
}

TEST_F(AudiVwHeuristicTest, WithoutLongNameACompanyIsAnyones) {
    NMemory::VMemCompanyData& company = m_container.AddBaseVariant(L"Variant").AddCompanyData(L"Audi");
    company.AddTeamMember(L"Person").AddRole(L"contact person oem");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>());
}

TEST_F(AudiVwHeuristicTest, OtherRolesDoNotCount) {
    NMemory::VMemTeamMember& person = AddPerson(L"Audi", L"contact person");
    person.AddRole(L"contact person oem 2");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>());
    person.AddRole(L"CONTACT PERSON OEM");
    EXPECT_TRUE(Matches<VAudiVwTeamMembersRule>()) << "one of several roles";
}

TEST_F(AudiVwHeuristicTest, AContactPersonOfAnotherCompanyDoesNotCount) {
    AddPerson(L"Supplier", L"contact person oem");
    AddPerson(L"Audi", L"developer");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>());
    AddPerson(L"VAG", L"contact person oem");
    AddPerson(L"Supplier", L"contact person oem");
    EXPECT_TRUE(Matches<VAudiVwTeamMembersRule>());
}

/// A team member without a company.
class VFreeTeamMember final : public NODX201::VTeamMember {
public:
    NODX201::VOdxTagEnum GetOdxTag() const override { return NODX201::VOdxTagEnum::TeamMember; }
    NODX201::VOdxObject* GetOwner() const override { return m_owner; }
    wchar_t const* GetShortName() const override { return L"Person"; }
    wchar_t const* GetId() const override { return L""; }
    NODX201::VStringCollection& RoleCollection() override { return *m_roles; }

    NODX201::VOdxObject* m_owner = nullptr;
    NODX201::VStringCollection* m_roles = nullptr;
};

TEST_F(AudiVwHeuristicTest, AnOwnerOfAnotherKindIsNoCompany) {
    NMemory::VMemTeamMember& person = AddPerson(L"Audi", L"contact person oem");
    NDIAGKIT::VOemCheckContext context(Odx());
    VFreeTeamMember free;
    free.m_roles = &person.RoleCollection();
    context.m_teamMembers = {&free};
    VAudiVwTeamMembersRule rule(&context);
    EXPECT_FALSE(rule.Matches()) << "no owner";
    free.m_owner = &m_container;
    EXPECT_FALSE(rule.Matches()) << "another one";
    free.m_owner = person.GetOwner();
    EXPECT_TRUE(rule.Matches());
}

TEST_F(AudiVwHeuristicTest, EveryEcuSharedDataIsStaffed) {
    AddPerson(L"Audi", L"contact person oem");
    NMemory::VMemEcuSharedData& layer = m_container.AddEcuSharedData(L"Shared");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>()) << "without COMPANY-DATA";
    NMemory::VMemCompanyData& company = layer.AddCompanyData(L"Supplier");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>()) << "without TEAM-MEMBER";
    company.AddTeamMember(L"Person");
    EXPECT_TRUE(Matches<VAudiVwTeamMembersRule>());
    layer.AddCompanyData(L"Other");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>()) << "one without TEAM-MEMBER";
}

TEST_F(AudiVwHeuristicTest, StaffAloneIsNoContactPerson) {
    m_container.AddEcuSharedData(L"Shared").AddCompanyData(L"Supplier").AddTeamMember(L"Person");
    EXPECT_FALSE(Matches<VAudiVwTeamMembersRule>());
}

// VAudiVwCharacterRule

class AudiVwCharacterRuleTest : public AudiVwHeuristicTest {
protected:
    std::wstring Abbreviated(std::wstring const& text) {
        NDIAGKIT::VOemCheckContext context(Odx());
        return VAudiVwCharacterRule(&context).Abbreviate(text);
    }

    /// A literal implementation of the rule: replace, shrink, split, cut.
    static std::wstring NaivelyAbbreviated(std::wstring text, std::set<std::wstring> const& special) {
        for (std::wstring const& character : special) {
            for (std::size_t at = text.find(character); at != std::wstring::npos; at = text.find(character)) {
                text.replace(at, 1, L" ");
            }
        }
        for (std::size_t at = text.find(L"  "); at != std::wstring::npos; at = text.find(L"  ")) {
            text.erase(at, 1);
        }
        std::wstring result;
        std::size_t start = 0;
        while (start <= text.size()) {
            std::size_t const end = std::min(text.find(L' ', start), text.size());
            std::wstring piece = text.substr(start, std::min<std::size_t>(end - start, 5));
            if (!piece.empty() && piece[0] >= L'a' && piece[0] <= L'z') {
                piece[0] = static_cast<wchar_t>(piece[0] - 32);
            }
            result += piece;
            start = end + 1;
        }
        return result;
    }

    NMemory::VMemDiagService& AddService(wchar_t const* longName, wchar_t const* shortName) {
        if (m_protocol == nullptr) {
            m_protocol = &m_container.AddProtocol(L"Protocol");
        }
        NMemory::VMemDiagService& service = m_protocol->AddDiagService(shortName);
        service.SetLongName(longName);
        return service;
    }

    NMemory::VMemProtocol* m_protocol = nullptr;
};

TEST_F(AudiVwCharacterRuleTest, TheSpecialCharactersAreTheseAndNoOthers) {
    NDIAGKIT::VOemCheckContext context(Odx());
    VAudiVwCharacterRule const rule(&context);
    // 15 + 7 + 6 + 5 by their codes, 22 of the upper page, 29 in a row and six further ones.
    std::wstring const all = L"!\"#$%&'()*+,-./"
                             L":;<=>?@"
                             L"[\\]^_`"
                             L"{|}~\x7F"
                             L"\x20AC\x201A\x0192\x201E\x2026\x2020\x2021\x02C6\x2030\x0160\x2039"
                             L"\x0152\x2018\x2019\x201C\x201D\x2022\x2013\x2014\x02DC\x2122\x203A"
                             L"\xA3\xA4\xA5\xA6\xA7\xA8\xA9\xAA\xAB\xAC\xAD\xAE\xAF"
                             L"\xB0\xB1\xB2\xB3\xB4\xB5\xB6\xB7\xB8\xB9\xBA\xBB\xBC\xBD\xBE\xBF"
                             L"\xD7\xD8\xDE\xF7\xF8\xFE";
    EXPECT_EQ(all.size(), 90U);
    EXPECT_EQ(rule.GetSpecialCharacters().size(), 90U);
    for (wchar_t character = 1; character < 0x3000; ++character) {
        bool const isSpecial = all.find(character) != std::wstring::npos;
        std::wstring const text(1, character);
        EXPECT_EQ(rule.GetSpecialCharacters().count(text), isSpecial ? 1U : 0U) << std::hex << int(character);
        bool const isSeparator = isSpecial || character == L' ';
        EXPECT_EQ(rule.Abbreviate(L"x" + text + L"y").size(), isSeparator ? 2U : 3U) << std::hex << int(character);
    }
}

TEST_F(AudiVwCharacterRuleTest, AbbreviationsByExample) {
    EXPECT_EQ(Abbreviated(L"Diagnose Service"), L"DiagnServi");
    EXPECT_EQ(Abbreviated(L"Read (ECU) identification-data"), L"ReadECUIdentData");
    EXPECT_EQ(Abbreviated(L"Read/Write Data"), L"ReadWriteData");
    EXPECT_EQ(Abbreviated(L"Read Write Data"), L"ReadWriteData");
    EXPECT_EQ(Abbreviated(L""), L"");
    EXPECT_EQ(Abbreviated(L"   "), L"");
    EXPECT_EQ(Abbreviated(L"...a...b..."), L"AB");
    EXPECT_EQ(Abbreviated(L"five5 sixsix"), L"Five5Sixsi") << "five characters stay as they are";
    EXPECT_EQ(Abbreviated(L"x1 1y \xE4rger"), L"X11y\xE4rger") << "only ASCII letters have an upper case";
    EXPECT_EQ(Abbreviated(L"a\tb"), L"A\tb") << "a tab separates nothing";
}

TEST_F(AudiVwCharacterRuleTest, AbbreviationsOfRandomTexts) {
    NDIAGKIT::VOemCheckContext context(Odx());
    VAudiVwCharacterRule const rule(&context);
    std::wstring const alphabet = L"abcXYZ059  --/(\xA0\xA2\xA3\xE4\xFC\xF8\x20AC\x2122\x2123\t\x4E00";
    std::mt19937 random(20061121);
    for (int round = 0; round < 20000; ++round) {
        std::wstring text;
        for (std::size_t length = random() % 40; length > 0; --length) {
            text += alphabet[random() % alphabet.size()];
        }
        ASSERT_EQ(rule.Abbreviate(text), NaivelyAbbreviated(text, rule.GetSpecialCharacters()))
            << testing::PrintToString(text);
    }
}

TEST_F(AudiVwCharacterRuleTest, ADatabaseWithoutProtocolsFails) {
    m_container.AddBaseVariant(L"Variant").AddDiagService(L"DiagnServi_");
    EXPECT_FALSE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, AServiceIsNamedByItsAbbreviatedLongNameInAnyCase) {
    AddService(L"Diagnose Service", L"DIAGNSERVI_DIAGNSERVI");
    AddService(L"Read (ECU) identification-data", L"DiagnServi_ReadECUIdentData");
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, WordsAreCutAfterFiveCodeUnitsOfUtf16) {
    EXPECT_EQ(Abbreviated(L"\U0001F600abcd \U0001F600\U0001F601 x"), L"\U0001F600abc\U0001F600\U0001F601X")
        << "two units each";
    AddService(L"\U0001F600abcd", L"DiagnServi_\U0001F600abc");
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, NoNameIsThatOfAWordWhichIsCutInsideACharacter) {
    AddService(L"abcd\U0001F600e", L"DiagnServi_abcd\U0001F600");
    EXPECT_FALSE(Matches<VAudiVwCharacterRule>());
    EXPECT_EQ(Abbreviated(L"abcd\U0001F600e").size(), 5u) << "the first of its two units is left";
}

TEST_F(AudiVwCharacterRuleTest, OneServiceOfAnotherNameMakesTheRuleFail) {
    for (wchar_t const* const name :
         {L"DiagnServi_DiagnoseService", L"DiagnServi_DiagnServ", L"DiagnServi_DiagnServix", L"DiagnServi_", L"",
          L"DiagnServ", L"DiagnServiDiagnServi", L"Diagn_DiagnServi"}) {
        AddService(L"Diagnose Service", L"DiagnServi_DiagnServi");
        EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
        NMemory::VMemDiagService& odd = AddService(L"Diagnose Service", name);
        EXPECT_FALSE(Matches<VAudiVwCharacterRule>()) << testing::PrintToString(name);
        delete &odd;
    }
}

TEST_F(AudiVwCharacterRuleTest, ServicesOfEveryProtocolAreChecked) {
    AddService(L"Diagnose Service", L"DiagnServi_DiagnServi");
    m_container.AddProtocol(L"Other").AddDiagService(L"Other");
    EXPECT_FALSE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, ServicesOfOtherLayersAreNot) {
    AddService(L"Diagnose Service", L"DiagnServi_DiagnServi");
    m_container.AddFunctionalGroup(L"Group").AddDiagService(L"Other");
    m_container.AddEcuSharedData(L"Shared").AddDiagService(L"Other");
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, WithoutLongNameTheNameIsThePrefixAlone) {
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Protocol");
    protocol.AddDiagService(L"DiagnServi_");
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, JobsAndReferencesArePassedOver) {
    NMemory::VMemDiagService& foreign = m_container.AddEcuSharedData(L"Shared").AddDiagService(L"Foreign");
    NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Protocol");
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>()) << "a protocol without services passes";
    protocol.AddSingleEcuJob(L"Job");
    protocol.AddDiagCommRef(foreign);
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
}

/// A PROTOCOL that counts how often its long name is requested.
class VObservedProtocol final : public VMockElement<NODX201::VProtocol> {
public:
    explicit VObservedProtocol(NODX201::VText& longName) : m_longName(longName) {}

    bool HasLongName() const override { return true; }
    NODX201::VText& GetLongName() override {
        ++m_asked;
        return m_longName;
    }

    // clang-format off
    wchar_t const* GetId() const override { return L""; }
    void Accept(NODX201::VDiagLayerVisitor& visitor) override { visitor.VisitProtocol(*this); }
    bool HasOid() const override { return false; }
    wchar_t const* GetOid() const override { return L""; }
    bool HasAdminData() const override { return false; }
    NODX201::VAdminData& GetAdminData() override { NotExpected("GetAdminData"); }
    NODX201::VCompanyDataCollection& CompanyDataCollection() override { NotExpected("CompanyDataCollection"); }
    NODX201::VFunctClassCollection& FunctClassCollection() override { NotExpected("FunctClassCollection"); }
    bool HasDiagDataDictionarySpec() const override { return false; }
    NODX201::VDiagDataDictionarySpec& GetDiagDataDictionarySpec() override { NotExpected("GetDiagDataDictionarySpec"); }
    bool HasDiagCommProxyCollection() const override { return false; }
    NODX201::VDiagCommProxyCollection& DiagCommProxyCollection() override { NotExpected("DiagCommProxyCollection"); }
    NODX201::VRequestCollection& RequestCollection() override { NotExpected("RequestCollection"); }
    NODX201::VResponseCollection& ResponseCollection() override { NotExpected("ResponseCollection"); }
    bool HasParentRefCollection() const override { return false; }
    NODX201::VParentRefCollection& ParentRefCollection() override { NotExpected("ParentRefCollection"); }
    NODX201::VAccessLevelCollection& AccessLevelCollection() override { NotExpected("AccessLevelCollection"); }
    NODX201::VStringCollection& AutMethodCollection() override { NotExpected("AutMethodCollection"); }
    bool HasComparamSpecRef() const override { return false; }
    NODX201::VComparamSpecLink& GetComparamSpecRef() override { NotExpected("GetComparamSpecRef"); }
    // clang-format on

    int m_asked = 0;

private:
    NODX201::VText& m_longName;
};

TEST_F(AudiVwCharacterRuleTest, TheProtocolsLongNameIsAskedForNothing) {
    m_container.SetLongName(L"a name that says nothing");
    VObservedProtocol protocol(m_container.GetLongName());
    NDIAGKIT::VOemCheckContext context(Odx());
    context.m_protocols = {&protocol};
    EXPECT_TRUE(VAudiVwCharacterRule(&context).Matches());
    EXPECT_EQ(protocol.m_asked, 1);
}

/// While it exists, a locale is set that folds more than ASCII.
class VFoldingLocale {
public:
    VFoldingLocale() : m_before(std::setlocale(LC_ALL, nullptr)) {
        for (char const* const name : {"C.UTF-8", ".UTF8", "German_Germany.1252", ""}) {
            if (std::setlocale(LC_ALL, name) != nullptr && Folds()) {
                return;
            }
        }
    }
    ~VFoldingLocale() { std::setlocale(LC_ALL, m_before.c_str()); }
    VFoldingLocale(VFoldingLocale const&) = delete;
    VFoldingLocale& operator=(VFoldingLocale const&) = delete;

    static bool Folds() { return std::towlower(L'\xC4') == L'\xE4'; }

private:
    std::string m_before;
};

TEST_F(AudiVwCharacterRuleTest, TheHostsLocaleMakesNoDifference) {
    AddService(L"\xC4rger", L"DiagnServi_\xE4rger");
    EXPECT_FALSE(Matches<VAudiVwCharacterRule>());
    VFoldingLocale const locale;
    ASSERT_TRUE(VFoldingLocale::Folds()) << "no locale of this machine folds more than ASCII";
    EXPECT_FALSE(Matches<VAudiVwCharacterRule>());
}

TEST_F(AudiVwCharacterRuleTest, LongNamesOfAllSorts) {
    std::wstring const separators = LongText(L'-');
    AddService(separators.c_str(), L"DiagnServi_");
    AddService(LongText().c_str(), L"DiagnServi_Xxxxx");
    EXPECT_TRUE(Matches<VAudiVwCharacterRule>());
    AddService(L"x", LongText().c_str());
    EXPECT_FALSE(Matches<VAudiVwCharacterRule>());
}

// The heuristic

TEST_F(AudiVwHeuristicTest, ADatabaseOfAudiOrVolkswagenIsRecognised) {
    AddProtocol().AddDiagService(L"DiagnServi_ReadData").SetLongName(L"Read Data");
    EXPECT_EQ(Code(), 36);
    AddPerson(L"Audi AG", L"Contact Person OEM");
    EXPECT_TRUE(HeuristicMatches<VAudiVwHeuristic>());
    EXPECT_EQ(Code(), 8);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"8");
    EXPECT_EQ(Code(), 8);
    EXPECT_EQ(AskedBy<VAudiVwHeuristic>(), "instructions ");
    m_container.AddProtocol(L"Without");
    EXPECT_EQ(AskedBy<VAudiVwHeuristic>(), "");
    EXPECT_EQ(Code(), 36);
}

TEST_F(AudiVwHeuristicTest, TheProcessingInstructionAloneNeverDecides) {
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"8");
    m_container.AddBaseVariant(L"Variant");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
