// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Link.h>

#include <array>
#include <string_view>

#include <diagkit/memory/Importing.h>
#include <diagkit/memory/PlaceIndex.h>
#include <diagkit/model/DiagComms.h>

namespace NMemory {
namespace {

/// One search for an ID that several elements have.
class VSearch {
public:
    VSearch(VDatabase& database, VIdIndex::VEntry const& entry, VExpect expect)
        : m_database(database), m_entry(entry), m_expect(expect) {}

    NODX201::VReferencable* In(VSearchPlace const& place) const {
        return m_database.GetPlaceIndex().Find(m_entry, m_expect, place, m_database.GetGeneration());
    }
    NODX201::VReferencable* In(NODX201::VOdxElement const* layerOrDocument) const {
        return layerOrDocument != nullptr ? In({VPlaceKind::Element, layerOrDocument}) : nullptr;
    }

    NODX201::VReferencable* InNamedDocument(std::wstring_view docref, std::wstring_view doctype) const;
    NODX201::VReferencable* Around(NODX201::VOdxElement& from) const;

private:
    NODX201::VReferencable* InImports(NODX201::VOdxElement& layer) const;

    VDatabase& m_database;
    VIdIndex::VEntry const& m_entry;
    VExpect m_expect;
};

NODX201::VReferencable* VSearch::InNamedDocument(std::wstring_view docref, std::wstring_view doctype) const {
    static constexpr std::array<std::pair<std::wstring_view, Tag>, 4> kDoctypes{{
        {L"FLASH", Tag::Flash},
        {L"CONTAINER", Tag::DiagLayerContainer},
        {L"MULTIPLE-ECU-JOB-SPEC", Tag::MultipleEcuJobSpec},
        {L"COMPARAM-SPEC", Tag::ComparamSpec},
    }};
    NODX201::VReferencable* found = nullptr;
    if (doctype == L"LAYER") {
        found = In({VPlaceKind::NamedLayer, nullptr, docref});
    }
    for (auto const& [literal, category] : kDoctypes) {
        if (literal == doctype) {
            found = In({VPlaceKind::NamedDocument, nullptr, docref, category});
        }
    }
    return found != nullptr ? found : In({VPlaceKind::Named, nullptr, docref});
}

NODX201::VReferencable* VSearch::InImports(NODX201::VOdxElement& layer) const {
    auto* const importing = dynamic_cast<IImporting*>(&layer);
    if (importing == nullptr) {
        return nullptr;
    }
    for (VMemImportRef& import : importing->ImportRefCollection()) {
        if (!import.HasDiagLayer()) {
            continue;
        }
        if (auto* const found = In(&import.GetDiagLayer())) {
            return found;
        }
    }
    return nullptr;
}

NODX201::VReferencable* VSearch::Around(NODX201::VOdxElement& from) const {
    VScope const own = ScopeOf(from);
    if (auto* const found = In(own.layer)) {
        return found;
    }
    if (auto* const found = In(own.document)) {
        return found;
    }
    // Imports do not chain: an IMPORT-REF itself looks no further.
    if (own.layer == nullptr || from.GetOdxTag() == Tag::ImportRef) {
        return nullptr;
    }
    return InImports(*own.layer);
}

} // namespace

VReference ReferenceOf(NODX201::ILink const& link) {
    if (auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link)) {
        return VReference::ByShortName(snref->GetShortName());
    }
    auto const& byId = dynamic_cast<NODX201::VOdxLink const&>(link);
    return VReference::ById(byId.GetIdRef(), byId.GetDocref(), byId.GetDoctype(), byId.GetRevision());
}

VMemOdxLink::VMemOdxLink(VPart& part, VReference const& reference)
    : m_id(part.Store(reference.m_id)), m_docref(part.Store(reference.m_docref)),
      m_doctype(part.Store(reference.m_doctype)), m_revision(part.Store(reference.m_revision)) {}

VMemSnref::VMemSnref(VPart& part, VReference const& reference) : m_shortName(part.Store(reference.m_shortName)) {}

bool IsDiagCommOfLayer(NODX201::VReferencable& element) {
    return dynamic_cast<NODX201::VDiagComm*>(&element) != nullptr &&
           dynamic_cast<NODX201::VMultipleEcuJob*>(&element) == nullptr;
}

NODX201::VReferencable* ResolveId(VDatabase& database, NODX201::VOdxLink const& link, NODX201::VOdxElement& from,
                                  VExpect expect) {
    VIdIndex::VEntry const* const entry = database.GetIdIndex().Find(link.GetIdRef());
    if (entry == nullptr) {
        return nullptr;
    }
    // The whole database is the last place searched, so an ID that occurs once is found there if anywhere.
    if (entry->others.empty()) {
        return expect(*entry->first) ? entry->first : nullptr;
    }
    VSearch const search(database, *entry, expect);
    std::wstring_view const docref = link.GetDocref();
    NODX201::VReferencable* const found =
        docref.empty() ? search.Around(from) : search.InNamedDocument(docref, link.GetDoctype());
    return found != nullptr ? found : search.In({VPlaceKind::Anywhere});
}

} // namespace NMemory
