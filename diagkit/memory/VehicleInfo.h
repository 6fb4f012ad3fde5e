// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>

/// Vehicle information.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/VehicleInfo.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
