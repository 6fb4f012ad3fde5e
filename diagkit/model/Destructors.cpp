// SPDX-License-Identifier: Apache-2.0

// Destructors out of line, so that each class has its vtable and type information in one place.

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/ProcessingInstruction.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/SnrefResolver.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>

namespace NODX201 {

VOdxObject::~VOdxObject() = default;
VOdxElement::~VOdxElement() = default;
VReferencable::~VReferencable() = default;
VOdx::~VOdx() = default;
VText::~VText() = default;
VDiagLayerCollection::~VDiagLayerCollection() = default;
VProcessingInstruction::~VProcessingInstruction() = default;
VAbstractSnrefResolver::~VAbstractSnrefResolver() = default;
ILink::~ILink() = default;
VSnref::~VSnref() = default;
VOdxLink::~VOdxLink() = default;
VLink::~VLink() = default;
IInParamIf::~IInParamIf() = default;
IOutParamIf::~IOutParamIf() = default;
IIdentIf::~IIdentIf() = default;

#define ODX_BASE(name) V##name::~V##name() = default;
#define ODX_CLASS(name, tag, base, names, value, element, type) V##name::~V##name() = default;
#define ODX_LINK_WITH(name, tag, target) V##name::~V##name() = default;
#define ODX_LINK_IN_LAYER(name, tag, target, value, element) V##name::~V##name() = default;
#define ODX_LINK_IN_DIAG_COMM(name, tag, target, value, element) V##name::~V##name() = default;
#define ODX_PARENT_REF(name, target, value, type) V##name::~V##name() = default;
#define ODX_UNTYPED_PARENT_REF(name, target, value) V##name::~V##name() = default;
#define ODX_EXCLUSION(name, reference, link, value, element) V##name::~V##name() = default;
#include <diagkit/model/Facts.def>

} // namespace NODX201
