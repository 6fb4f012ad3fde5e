// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/model/OdxElement.h>
#include <diagkit/query/InheritedKind.h>
#include <diagkit/tools/InheritanceNotes.h>

#include "support/NaiveInheritance.h"
#include "tools/ContentGraph.h"

namespace NTest {

/// A kind of inherited element, with its names in layer graphs, the reference implementation and the library.
struct VPlanKind {
    VContent content;
    VNaiveKind naive;
    NQuery::VInheritedKind query;
};

inline constexpr VPlanKind kPlanKinds[] = {
    {VContent::DiagComms, VNaiveKind::DiagComms, NQuery::VInheritedKind::DiagComm},
    {VContent::DiagVariables, VNaiveKind::DiagVariables, NQuery::VInheritedKind::DiagVariable},
    {VContent::GlobalNegResponses, VNaiveKind::GlobalNegResponses, NQuery::VInheritedKind::GlobalNegResponse},
    {VContent::Dops, VNaiveKind::Dops, NQuery::VInheritedKind::Dop},
};

inline std::wstring IdOfElement(NODX201::VOdxElement const& element) {
    return dynamic_cast<NODX201::VReferencable const&>(element).GetId();
}

/// "<Bv<Uds"
inline std::wstring PrintPath(std::vector<NDIAGKIT::VParent> const& path) {
    std::wstring text;
    for (NDIAGKIT::VParent const& step : path) {
        text += std::wstring(L"<") + step.layer.layer->GetShortName();
    }
    return text;
}

} // namespace NTest
