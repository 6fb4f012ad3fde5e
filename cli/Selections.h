// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <cli/Arguments.h>
#include <cli/Columns.h>
#include <cli/Output.h>

/// Common to the commands with a KIND: the list of kinds, and the selections that each requires.

namespace NCli {

/// The options that select elements, as bits of a set.
enum VSelection : unsigned {
    kLayer = 1U << 0U,
    kContainer = 1U << 1U,
    kDiagComm = 1U << 2U,
    kJob = 1U << 3U,
    kFlash = 1U << 4U,
    kRange = 1U << 5U,
};

/// The selections that a KIND accepts and requires.
struct VSelectionRule {
    unsigned taken;                                      ///< a set of `VSelection`
    char const* (*missing)(VArguments const& arguments); ///< the missing requirement; null when there is none
    char const* usage;                                   ///< the selection, as help shows it
};

extern VSelectionRule const kLayerSelection;
extern VSelectionRule const kContainerSelection;
extern VSelectionRule const kContainerOrLayerSelection;
extern VSelectionRule const kDiagCommSelection;        ///< in a layer, or a MULTIPLE-ECU-JOB
extern VSelectionRule const kOutParamSelection;        ///< the same with a search range
extern VSelectionRule const kOutParamSelectionInLayer; ///< with a layer in either case
extern VSelectionRule const kFlashSelection;

/// The error in the selection of a call: "takes no --job", "requires --layer"; "" when there is none.
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

/// The selections of each KIND, for help.
template <class Kinds>
std::string SelectionsOf(Kinds const& kinds) {
    VColumns columns;
    for (auto const& kind : kinds) {
        columns.Add({kind.name, kind.selection.usage});
    }
    return "Selection for each KIND:\n" + columns.Format();
}

/// The row of the given KIND, which the command line has checked. Null, with a message, when the selection does not fit
/// it.
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
