// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include <cli/Arguments.h>
#include <cli/Output.h>
#include <cli/Status.h>
#include <diagkit/memory/Database.h>

/// The KINDs of `view`, each in the source of its name, and their common parts.

namespace NCli {

VStatus ViewDiagComms(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewDiagVariables(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewGlobalNegResponses(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewDops(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewProtocols(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewInParams(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewOutParams(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewIdents(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);
VStatus ViewSessions(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output);

/// The output for a KIND in JSON: the entries in view order, in the context of the viewed element.
void WriteViewAsJson(std::string_view kind, NODX201::VOdxElement const& context,
                     std::vector<NODX201::VOdxElement const*> const& entries, VOutput& output);

} // namespace NCli
