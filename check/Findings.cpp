// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Findings.h>

#include <algorithm>
#include <utility>

#include <diagkit/check/Codes.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Utf8.h>

namespace NCheck {

void VFindings::Add(VFinding finding) {
    m_findings.Add(finding.position, FindCode(finding.code)->severity, finding.code, std::move(finding.message));
}

std::vector<NReader::VDiagnostic> VFindings::Sorted(NMemory::VDatabase const& database) const {
    return m_findings.Sorted(database);
}

NMemory::VPosition PositionOf(NODX201::VOdxElement const& element) {
    auto const* const node = dynamic_cast<NMemory::VMemNode const*>(&element);
    return node != nullptr ? node->GetPosition() : NMemory::VPosition{};
}

NODX201::VDiagLayer* LayerOf(NODX201::VOdxElement& element) {
    for (NODX201::VOdxObject* object = &element; object != nullptr; object = object->GetOwner()) {
        if (auto* const layer = dynamic_cast<NODX201::VDiagLayer*>(object)) {
            return layer;
        }
    }
    return nullptr;
}

std::vector<NODX201::VDiagLayer*> LayersOf(NMemory::VDatabase& database) {
    std::vector<NODX201::VDiagLayer*> layers;
    NReader::ForEachLayer(database, [&layers](NODX201::VDiagLayer& layer) { layers.push_back(&layer); });
    return layers;
}

std::string Quoted(wchar_t const* text) { return "'" + NReader::ToUtf8(text) + "'"; }

std::string TagOf(NODX201::VOdxElement const& element) {
    return NReader::ToUtf8(NODX201::OdxTagText(element.GetOdxTag()));
}

std::string Titled(NODX201::VOdxElement const& element) {
    return TagOf(element) + ' ' + Quoted(element.GetShortName());
}

namespace {

std::string ListedOf(std::vector<std::string> const& items, std::size_t count) {
    std::string text;
    std::size_t const listed = std::min(items.size(), kMostListed);
    for (std::size_t index = 0; index < listed; ++index) {
        text += (index > 0 ? ", " : "") + items[index];
    }
    return count > listed ? text + " and " + std::to_string(count - listed) + " more" : text;
}

} // namespace

std::string Listed(std::vector<std::string> const& items) { return ListedOf(items, items.size()); }

std::string InLayers(std::vector<NODX201::VDiagLayer*> const& layers, std::size_t count) {
    std::vector<std::string> names;
    for (NODX201::VDiagLayer const* const layer : layers) {
        names.push_back(Quoted(layer->GetShortName()));
    }
    return (count == 1 ? "in the layer " : "in the layers ") + ListedOf(names, count);
}

} // namespace NCheck
