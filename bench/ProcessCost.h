// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace NBench {

/// Processor time of all threads of this process so far.
double ProcessorSeconds();

/// The peak memory of this process.
std::uint64_t PeakBytes();

} // namespace NBench
