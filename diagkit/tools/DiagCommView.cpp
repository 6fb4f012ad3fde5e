// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagCommView.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

wchar_t const* VDiagCommViewTraits::ShortNameOf(Element& diagComm) { return diagComm.GetShortName(); }

VDiagCommView::VDiagCommView() = default;

VDiagCommView::~VDiagCommView() = default;

// clang-format off
VDiagCommView::VDiagCommView(NODX201::VEcuSharedData& layer)   { Inherit(layer); }
VDiagCommView::VDiagCommView(NODX201::VProtocol& layer)        { Inherit(layer); }
VDiagCommView::VDiagCommView(NODX201::VFunctionalGroup& layer) { Inherit(layer); }
VDiagCommView::VDiagCommView(NODX201::VBaseVariant& layer)     { Inherit(layer); }
VDiagCommView::VDiagCommView(NODX201::VEcuVariant& layer)      { Inherit(layer); }
// clang-format on

void VDiagCommView::Inherit(VLayerOfKind const& layer) {
    for (Element* const entry : VInheritance<VInheritedDiagComms>().EntriesOf(layer)) {
        m_collection.push_back(entry);
    }
}

} // namespace NDIAGKIT
