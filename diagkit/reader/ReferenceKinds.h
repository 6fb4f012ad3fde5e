// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/model/Reference.h>

namespace NReader {

/// The kind of target that ODX requires for a reference by ID, such as "REQUEST" or "DOP", for messages.
std::string KindWantedBy(NODX201::VLink& reference);

} // namespace NReader
