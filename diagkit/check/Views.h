// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/Inheritance.h>

/// The elements visible in a layer, as plain lists in view order, and which of them are the layer's own.

namespace NCheck {

std::vector<NODX201::VDiagComm*> DiagCommsIn(NODX201::VDiagLayer& layer);
std::vector<NODX201::VDopBase*> DopsIn(NODX201::VDiagLayer& layer);
std::vector<NODX201::VDiagVariable*> DiagVariablesIn(NODX201::VDiagLayer& layer);
std::vector<NODX201::VGlobalNegResponse*> GlobalNegResponsesIn(NODX201::VDiagLayer& layer);

std::vector<NODX201::VDiagComm*> OwnDiagComms(NODX201::VDiagLayer& layer);
std::vector<NODX201::VDopBase*> OwnDops(NODX201::VDiagLayer& layer);
std::vector<NODX201::VDiagVariable*> OwnDiagVariables(NODX201::VDiagLayer& layer);
std::vector<NODX201::VGlobalNegResponse*> OwnGlobalNegResponses(NODX201::VDiagLayer& layer);

/// The elements visible in the layers of one database; parents are computed once.
struct VViews {
    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDiagComms> diagComms;
    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDops> dops;
    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDiagVariables> diagVariables;
    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedGlobalNegResponses> globalNegResponses;
};

/// Short names; they view the texts of the elements.
using VNames = std::unordered_set<std::wstring_view>;

/// Elements by short name; of several of one name the first.
template <class Element>
std::unordered_map<std::wstring_view, Element*> ByShortName(std::vector<Element*> const& elements) {
    std::unordered_map<std::wstring_view, Element*> byName;
    for (Element* const element : elements) {
        byName.emplace(element->GetShortName(), element);
    }
    return byName;
}

} // namespace NCheck
