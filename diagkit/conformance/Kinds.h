// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/OdxElement.h>

namespace NConformance {

/// A class of the contract that elements are of, and the tags that it stands for.
struct VKind {
    wchar_t const* name;
    bool (*isOf)(NODX201::VOdxElement& element);
    std::vector<NODX201::VOdxTagEnum> tags;
};

/// The kinds that an element is of: one, if the model is sound.
std::vector<VKind const*> KindsOf(NODX201::VOdxElement& element);

/// What `Accept` calls back. An element that takes no visitor is fine: it called once, with itself.
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
