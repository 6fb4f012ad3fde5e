// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/Sarif.h>

#include <algorithm>
#include <filesystem>
#include <string_view>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <diagkit/Version.h>
#include <diagkit/check/Codes.h>

namespace NCli {
namespace {

using VJson = nlohmann::ordered_json;

bool StaysInUri(char character) {
    constexpr std::string_view kPlain = "-._~/!";
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z') || kPlain.find(character) != std::string_view::npos;
}

std::string UriOf(std::string const& file) {
    std::filesystem::path const path = std::filesystem::u8path(file);
    std::string const generic = path.generic_u8string();
    std::string uri = !path.is_absolute() ? "" : generic.front() == '/' ? "file://" : "file:///";
    for (char const character : generic) {
        if (StaysInUri(character)) {
            uri += character;
        } else {
            uri += fmt::format("%{:02X}", static_cast<unsigned char>(character));
        }
    }
    return uri;
}

/// SARIF takes single braces in a message for placeholders.
std::string MessageOf(std::string const& text) {
    std::string message;
    for (char const character : text) {
        message.append(character == '{' || character == '}' ? 2 : 1, character);
    }
    return message;
}

VJson RuleOf(NCheck::VCode const& code) {
    VJson rule;
    rule["id"] = code.code;
    rule["shortDescription"]["text"] = code.title;
    rule["defaultConfiguration"]["level"] = SeverityText(code.severity);
    return rule;
}

VJson DriverOf() {
    VJson driver;
    driver["name"] = "diagkit";
    driver["version"] = DIAGKIT_VERSION;
    driver["rules"] = VJson::array();
    for (NCheck::VCode const& code : NCheck::Codes()) {
        driver["rules"].push_back(RuleOf(code));
    }
    return driver;
}

VJson LocationOf(NReader::VDiagnostic const& diagnostic) {
    VJson location;
    location["artifactLocation"]["uri"] = UriOf(diagnostic.file);
    if (diagnostic.line != 0) {
        location["region"]["startLine"] = diagnostic.line;
        location["region"]["startColumn"] = std::max(diagnostic.column, 1U);
    }
    return {{"physicalLocation", std::move(location)}};
}

VJson ResultOf(NReader::VDiagnostic const& diagnostic) {
    VJson result;
    result["ruleId"] = diagnostic.code;
    if (NCheck::VCode const* const code = NCheck::FindCode(diagnostic.code)) {
        result["ruleIndex"] = code - NCheck::Codes().data();
    }
    result["level"] = SeverityText(diagnostic.severity);
    result["message"]["text"] = MessageOf(diagnostic.message);
    result["locations"] = VJson::array({LocationOf(diagnostic)});
    return result;
}

} // namespace

VJson SarifOf(std::vector<NReader::VDiagnostic> const& diagnostics) {
    VJson run;
    run["tool"]["driver"] = DriverOf();
    run["columnKind"] = "unicodeCodePoints";
    run["results"] = VJson::array();
    for (NReader::VDiagnostic const& diagnostic : diagnostics) {
        run["results"].push_back(ResultOf(diagnostic));
    }
    VJson log;
    log["$schema"] = "https://json.schemastore.org/sarif-2.1.0.json";
    log["version"] = "2.1.0";
    log["runs"] = VJson::array({std::move(run)});
    return log;
}

} // namespace NCli
