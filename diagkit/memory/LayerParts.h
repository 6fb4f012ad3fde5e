// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Children.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/TableLinks.h>
#include <diagkit/model/Layers.h>

/// The small parts of layers.

namespace NMemory {

/// ACCESS-LEVEL
class VMemAccessLevel final : public VMemElement<NODX201::VAccessLevel, Tag::AccessLevel> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetValue() const { return m_value; } ///< VALUE
    void SetValue(wchar_t const* text) { m_value = Store(text); }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC
    void SetDesc(wchar_t const* text) { m_desc = Store(text); }

    wchar_t const* GetExternalAccessMethod() const { return m_externalAccessMethod; } ///< EXTERNAL-ACCESS-METHOD
    void SetExternalAccessMethod(wchar_t const* text) { m_externalAccessMethod = Store(text); }

    bool HasDiagCommSnref() const override { return m_diagCommSnref != nullptr; } ///< DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommSnref() override { return *m_diagCommSnref; }
    VMemDiagCommLink& SetDiagCommSnref(VReference const& reference) {
        return MakeLink(m_diagCommSnref, Inside(), reference);
    }
    void RemoveDiagCommSnref() { m_diagCommSnref.reset(); }

private:
    wchar_t const* m_value = L"";
    wchar_t const* m_desc = L"";
    wchar_t const* m_externalAccessMethod = L"";
    std::unique_ptr<VMemDiagCommLink> m_diagCommSnref;
};

/// SUPPORTED-DYN-ID
class VMemByteStream final : public VMemElement<NODX201::VByteStream, Tag::SupportedDynId> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetText() const { return m_text; } ///< hex digits
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_text = L"";
};

/// DYN-ID-DEF-MODE-INFO
class VMemDynIdDefModeInfo final : public VMemElement<NODX201::VDynIdDefModeInfo, Tag::DynIdDefModeInfo> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetDefMode() const { return m_defMode; } ///< DEF-MODE
    void SetDefMode(wchar_t const* text) { m_defMode = Store(text); }

    bool HasClearDynDefMessageRef() const override {
        return m_clearDynDefMessageRef != nullptr;
    } ///< CLEAR-DYN-DEF-MESSAGE-REF or ...-SNREF
    VMemDiagCommLink& GetClearDynDefMessageRef() override { return *m_clearDynDefMessageRef; }
    VMemDiagCommLink& SetClearDynDefMessageRef(VReference const& reference) {
        return MakeLink(m_clearDynDefMessageRef, Inside(), reference);
    }
    void RemoveClearDynDefMessageRef() { m_clearDynDefMessageRef.reset(); }

    bool HasReadDynDefMessageRef() const override {
        return m_readDynDefMessageRef != nullptr;
    } ///< READ-DYN-DEF-MESSAGE-REF or ...-SNREF
    VMemDiagCommLink& GetReadDynDefMessageRef() override { return *m_readDynDefMessageRef; }
    VMemDiagCommLink& SetReadDynDefMessageRef(VReference const& reference) {
        return MakeLink(m_readDynDefMessageRef, Inside(), reference);
    }
    void RemoveReadDynDefMessageRef() { m_readDynDefMessageRef.reset(); }

    bool HasDynDefMessageRef() const override {
        return m_dynDefMessageRef != nullptr;
    } ///< DYN-DEF-MESSAGE-REF or ...-SNREF
    VMemDiagCommLink& GetDynDefMessageRef() override { return *m_dynDefMessageRef; }
    VMemDiagCommLink& SetDynDefMessageRef(VReference const& reference) {
        return MakeLink(m_dynDefMessageRef, Inside(), reference);
    }
    void RemoveDynDefMessageRef() { m_dynDefMessageRef.reset(); }

    NODX201::VSupportedDynIdCollection& SupportedDynIdCollection() override {
        return m_supportedDynId.Get();
    } ///< SUPPORTED-DYN-IDS
    VMemCollection<NODX201::VSupportedDynIdCollection>& MakeSupportedDynIdCollection() {
        return m_supportedDynId.Make();
    }
    VMemByteStream& AddSupportedDynId(wchar_t const* text) {
        return AddText<VMemByteStream>(m_supportedDynId, Inside(), text);
    }

    NODX201::VTableLinkCollection& TableLinkCollection() override {
        return m_tableLink.Get();
    } ///< SELECTION-TABLE-REFS
    VMemCollection<NODX201::VTableLinkCollection>& MakeTableLinkCollection() { return m_tableLink.Make(); }
    VMemTableLink& AddSelectionTableRef(VReference const& reference) {
        return AddLink<VMemTableLink>(m_tableLink, Inside(), reference);
    }

private:
    wchar_t const* m_defMode = L"";
    std::unique_ptr<VMemDiagCommLink> m_clearDynDefMessageRef;
    std::unique_ptr<VMemDiagCommLink> m_readDynDefMessageRef;
    std::unique_ptr<VMemDiagCommLink> m_dynDefMessageRef;
    VMemMany<NODX201::VSupportedDynIdCollection> m_supportedDynId;
    VMemMany<NODX201::VTableLinkCollection> m_tableLink;
};

/// DYN-DEFINED-SPEC
class VMemDynDefinedSpec final : public VMemElement<NODX201::VDynDefinedSpec, Tag::DynDefinedSpec> {
public:
    using VMemElement::VMemElement;

    NODX201::VDynIdDefModeInfoCollection& DynIdDefModeInfoCollection() override {
        return m_dynIdDefModeInfo.Get();
    } ///< DYN-ID-DEF-MODE-INFOS
    VMemCollection<NODX201::VDynIdDefModeInfoCollection>& MakeDynIdDefModeInfoCollection() {
        return m_dynIdDefModeInfo.Make();
    }
    VMemDynIdDefModeInfo& AddDynIdDefModeInfo() { return AddPlain<VMemDynIdDefModeInfo>(m_dynIdDefModeInfo, Inside()); }

private:
    VMemMany<NODX201::VDynIdDefModeInfoCollection> m_dynIdDefModeInfo;
};

/// MATCHING-PARAMETER
class VMemMatchingParameter final : public VMemElement<NODX201::VMatchingParameter, Tag::MatchingParameter> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetExpectedValue() const { return m_expectedValue; } ///< EXPECTED-VALUE
    void SetExpectedValue(wchar_t const* text) { m_expectedValue = Store(text); }

    bool HasDiagCommSnref() const override { return m_diagCommSnref != nullptr; } ///< DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommSnref() override { return *m_diagCommSnref; }
    VMemDiagCommLink& SetDiagCommSnref(VReference const& reference) {
        return MakeLink(m_diagCommSnref, Inside(), reference);
    }
    void RemoveDiagCommSnref() { m_diagCommSnref.reset(); }

    bool HasOutParamIfSnref() const { return m_outParamIfSnref != nullptr; } ///< OUT-PARAM-IF-SNREF
    VMemOutParamIfLink& GetOutParamIfSnref() { return *m_outParamIfSnref; }
    VMemOutParamIfLink& SetOutParamIfSnref(VReference const& reference) {
        return MakeLink(m_outParamIfSnref, Inside(), reference);
    }
    void RemoveOutParamIfSnref() { m_outParamIfSnref.reset(); }

private:
    wchar_t const* m_expectedValue = L"";
    std::unique_ptr<VMemDiagCommLink> m_diagCommSnref;
    std::unique_ptr<VMemOutParamIfLink> m_outParamIfSnref;
};

/// ECU-VARIANT-PATTERN
class VMemEcuVariantPattern final : public VMemElement<NODX201::VEcuVariantPattern, Tag::EcuVariantPattern> {
public:
    using VMemElement::VMemElement;

    NODX201::VMatchingParameterCollection& MatchingParameterCollection() override {
        return m_matchingParameter.Get();
    } ///< MATCHING-PARAMETERS
    VMemCollection<NODX201::VMatchingParameterCollection>& MakeMatchingParameterCollection() {
        return m_matchingParameter.Make();
    }
    VMemMatchingParameter& AddMatchingParameter() {
        return AddPlain<VMemMatchingParameter>(m_matchingParameter, Inside());
    }

private:
    VMemMany<NODX201::VMatchingParameterCollection> m_matchingParameter;
};

} // namespace NMemory
