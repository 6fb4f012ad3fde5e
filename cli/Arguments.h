// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <diagkit/reader/OdxReader.h>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace NCli {

/// The arguments of a call, of any command; UTF-8.
struct VArguments {
    std::vector<std::string> files; ///< FILE..., in the order given: they form one database
    bool isJson = false;
    bool isCsv = false;  ///< --csv, of the commands that have tables
    bool isWide = false; ///< --wide, of those whose text has columns
    bool isStrict = false;
    bool isQuiet = false;
    NReader::VReadOptions readOptions; ///< the limits, and --verbose

    std::string kind;                   ///< KIND of `view`, `resolve` and `explain`
    std::string name;                   ///< NAME of `resolve`, `explain`, `uses` and `show`, PATTERN of `find`
    std::optional<std::string> table;   ///< TABLE of `enums`; an empty one is a name, too
    std::optional<std::string> literal; ///< LITERAL or VALUE of `enums`
    std::string layer;                  ///< --layer: a short name or an ID, as of all selections
    std::string container;              ///< --container
    std::string diagComm;               ///< --diag-comm
    std::string job;                    ///< --job, a MULTIPLE-ECU-JOB
    std::string flash;                  ///< --flash
    std::string failOn = "error";       ///< --fail-on of `check`
    std::vector<std::string> ignored;   ///< --ignore: codes of `check`, differences of `diff`
    std::vector<std::string> only;      ///< --only of `check`: codes; all when empty
    std::string baseline;               ///< --baseline of `check`: an earlier result
    std::string format;                 ///< --format of `check` and `graph`; "" when not given
    std::optional<int> range;           ///< --range, a search range of output parameters

    bool isWithRequests = false;          ///< --requests of `view`
    bool isDictionary = false;            ///< --dictionary of `traverse`
    std::uint64_t maxVisits = 10'000'000; ///< --max-visits of `traverse`
    std::uint64_t maxCandidates = 1000;   ///< --max-candidates of `explain`
    bool isEach = false;                  ///< --each of `oem`
    std::string tag;                      ///< --kind of `uses`, `find` and `show`: a tag of ODX, "" for any
    std::uint64_t maxRows = 50'000;       ///< --max-rows of `show`
    bool isUnused = false;                ///< --unused of `uses`
    bool isRegex = false;                 ///< --regex of `find`

    std::vector<std::string> oldFiles; ///< --old of `diff`
    std::vector<std::string> newFiles; ///< --new of `diff`
    std::vector<std::string> layers;   ///< --layer of `diff`, which may be given more than once
    std::string toLayer;               ///< --to-layer of `diff`
    bool comparesIds = false;          ///< --ids of `diff`

    /// The possible values of a word or an option that accepts only certain ones.
    std::map<CLI::Option const*, std::vector<std::string>> choices;

    bool IsText() const {
        return !isJson && !isCsv && (format.empty() || format == "text");
    } ///< whether people read the answer
    int Range() const { return range.value_or(5); }
};

/// The options that every command has.
void DeclareCommonOptions(CLI::App& command, VArguments& arguments);

/// --csv, for commands whose answer is a table.
void DeclareCsv(CLI::App& command, VArguments& arguments);

/// --wide, for commands whose text has columns.
void DeclareWide(CLI::App& command, VArguments& arguments);

/// --layer alone, for commands that look at nothing else.
CLI::Option& DeclareLayer(CLI::App& command, VArguments& arguments);

/// For an option that names something: an empty name is wrong usage, not as good as none.
void RefuseEmpty(CLI::Option& option);

/// --kind, a tag of ODX.
void DeclareTag(CLI::App& command, VArguments& arguments, char const* help);

/// For an option or a word that is one of a few; `noun` is what messages call it.
void DeclareOneOf(CLI::Option& option, VArguments& arguments, char const* noun, std::vector<std::string> const& names);

/// An option that takes one of a few words.
void DeclareChoice(CLI::App& command, VArguments& arguments, char const* name, std::string& value,
                   std::vector<std::string> const& choices, char const* help);

/// An option that accepts a number: digits only.
CLI::Option& DeclareCount(CLI::App& command, char const* name, std::uint64_t& count, char const* help);

/// The options that select the subject of a command: each accepts a short name or an ID.
void DeclareSelections(CLI::App& command, VArguments& arguments);

/// FILE... and how they are read, for commands that work on a database.
void DeclareFiles(CLI::App& command, VArguments& arguments);

/// How files are read alone: the limits, and how much is told.
void DeclareReading(CLI::App& command, VArguments& arguments);

} // namespace NCli
