// SPDX-License-Identifier: Apache-2.0
#include <cli/ProgressBar.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include <cli/Platform.h>

namespace NCli {
namespace {

constexpr std::chrono::milliseconds kPatience{300};
constexpr int kBarWidth = 40;
constexpr char const* kEraseLine = "\r\x1b[K";

} // namespace

VProgressBar::VProgressBar() : m_start(std::chrono::steady_clock::now()) {}

VProgressBar::~VProgressBar() {
    if (m_shownPercent >= 0) {
        std::fputs(kEraseLine, stderr);
    }
}

std::function<void(std::uint64_t done, std::uint64_t all)> VProgressBar::Progress(bool isQuiet) {
    if (isQuiet || !IsTerminal(stderr)) {
        return {};
    }
    return [this](std::uint64_t done, std::uint64_t all) { Show(done, all); };
}

void VProgressBar::Show(std::uint64_t done, std::uint64_t all) {
    if (all == 0 || std::chrono::steady_clock::now() - m_start < kPatience) {
        return;
    }
    double const part = static_cast<double>(std::min(done, all)) / static_cast<double>(all);
    int const percent = static_cast<int>(part * 100);
    if (percent == m_shownPercent) {
        return;
    }
    m_shownPercent = percent;
    auto const filled = static_cast<std::size_t>(percent * kBarWidth / 100);
    std::string const bar = std::string(filled, '#') + std::string(kBarWidth - filled, ' ');
    std::fprintf(stderr, "%s[%s] %3d %%", kEraseLine, bar.c_str(), percent);
    std::fflush(stderr);
}

} // namespace NCli
