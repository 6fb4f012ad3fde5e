// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>

namespace NCli {

/// A progress bar in one line of standard error. It appears when the work takes a while and is gone afterwards.
class VProgressBar {
public:
    VProgressBar();
    ~VProgressBar();
    VProgressBar(VProgressBar const&) = delete;
    VProgressBar& operator=(VProgressBar const&) = delete;

    void Show(std::uint64_t done, std::uint64_t all);

private:
    std::chrono::steady_clock::time_point m_start;
    int m_shownPercent = -1;
};

} // namespace NCli
