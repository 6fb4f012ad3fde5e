// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <cli/Arguments.h>
#include <cli/Columns.h>
#include <cli/Output.h>

/// What the commands with a KIND share: the list of kinds, and what each must be told to look at.

namespace NCli {

/// The options that select what to look at, as bits of a set.
enum VSelection : unsigned {
    kLayer = 1U << 0U,
    kContainer = 1U << 1U,
    kDiagComm = 1U << 2U,
    kJob = 1U << 3U,
    kFlash = 1U << 4U,
    kRange = 1U << 5U,
};

/// What a KIND can and must be told to look at.
struct VSelectionRule {
    unsigned taken;                                      ///< a set of `VSelection`
    char const* (*missing)(VArguments const& arguments); ///< what it needs beside what is given; null for nothing
    char const* usage;                                   ///< the selection, as help shows it
};

extern VSelectionRule const kLayerSelection;
extern VSelectionRule const kContainerSelection;
extern VSelectionRule const kContainerOrLayerSelection;
extern VSelectionRule const kDiagCommSelection;        ///< in a layer, or a MULTIPLE-ECU-JOB
extern VSelectionRule const kOutParamSelection;        ///< the same with a search range
extern VSelectionRule const kOutParamSelectionInLayer; ///< a layer in either case
extern VSelectionRule const kFlashSelection;

/// What is wrong with the selection of a call: "takes no --job", "needs --layer"; "" for one that fits.
std::string WrongSelection(VSelectionRule const& rule, VArguments const& arguments);

/// KIND, which must be one of the names.
void DeclareKind(CLI::App& command, VArguments& arguments, std::vector<std::string> const& names, char const* help);

/// What the values of --range mean, for help.
extern char const* const kRangesHelp;

template <class Kinds>
std::vector<std::string> NamesOf(Kinds const& kinds) {
    std::vector<std::string> names;
    names.reserve(kinds.size());
    for (auto const& kind : kinds) {
        names.emplace_back(kind.name);
    }
    return names;
}

/// Which selection belongs to which KIND, for help.
template <class Kinds>
std::string SelectionsOf(Kinds const& kinds) {
    VColumns columns;
    for (auto const& kind : kinds) {
        columns.Add({kind.name, kind.selection.usage});
    }
    return "Selection for each KIND:\n" + columns.Format();
}

/// The row of the KIND that was given, which the command line has checked to be there. Null, with a message, when the
/// selection does not fit it.
template <class Kinds>
auto const* FittingKind(std::string_view command, Kinds const& kinds, VArguments const& arguments,
                        VOutput const& output) {
    auto const* const kind = &*std::find_if(kinds.begin(), kinds.end(),
                                            [&arguments](auto const& row) { return arguments.kind == row.name; });
    std::string const wrong = WrongSelection(kind->selection, arguments);
    if (wrong.empty()) {
        return kind;
    }
    output.Complain(std::string(command) + ' ' + kind->name + ' ' + wrong + "; see --help");
    return static_cast<decltype(kind)>(nullptr);
}

} // namespace NCli
