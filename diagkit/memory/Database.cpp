// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Database.h>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

#include <diagkit/memory/Odx.h>
#include <diagkit/memory/PlaceIndex.h>

namespace NMemory {

VDatabase::VDatabase() : m_places(std::make_unique<VPlaceIndex>()) {
    Adopt(std::make_unique<VPart>(*this));
    m_odx = std::make_unique<VMemOdx>(VPlace{nullptr, m_parts.front().get()});
}

VDatabase::~VDatabase() {
    // Elements that are destroyed with the whole database need not leave its index one by one.
    m_isClosing = true;
    m_resolver.reset();
    m_odx.reset();
}

NODX201::VOdx& VDatabase::GetOdx() { return *m_odx; }

VMemDiagLayerContainer& VDatabase::AddDiagLayerContainer(wchar_t const* shortName) {
    return m_odx->AddDiagLayerContainer(shortName);
}

VMemComparamSpec& VDatabase::AddComparamSpec(wchar_t const* shortName) { return m_odx->AddComparamSpec(shortName); }

VMemFlash& VDatabase::AddFlash(wchar_t const* shortName) { return m_odx->AddFlash(shortName); }

VMemMultipleEcuJobSpec& VDatabase::AddMultipleEcuJobSpec(wchar_t const* shortName) {
    return m_odx->AddMultipleEcuJobSpec(shortName);
}

VMemVehicleInfoSpec& VDatabase::AddVehicleInfoSpec(wchar_t const* shortName) {
    return m_odx->AddVehicleInfoSpec(shortName);
}

void VDatabase::AddProcessingInstruction(wchar_t const* name, wchar_t const* content) {
    m_odx->AddProcessingInstruction(name, content);
}

VFlashCollection& VDatabase::FlashCollection() { return m_odx->FlashCollection(); }

VMultipleEcuJobSpecCollection& VDatabase::MultipleEcuJobSpecCollection() {
    return m_odx->MultipleEcuJobSpecCollection();
}

VVehicleInfoSpecCollection& VDatabase::VehicleInfoSpecCollection() { return m_odx->VehicleInfoSpecCollection(); }

void VDatabase::SetResolverFactory(VResolverFactory factory) {
    m_resolverFactory = std::move(factory);
    m_resolver.reset();
}

void VDatabase::StartNewResolver() { m_resolver.reset(); }

NODX201::VAbstractSnrefResolver* VDatabase::GetResolver() {
    if (m_isResolverStale) {
        m_resolver.reset();
        m_isResolverStale = false;
    }
    if (m_resolver == nullptr && m_resolverFactory) {
        m_resolver = m_resolverFactory();
    }
    return m_resolver.get();
}

std::uint32_t VDatabase::AddDocumentName(std::string name) {
    m_documentNames.push_back(std::move(name));
    return static_cast<std::uint32_t>(m_documentNames.size());
}

std::string const& VDatabase::GetDocumentName(VPosition const& position) const {
    static std::string const unknown;
    bool const isKnown = position.document > 0 && position.document <= m_documentNames.size();
    return isKnown ? m_documentNames[position.document - 1] : unknown;
}

std::size_t VDatabase::Count(NODX201::VOdxTagEnum tag) const {
    auto const index = static_cast<std::size_t>(tag);
    return index < m_counts.size() ? m_counts[index] : 0;
}

void VDatabase::Adopt(std::unique_ptr<VPart>&& part) {
    if (part == nullptr || &part->GetDatabase() != this || !part->IsDetached()) {
        throw std::invalid_argument("a database adopts detached parts of its own");
    }
    m_parts.reserve(m_parts.size() + 1);
    m_counts.resize(std::max(m_counts.size(), part->m_counts.size()));
    m_parts.push_back(std::move(part));
    VPart& adopted = *m_parts.back();
    AddIds(adopted); // on failure the part stays detached, and is kept because the index refers to its texts
    std::transform(adopted.m_counts.begin(), adopted.m_counts.end(), m_counts.begin(), m_counts.begin(), std::plus<>());
    adopted.m_ids = {};
    adopted.m_isDetached = false;
    NoteChange();
}

/// Adds all IDs of a part, or none.
void VDatabase::AddIds(VPart const& part) {
    m_ids.MakeRoom(part.m_ids.size());
    std::size_t added = 0;
    try {
        for (; added < part.m_ids.size(); ++added) {
            VPart::VId const& held = part.m_ids[added];
            m_ids.Add(held.id, held.hash, *held.element);
        }
    } catch (...) {
        while (added > 0) {
            VPart::VId const& held = part.m_ids[--added];
            m_ids.Remove(held.id, *held.element);
        }
        throw;
    }
}

void VDatabase::NoteRedirection() {
    m_isResolverStale = true;
    NoteChange();
}

void VDatabase::Index(wchar_t const* id, NODX201::VReferencable& element) {
    if (*id != L'\0') {
        m_ids.Add(id, element);
        NoteChange();
    }
}

void VDatabase::Unindex(wchar_t const* id, NODX201::VReferencable const& element) {
    if (*id != L'\0' && !m_isClosing) {
        m_ids.Remove(id, element);
        NoteChange();
    }
}

std::wstring VDatabase::MakeId() {
    for (;;) {
        std::wstring id = L"diagkit." + std::to_wstring(++m_madeIds);
        if (m_ids.Find(id) == nullptr) {
            return id;
        }
    }
}

} // namespace NMemory
