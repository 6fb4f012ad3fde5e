// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/AudiVwHeuristic.h>

#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/OwnDiagComms.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>
#include <diagkit/util/TextConv.h>
#include <diagkit/util/Utf16.h>

namespace NDIAGKIT {
namespace {

bool IsNamedAsByVolkswagen(NODX201::VProtocol const& protocol) {
    std::wstring_view const name = protocol.GetShortName();
    return StartsWithIgnoringCase(name, L"PR_OBDOnCAN") || StartsWithIgnoringCase(name, L"PR_UDSOnCAN");
}

constexpr std::wstring_view kCompanies[] = {L"audi", L"audi ag", L"volkswagen ag", L"volkswagen", L"vag"};

/// The long name of the company that a person works for; "" when there is none.
std::wstring_view CompanyOf(NODX201::VTeamMember const& member) {
    auto* const company = dynamic_cast<NODX201::VCompanyData*>(member.GetOwner());
    return company != nullptr ? LongNameOf(*company) : L"";
}

bool IsOfVolkswagen(NODX201::VTeamMember const& member) {
    return AnyOf(kCompanies,
                 [name = CompanyOf(member)](std::wstring_view wanted) { return EqualsIgnoringCase(name, wanted); });
}

bool IsContactPerson(NODX201::VTeamMember& member) {
    return AnyOf(member.RoleCollection(),
                 [](std::wstring const& role) { return EqualsIgnoringCase(role, L"contact person oem"); });
}

bool IsStaffed(VOemCheckContext const& context, NODX201::VEcuSharedData& layer) {
    NODX201::VCompanyDataCollection& companies = layer.CompanyDataCollection();
    if (companies.Count() == 0) {
        return No(context, [&layer] { return VOemReason{L"COMPANY-DATAs in every ECU-SHARED-DATA", L"none", &layer}; });
    }
    return AllOf(companies, [&context](NODX201::VCompanyData& company) {
        if (company.TeamMemberCollection().Count() != 0) {
            return true;
        }
        return No(context, [&company] {
            return VOemReason{L"TEAM-MEMBERs in every COMPANY-DATA of an ECU-SHARED-DATA", L"none", &company};
        });
    });
}

constexpr std::wstring_view kServicePrefix = L"DiagnServi_";
constexpr int kUnitsOfWord = 5;

} // namespace

void VAudiVwHeuristic::CreateRules() {
    Add<VAudiVwProtocolRule>();
    Add<VAudiVwTeamMembersRule>();
    Add<VAudiVwCharacterRule>();
    Add<VProcessingInstructionRule>(L"8");
}

bool VAudiVwProtocolRule::Matches() {
    bool isFound = false;
    auto const& protocols = mpContext->m_protocols;
    for (NODX201::VProtocol* const protocol : protocols) {
        isFound = isFound || IsNamedAsByVolkswagen(*protocol);
        if (!HasOwnDiagComms(*protocol)) {
            return No(*mpContext, [=] { return VOemReason{L"DIAG-COMMs in every PROTOCOL", L"none", protocol}; });
        }
    }
    if (isFound) {
        return true;
    }
    return No(*mpContext, [&protocols] {
        return VOemReason{L"a PROTOCOL whose short name begins with 'PR_OBDOnCAN' or 'PR_UDSOnCAN'",
                          Named(protocols, L"PROTOCOL")};
    });
}

bool VAudiVwTeamMembersRule::Matches() {
    VOemCheckContext const& context = *mpContext;
    bool isFound = false;
    NODX201::VTeamMember* other = nullptr; // the first contact person of another company
    for (NODX201::VTeamMember* const member : context.m_teamMembers) {
        if (IsContactPerson(*member)) {
            bool const isOfVolkswagen = IsOfVolkswagen(*member);
            isFound = isFound || isOfVolkswagen;
            other = isOfVolkswagen || other != nullptr ? other : member;
        }
    }
    if (!isFound) {
        return No(context, [&] {
            return VOemReason{L"a TEAM-MEMBER of Audi or Volkswagen with the role 'contact person oem'",
                              other != nullptr ? L"one of " + Stated(L"company", CompanyOf(*other))
                                               : LookedAt(L"none", context.m_teamMembers.size(), L"TEAM-MEMBER"),
                              other};
        });
    }
    return AllOf(context.m_ecuSharedDatas, [&context](auto* layer) { return IsStaffed(context, *layer); });
}

VAudiVwCharacterRule::VAudiVwCharacterRule(VOemCheckContext* context) : VHeuristicRule(context) {
    AddCodes(33, 47);
    AddCodes(58, 64);
    AddCodes(91, 96);
    AddCodes(123, 127);
    for (wchar_t const character : {L'\x20AC', L'\x201A', L'\x0192', L'\x201E', L'\x2026', L'\x2020', //
                                    L'\x2021', L'\x02C6', L'\x2030', L'\x0160', L'\x2039', L'\x0152', //
                                    L'\x2018', L'\x2019', L'\x201C', L'\x201D', L'\x2022', L'\x2013', //
                                    L'\x2014', L'\x02DC', L'\x2122', L'\x203A'}) {
        AddCharacters(character, character);
    }
    AddCharacters(L'\x00A3', L'\x00BF');
    // Deliberate: letters too, and neither the no-break space nor the cent sign
    // (AudiVwCharacterRuleTest.TheSpecialCharactersAreTheseAndNoOthers).
    for (wchar_t const character : {L'\x00D7', L'\x00D8', L'\x00DE', L'\x00F7', L'\x00F8', L'\x00FE'}) {
        AddCharacters(character, character);
    }
    m_isSeparator.set(L' ');
    for (std::wstring const& text : m_specialCharacters) {
        m_isSeparator.set(static_cast<std::size_t>(text.front()));
    }
}

/// Codes of Windows-1252.
void VAudiVwCharacterRule::AddCodes(unsigned char first, unsigned char last) {
    for (unsigned char code = first; code <= last; ++code) {
        char const text[] = {static_cast<char>(code), '\0'};
        if (wchar_t const* const wide = NPavonaUtil::AnsiToWide(text); wide != nullptr) {
            m_specialCharacters.insert(wide);
        }
    }
}

void VAudiVwCharacterRule::AddCharacters(wchar_t first, wchar_t last) {
    for (wchar_t character = first; character <= last; ++character) {
        m_specialCharacters.insert(std::wstring(1, character));
    }
}

bool VAudiVwCharacterRule::IsSeparator(wchar_t character) const {
    auto const code = static_cast<std::size_t>(character);
    return code < m_isSeparator.size() && m_isSeparator[code];
}

/// Passes the abbreviation to `take` character by character, as long as it accepts them.
template <class Take>
bool VAudiVwCharacterRule::Abbreviate(std::wstring_view text, Take take) const {
    int units = 0;
    for (wchar_t const character : text) {
        if (IsSeparator(character)) {
            units = 0;
            continue;
        }
        if (units == kUnitsOfWord) {
            continue;
        }
        int const length = NPavonaUtil::Utf16Length(character);
        bool const isCut = units + length > kUnitsOfWord;
        wchar_t const part = isCut ? NPavonaUtil::FirstUtf16Unit(character) : character;
        if (!take(units == 0 ? ToUpper(part) : part)) {
            return false;
        }
        units = isCut ? kUnitsOfWord : units + length;
    }
    return true;
}

std::wstring VAudiVwCharacterRule::Abbreviate(std::wstring_view text) const {
    std::wstring abbreviation;
    Abbreviate(text, [&abbreviation](wchar_t character) {
        abbreviation += character;
        return true;
    });
    return abbreviation;
}

bool VAudiVwCharacterRule::IsNamedByConvention(NODX201::VDiagService& service) const {
    std::wstring_view name = service.GetShortName();
    if (!StartsWithIgnoringCase(name, kServicePrefix)) {
        return false;
    }
    name.remove_prefix(kServicePrefix.size());
    bool const isContinued = Abbreviate(LongNameOf(service), [&name](wchar_t character) {
        bool const isNext = !name.empty() && ToLower(name.front()) == ToLower(character);
        name.remove_prefix(isNext ? 1 : 0);
        return isNext;
    });
    return isContinued && name.empty();
}

VOemReason VAudiVwCharacterRule::OtherName(NODX201::VDiagService& service) const {
    std::wstring const expected = std::wstring(kServicePrefix) + Abbreviate(LongNameOf(service));
    return {Stated(L"short name", expected),
            Stated(L"short name", service.GetShortName()) + L" and " + Stated(L"long name", LongNameOf(service)),
            &service};
}

bool VAudiVwCharacterRule::Matches() {
    if (!IsAnyThere(*mpContext, mpContext->m_protocols, L"a PROTOCOL")) {
        return false;
    }
    bool isAnySeen = false;
    bool const isConventional = AllOf(mpContext->m_protocols, [&](NODX201::VProtocol* protocol) {
        // Deliberate: asked for and then not used (AudiVwCharacterRuleTest.TheProtocolsLongNameIsAskedForNothing).
        static_cast<void>(Abbreviate(LongNameOf(*protocol)));
        return AllOwnServices(*protocol, [&](NODX201::VDiagService& service) {
            isAnySeen = true;
            return IsNamedByConvention(service) || No(*mpContext, [&] { return OtherName(service); });
        });
    });
    return isConventional && Yes(*mpContext, isAnySeen);
}

} // namespace NDIAGKIT
