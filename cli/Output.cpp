// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Output.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <diagkit/cli/Platform.h>

namespace NCli {

VOutput::VOutput() : m_isColoured(IsTerminal(stdout) && std::getenv("NO_COLOR") == nullptr) {}

void VOutput::Write(std::string_view text) {
    if (m_error == 0 && std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        m_error = errno;
    }
}

void VOutput::WriteJson(nlohmann::ordered_json const& document) {
    // File names come as the user gave them and need not be UTF-8.
    Write(document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
    Write("\n");
}

void VOutput::WriteJsonLine(nlohmann::ordered_json const& document) {
    Write(document.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
    Write("\n");
}

std::string VOutput::Heading(std::string_view text) const {
    return m_isColoured ? fmt::format("\x1b[1m{}\x1b[0m", text) : std::string(text);
}

void VOutput::Complain(std::string_view message) const {
    if (std::fflush(stdout) != 0 && m_error == 0) {
        m_error = errno;
    }
    std::string const line = fmt::format("diagkit: {}\n", message);
    std::fwrite(line.data(), 1, line.size(), stderr);
}

bool VOutput::Finish() {
    if (m_error == 0 && std::fflush(stdout) != 0) {
        m_error = errno;
    }
    if (m_error == 0) {
        return true;
    }
    Complain(fmt::format("standard output: {}", std::generic_category().message(m_error)));
    return false;
}

} // namespace NCli
