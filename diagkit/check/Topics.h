// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <diagkit/check/Codes.h>
#include <diagkit/check/Views.h>
#include <diagkit/model/Layers.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Findings.h>
#include <diagkit/reader/Naming.h>
#include <diagkit/reader/OdxReader.h>

namespace NCheck {

/// The findings of the topics, each kind a `VCode` of its name.
namespace NCode {
#define DIAGNOSTIC(name, code, severity, title) inline constexpr VCode name{code, NReader::VSeverity::severity, title};
#include <diagkit/check/Codes.def>
} // namespace NCode

/// The input of the topics, and their progress callback.
struct VChecked {
    NMemory::VDatabase& database;
    std::vector<NODX201::VOdxElement*> const& elements; ///< all, in document order
    VViews& views;                                      ///< of the layers
    std::function<void()> const& layerDone;             ///< called by topics that take layers one by one
};

/// The innermost element of the class around an element, possibly itself; null where there is none.
template <class Element>
Element* Around(NODX201::VOdxElement& inner) {
    for (NODX201::VOdxObject* object = &inner; object != nullptr; object = object->GetOwner()) {
        if (auto* const element = dynamic_cast<Element*>(object)) {
            return element;
        }
    }
    return nullptr;
}

std::string ListedIn(NReader::VCycleSearch::VChain const& chain); ///< the titles of its elements, as `Listed` has them

// Functions to collect findings, and to name elements in messages.
using NReader::InLayers;
using NReader::kMostListed;
using NReader::LayersOf;
using NReader::Listed;
using NReader::PositionOf;
using NReader::Quoted;
using NReader::TagOf;
using NReader::Titled;
using NReader::VFindings;

// The topics, each in the source of its name. The order of their findings is unspecified, but the same on every run.
void CheckShortNames(VChecked const& checked, VFindings& findings);
void CheckDocrefs(VChecked const& checked, VFindings& findings);
void CheckLayerReferences(VChecked const& checked, VFindings& findings);
void CheckExclusions(VChecked const& checked, VFindings& findings);
void CheckAmbiguousNames(VChecked const& checked, VFindings& findings);
void CheckShortNameReferences(VChecked const& checked, VFindings& findings);
void CheckCycles(VChecked const& checked, VFindings& findings);
void CheckCodedTypes(VChecked const& checked, VFindings& findings);
void CheckConstants(VChecked const& checked, VFindings& findings);
void CheckConversions(VChecked const& checked, VFindings& findings);
void CheckKeys(VChecked const& checked, VFindings& findings);
void CheckUnits(VChecked const& checked, VFindings& findings); // in Keys.cpp
void CheckPlacement(VChecked const& checked, VFindings& findings);
void CheckRequestsAlike(VChecked const& checked, VFindings& findings);

} // namespace NCheck
