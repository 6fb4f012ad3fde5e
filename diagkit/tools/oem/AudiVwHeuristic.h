// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <bitset>
#include <set>
#include <string>
#include <string_view>

#include <diagkit/tools/oem/Heuristic.h>

/// Audi and Volkswagen.

namespace NDIAGKIT {

class VAudiVwHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VAudiVwHeuristic"; }
};

/// There are PROTOCOLs, each has DIAG-COMMs of its own, and the name of one begins as is usual for Volkswagen.
class VAudiVwProtocolRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VAudiVwProtocolRule"; }
};

/// A TEAM-MEMBER of Audi or Volkswagen is the contact person, and every ECU-SHARED-DATA has COMPANY-DATAs, each with
/// TEAM-MEMBERs.
class VAudiVwTeamMembersRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VAudiVwTeamMembersRule"; }
};

/// There are PROTOCOLs, and the short name of every DIAG-SERVICE of theirs is "DiagnServi_" and its long name
/// abbreviated.
class VAudiVwCharacterRule final : public VHeuristicRule {
public:
    explicit VAudiVwCharacterRule(VOemCheckContext* context);
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VAudiVwCharacterRule"; }

    /// The first five code units of UTF-16 of every word, the first of them in upper case, without separators; special
    /// characters separate words as a space does. "Read (ECU) identification-data" becomes "ReadECUIdentData". A
    /// character that is cut leaves its first unit, so that no short name matches.
    std::wstring Abbreviate(std::wstring_view text) const;

    /// Each a text of one character.
    std::set<std::wstring> const& GetSpecialCharacters() const { return m_specialCharacters; }

private:
    template <class Take>
    bool Abbreviate(std::wstring_view text, Take take) const;
    bool IsSeparator(wchar_t character) const;
    bool IsNamedByConvention(NODX201::VDiagService& service) const;
    VOemReason OtherName(NODX201::VDiagService& service) const;
    void AddCodes(unsigned char first, unsigned char last);
    void AddCharacters(wchar_t first, wchar_t last);

    std::set<std::wstring> m_specialCharacters;
    std::bitset<0x2200> m_isSeparator; // the same and the space, for looking up; none is above
};

} // namespace NDIAGKIT
