// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The model in memory: `diagkit::memory`. All public headers of the library.

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/Children.h>
#include <diagkit/memory/Collection.h>
#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Compu.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/DiagVariables.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Element.h>
#include <diagkit/memory/ElementImpl.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Forward.h>
#include <diagkit/memory/IdIndex.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Link.h>
#include <diagkit/memory/ListPosition.h>
#include <diagkit/memory/Node.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/memory/Params.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/memory/Part.h>
#include <diagkit/memory/ProcessingInstructions.h>
#include <diagkit/memory/References.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/memory/TextPool.h>
#include <diagkit/memory/TextTable.h>
#include <diagkit/memory/Units.h>
#include <diagkit/memory/Values.h>
#include <diagkit/memory/VehicleInfo.h>
