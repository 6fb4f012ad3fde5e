// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ProtocolView.h>

#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/ListViewImpl.h>

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
    for (NODX201::VParentRef& parentRef : baseVariant.ParentRefCollection()) {
        auto const parent = ParentBy(parentRef, VLayerKinds::Protocol | VLayerKinds::FunctionalGroup);
        if (!parent.has_value()) {
            continue;
        }
        if (parent->kind == VLayerKinds::Protocol) {
            Append(static_cast<NODX201::VProtocol&>(*parent->layer));
        } else {
            EvaluateAndAddProtocolsFrom(static_cast<NODX201::VFunctionalGroup&>(*parent->layer).ParentRefCollection());
        }
    }
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
    for (NODX201::VParentRef& parentRef : parentRefs) {
        if (auto const parent = ParentBy(parentRef, VLayerKinds::Protocol)) {
            Append(static_cast<NODX201::VProtocol&>(*parent->layer));
        }
    }
}

} // namespace NDIAGKIT
