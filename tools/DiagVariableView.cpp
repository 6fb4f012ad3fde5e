// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagVariableView.h>

#include <diagkit/model/DiagVariables.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/NameSet.h>
#include <diagkit/tools/ParentPass.h>

namespace NDIAGKIT {

using EcuSharedDataRef = NODX201::VEcuSharedDataRef;
using FunctionalGroupRef = NODX201::VFunctionalGroupRef;
using BaseVariantRef = NODX201::VBaseVariantRef;

wchar_t const* VDiagVariableViewTraits::ShortNameOf(Element& diagVariable) { return diagVariable.GetShortName(); }

VDiagVariableView::VDiagVariableView() = default;

VDiagVariableView::~VDiagVariableView() = default;

VDiagVariableView::VDiagVariableView(NODX201::VEcuSharedData& layer) : VDiagVariableView() { InheritFromOwn(layer); }

VDiagVariableView::VDiagVariableView(NODX201::VProtocol&) : VDiagVariableView() {}

VDiagVariableView::VDiagVariableView(NODX201::VFunctionalGroup& layer) : VDiagVariableView() {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<EcuSharedDataRef>(layer, merge);
}

VDiagVariableView::VDiagVariableView(NODX201::VBaseVariant& layer) : VDiagVariableView() {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<FunctionalGroupRef>(layer, merge);
    Pass<EcuSharedDataRef>(layer, merge);
}

VDiagVariableView::VDiagVariableView(NODX201::VEcuVariant& layer) : VDiagVariableView() {
    VNameMerge merge;
    InheritFromOwn(layer);
    Pass<BaseVariantRef>(layer, merge);
    Pass<EcuSharedDataRef>(layer, merge);
}

template <class Layer>
void VDiagVariableView::InheritFromOwn(Layer& layer) {
    for (NODX201::IDiagVariableProxy& proxy : layer.DiagVariableProxyCollection()) {
        if (proxy.IsDiagVariable()) {
            if (auto* const diagVariable = dynamic_cast<NODX201::VDiagVariable*>(&proxy)) {
                Append(*diagVariable);
            }
        } else {
            auto* const link = dynamic_cast<NODX201::VDiagVariableLink*>(&proxy);
            if (link != nullptr && link->HasDiagVariable(layer)) {
                Append(link->GetDiagVariable());
            }
        }
    }
}

template <class Ref, class Layer>
void VDiagVariableView::Pass(Layer& layer, VNameMerge& merge) {
    struct VInherit {
        VDiagVariableView& view;
        VNameMerge& merge;
        void operator()(NODX201::VFunctionalGroup& parent) { view.InheritFromFunctionalGroup(parent, merge); }
        void operator()(NODX201::VBaseVariant& parent) { view.InheritFromBaseVariant(parent, merge); }
        void operator()(NODX201::VEcuSharedData& parent) { view.InheritFromEcuSharedData(parent, merge); }
    };
    ParentPass<Ref>(layer.ParentRefCollection(), VInherit{*this, merge});
}

void VDiagVariableView::InheritFromEcuSharedData(NODX201::VEcuSharedData& layer, VNameMerge& merge) {
    VDiagVariableView parent(layer);
    InheritDiagVariables(parent, merge);
}

void VDiagVariableView::InheritFromFunctionalGroup(NODX201::VFunctionalGroup& layer, VNameMerge& merge) {
    VDiagVariableView parent(layer);
    InheritDiagVariables(parent, merge);
}

void VDiagVariableView::InheritFromBaseVariant(NODX201::VBaseVariant& layer, VNameMerge& merge) {
    VDiagVariableView parent(layer);
    InheritDiagVariables(parent, merge);
}

void VDiagVariableView::InheritDiagVariables(VDiagVariableView& source, VNameMerge& merge) {
    merge.Merge(m_collection, source.m_collection);
}

} // namespace NDIAGKIT
