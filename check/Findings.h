// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <diagkit/memory/Node.h>
#include <diagkit/model/Layers.h>
#include <diagkit/reader/Findings.h>
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
    std::function<void()> const& layerDone;             ///< called by topics that take layers one by one
};

NMemory::VPosition PositionOf(NODX201::VOdxElement const& element);

/// The layer that an element stands in; null outside layers. A layer stands in itself.
NODX201::VDiagLayer* LayerOf(NODX201::VOdxElement& element);

std::vector<NODX201::VDiagLayer*> LayersOf(NMemory::VDatabase& database); ///< in document order

std::string Quoted(wchar_t const* text);                 ///< 'NAME'
std::string TagOf(NODX201::VOdxElement const& element);  ///< "ECU-VARIANT"
std::string Titled(NODX201::VOdxElement const& element); ///< "ECU-VARIANT 'NAME'"

/// Of very many things messages name this many, and say how many more there are.
inline constexpr std::size_t kMostListed = 10;

std::string Listed(std::vector<std::string> const& items); ///< with commas

/// "in the layer 'A'", "in the layers 'A', 'B'": of `count` layers, of which the first are given.
std::string InLayers(std::vector<NODX201::VDiagLayer*> const& layers, std::size_t count);

} // namespace NCheck
