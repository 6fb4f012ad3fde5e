// SPDX-License-Identifier: Apache-2.0
#include <cli/Output.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <fmt/format.h>

#include <cli/Platform.h>

namespace NCli {

VOutput::VOutput() : m_isColoured(IsTerminal(stdout) && std::getenv("NO_COLOR") == nullptr) {}

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
