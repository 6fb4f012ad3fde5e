// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/SessionView.h>

#include <diagkit/model/Flash.h>
#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

wchar_t const* VSessionViewTraits::ShortNameOf(Element& element) { return element.GetShortName(); }

VSessionView::VSessionView() = default;

VSessionView::~VSessionView() = default;

VSessionView::VSessionView(NODX201::VFlash& flash) : VSessionView() {
    if (!flash.HasEcuMemCollection()) {
        return;
    }
    for (NODX201::VEcuMem& ecuMem : flash.EcuMemCollection()) {
        for (NODX201::VSession& session : ecuMem.GetMem().SessionCollection()) {
            Append(session);
        }
    }
}

} // namespace NDIAGKIT
