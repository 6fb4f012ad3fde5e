// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Comparams.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Visitors.h>

/// Diagnostic services and jobs.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/DiagComms.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
