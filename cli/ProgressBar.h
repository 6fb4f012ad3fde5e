// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace NCli {

/// A progress bar in one line of standard error. It appears when the work takes long and is removed afterwards.
class VProgressBar {
public:
    VProgressBar();
    ~VProgressBar();
    VProgressBar(VProgressBar const&) = delete;
    VProgressBar& operator=(VProgressBar const&) = delete;

    /// A callback for the steps done and in total; empty when nobody would see the bar.
    std::function<void(std::uint64_t done, std::uint64_t all)> Progress(bool isQuiet);

private:
    void Show(std::uint64_t done, std::uint64_t all);

    std::chrono::steady_clock::time_point m_start;
    int m_shownPercent = -1;
};

} // namespace NCli
