// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/model/Reference.h>

namespace NReader {

/// What a reference by ID names by ODX's rules, such as "REQUEST" or "DOP", for messages.
std::string KindWantedBy(NODX201::VLink& reference);

} // namespace NReader
