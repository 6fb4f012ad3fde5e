// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

/// The element type of `SessionView` and the places of its assertions; see `VListView`.
struct DIAGKIT_EXPORT VSessionViewTraits {
    using Element = NODX201::VSession;
    static constexpr wchar_t const* kSource = L"SessionView";
    static constexpr int kRemoveElementLine = 115;
    static constexpr int kRemovePositionLine = 123;
    static constexpr int kRemoveStepLine = 201;
    static wchar_t const* ShortNameOf(Element& element);
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::VSession*>::iterator, NODX201::VSession&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VSessionViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VSessionViewTraits>);

/// The SESSIONs of a FLASH, ECU-MEM by ECU-MEM, each in document order. Container operations as in `VListView`.
class DIAGKIT_EXPORT VSessionView : public VNamedListView<VSessionViewTraits> {
public:
    explicit VSessionView(NODX201::VFlash& flash);
    virtual ~VSessionView();

private:
    VSessionView();

    VStringContainer m_notInherited; // never filled
};

} // namespace NDIAGKIT
