// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/MissingDocuments.h>

#include <string>

#include <diagkit/memory/Odx.h>
#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Utf8.h>

namespace NReader {

bool VMissingDocuments::IsLoaded(std::wstring_view shortName) {
    if (m_loaded.empty()) {
        auto const add = [this](auto& elements) {
            for (NODX201::VReferencable& element : elements) {
                m_loaded.insert(element.GetShortName());
            }
        };
        NMemory::VMemOdx& odx = m_database.GetMemOdx();
        add(odx.DiagLayerContainerCollection());
        add(odx.ComparamSpecCollection());
        add(odx.FlashCollection());
        add(odx.MultipleEcuJobSpecCollection());
        add(odx.VehicleInfoSpecCollection());
        for (NODX201::VDiagLayerContainer& container : odx.DiagLayerContainerCollection()) {
            add(container.DiagLayerCollection());
        }
    }
    return m_loaded.count(shortName) != 0;
}

bool VMissingDocuments::Take(NODX201::VOdxLink const& link, NMemory::VPosition const& position) {
    std::wstring_view const docref = link.GetDocref();
    if (docref.empty() || IsLoaded(docref)) {
        return false;
    }
    VReferences& references = m_missing[docref];
    if (references.count == 0 || IsBefore(position, references.first)) {
        references.first = position;
    }
    ++references.count;
    return true;
}

void VMissingDocuments::Report(VFindings& findings) const {
    for (auto const& [docref, references] : m_missing) {
        findings.Add(references.first, NCode::UnresolvedReference,
                     std::to_string(references.count) +
                         (references.count == 1 ? " reference leads into " : " references lead into ") +
                         ToUtf8(docref.substr(0, kLongestMessage)) + ", which is not loaded");
    }
}

} // namespace NReader
