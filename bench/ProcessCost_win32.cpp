// SPDX-License-Identifier: Apache-2.0
#include "ProcessCost.h"

#include <windows.h>
// Must follow windows.h.
#include <psapi.h>

namespace NBench {
namespace {

double Seconds(FILETIME const& time) {
    constexpr double kTicks = 1e7; // per second
    return static_cast<double>((std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime) / kTicks;
}

} // namespace

double ProcessorSeconds() {
    FILETIME created{};
    FILETIME ended{};
    FILETIME inKernel{};
    FILETIME inProgram{};
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &inKernel, &inProgram);
    return Seconds(inKernel) + Seconds(inProgram);
}

std::uint64_t PeakBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PeakWorkingSetSize;
}

} // namespace NBench
