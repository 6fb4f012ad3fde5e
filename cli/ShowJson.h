// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/ShowText.h>

namespace NCli {

/// The answer of `show` as JSON. False when a layout was cut.
bool WriteShownAsJson(VShown const& shown, VOutput& output);

} // namespace NCli
