// SPDX-License-Identifier: Apache-2.0
#include <cli/Arguments.h>

#include <algorithm>
#include <charconv>
#include <system_error>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/NearNames.h>
#include <cli/Sizes.h>
#include <cli/Text.h>
#include <diagkit/Version.h>

namespace NCli {
namespace {

CLI::Option& DeclareSize(CLI::App& command, char const* name, std::uint64_t& size, char const* help) {
    auto const take = [name, &size](std::string const& text) {
        std::optional<std::uint64_t> const taken = SizeIn(text);
        if (!taken.has_value()) {
            throw CLI::ValidationError(name, fmt::format("'{}' is not a size such as 512M", text));
        }
        size = *taken;
    };
    return *command.add_option_function<std::string>(name, take, help)->type_name("SIZE");
}

} // namespace

void RefuseEmpty(CLI::Option& option) {
    option.check([](std::string const& name) { return std::string(name.empty() ? "an empty name is not valid" : ""); });
}

void DeclareTag(CLI::App& command, VArguments& arguments, char const* help) {
    RefuseEmpty(*command.add_option("--kind", arguments.tag, help)->type_name("TAG"));
}

void DeclareOneOf(CLI::Option& option, VArguments& arguments, char const* noun, std::vector<std::string> const& names) {
    option.check([noun, names](std::string const& word) -> std::string {
        bool const isOne = std::find(names.begin(), names.end(), word) != names.end();
        return isOne ? "" : fmt::format("no {} '{}'{}", noun, Shown(word), NearOrAllNote(word, names));
    });
    arguments.choices[&option] = names;
}

void DeclareChoice(CLI::App& command, VArguments& arguments, char const* name, std::string& value,
                   std::vector<std::string> const& choices, char const* help) {
    CLI::Option& option = *command.add_option(name, value, help)->type_name("WORD");
    DeclareOneOf(option, arguments, "word", choices);
}

CLI::Option& DeclareCount(CLI::App& command, char const* name, std::uint64_t& count, char const* help) {
    auto const take = [name, &count](std::string const& text) {
        char const* const end = text.data() + text.size();
        auto const [rest, error] = std::from_chars(text.data(), end, count);
        if (error != std::errc() || rest != end) {
            throw CLI::ValidationError(name, fmt::format("'{}' is not a number such as 5000", text));
        }
    };
    auto& option = *command.add_option_function<std::string>(name, take, help)->type_name("N");
    return *option.default_str(fmt::format("{}", count));
}

namespace {

struct VLimitRow {
    char const* name;
    std::uint64_t NReader::VReadLimits::*limit;
    bool isSize;
    char const* help;
};

// clang-format off
constexpr VLimitRow kLimits[] = {
    {"--max-file-size",    &NReader::VReadLimits::maxFileSize,    true,  "Size of a document or package on disk"},
    {"--max-members",      &NReader::VReadLimits::maxMembers,     false, "Members of a package"},
    {"--max-member-size",  &NReader::VReadLimits::maxMemberSize,  true,  "Unpacked size of one member of a package"},
    {"--max-package-size", &NReader::VReadLimits::maxPackageSize, true,  "Unpacked size of all members of a package"},
    {"--max-ratio",        &NReader::VReadLimits::maxRatio,       false, "Unpacked bytes for each packed byte"},
    {"--max-elements",     &NReader::VReadLimits::maxElements,    false, "Elements of a document"},
    {"--max-depth",        &NReader::VReadLimits::maxDepth,       false, "Depth of nested elements"},
    {"--max-attributes",   &NReader::VReadLimits::maxAttributes,  false, "Attributes of an element"},
    {"--max-tag-size",     &NReader::VReadLimits::maxTagSize,     true,  "Size of a tag or comment"},
    {"--max-text-size",    &NReader::VReadLimits::maxTextSize,    true,  "Size of the text of an element"},
    {"--max-diagnostics",  &NReader::VReadLimits::maxDiagnostics, false, "Errors, warnings and notes, of each, to report"},
};
// clang-format on

} // namespace

void DeclareCommonOptions(CLI::App& command, VArguments& arguments) {
    command.add_flag("--json", arguments.isJson, "Print JSON on standard output");
    command.add_flag("--strict", arguments.isStrict, "Exit with status 3 if the files have errors");
    command.add_flag("--quiet", arguments.isQuiet, "Print no diagnostics and no progress on standard error");
    command.set_version_flag("-V,--version", "diagkit " DIAGKIT_VERSION, "Print the version and exit");
}

void DeclareCsv(CLI::App& command, VArguments& arguments) {
    command.add_flag("--csv", arguments.isCsv, "Print a table for spreadsheets (RFC 4180) on standard output");
}

void DeclareWide(CLI::App& command, VArguments& arguments) {
    command.add_flag("--wide", arguments.isWide, "Do not shorten text to 80 columns or the width of the terminal");
}

CLI::Option& DeclareLayer(CLI::App& command, VArguments& arguments) {
    auto& option =
        *command.add_option("--layer", arguments.layer, "The layer: its short name or ID, or CONTAINER/LAYER");
    RefuseEmpty(option);
    return *option.type_name("L");
}

void DeclareSelections(CLI::App& command, VArguments& arguments) {
    DeclareLayer(command, arguments);
    command.add_option("--container", arguments.container, "A DIAG-LAYER-CONTAINER")->type_name("C");
    command.add_option("--diag-comm", arguments.diagComm, "A service or job visible in the layer")->type_name("D");
    command.add_option("--job", arguments.job, "A MULTIPLE-ECU-JOB")->type_name("J");
    command.add_option("--flash", arguments.flash, "A FLASH")->type_name("F");
    auto* const range = command.add_option("--range", arguments.range,
                                           "Which parameters of a service count as output, 0 to 5 (default: 5)");
    range->check(CLI::Range(0, 5))->type_name("N");
    arguments.choices[range] = {"0", "1", "2", "3", "4", "5"};
}

void DeclareFiles(CLI::App& command, VArguments& arguments) {
    command
        .add_option("FILE", arguments.files,
                    "ODX documents, PDX packages, or folders of them; together they form one database")
        ->required()
        ->type_name("");
    DeclareReading(command, arguments);
}

void DeclareReading(CLI::App& command, VArguments& arguments) {
    command.add_flag("--verbose", arguments.readOptions.tellsEachReference,
                     "Report every reference into a document that is not loaded, not only their number");
    for (VLimitRow const& row : kLimits) {
        std::uint64_t& limit = arguments.readOptions.*row.limit;
        CLI::Option& option = row.isSize ? DeclareSize(command, row.name, limit, row.help)
                                         : DeclareCount(command, row.name, limit, row.help);
        if (row.isSize) {
            option.default_str(SizeText(limit));
        }
        option.group("Limits, for files known to be large (SIZE as in 512M)");
    }
}

} // namespace NCli
