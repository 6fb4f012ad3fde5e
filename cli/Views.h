// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

#include <cli/Arguments.h>
#include <cli/Output.h>
#include <cli/Status.h>
#include <diagkit/memory/Database.h>

/// The KINDs of `view`, each in the source of its name, and what they share.

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

/// The answer of a KIND in JSON: the entries in view order, in the context of what was viewed.
void WriteViewAsJson(std::string_view kind, NODX201::VOdxElement const& context,
                     std::vector<NODX201::VOdxElement const*> const& entries, VOutput& output);

} // namespace NCli
