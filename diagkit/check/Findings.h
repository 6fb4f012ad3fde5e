// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <diagkit/check/Views.h>
#include <diagkit/memory/Node.h>
#include <diagkit/model/Layers.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Findings.h>
#include <diagkit/reader/Naming.h>
#include <diagkit/reader/OdxReader.h>

/// What the topics report, and how they name elements in messages.

namespace NCheck {

struct VFinding {
    char const* code; ///< of `Codes()`, which has its severity
    NMemory::VPosition position;
    std::string message;
};

/// Findings of the topics, up to the limit of diagnostics of each severity.
class VFindings {
public:
    explicit VFindings(std::uint64_t limit) : m_findings(limit) {}

    void Add(VFinding finding);
    std::vector<NReader::VDiagnostic> Sorted(NMemory::VDatabase const& database) const;

private:
    NReader::VFindings m_findings;
};

/// What the topics look at, and whom they tell how far they are.
struct VChecked {
    NMemory::VDatabase& database;
    std::vector<NODX201::VOdxElement*> const& elements; ///< all, in document order
    VViews& views;                                      ///< of the layers
    std::function<void()> const& layerDone;             ///< called by topics that take layers one by one
};

NMemory::VPosition PositionOf(NODX201::VOdxElement const& element);

std::string ListedIn(NReader::VCycleSearch::VChain const& chain); ///< the titles of its elements, as `Listed` has them

// How messages name things.
using NDIAGKIT::LayerOf;
using NReader::InLayers;
using NReader::kMostListed;
using NReader::LayersOf;
using NReader::Listed;
using NReader::Quoted;
using NReader::TagOf;
using NReader::Titled;

} // namespace NCheck
