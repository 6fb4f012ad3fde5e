// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/SearchRange.h>

namespace NCli {

/// The path of the search for an output parameter from the parameters of a service to its result.
struct VOutParamPath {
    /// From a parameter of the request or a response to the one found, inclusive; empty when nothing has the name.
    std::vector<NODX201::VOdxElement const*> steps;
    /// The names of the parameters that did not match, including nested ones; if nothing is found, all.
    std::vector<std::wstring_view> names;
};

VOutParamPath PathToOutParam(NODX201::VDiagService& service, NODX201::VSearchRange range, std::wstring const& shortName,
                             NODX201::VDiagLayer& layer);

/// The steps before the parameter found: "POS-RESPONSE PR_Status > PARAM Wiper > STRUCTURE WiperStatus".
std::string Printed(VOutParamPath const& path);

} // namespace NCli
