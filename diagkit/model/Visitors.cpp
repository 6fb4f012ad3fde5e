// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Visitors.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Params.h>

namespace NODX201 {

VDiagLayerVisitor::~VDiagLayerVisitor() = default;
VDiagCommVisitor::~VDiagCommVisitor() = default;
VDopBaseVisitor::~VDopBaseVisitor() = default;
VParamVisitor::~VParamVisitor() = default;

void VDiagLayerVisitor::DispatchDiagLayer(VDiagLayer& layer) { layer.Accept(*this); }
void VDiagCommVisitor::DispatchDiagComm(VDiagComm& diagComm) { diagComm.Accept(*this); }
void VDopBaseVisitor::DispatchDopBase(VDopBase& dop) { dop.Accept(*this); }
void VParamVisitor::DispatchParam(VParam& param) { param.Accept(*this); }

} // namespace NODX201
