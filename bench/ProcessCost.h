// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace NBench {

/// Processor time of all threads of this process so far.
double ProcessorSeconds();

/// The most memory that this process has held at a time.
std::uint64_t PeakBytes();

} // namespace NBench
