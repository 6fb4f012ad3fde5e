// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Children.h>
#include <diagkit/model/Sdgs.h>

/// Special data groups.

namespace NMemory {

/// SDG-CAPTION
class VMemSdgCaption final : public VMemIdent<NODX201::VSdgCaption, Tag::SdgCaption> {
public:
    using VMemIdent::VMemIdent;
};

/// SD
class VMemSd final : public VMemElement<NODX201::VSd, Tag::Sd> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetSi() const { return m_si; } ///< @SI
    void SetSi(wchar_t const* text) { m_si = Store(text); }

    wchar_t const* GetTextId() const { return m_textId; } ///< @TI
    void SetTextId(wchar_t const* text) { m_textId = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_si = L"";
    wchar_t const* m_textId = L"";
    wchar_t const* m_text = L"";
};

/// SDG: data of an author's own, SDs and further SDGs in free mix.
class VMemSdg final : public VMemElement<NODX201::VSdg, Tag::Sdg> {
public:
    using VMemElement::VMemElement;
    ~VMemSdg() override; ///< takes no more of the stack however deep SDGs nest

    bool HasSdgCaption() const override { return m_sdgCaption != nullptr; }
    VMemSdgCaption& GetSdgCaption() override { return *m_sdgCaption; }
    VMemSdgCaption& MakeSdgCaption(wchar_t const* shortName) {
        return MakeNamedChild(m_sdgCaption, Inside(), shortName);
    }
    void RemoveSdgCaption() { m_sdgCaption.reset(); }

    NODX201::VSdgSdChoiceCollection& SdgSdChoiceCollection() override { return m_sdgSdChoice.Get(); }
    VMemCollection<NODX201::VSdgSdChoiceCollection>& MakeSdgSdChoiceCollection() { return m_sdgSdChoice.Make(); }
    VMemSdg& AddSdg() { return AddPlain<VMemSdg>(m_sdgSdChoice, Inside()); }
    VMemSd& AddSd(wchar_t const* text) { return AddText<VMemSd>(m_sdgSdChoice, Inside(), text); }

private:
    std::unique_ptr<VMemSdgCaption> m_sdgCaption;
    VMemMany<NODX201::VSdgSdChoiceCollection> m_sdgSdChoice;
};

/// Adds SDGS to an element.
template <class Base>
class VWithSdgs : public Base {
public:
    using Base::Base;

    NODX201::VSdgCollection& SdgCollection() { return m_sdg.Get(); } ///< SDGS
    VMemCollection<NODX201::VSdgCollection>& MakeSdgCollection() { return m_sdg.Make(); }
    VMemSdg& AddSdg() { return AddPlain<VMemSdg>(m_sdg, this->Inside()); }

private:
    VMemMany<NODX201::VSdgCollection> m_sdg;
};

} // namespace NMemory
