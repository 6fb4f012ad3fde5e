// SPDX-License-Identifier: Apache-2.0

// The code of the classes of layers and their contents, compiled only here.

#include <diagkit/memory/Layers.h>
#include <diagkit/memory/NewImpl.h>

namespace NMemory {

#include <diagkit/memory/Instances.def>

#include <diagkit/model/facts/AdminData.def>
#include <diagkit/model/facts/Comparams.def>
#include <diagkit/model/facts/DiagComms.def>
#include <diagkit/model/facts/DiagVariables.def>
#include <diagkit/model/facts/Layers.def>

#include <diagkit/memory/InstancesEnd.def>

} // namespace NMemory
