// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <diagkit/cli/Arguments.h>

/// What the commands with a KIND share: the list of kinds, and what each must be told to look at.

namespace NCli {

/// What a KIND must be told; null for a selection that fits.
using VSelectionCheck = char const* (*)(VArguments const& arguments);

char const* NeedsLayer(VArguments const& arguments);
char const* NeedsContainer(VArguments const& arguments);
char const* NeedsContainerOrLayer(VArguments const& arguments);
char const* NeedsDiagComm(VArguments const& arguments);        ///< in a layer, or a MULTIPLE-ECU-JOB
char const* NeedsDiagCommInLayer(VArguments const& arguments); ///< a layer in either case
char const* NeedsFlash(VArguments const& arguments);

/// KIND, which must be one of the names.
void DeclareKind(CLI::App& command, VArguments& arguments, std::vector<std::string> const& names, char const* help);

template <class Kinds>
std::vector<std::string> NamesOf(Kinds const& kinds) {
    std::vector<std::string> names;
    names.reserve(kinds.size());
    for (auto const& kind : kinds) {
        names.emplace_back(kind.name);
    }
    return names;
}

/// The row of the KIND that was given, which the command line has checked to be there.
template <class Kinds>
auto const& KindOf(Kinds const& kinds, VArguments const& arguments) {
    return *std::find_if(kinds.begin(), kinds.end(),
                         [&arguments](auto const& kind) { return arguments.kind == kind.name; });
}

} // namespace NCli
