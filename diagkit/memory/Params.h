// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/Compu.h>
#include <diagkit/memory/ProcessingInstructions.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Visitors.h>

/// The eleven kinds of PARAM, requests and responses.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Params.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
