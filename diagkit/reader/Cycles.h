// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/DocumentReading.h>

namespace NReader {

/// Finds DOPs that contain themselves through any chain of references: parameters, fields, multiplexers and environment
/// data. The reference that closes a chain is severed and reported, so that walks and searches end. A reference by
/// short name is followed in every layer, and severed in those in which it closes a chain.
void SeverContainmentCycles(VReading& reading);

} // namespace NReader
