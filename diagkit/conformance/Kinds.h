// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/OdxElement.h>

namespace NConformance {

/// A class of the contract that elements can have, and the tags that it represents.
struct VKind {
    wchar_t const* name;
    bool (*isOf)(NODX201::VOdxElement& element);
    std::vector<NODX201::VOdxTagEnum> tags;
};

/// The kinds of an element: one, if the model is correct.
std::vector<VKind const*> KindsOf(NODX201::VOdxElement& element);

/// What `Accept` calls back. For an element that takes no visitor: one call, with itself.
struct VVisit {
    bool isToCall = true;
    int calls = 1;
    bool isItself = true;
};
VVisit VisitOf(NODX201::VOdxElement& element);

/// Texts for violations: "VDiagService, VSingleEcuJob" and "PARAM VALUE".
std::wstring NamesOf(std::vector<VKind const*> const& kinds);
std::wstring TextOf(NODX201::VOdxTagEnum tag);

} // namespace NConformance
