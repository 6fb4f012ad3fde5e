// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Forward declarations of the contract's classes, for headers that only name them.

namespace NODX201 {

class ILink;
class VLink;
class VOdx;
class VOdxElement;
class VOdxLink;
class VOdxObject;
class VProcessingInstruction;
class VReferencable;
class VSnref;
class VText;
enum class VSearchRange : int;

class VDiagCommVisitor;
class VDiagLayerVisitor;
class VDopBaseVisitor;
class VParamVisitor;

// Interfaces that only distinguish alternatives.
class IAllValueDtcValuesChoice;
class IBasicStructureEnvDataDescChoice;
class ICompuConstCompuRationalCoeffsChoice;
class ICompuScalesProgCodeChoice;
class IDiagCommProxy;
class IDiagVariableProxy;
class IDtcProxy;
class IEnvDataProxy;
class IIdentIf;
class IInParamIf;
class IOutParamIf;
class IRowWrapper;
class ISdgSdChoice;
class ITableRefTableRowRefChoice;

#define ODX_BASE(name) class V##name;
#define ODX_CLASS(name, tag, base, names, value, element, type) class V##name;
#define ODX_LINK_WITH(name, tag, target) class V##name;
#define ODX_LINK_IN_LAYER(name, tag, target, value, element) class V##name;
#define ODX_LINK_IN_DIAG_COMM(name, tag, target, value, element) class V##name;
#define ODX_PARENT_REF(name, target, value, type) class V##name;
#define ODX_UNTYPED_PARENT_REF(name, target, value) class V##name;
#define ODX_EXCLUSION(name, reference, link, value, element) class V##name;
#include <diagkit/model/Facts.def>

} // namespace NODX201
