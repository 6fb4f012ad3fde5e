// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagVariableView.h>

#include <diagkit/model/DiagVariables.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

wchar_t const* VDiagVariableViewTraits::ShortNameOf(Element& diagVariable) { return diagVariable.GetShortName(); }

VDiagVariableView::VDiagVariableView() = default;

VDiagVariableView::~VDiagVariableView() = default;

// clang-format off
VDiagVariableView::VDiagVariableView(NODX201::VEcuSharedData& layer)   { Inherit(layer); }
VDiagVariableView::VDiagVariableView(NODX201::VProtocol& layer)        { Inherit(layer); }
VDiagVariableView::VDiagVariableView(NODX201::VFunctionalGroup& layer) { Inherit(layer); }
VDiagVariableView::VDiagVariableView(NODX201::VBaseVariant& layer)     { Inherit(layer); }
VDiagVariableView::VDiagVariableView(NODX201::VEcuVariant& layer)      { Inherit(layer); }
// clang-format on

void VDiagVariableView::Inherit(VLayerOfKind const& layer) {
    for (Element* const entry : VInheritance<VInheritedDiagVariables>().EntriesOf(layer)) {
        m_collection.push_back(entry);
    }
}

} // namespace NDIAGKIT
