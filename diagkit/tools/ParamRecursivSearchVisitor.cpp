// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ParamRecursivSearchVisitor.h>

#include <cwchar>

#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>

namespace NDIAGKIT {

using Visitor = VOutParamIfView::VParamRecursivSearchVisitor;

Visitor::VParamRecursivSearchVisitor(wchar_t const* shortName, NODX201::VDiagLayer& layer)
    : VParamWalk(m_dopsOfLayer), m_shortName(shortName), m_layer(layer), m_dopsOfLayer(layer) {}

Visitor::~VParamRecursivSearchVisitor() = default;

void Visitor::VisitValue(NODX201::VValue& param) {
    if (std::wcscmp(param.GetShortName(), m_shortName.c_str()) != 0) {
        // What `WalkBelow` does, without a call to find the DOP: that would take a tenth of the whole search.
        if (param.HasDopBaseLink()) {
            NODX201::VDopBaseLink& link = param.GetDopBaseLink();
            if (link.HasDopBase(m_layer)) {
                link.GetDopBase().Accept(*this);
            }
        }
        return;
    }
    m_result = &param;
    End();
}

} // namespace NDIAGKIT
