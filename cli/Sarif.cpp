// SPDX-License-Identifier: Apache-2.0
#include <cli/Sarif.h>

#include <algorithm>
#include <filesystem>
#include <string_view>

#include <fmt/format.h>

#include <diagkit/Version.h>
#include <diagkit/check/Codes.h>

namespace NCli {
namespace {

bool StaysInUri(char character) {
    constexpr std::string_view kPlain = "-._~/!";
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z') || kPlain.find(character) != std::string_view::npos;
}

void WriteRule(VJsonWriter& json, NCheck::VCode const& code) {
    json.Object([&] {
        json.Member("id", code.code);
        json.Object("shortDescription", [&] { json.Member("text", code.title); });
        json.Object("defaultConfiguration", [&] { json.Member("level", SeverityText(code.severity)); });
    });
}

void WriteDriver(VJsonWriter& json) {
    json.Object("driver", [&] {
        json.Member("name", "diagkit");
        json.Member("version", DIAGKIT_VERSION);
        json.ArrayOf("rules", NCheck::Codes(), [&json](NCheck::VCode const& code) { WriteRule(json, code); });
    });
}

void WriteLocation(VJsonWriter& json, NReader::VDiagnostic const& diagnostic) {
    json.Object("physicalLocation", [&] {
        json.Object("artifactLocation", [&] { json.Member("uri", SarifUriOf(diagnostic.file)); });
        if (diagnostic.line != 0) {
            json.Object("region", [&] {
                json.Member("startLine", diagnostic.line);
                json.Member("startColumn", std::max(diagnostic.column, 1U));
            });
        }
    });
}

void WriteResult(VJsonWriter& json, NReader::VDiagnostic const& diagnostic) {
    json.Object([&] {
        json.Member("ruleId", diagnostic.code);
        if (NCheck::VCode const* const code = NCheck::FindCode(diagnostic.code)) {
            json.Member("ruleIndex", code - NCheck::Codes().data());
        }
        json.Member("level", SeverityText(diagnostic.severity));
        json.Object("message", [&] { json.Member("text", SarifMessageOf(diagnostic.message)); });
        json.Array("locations", [&] { json.Object([&] { WriteLocation(json, diagnostic); }); });
    });
}

void WriteRun(VJsonWriter& json, std::vector<NReader::VDiagnostic> const& diagnostics) {
    json.Object([&] {
        json.Object("tool", [&] { WriteDriver(json); });
        json.Member("columnKind", "unicodeCodePoints");
        json.ArrayOf("results", diagnostics,
                     [&json](NReader::VDiagnostic const& diagnostic) { WriteResult(json, diagnostic); });
    });
}

} // namespace

std::string SarifUriOf(std::string const& file) {
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

std::string SarifMessageOf(std::string const& text) {
    std::string message;
    for (char const character : text) {
        message.append(character == '{' || character == '}' ? 2 : 1, character);
    }
    return message;
}

void WriteSarif(VJsonWriter& json, std::vector<NReader::VDiagnostic> const& diagnostics) {
    json.Object([&] {
        json.Member("$schema", "https://json.schemastore.org/sarif-2.1.0.json");
        json.Member("version", "2.1.0");
        json.Array("runs", [&] { WriteRun(json, diagnostics); });
    });
}

} // namespace NCli
