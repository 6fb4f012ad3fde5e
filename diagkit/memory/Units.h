// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Units.h>

/// Units, their groups and dimensions.

namespace NMemory {

/// PHYSICAL-DIMENSION-REF
class VMemPhysicalDimensionLink final
    : public VMemLink<NODX201::VPhysicalDimensionLink, Tag::PhysicalDimensionRef, NODX201::VPhysicalDimension> {
public:
    using VMemLink::VMemLink;
    bool HasPhysicalDimension() const override { return FindById(); }
    NODX201::VPhysicalDimension& GetPhysicalDimension() override { return Found(); }
};

/// UNIT-REF
class VMemUnitLink final : public VMemLink<NODX201::VUnitLink, Tag::UnitRef, NODX201::VUnit> {
public:
    using VMemLink::VMemLink;
    bool HasUnit() const override { return FindById(); }
    NODX201::VUnit& GetUnit() override { return Found(); }
};

/// PHYSICAL-DIMENSION
class VMemPhysicalDimension final : public VMemIdent<NODX201::VPhysicalDimension, Tag::PhysicalDimension> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetLengthExp() const { return m_lengthExp; } ///< LENGTH-EXP
    void SetLengthExp(wchar_t const* text) { m_lengthExp = Store(text); }

    wchar_t const* GetMassExp() const { return m_massExp; } ///< MASS-EXP
    void SetMassExp(wchar_t const* text) { m_massExp = Store(text); }

    wchar_t const* GetTimeExp() const { return m_timeExp; } ///< TIME-EXP
    void SetTimeExp(wchar_t const* text) { m_timeExp = Store(text); }

    wchar_t const* GetCurrentExp() const { return m_currentExp; } ///< CURRENT-EXP
    void SetCurrentExp(wchar_t const* text) { m_currentExp = Store(text); }

    wchar_t const* GetTemperatureExp() const { return m_temperatureExp; } ///< TEMPERATURE-EXP
    void SetTemperatureExp(wchar_t const* text) { m_temperatureExp = Store(text); }

    wchar_t const* GetMolarAmountExp() const { return m_molarAmountExp; } ///< MOLAR-AMOUNT-EXP
    void SetMolarAmountExp(wchar_t const* text) { m_molarAmountExp = Store(text); }

    wchar_t const* GetLuminousIntensityExp() const { return m_luminousIntensityExp; } ///< LUMINOUS-INTENSITY-EXP
    void SetLuminousIntensityExp(wchar_t const* text) { m_luminousIntensityExp = Store(text); }

private:
    wchar_t const* m_lengthExp = L"";
    wchar_t const* m_massExp = L"";
    wchar_t const* m_timeExp = L"";
    wchar_t const* m_currentExp = L"";
    wchar_t const* m_temperatureExp = L"";
    wchar_t const* m_molarAmountExp = L"";
    wchar_t const* m_luminousIntensityExp = L"";
};

/// UNIT
class VMemUnit final : public VMemIdent<NODX201::VUnit, Tag::Unit> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetDisplayName() const { return m_displayName; } ///< DISPLAY-NAME
    void SetDisplayName(wchar_t const* text) { m_displayName = Store(text); }

    wchar_t const* GetFactorSiToUnit() const { return m_factorSiToUnit; } ///< FACTOR-SI-TO-UNIT
    void SetFactorSiToUnit(wchar_t const* text) { m_factorSiToUnit = Store(text); }

    wchar_t const* GetOffsetSiToUnit() const { return m_offsetSiToUnit; } ///< OFFSET-SI-TO-UNIT
    void SetOffsetSiToUnit(wchar_t const* text) { m_offsetSiToUnit = Store(text); }

    bool HasPhysicalDimensionRef() const override { return m_physicalDimensionRef != nullptr; }
    VMemPhysicalDimensionLink& GetPhysicalDimensionRef() override { return *m_physicalDimensionRef; }
    VMemPhysicalDimensionLink& SetPhysicalDimensionRef(VReference const& reference) {
        return MakeLink(m_physicalDimensionRef, Inside(), reference);
    }
    void RemovePhysicalDimensionRef() { m_physicalDimensionRef.reset(); }

private:
    wchar_t const* m_displayName = L"";
    wchar_t const* m_factorSiToUnit = L"";
    wchar_t const* m_offsetSiToUnit = L"";
    std::unique_ptr<VMemPhysicalDimensionLink> m_physicalDimensionRef;
};

/// UNIT-GROUP
class VMemUnitGroup final : public VMemNamed<NODX201::VUnitGroup, Tag::UnitGroup> {
public:
    using VMemNamed::VMemNamed;

    wchar_t const* GetOid() const { return m_oid; } ///< @OID
    void SetOid(wchar_t const* text) { m_oid = Store(text); }

    wchar_t const* GetCategory() const { return m_category; } ///< CATEGORY
    void SetCategory(wchar_t const* text) { m_category = Store(text); }

    NODX201::VUnitLinkCollection& UnitLinkCollection() override { return m_unitLink.Get(); } ///< UNIT-REFS
    VMemCollection<NODX201::VUnitLinkCollection>& MakeUnitLinkCollection() { return m_unitLink.Make(); }
    VMemUnitLink& AddUnitRef(VReference const& reference) {
        return AddLink<VMemUnitLink>(m_unitLink, Inside(), reference);
    }

private:
    wchar_t const* m_oid = L"";
    wchar_t const* m_category = L"";
    VMemMany<NODX201::VUnitLinkCollection> m_unitLink;
};

/// UNIT-SPEC
class VMemUnitSpec final : public VWithAdminData<VMemElement<NODX201::VUnitSpec, Tag::UnitSpec>> {
public:
    using VWithAdminData::VWithAdminData;

    NODX201::VUnitGroupCollection& UnitGroupCollection() override { return m_unitGroup.Get(); } ///< UNIT-GROUPS
    VMemCollection<NODX201::VUnitGroupCollection>& MakeUnitGroupCollection() { return m_unitGroup.Make(); }
    VMemUnitGroup& AddUnitGroup(wchar_t const* shortName) {
        return AddNamed<VMemUnitGroup>(m_unitGroup, Inside(), shortName);
    }

    NODX201::VUnitCollection& UnitCollection() override { return m_unit.Get(); } ///< UNITS
    VMemCollection<NODX201::VUnitCollection>& MakeUnitCollection() { return m_unit.Make(); }
    VMemUnit& AddUnit(wchar_t const* shortName) { return AddNamed<VMemUnit>(m_unit, Inside(), shortName); }

    NODX201::VPhysicalDimensionCollection& PhysicalDimensionCollection() override {
        return m_physicalDimension.Get();
    } ///< PHYSICAL-DIMENSIONS
    VMemCollection<NODX201::VPhysicalDimensionCollection>& MakePhysicalDimensionCollection() {
        return m_physicalDimension.Make();
    }
    VMemPhysicalDimension& AddPhysicalDimension(wchar_t const* shortName) {
        return AddNamed<VMemPhysicalDimension>(m_physicalDimension, Inside(), shortName);
    }

private:
    VMemMany<NODX201::VUnitGroupCollection> m_unitGroup;
    VMemMany<NODX201::VUnitCollection> m_unit;
    VMemMany<NODX201::VPhysicalDimensionCollection> m_physicalDimension;
};

} // namespace NMemory
