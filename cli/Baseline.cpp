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

std::string KeyOf(std::string const& file, std::string const& code, std::string const& message) {
    return file + '\n' + code + '\n' + message;
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
