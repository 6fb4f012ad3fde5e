// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The elements of all kinds in TraverserKinds.def, for sources that do something with each of them.

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
