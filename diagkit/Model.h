// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The contract of the object model: `diagkit::model`. All public headers of the library.

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Collections.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/ElementCollection.h>
#include <diagkit/model/Empty.h>
#include <diagkit/model/ExternalIterator.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/OdxElement.h>
#include <diagkit/model/OdxTag.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/ProcessingInstruction.h>
#include <diagkit/model/Reference.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/model/SnrefResolver.h>
#include <diagkit/model/StandardIterator.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
#include <diagkit/model/VehicleInfo.h>
#include <diagkit/model/Visitors.h>
