// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/References.h>
#include <diagkit/model/AdminData.h>
#include <diagkit/model/Sdgs.h>

/// Special data groups, ADMIN-DATA and COMPANY-DATA.

namespace NMemory {

/// The contents of an SDG: SDs and further SDGs in any combination.
class VMemSdgContents {
public:
    ~VMemSdgContents(); ///< uses no more of the call stack for deeply nested SDGs

    NODX201::VSdgSdChoiceCollection& Get() const { return m_contents.Get(); }
    VMemCollection<NODX201::VSdgSdChoiceCollection>& Make() { return m_contents.Make(); }
    VMemSdg& AddSdg(VPlace const& place);
    VMemSd& AddSd(VPlace const& place, wchar_t const* text);

private:
    VMemMany<NODX201::VSdgSdChoiceCollection> m_contents;
};

template <class Base>
class VWithSdgContents : public Base {
public:
    using Base::Base;

    NODX201::VSdgSdChoiceCollection& SdgSdChoiceCollection() override { return m_contents.Get(); }
    VMemCollection<NODX201::VSdgSdChoiceCollection>& MakeSdgSdChoiceCollection() { return m_contents.Make(); }
    VMemSdg& AddSdg() { return m_contents.AddSdg(this->Inside()); }
    VMemSd& AddSd(wchar_t const* text) { return m_contents.AddSd(this->Inside(), text); }

private:
    friend VMemSdgContents;
    VMemSdgContents m_contents;
};

template <class Names>
struct VByHand<Tag::Sdg, Names> {
    using Type = VWithSdgContents<Names>;
};

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/AdminData.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
