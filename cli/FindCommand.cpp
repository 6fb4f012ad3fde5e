// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>
#include <set>
#include <string>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/Csv.h>
#include <cli/Entry.h>
#include <cli/FindText.h>
#include <cli/Load.h>
#include <cli/NearNames.h>
#include <cli/Text.h>
#include <diagkit/query/FilePlace.h>
#include <diagkit/query/Find.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

/// Every tag of ODX, as --kind takes them.
std::set<std::wstring_view> AllTagTexts() {
    return {
#define ODX_TAG(name, value, element, type) L##element,
#include <diagkit/model/OdxTags.def>
    };
}

/// Says that there is no such tag; false when there is one, or none is wanted.
bool IsUnknownTag(std::string const& tag, VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(tag);
    std::set<std::wstring_view> const tags = AllTagTexts();
    if (tag.empty() || tags.count(wanted) != 0) {
        return false;
    }
    output.Complain(fmt::format("unknown tag '{}'{}; see --help", Shown(wanted),
                                NearNote(wanted, std::vector<std::wstring_view>(tags.begin(), tags.end()))));
    return true;
}

/// Null, with a message, for a pattern that is none.
std::unique_ptr<NQuery::VFinder> MakeFinder(VArguments const& arguments, VOutput const& output) {
    using VSyntax = NQuery::VFinder::VSyntax;
    try {
        return std::make_unique<NQuery::VFinder>(NReader::FromUtf8(arguments.name),
                                                 arguments.isRegex ? VSyntax::Regex : VSyntax::Text);
    } catch (NQuery::VPatternError const& error) {
        output.Complain(fmt::format("invalid pattern '{}': {}; see --help", Shown(std::string_view(arguments.name)),
                                    Shown(std::string_view(error.what()))));
        return nullptr;
    }
}

/// What a call looks through, and how.
struct VSearching {
    VArguments const& arguments;
    NReader::VReadResult const& result;
    NQuery::VFinder& finder;

    bool IsWanted(NODX201::VOdxElement const& element) const {
        return arguments.tag.empty() || TagTextOf(element) == arguments.tag;
    }

    /// Calls `take` with the matches of each element that has some; says how many these are.
    template <class Take>
    std::size_t ForEach(Take take) const {
        std::size_t count = 0;
        for (NODX201::VOdxElement* const element : result.elements) {
            std::vector<NQuery::VFindMatch> const matches =
                IsWanted(*element) ? finder.In(*element) : std::vector<NQuery::VFindMatch>();
            if (!matches.empty()) {
                take(matches);
                ++count;
            }
        }
        return count;
    }
};

std::size_t WriteAsJson(VSearching const& searching, VOutput& output) {
    std::size_t count = 0;
    WriteJson(output, [&](VJsonWriter& json) {
        auto const write = [&](NQuery::VFindMatch const& match) {
            NQuery::VFilePlace const place = NQuery::FilePlaceOf(*searching.result.database, *match.element);
            json.Object([&] {
                WriteEntryMembers(json, *match.element);
                json.Member("matched", FieldName(match.field));
                json.Member("text", match.text);
                json.TextOrNull("file", place.file);
                json.Member("line", place.line);
            });
        };
        json.Object([&] {
            json.Member("pattern", searching.arguments.name);
            json.Array("matches", [&] {
                count = searching.ForEach([&write](std::vector<NQuery::VFindMatch> const& matches) {
                    std::for_each(matches.begin(), matches.end(), write);
                });
            });
        });
    });
    return count;
}

std::size_t WriteAsCsv(VSearching const& searching, VOutput& output) {
    VCsvWriter csv(output, {DIAGKIT_ENTRY_COLUMNS, "matched", "text", "file", "line"});
    return searching.ForEach([&](std::vector<NQuery::VFindMatch> const& matches) {
        for (NQuery::VFindMatch const& match : matches) {
            csv.Row([&] {
                WriteEntryCells(csv, match.element);
                csv.Cell(std::string_view(FieldName(match.field)));
                csv.Cell(std::wstring_view(match.text));
                WritePlaceCells(csv, NQuery::FilePlaceOf(*searching.result.database, *match.element));
            });
        }
    });
}

std::size_t WriteText(VSearching const& searching, VOutput& output) {
    constexpr std::size_t kTextColumn = 3;
    VGroups groups(kTextColumn);
    std::size_t const count = searching.ForEach([&](std::vector<NQuery::VFindMatch> const& matches) {
        AddMatches(groups, *searching.result.database, matches, output.Width());
    });
    if (count != 0) {
        std::string const pattern = Cut(Shown(std::string_view(searching.arguments.name)));
        output.Write(output.Heading(fmt::format("'{}' in {}", pattern, Counted(count, "element"))));
        output.Write("\n");
        groups.Write(output);
    }
    return count;
}

/// Nothing matches: the pattern may be a misspelt name. Names of more than a few other letters are no help.
void ComplainOfNothing(VSearching const& searching, VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(searching.arguments.name);
    std::vector<std::wstring_view> names;
    for (NODX201::VOdxElement const* const element : searching.result.elements) {
        if (!searching.arguments.isRegex && searching.IsWanted(*element)) {
            names.emplace_back(element->GetShortName());
        }
    }
    std::string const& tag = searching.arguments.tag;
    output.Complain(fmt::format("no {} matches '{}'{}", tag.empty() ? "element" : tag, Shown(wanted),
                                NearNote(wanted, names, wanted.size() / 4)));
}

} // namespace

void DeclareFind(CLI::App& command, VArguments& arguments) {
    command.add_option("PATTERN", arguments.name, "A text; case is ignored, and parts of words match")
        ->required()
        ->type_name("");
    command.add_flag("--regex", arguments.isRegex, "PATTERN is a regular expression (ECMAScript)");
    DeclareTag(command, arguments, "Search only elements with this tag");
    DeclareCsv(command, arguments);
    DeclareWide(command, arguments);
    DeclareFiles(command, arguments);
}

VStatus RunFind(VArguments const& arguments, VOutput& output) {
    std::unique_ptr<NQuery::VFinder> const finder = MakeFinder(arguments, output);
    if (finder == nullptr || IsUnknownTag(arguments.tag, output)) {
        return VStatus::Usage;
    }
    NReader::VReadResult result;
    if (VStatus const status = LoadElements(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    VSearching const searching{arguments, result, *finder};
    std::size_t const count = arguments.isJson  ? WriteAsJson(searching, output)
                              : arguments.isCsv ? WriteAsCsv(searching, output)
                                                : WriteText(searching, output);
    if (count == 0) {
        ComplainOfNothing(searching, output);
        return VStatus::NotThere;
    }
    return VStatus::Done;
}

} // namespace NCli
