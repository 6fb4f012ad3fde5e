// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Params.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/memory/Units.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Visitors.h>

/// The data dictionary and the ten kinds of DOP.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Dops.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
