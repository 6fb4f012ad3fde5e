// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ProtocolView.h>

#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/ParentPass.h>

namespace NDIAGKIT {

wchar_t const* VProtocolViewTraits::ShortNameOf(Element& protocol) { return protocol.GetShortName(); }

VProtocolView::VProtocolView() = default;

VProtocolView::~VProtocolView() = default;

VProtocolView::VProtocolView(NODX201::VDiagLayerContainer& container) : VProtocolView() {
    for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
        layer.Accept(*this);
    }
}

VProtocolView::VProtocolView(NODX201::VBaseVariant& baseVariant) : VProtocolView() {
    if (!baseVariant.HasParentRefCollection()) {
        return;
    }
    struct VAttach {
        VProtocolView& view;
        void operator()(NODX201::VProtocol& protocol) { view.Append(protocol); }
        void operator()(NODX201::VFunctionalGroup& group) {
            view.EvaluateAndAddProtocolsFrom(group.ParentRefCollection());
        }
    };
    ParentPass<NODX201::VProtocolRef, NODX201::VFunctionalGroupRef>(baseVariant.ParentRefCollection(), VAttach{*this});
}

// clang-format off
void VProtocolView::VisitBaseVariant    (NODX201::VBaseVariant&)     {}
void VProtocolView::VisitProtocol       (NODX201::VProtocol& layer)  { Append(layer); }
void VProtocolView::VisitFunctionalGroup(NODX201::VFunctionalGroup&) {}
void VProtocolView::VisitEcuVariant     (NODX201::VEcuVariant&)      {}
void VProtocolView::VisitEcuSharedData  (NODX201::VEcuSharedData&)   {}
// clang-format on

void VProtocolView::EvaluateAndAddProtocolsFrom(NODX201::VParentRefCollection& parentRefs) {
    // Deliberate: no duplicate test (ProtocolReferencedTwiceIsInTheViewTwice).
    ParentPass<NODX201::VProtocolRef>(parentRefs, [this](NODX201::VProtocol& protocol) { Append(protocol); });
}

} // namespace NDIAGKIT
