// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/IdentIfView.h>

#include <diagkit/model/Flash.h>
#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

wchar_t const* VIdentIfViewTraits::ShortNameOf(Element& element) {
    if (element.IsExpectedIdent()) {
        auto const* const ident = dynamic_cast<NODX201::VExpectedIdent*>(&element);
        return ident != nullptr ? ident->GetShortName() : nullptr;
    }
    auto const* const ident = dynamic_cast<NODX201::VOwnIdent*>(&element);
    return ident != nullptr ? ident->GetShortName() : nullptr;
}

VIdentIfView::VIdentIfView() = default;

VIdentIfView::~VIdentIfView() = default;

VIdentIfView::VIdentIfView(NODX201::VFlash& flash) : VIdentIfView() {
    if (!flash.HasEcuMemCollection()) {
        return;
    }
    for (NODX201::VEcuMem& ecuMem : flash.EcuMemCollection()) {
        for (NODX201::VSession& session : ecuMem.GetMem().SessionCollection()) {
            for (NODX201::VExpectedIdent& ident : session.ExpectedIdentCollection()) {
                Append(ident);
            }
        }
    }
}

} // namespace NDIAGKIT
