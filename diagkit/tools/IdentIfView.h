// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

/// The element type of `IdentIfView` and the places of its assertions; see `VListView`.
struct DIAGKIT_EXPORT VIdentIfViewTraits {
    using Element = NODX201::IIdentIf;
    static constexpr wchar_t const* kSource = L"IdentIfView";
    static constexpr int kRemoveElementLine = 125;
    static constexpr int kRemovePositionLine = 133;
    static constexpr int kRemoveStepLine = 234;
    static wchar_t const* ShortNameOf(Element& element);
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::IIdentIf*>::iterator, NODX201::IIdentIf&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VIdentIfViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VIdentIfViewTraits>);

/// The EXPECTED-IDENTs of a FLASH, ECU-MEM by ECU-MEM and session by session, each in document order. OWN-IDENTs are
/// not collected; one that is appended by hand is found by its name like the others. Container operations as in
/// `VListView`.
class DIAGKIT_EXPORT VIdentIfView : public VNamedListView<VIdentIfViewTraits> {
public:
    explicit VIdentIfView(NODX201::VFlash& flash);
    virtual ~VIdentIfView();

private:
    VIdentIfView();

    VStringContainer m_notInherited; // never filled
};

} // namespace NDIAGKIT
