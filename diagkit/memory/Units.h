// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Units.h>

/// Units, their groups and dimensions.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Units.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
