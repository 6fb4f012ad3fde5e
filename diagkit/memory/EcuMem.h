// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/FlashData.h>

/// ECU-MEM: what stands in a memory, logically and physically.

namespace NMemory {

/// PROJECT-IDENT
class VMemProjectIdent final : public VMemElement<NODX201::VProjectIdent, Tag::ProjectIdent> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetType() const { return m_type; } ///< @TYPE
    void SetType(wchar_t const* text) { m_type = Store(text); }

    wchar_t const* GetName() const { return m_name; } ///< NAME
    void SetName(wchar_t const* text) { m_name = Store(text); }

    wchar_t const* GetValue() const { return m_value; } ///< VALUE
    void SetValue(wchar_t const* text) { m_value = Store(text); }

private:
    wchar_t const* m_type = L"";
    wchar_t const* m_name = L"";
    wchar_t const* m_value = L"";
};

class VProjectIdentCollection : public NODX201::VElementCollection<VMemProjectIdent> {};

/// PROJECT-INFO
class VMemProjectInfo final : public VMemElement<NODX201::VOdxElement, Tag::ProjectInfo> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetEcuFamilyDesc() const { return m_ecuFamilyDesc; } ///< ECU-FAMILY-DESC
    void SetEcuFamilyDesc(wchar_t const* text) { m_ecuFamilyDesc = Store(text); }

    wchar_t const* GetModificationLetter() const { return m_modificationLetter; } ///< MODIFICATION-LETTER
    void SetModificationLetter(wchar_t const* text) { m_modificationLetter = Store(text); }

    bool HasCompanyDataRef() const { return m_companyDataRef != nullptr; } ///< COMPANY-DATA-REF
    VMemCompanyDataLink& GetCompanyDataRef() { return *m_companyDataRef; }
    VMemCompanyDataLink& SetCompanyDataRef(VReference const& reference) {
        return MakeLink(m_companyDataRef, Inside(), reference);
    }
    void RemoveCompanyDataRef() { m_companyDataRef.reset(); }

    VProjectIdentCollection& ProjectIdentCollection() { return m_projectIdent.Get(); } ///< PROJECT-IDENTS
    VMemCollection<VProjectIdentCollection>& MakeProjectIdentCollection() { return m_projectIdent.Make(); }
    VMemProjectIdent& AddProjectIdent() { return AddPlain<VMemProjectIdent>(m_projectIdent, Inside()); }

private:
    wchar_t const* m_ecuFamilyDesc = L"";
    wchar_t const* m_modificationLetter = L"";
    std::unique_ptr<VMemCompanyDataLink> m_companyDataRef;
    VMemMany<VProjectIdentCollection> m_projectIdent;
};

class VProjectInfoCollection : public NODX201::VElementCollection<VMemProjectInfo> {};

/// PHYS-SEGMENT
class VMemPhysSegment final : public VMemIdent<NODX201::VReferencable, Tag::PhysSegment> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetFillbyte() const { return m_fillbyte; } ///< FILLBYTE
    void SetFillbyte(wchar_t const* text) { m_fillbyte = Store(text); }

    wchar_t const* GetBlockSize() const { return m_blockSize; } ///< BLOCK-SIZE
    void SetBlockSize(wchar_t const* text) { m_blockSize = Store(text); }

    wchar_t const* GetStartAddress() const { return m_startAddress; } ///< START-ADDRESS
    void SetStartAddress(wchar_t const* text) { m_startAddress = Store(text); }

    wchar_t const* GetEndAddress() const { return m_endAddress; } ///< END-ADDRESS, of an ADDRDEF-PHYS-SEGMENT
    void SetEndAddress(wchar_t const* text) { m_endAddress = Store(text); }

    wchar_t const* GetSize() const { return m_size; } ///< SIZE, of a SIZEDEF-PHYS-SEGMENT
    void SetSize(wchar_t const* text) { m_size = Store(text); }

private:
    wchar_t const* m_fillbyte = L"";
    wchar_t const* m_blockSize = L"";
    wchar_t const* m_startAddress = L"";
    wchar_t const* m_endAddress = L"";
    wchar_t const* m_size = L"";
};

class VPhysSegmentCollection : public NODX201::VElementCollection<VMemPhysSegment> {};

/// PHYS-MEM
class VMemPhysMem final : public VMemIdent<NODX201::VReferencable, Tag::PhysMem> {
public:
    using VMemIdent::VMemIdent;

    VPhysSegmentCollection& PhysSegmentCollection() { return m_physSegment.Get(); } ///< PHYS-SEGMENTS
    VMemCollection<VPhysSegmentCollection>& MakePhysSegmentCollection() { return m_physSegment.Make(); }
    VMemPhysSegment& AddPhysSegment(wchar_t const* shortName) {
        return AddNamed<VMemPhysSegment>(m_physSegment, Inside(), shortName);
    }

private:
    VMemMany<VPhysSegmentCollection> m_physSegment;
};

/// ECU-MEM
class VMemEcuMem final : public VWithAdminData<VMemIdent<NODX201::VEcuMem, Tag::EcuMem>> {
public:
    explicit VMemEcuMem(VPlace const& place) : VWithAdminData(place), m_mem(Inside()) {}

    VMemMem& GetMem() override { return m_mem; }

    VProjectInfoCollection& ProjectInfoCollection() { return m_projectInfo.Get(); } ///< PROJECT-INFOS
    VMemCollection<VProjectInfoCollection>& MakeProjectInfoCollection() { return m_projectInfo.Make(); }
    VMemProjectInfo& AddProjectInfo() { return AddPlain<VMemProjectInfo>(m_projectInfo, Inside()); }

    bool HasPhysMem() const { return m_physMem != nullptr; }
    VMemPhysMem& GetPhysMem() { return *m_physMem; }
    VMemPhysMem& MakePhysMem(wchar_t const* shortName) {
        return MakeNamedChild(m_physMem, Inside(), shortName);
    } ///< PHYS-MEM
    void RemovePhysMem() { m_physMem.reset(); }

private:
    VMemMem m_mem;
    VMemMany<VProjectInfoCollection> m_projectInfo;
    std::unique_ptr<VMemPhysMem> m_physMem;
};

} // namespace NMemory
