// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/Flash.h>

/// Flash data.

namespace NMemory {

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/Flash.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
