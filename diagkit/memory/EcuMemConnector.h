// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/EcuMem.h>
#include <diagkit/memory/MultipleEcuJobs.h>

/// ECU-MEM-CONNECTOR: how a layer gets what an ECU-MEM holds.

namespace NMemory {

/// FLASH-CLASS
class VMemFlashClass final : public VMemIdent<NODX201::VReferencable, Tag::FlashClass> {
public:
    using VMemIdent::VMemIdent;
};

class VFlashClassCollection : public NODX201::VElementCollection<VMemFlashClass> {};

/// FLASH-CLASS-REF
class VMemFlashClassLink final : public VMemLink<NODX201::VLink, Tag::FlashClassRef, VMemFlashClass> {
public:
    using VMemLink::VMemLink;
    bool HasFlashClass() const { return FindById(); }
    VMemFlashClass& GetFlashClass() { return Found(); }
};

class VFlashClassLinkCollection : public NODX201::VElementCollection<VMemFlashClassLink> {};

/// SESSION-SNREF
class VMemSessionLink final : public VMemLink<NODX201::VLink, Tag::SessionSnref, NODX201::VSession> {
public:
    using VMemLink::VMemLink;
    bool HasSession(NODX201::VFlash& flash);
    NODX201::VSession& GetSession() { return Found(); }
};

/// IDENT-IF-SNREF
class VMemIdentIfLink final : public VMemLink<NODX201::VLink, Tag::IdentIfSnref, NODX201::IIdentIf> {
public:
    using VMemLink::VMemLink;
    bool HasIdentIf(NODX201::VFlash& flash);
    NODX201::IIdentIf& GetIdentIf() { return Found(); }
};

/// SESSION-DESC
class VMemSessionDesc final : public VWithSdgs<VMemNamed<NODX201::VSessionDesc, Tag::SessionDesc>> {
public:
    using VWithSdgs::VWithSdgs;

    wchar_t const* GetOid() const { return m_oid; } ///< @OID
    void SetOid(wchar_t const* text) { m_oid = Store(text); }

    wchar_t const* GetDirection() const { return m_direction; } ///< @DIRECTION
    void SetDirection(wchar_t const* text) { m_direction = Store(text); }

    wchar_t const* GetPartnumber() const { return m_partnumber; } ///< PARTNUMBER
    void SetPartnumber(wchar_t const* text) { m_partnumber = Store(text); }

    wchar_t const* GetPriority() const { return m_priority; } ///< PRIORITY
    void SetPriority(wchar_t const* text) { m_priority = Store(text); }

    bool HasSessionSnref() const { return m_sessionSnref != nullptr; } ///< SESSION-SNREF
    VMemSessionLink& GetSessionSnref() { return *m_sessionSnref; }
    VMemSessionLink& SetSessionSnref(VReference const& reference) {
        return MakeLink(m_sessionSnref, Inside(), reference);
    }
    void RemoveSessionSnref() { m_sessionSnref.reset(); }

    bool HasDiagCommSnref() const { return m_diagCommSnref != nullptr; } ///< DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommSnref() { return *m_diagCommSnref; }
    VMemDiagCommLink& SetDiagCommSnref(VReference const& reference) {
        return MakeLink(m_diagCommSnref, Inside(), reference);
    }
    void RemoveDiagCommSnref() { m_diagCommSnref.reset(); }

    VFlashClassLinkCollection& FlashClassLinkCollection() { return m_flashClassLink.Get(); } ///< FLASH-CLASS-REFS
    VMemCollection<VFlashClassLinkCollection>& MakeFlashClassLinkCollection() { return m_flashClassLink.Make(); }
    VMemFlashClassLink& AddFlashClassRef(VReference const& reference) {
        return AddLink<VMemFlashClassLink>(m_flashClassLink, Inside(), reference);
    }

private:
    wchar_t const* m_oid = L"";
    wchar_t const* m_direction = L"";
    wchar_t const* m_partnumber = L"";
    wchar_t const* m_priority = L"";
    std::unique_ptr<VMemSessionLink> m_sessionSnref;
    std::unique_ptr<VMemDiagCommLink> m_diagCommSnref;
    VMemMany<VFlashClassLinkCollection> m_flashClassLink;
};

class VSessionDescCollection : public NODX201::VElementCollection<VMemSessionDesc> {};

/// IDENT-DESC
class VMemIdentDesc final : public VMemElement<NODX201::VOdxElement, Tag::IdentDesc> {
public:
    using VMemElement::VMemElement;

    bool HasDiagCommSnref() const { return m_diagCommSnref != nullptr; } ///< DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommSnref() { return *m_diagCommSnref; }
    VMemDiagCommLink& SetDiagCommSnref(VReference const& reference) {
        return MakeLink(m_diagCommSnref, Inside(), reference);
    }
    void RemoveDiagCommSnref() { m_diagCommSnref.reset(); }

    bool HasIdentIfSnref() const { return m_identIfSnref != nullptr; } ///< IDENT-IF-SNREF
    VMemIdentIfLink& GetIdentIfSnref() { return *m_identIfSnref; }
    VMemIdentIfLink& SetIdentIfSnref(VReference const& reference) {
        return MakeLink(m_identIfSnref, Inside(), reference);
    }
    void RemoveIdentIfSnref() { m_identIfSnref.reset(); }

    bool HasOutParamIfSnref() const { return m_outParamIfSnref != nullptr; } ///< OUT-PARAM-IF-SNREF
    VMemOutParamIfLink& GetOutParamIfSnref() { return *m_outParamIfSnref; }
    VMemOutParamIfLink& SetOutParamIfSnref(VReference const& reference) {
        return MakeLink(m_outParamIfSnref, Inside(), reference);
    }
    void RemoveOutParamIfSnref() { m_outParamIfSnref.reset(); }

private:
    std::unique_ptr<VMemDiagCommLink> m_diagCommSnref;
    std::unique_ptr<VMemIdentIfLink> m_identIfSnref;
    std::unique_ptr<VMemOutParamIfLink> m_outParamIfSnref;
};

class VIdentDescCollection : public NODX201::VElementCollection<VMemIdentDesc> {};

/// ECU-MEM-REF
class VMemEcuMemLink final : public VMemLink<NODX201::VLink, Tag::EcuMemRef, NODX201::VEcuMem> {
public:
    using VMemLink::VMemLink;
    bool HasEcuMem() const { return FindById(); }
    NODX201::VEcuMem& GetEcuMem() { return Found(); }
};

/// ECU-MEM-CONNECTOR
class VMemEcuMemConnector final : public VWithAdminData<VMemIdent<NODX201::VReferencable, Tag::EcuMemConnector>> {
public:
    using VWithAdminData::VWithAdminData;

    VFlashClassCollection& FlashClassCollection() { return m_flashClass.Get(); } ///< FLASH-CLASSS
    VMemCollection<VFlashClassCollection>& MakeFlashClassCollection() { return m_flashClass.Make(); }
    VMemFlashClass& AddFlashClass(wchar_t const* shortName) {
        return AddNamed<VMemFlashClass>(m_flashClass, Inside(), shortName);
    }

    VSessionDescCollection& SessionDescCollection() { return m_sessionDesc.Get(); } ///< SESSION-DESCS
    VMemCollection<VSessionDescCollection>& MakeSessionDescCollection() { return m_sessionDesc.Make(); }
    VMemSessionDesc& AddSessionDesc(wchar_t const* shortName) {
        return AddNamed<VMemSessionDesc>(m_sessionDesc, Inside(), shortName);
    }

    VIdentDescCollection& IdentDescCollection() { return m_identDesc.Get(); } ///< IDENT-DESCS
    VMemCollection<VIdentDescCollection>& MakeIdentDescCollection() { return m_identDesc.Make(); }
    VMemIdentDesc& AddIdentDesc() { return AddPlain<VMemIdentDesc>(m_identDesc, Inside()); }

    bool HasEcuMemRef() const { return m_ecuMemRef != nullptr; } ///< ECU-MEM-REF
    VMemEcuMemLink& GetEcuMemRef() { return *m_ecuMemRef; }
    VMemEcuMemLink& SetEcuMemRef(VReference const& reference) { return MakeLink(m_ecuMemRef, Inside(), reference); }
    void RemoveEcuMemRef() { m_ecuMemRef.reset(); }

    VDiagLayerLinkCollection& DiagLayerLinkCollection() { return m_diagLayerLink.Get(); } ///< LAYER-REFS
    VMemCollection<VDiagLayerLinkCollection>& MakeDiagLayerLinkCollection() { return m_diagLayerLink.Make(); }
    VMemDiagLayerLink& AddLayerRef(VReference const& reference) {
        return AddLink<VMemDiagLayerLink>(m_diagLayerLink, Inside(), reference);
    }

private:
    VMemMany<VFlashClassCollection> m_flashClass;
    VMemMany<VSessionDescCollection> m_sessionDesc;
    VMemMany<VIdentDescCollection> m_identDesc;
    std::unique_ptr<VMemEcuMemLink> m_ecuMemRef;
    VMemMany<VDiagLayerLinkCollection> m_diagLayerLink;
};

class VEcuMemConnectorCollection : public NODX201::VElementCollection<VMemEcuMemConnector> {};

} // namespace NMemory
