// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/Loader.h>

namespace NReader {

/// Finds DOPs that contain themselves through any chain of ID references: parameters, fields, multiplexers and
/// environment data. The reference that closes a chain is severed and reported, so that walks and searches end.
void SeverContainmentCycles(VReading& reading);

} // namespace NReader
