// SPDX-License-Identifier: Apache-2.0
#include <cli/Output.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <fmt/format.h>

#include <cli/Platform.h>

namespace NCli {
namespace {

std::size_t WidthOfLines() {
    constexpr std::size_t kUsual = 80;
    constexpr std::size_t kLeast = 40; // of anything narrower nobody reads a table
    std::size_t const width = TerminalWidth(stdout);
    return width == 0 ? kUsual : std::max(width, kLeast);
}

/// NO_COLOR counts when it is set, and not empty.
bool IsColourWanted() {
    char const* const variable = std::getenv("NO_COLOR");
    return variable == nullptr || *variable == '\0';
}

} // namespace

VOutput::VOutput() : m_isColoured(IsTerminal(stdout) && IsColourWanted()), m_width(WidthOfLines()) {}

void VOutput::Write(std::string_view text) {
    if (m_error == 0 && std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        m_error = errno;
    }
}

std::string VOutput::Heading(std::string_view text) const {
    return m_isColoured ? fmt::format("\x1b[1m{}\x1b[0m", text) : std::string(text);
}

void VOutput::Complain(std::string_view message) const {
    Flush();
    std::string const line = fmt::format("diagkit: {}\n", message);
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void VOutput::ComplainOfNoMemory() const noexcept {
    Flush();
    std::fputs(kOutOfMemory, stderr);
}

void VOutput::Flush() const noexcept {
    if (std::fflush(stdout) != 0 && m_error == 0) {
        m_error = errno;
    }
}

bool VOutput::Finish() {
    Flush();
    if (m_error == 0) {
        return true;
    }
    Complain(fmt::format("standard output: {}", std::generic_category().message(m_error)));
    return false;
}

} // namespace NCli
