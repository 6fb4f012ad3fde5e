// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/OdxReader.h>

namespace NFuzz {

/// Limits low enough for small inputs to reach them.
inline NReader::VReadOptions LowLimits() {
    NReader::VReadOptions options;
    options.maxMemberSize = 256 * 1024;
    options.maxPackageSize = 512 * 1024;
    return options;
}

} // namespace NFuzz
