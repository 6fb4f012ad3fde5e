// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Dops.h>
#include <diagkit/model/Comparams.h>

/// Communication parameters.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Comparams.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
