// SPDX-License-Identifier: Apache-2.0
#include <cli/Baseline.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <cli/Sarif.h>
#include <cli/Text.h>

namespace NCli {
namespace {

using VJson = nlohmann::json;

std::size_t EndOfDigits(std::string const& text, std::size_t start) {
    return std::min(text.find_first_not_of("0123456789", start), text.size());
}

/// A message without what changes when lines are added elsewhere, or when some of the references into a missing
/// document are removed.
std::string Lasting(std::string message) {
    constexpr std::string_view kLine = " at line ";
    for (std::size_t at = message.find(kLine); at != std::string::npos; at = message.find(kLine, at + 1)) {
        std::size_t const start = at + kLine.size();
        message.erase(start, EndOfDigits(message, start) - start);
    }
    std::string const counted = message.substr(EndOfDigits(message, 0));
    for (std::string_view const lead : {" references lead into ", " reference leads into "}) {
        if (counted.size() != message.size() && counted.compare(0, lead.size(), lead) == 0) {
            return "references into " + counted.substr(lead.size());
        }
    }
    return message;
}

std::string KeyOf(std::string const& file, std::string const& code, std::string const& message) {
    return file + '\n' + code + '\n' + Lasting(message);
}

std::string KeyOfFinding(VJson const& finding) {
    return KeyOf(finding.at("file").get<std::string>(), finding.at("code").get<std::string>(),
                 finding.at("message").get<std::string>());
}

std::string KeyOfResult(VJson const& result) {
    VJson const& location = result.at("locations").at(0).at("physicalLocation").at("artifactLocation");
    return KeyOf(location.at("uri").get<std::string>(), result.at("ruleId").get<std::string>(),
                 result.at("message").at("text").get<std::string>());
}

VJson::array_t const& ListOf(VJson const& object, char const* member) {
    return object.at(member).get_ref<VJson::array_t const&>(); // throws for anything else
}

VJson ReadJson(std::string const& file) {
    std::filesystem::path const path = std::filesystem::u8path(file);
    std::error_code error;
    std::ifstream stream(path, std::ios::binary);
    if (!stream || std::filesystem::is_directory(path, error)) {
        throw std::runtime_error(fmt::format("the baseline '{}' cannot be read", Shown(file)));
    }
    return VJson::parse(stream);
}

} // namespace

VBaseline::VBaseline(std::string const& file) {
    try {
        VJson const log = ReadJson(file);
        m_isSarif = log.contains("runs");
        for (VJson const& finding : m_isSarif ? ListOf(log.at("runs").at(0), "results") : ListOf(log, "diagnostics")) {
            ++m_left[m_isSarif ? KeyOfResult(finding) : KeyOfFinding(finding)];
        }
    } catch (VJson::exception const&) {
        throw std::runtime_error(
            fmt::format("'{}' is not a baseline: it is not output of 'check' in JSON or SARIF", Shown(file)));
    }
}

bool VBaseline::Covers(NReader::VDiagnostic const& diagnostic) {
    if (m_left.empty()) {
        return false;
    }
    auto const found =
        m_left.find(m_isSarif ? KeyOf(SarifUriOf(diagnostic.file), diagnostic.code, SarifMessageOf(diagnostic.message))
                              : KeyOf(diagnostic.file, diagnostic.code, diagnostic.message));
    if (found == m_left.end() || found->second == 0) {
        return false;
    }
    --found->second;
    return true;
}

} // namespace NCli
