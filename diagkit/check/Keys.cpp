// SPDX-License-Identifier: Apache-2.0
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/check/Numbers.h>
#include <diagkit/check/Topics.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/memory/Units.h>
#include <diagkit/reader/LinkTargets.h>

namespace NCheck {
namespace {

/// Keys of one list. Equal numbers are one key, however they are written; texts are equal only character by character.
class VKeys {
public:
    explicit VKeys(bool areTexts) : m_areTexts(areTexts) {}

    /// The one that had the key before; null for a new key, and for none.
    NODX201::VOdxElement* Take(wchar_t const* key, NODX201::VOdxElement& element) {
        if (*key == L'\0') {
            return nullptr;
        }
        auto const number = m_areTexts ? std::nullopt : WholeIn(key);
        std::wstring const same =
            number.has_value() ? (number->isNegative ? L"-" : L"") + std::to_wstring(number->amount) : key;
        return m_firsts.try_emplace(same, &element).second ? nullptr : m_firsts[same];
    }

private:
    bool m_areTexts;
    std::unordered_map<std::wstring, NODX201::VOdxElement*> m_firsts;
};

std::string Place(NODX201::VOdxElement const& element) {
    return Quoted(element) + " at line " + std::to_string(PositionOf(element).line);
}

void CheckTroubleCodes(NMemory::VMemDtcDop& dop, VFindings& findings) {
    VKeys keys(false);
    for (NODX201::IDtcProxy& proxy : dop.DtcProxyCollection()) {
        auto* const link = dynamic_cast<NODX201::VDtcLink*>(&proxy);
        auto* const at = dynamic_cast<NODX201::VOdxElement*>(&proxy);
        auto* const dtc = link == nullptr  ? dynamic_cast<NMemory::VMemDtc*>(&proxy)
                          : link->HasDtc() ? dynamic_cast<NMemory::VMemDtc*>(&link->GetDtc())
                                           : nullptr;
        NODX201::VOdxElement* const first = dtc != nullptr ? keys.Take(dtc->GetTroubleCode(), *dtc) : nullptr;
        if (first != nullptr && first != dtc) {
            findings.Add(PositionOf(*at), NCode::DuplicateTroubleCode,
                         Titled(*dtc) + " has the TROUBLE-CODE " + Quoted(dtc->GetTroubleCode()) + " of " +
                             Place(*first) + " in " + Titled(dop) + "; a code that is read means the first");
        }
    }
}

/// Whether the KEYs of a table, which are physical values, are texts.
bool HasTextKeys(NMemory::VMemTable& table) {
    NODX201::VOdxElement* const target = table.HasKeyDopRef() ? NReader::TargetById(table.GetKeyDopRef()) : nullptr;
    auto* const dop = dynamic_cast<NMemory::VMemDataObjectProp*>(target);
    if (dop == nullptr || !dop->HasPhysicalType()) {
        return false;
    }
    std::wstring_view const base = dop->GetPhysicalType().GetBaseDataType();
    return base == L"A_UNICODE2STRING" || base == L"A_ASCIISTRING" || base == L"A_UTF8STRING" || base == L"A_BYTEFIELD";
}

void CheckRows(NMemory::VMemTable& table, VFindings& findings) {
    VKeys keys(HasTextKeys(table));
    for (NODX201::IRowWrapper& wrapper : table.RowWrapperCollection()) {
        auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&wrapper);
        auto* const at = dynamic_cast<NODX201::VOdxElement*>(&wrapper);
        auto* const row = link == nullptr       ? dynamic_cast<NMemory::VMemTableRow*>(&wrapper)
                          : link->HasTableRow() ? dynamic_cast<NMemory::VMemTableRow*>(&link->GetTableRow())
                                                : nullptr;
        NODX201::VOdxElement* const first = row != nullptr ? keys.Take(row->GetKey(), *row) : nullptr;
        if (first != nullptr && first != row) {
            findings.Add(PositionOf(*at), NCode::DuplicateKey,
                         Titled(*row) + " has the KEY " + Quoted(row->GetKey()) + " of " + Place(*first) + " in " +
                             Titled(table) + "; where the key is read, it means the first");
        }
    }
}

/// Whether a unit says how it is converted, which takes a quantity that it measures.
bool IsConverted(NMemory::VMemUnit& unit) {
    auto const factor = NumberIn(unit.GetFactorSiToUnit());
    auto const offset = NumberIn(unit.GetOffsetSiToUnit());
    return (factor.has_value() && *factor != 1) || (offset.has_value() && *offset != 0);
}

void TellUnit(NODX201::VOdxElement const& place, NODX201::VOdxElement const& unit, std::string const& why,
              VFindings& findings) {
    findings.Add(PositionOf(place), NCode::UnitWithoutDimension,
                 Titled(unit) + why +
                     ", but no PHYSICAL-DIMENSION says what it measures, so no value can be converted");
}

/// One unit that says how it is converted may be all that there is; of several, values pass from one to another.
void CheckSpec(NMemory::VMemUnitSpec& spec, VFindings& findings) {
    std::vector<NMemory::VMemUnit*> converted;
    for (NODX201::VUnit& unit : spec.UnitCollection()) {
        auto& own = dynamic_cast<NMemory::VMemUnit&>(unit);
        if (IsConverted(own)) {
            converted.push_back(&own);
        }
    }
    for (NMemory::VMemUnit* const unit : converted) {
        if (converted.size() > 1 && !unit->HasPhysicalDimensionRef()) {
            TellUnit(*unit, *unit, " says how it is converted", findings);
        }
    }
}

/// The units of a group between which values are converted.
void CheckGroup(NMemory::VMemUnitGroup& group, VFindings& findings) {
    NODX201::VUnitLinkCollection& links = group.UnitLinkCollection();
    if (std::wstring_view(group.GetCategory()) != L"EQUIV-UNITS" || links.Count() < 2) {
        return;
    }
    for (NODX201::VUnitLink& link : links) {
        auto* const unit = link.HasUnit() ? dynamic_cast<NMemory::VMemUnit*>(&link.GetUnit()) : nullptr;
        if (unit != nullptr && !unit->HasPhysicalDimensionRef()) {
            TellUnit(link, *unit, " is one of the equivalent units of " + Titled(group), findings);
        }
    }
}

} // namespace

void CheckKeys(VChecked const& checked, VFindings& findings) {
    for (NODX201::VOdxElement* const element : checked.elements) {
        if (auto* const dop = dynamic_cast<NMemory::VMemDtcDop*>(element)) {
            CheckTroubleCodes(*dop, findings);
        } else if (auto* const table = dynamic_cast<NMemory::VMemTable*>(element)) {
            CheckRows(*table, findings);
        }
    }
}

void CheckUnits(VChecked const& checked, VFindings& findings) {
    for (NODX201::VOdxElement* const element : checked.elements) {
        if (auto* const spec = dynamic_cast<NMemory::VMemUnitSpec*>(element)) {
            CheckSpec(*spec, findings);
        } else if (auto* const group = dynamic_cast<NMemory::VMemUnitGroup*>(element)) {
            CheckGroup(*group, findings);
        }
    }
}

} // namespace NCheck
