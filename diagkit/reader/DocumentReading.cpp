// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/DocumentReading.h>

#include <iterator>
#include <utility>

#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

template <class Item>
void Append(std::vector<Item>& items, std::vector<Item>&& later) {
    items.insert(items.end(), std::make_move_iterator(later.begin()), std::make_move_iterator(later.end()));
    later = {};
}

} // namespace

void VCollected::Append(VCollected&& later) {
    findings.Append(std::move(later.findings));
    NReader::Append(documents, std::move(later.documents));
    for (auto const& [name, count] : later.unknownElements) {
        unknownElements[name] += count;
    }
    NReader::Append(links, std::move(later.links));
    NReader::Append(parentRefs, std::move(later.parentRefs));
    NReader::Append(elements, std::move(later.elements));
    idsLeftOut.merge(later.idsLeftOut);
}

VDocumentReading::VDocumentReading(NMemory::VDatabase& database, VReadOptions const& options)
    : m_database(database), m_part(std::make_unique<NMemory::VPart>(database)) {
    findings = VFindings(options.maxDiagnostics);
    keepsElements = options.keepsElements;
}

VDocumentReading::~VDocumentReading() {
    if (m_part != nullptr) {
        m_part->Close();
    }
}

void VDocumentReading::AddInstruction(std::wstring name, std::wstring content) {
    m_instructions.emplace_back(std::move(name), std::move(content));
}

void VDocumentReading::Complete(std::uint32_t document, NMemory::VPosition const& root,
                                std::string const& modelVersion) {
    if (m_categories.empty()) {
        findings.Add(root, NCode::NoCategory, "the document has no supported category, so nothing was loaded");
    }
    for (VCategory const& category : m_categories) {
        documents.push_back({m_database.GetDocumentName({document, 0, 0}), modelVersion, category.name,
                             ToUtf8(category.made->GetShortName())});
    }
    m_part->Complete();
}

void VDocumentReading::AdoptInto(VReading& reading) {
    m_database.Adopt(std::move(m_part));
    for (VCategory& category : m_categories) {
        category.adopt(m_database.GetMemOdx(), std::move(category.made));
    }
    for (auto const& [name, content] : m_instructions) {
        m_database.AddProcessingInstruction(name.c_str(), content.c_str());
    }
    reading.Append(std::move(*this));
}

} // namespace NReader
