// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/memory/References.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/Params.h>

/// Conversions, coded and physical types, constraints. Values remain text as written; hex, signs and decimal commas are
/// left to the reader of the value.

namespace NMemory {

/// A LOWER-LIMIT or UPPER-LIMIT.
VMemMade<VMemLimit> NewLimit(VPlace const& place, Tag tag, wchar_t const* text);

/// COMPU-SCALES, which is a collection in the contract, or a PROG-CODE.
class VMemScalesOrProgCode {
public:
    bool Has() const { return m_scales.Has() || m_progCode.Has(); }
    NODX201::ICompuScalesProgCodeChoice& Get() const; ///< REQUIRES: `Has`
    VMemCompuScales& MakeScales(VPlace const& place);
    VMemProgCode& MakeProgCode(VPlace const& place);

private:
    VMemChild<VMemCompuScales> m_scales;
    VMemChild<VMemProgCode> m_progCode;
};

template <class Base>
class VWithScalesOrProgCode : public Base {
public:
    using Base::Base;

    bool HasCompuScalesProgCodeChoice() const override { return m_choice.Has(); }
    NODX201::ICompuScalesProgCodeChoice& GetCompuScalesProgCodeChoice() override { return m_choice.Get(); }
    VMemCompuScales& MakeCompuScales() { return m_choice.MakeScales(this->Inside()); } ///< replaces a PROG-CODE
    VMemProgCode& MakeProgCode() { return m_choice.MakeProgCode(this->Inside()); }     ///< replaces COMPU-SCALES

private:
    VMemScalesOrProgCode m_choice;
};

template <class Names>
struct VByHand<Tag::CompuInternalToPhys, Names> {
    using Type = VWithScalesOrProgCode<Names>;
};

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Compu.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
