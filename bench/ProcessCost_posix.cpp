// SPDX-License-Identifier: Apache-2.0
#include "ProcessCost.h"

#include <ctime>

#include <sys/resource.h>

namespace NBench {

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

std::uint64_t PeakBytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::uint64_t>(usage.ru_maxrss) * 1024;
}

} // namespace NBench
