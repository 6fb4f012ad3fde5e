// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Tables.h>

/// Tables and their rows.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Tables.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
