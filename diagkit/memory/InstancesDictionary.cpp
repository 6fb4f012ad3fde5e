// SPDX-License-Identifier: Apache-2.0

// The code of the dictionary's classes, compiled only here.

#include <diagkit/memory/Dops.h>
#include <diagkit/memory/NewImpl.h>

namespace NMemory {

#include <diagkit/memory/Instances.def>

#include <diagkit/model/facts/Compu.def>
#include <diagkit/model/facts/Dops.def>
#include <diagkit/model/facts/Params.def>
#include <diagkit/model/facts/Tables.def>
#include <diagkit/model/facts/Units.def>

#include <diagkit/memory/InstancesEnd.def>

} // namespace NMemory
