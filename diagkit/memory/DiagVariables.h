// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/DiagVariables.h>

/// Diagnostic variables.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/DiagVariables.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
