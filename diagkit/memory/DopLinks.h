// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <diagkit/memory/Children.h>
#include <diagkit/model/Dops.h>

/// References to DOPs.

namespace NMemory {

/// A group of layers of the memory model in which links are severed. The layers know it by its number, so it need not
/// outlive them or the links, and whatever comes to stand where a layer was destroyed is not meant.
class VSeveredLayers {
public:
    VSeveredLayers(); ///< empty
    void Add(NODX201::VDiagLayer& layer);
    std::uint64_t GetNumber() const { return m_number; } ///< no other group of the process ever has it

private:
    std::uint64_t m_number;
};

/// DOP-REF, DOP-BASE-REF and their SNREFs: any kind of DOP.
class VMemDopBaseLink final : public VMemLink<NODX201::VDopBaseLink, Tag::DopBaseRef, NODX201::VDopBase> {
public:
    using VMemLink::VMemLink;
    bool HasDopBase(NODX201::VDiagLayer& layer) override;
    NODX201::VDopBase& GetDopBase() override { return Found(); }

    /// Names another target from now on, in every layer.
    void SetReference(VReference const& reference) {
        VMemLink::SetReference(reference);
        m_severedIn.reset();
    }

    /// From now on the link, if by short name, resolves to nothing in these layers and those that are added to them,
    /// until it is given another reference. See `Sever`.
    void SeverIn(VSeveredLayers const& layers);
    bool IsSeveredIn(NODX201::VDiagLayer& layer) const;

private:
    std::unique_ptr<std::vector<std::uint64_t>> m_severedIn; // groups, in ascending order; null nearly always
};

/// DOP-REF, DATA-OBJECT-PROP-REF, KEY-DOP-REF and their SNREFs: a DATA-OBJECT-PROP.
class VMemDataObjectPropLink final
    : public VMemLink<NODX201::VDataObjectPropLink, Tag::DataObjectPropRef, NODX201::VDataObjectProp> {
public:
    using VMemLink::VMemLink;
    bool HasDataObjectProp(NODX201::VDiagLayer& layer) override;
    NODX201::VDataObjectProp& GetDataObjectProp() override { return Found(); }
};

/// STRUCTURE-REF
class VMemStructureLink final : public VMemLink<NODX201::VStructureLink, Tag::StructureRef, NODX201::VStructure> {
public:
    using VMemLink::VMemLink;
    bool HasStructure() const override { return FindById(); }
    NODX201::VStructure& GetStructure() override { return Found(); }
};

/// BASIC-STRUCTURE-REF
class VMemBasicStructureLink final
    : public VMemLink<NODX201::VBasicStructureLink, Tag::BasicStructureRef, NODX201::VBasicStructure> {
public:
    using VMemLink::VMemLink;
    bool HasBasicStructure() const override { return FindById(); }
    NODX201::VBasicStructure& GetBasicStructure() override { return Found(); }
};

/// ENV-DATA-DESC-REF
class VMemEnvDataDescLink final
    : public VMemLink<NODX201::VEnvDataDescLink, Tag::EnvDataDescRef, NODX201::VEnvDataDesc> {
public:
    using VMemLink::VMemLink;
    bool HasEnvDataDesc() const override { return FindById(); }
    NODX201::VEnvDataDesc& GetEnvDataDesc() override { return Found(); }
};

/// ENV-DATA-REF
class VMemEnvDataLink final : public VMemLink<NODX201::VEnvDataLink, Tag::EnvDataRef, NODX201::VEnvData> {
public:
    using VMemLink::VMemLink;
    bool HasEnvData() const override { return FindById(); }
    NODX201::VEnvData& GetEnvData() override { return Found(); }
};

/// DTC-REF
class VMemDtcLink final : public VMemLink<NODX201::VDtcLink, Tag::DtcRef, NODX201::VDtc> {
public:
    using VMemLink::VMemLink;
    bool HasDtc() const override { return FindById(); }
    NODX201::VDtc& GetDtc() override { return Found(); }
};

/// DATA-OBJECT-PROP-REF of a DYNAMIC-ENDMARKER-FIELD
class VMemDynEndDopRef final : public VMemLink<NODX201::VDynEndDopRef, Tag::DataObjectPropRef, NODX201::VDopBase> {
public:
    using VMemLink::VMemLink;
    bool HasDopBase() const override { return FindById(); }
    NODX201::VDopBase& GetDopBase() override { return Found(); }

    wchar_t const* GetTerminationValue() const { return m_terminationValue; } ///< TERMINATION-VALUE
    void SetTerminationValue(wchar_t const* text) { m_terminationValue = Store(text); }

private:
    wchar_t const* m_terminationValue = L"";
};

} // namespace NMemory
