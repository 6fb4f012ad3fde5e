// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Flash.h>

/// Flash data.

namespace NMemory {

/// FLASHDATA: INTERN-FLASHDATA holds its data, EXTERN-FLASHDATA names a file.
template <class Base>
class VWithFlashdataKind : public Base {
public:
    using Base::Base;

    /// INTERN-FLASHDATA, EXTERN-FLASHDATA, or plain FLASHDATA where the data does not say.
    NODX201::VOdxTagEnum GetOdxTag() const override { return m_kind; }
    void SetKind(NODX201::VOdxTagEnum kind) { m_kind = kind; }

private:
    NODX201::VOdxTagEnum m_kind = Tag::Flashdata;
};

template <class Names>
struct VByHand<Tag::Flashdata, Names> {
    using Type = VWithFlashdataKind<Names>;
};

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Flash.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
