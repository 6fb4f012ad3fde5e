// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/GlobalNegResponseView.h>

#include <diagkit/model/Responses.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/NameSet.h>
#include <diagkit/tools/ParentPass.h>

namespace NDIAGKIT {

using EcuSharedDataRef = NODX201::VEcuSharedDataRef;
using ProtocolRef = NODX201::VProtocolRef;
using FunctionalGroupRef = NODX201::VFunctionalGroupRef;
using BaseVariantRef = NODX201::VBaseVariantRef;

wchar_t const* VGlobalNegResponseViewTraits::ShortNameOf(Element& response) { return response.GetShortName(); }

VGlobalNegResponseView::VGlobalNegResponseView() = default;

VGlobalNegResponseView::VGlobalNegResponseView(NODX201::VDiagLayer& layer) : VGlobalNegResponseView() {
    DispatchDiagLayer(layer);
}

VGlobalNegResponseView::~VGlobalNegResponseView() = default;

// clang-format off
void VGlobalNegResponseView::VisitBaseVariant    (NODX201::VBaseVariant& layer)     { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitProtocol       (NODX201::VProtocol& layer)        { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitEcuVariant     (NODX201::VEcuVariant& layer)      { BuildViewFor(layer); }
void VGlobalNegResponseView::VisitEcuSharedData  (NODX201::VEcuSharedData& layer)   { BuildViewFor(layer); }
// clang-format on

void VGlobalNegResponseView::BuildViewFor(NODX201::VEcuSharedData& layer) { InheritFromOwn(layer); }

void VGlobalNegResponseView::BuildViewFor(NODX201::VProtocol& layer) {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<EcuSharedDataRef>(layer, merge);
}

void VGlobalNegResponseView::BuildViewFor(NODX201::VFunctionalGroup& layer) {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<ProtocolRef>(layer, merge);
    Pass<EcuSharedDataRef>(layer, merge);
}

void VGlobalNegResponseView::BuildViewFor(NODX201::VBaseVariant& layer) {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<ProtocolRef, FunctionalGroupRef>(layer, merge);
    Pass<EcuSharedDataRef>(layer, merge);
}

void VGlobalNegResponseView::BuildViewFor(NODX201::VEcuVariant& layer) {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<BaseVariantRef>(layer, merge);
    Pass<EcuSharedDataRef>(layer, merge);
}

template <class... Refs, class Layer>
void VGlobalNegResponseView::Pass(Layer& layer, VNameMerge& merge) {
    if (!layer.HasParentRefCollection()) {
        return;
    }
    ParentPass<Refs...>(layer.ParentRefCollection(),
                        [&](NODX201::VDiagLayer& parent) { InheritFromParent(parent, merge); });
}

void VGlobalNegResponseView::InheritFromOwn(NODX201::VDiagLayer& layer) {
    NODX201::VResponseCollection& responses = layer.ResponseCollection();
    if (responses.Count() == 0) {
        return;
    }
    for (NODX201::VResponse& response : responses) {
        if (response.GetOdxTag() != NODX201::VOdxTagEnum::GlobalNegResponse) {
            continue;
        }
        if (auto* const globalNegResponse = dynamic_cast<NODX201::VGlobalNegResponse*>(&response)) {
            Append(*globalNegResponse);
        }
    }
}

void VGlobalNegResponseView::InheritFromParent(NODX201::VDiagLayer& layer, VNameMerge& merge) {
    VGlobalNegResponseView parent(layer);
    InheritGlobalNegResponses(parent, merge);
}

void VGlobalNegResponseView::InheritGlobalNegResponses(VGlobalNegResponseView& source, VNameMerge& merge) {
    merge.Merge(m_collection, source.m_collection);
}

} // namespace NDIAGKIT
