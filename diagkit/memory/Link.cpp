// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Link.h>

#include <array>
#include <string_view>

#include <diagkit/memory/PlaceIndex.h>
#include <diagkit/model/DiagComms.h>

namespace NMemory {
namespace {

/// The places that DOCREF and DOCTYPE name, the one that is searched first before the other. A DOCTYPE of later
/// versions of ODX does not name a kind of document.
std::array<VSearchPlace, 2> PlacesNamedBy(NODX201::VOdxLink const& link) {
    static constexpr std::array<std::pair<std::wstring_view, Tag>, 4> kDoctypes{{
        {L"FLASH", Tag::Flash},
        {L"CONTAINER", Tag::DiagLayerContainer},
        {L"MULTIPLE-ECU-JOB-SPEC", Tag::MultipleEcuJobSpec},
        {L"COMPARAM-SPEC", Tag::ComparamSpec},
    }};
    std::wstring_view const doctype = link.GetDoctype();
    VSearchPlace const anyKind{VPlaceKind::Named, nullptr, link.GetDocref()};
    VSearchPlace ofKind = anyKind;
    if (doctype == L"LAYER") {
        ofKind.kind = VPlaceKind::NamedLayer;
    }
    for (auto const& [literal, category] : kDoctypes) {
        if (literal == doctype) {
            ofKind.kind = VPlaceKind::NamedDocument;
            ofKind.category = category;
        }
    }
    return {ofKind, anyKind};
}

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
    NODX201::VReferencable* OtherIn(VSearchPlace const& place) const {
        return m_database.GetPlaceIndex().FindOther(m_entry, m_expect, place, m_database.GetGeneration());
    }

    NODX201::VReferencable* InNamedDocument(NODX201::VOdxLink const& link) const {
        for (VSearchPlace const& place : PlacesNamedBy(link)) {
            if (auto* const found = In(place)) {
                return found;
            }
        }
        return nullptr;
    }
    NODX201::VReferencable* Around(NODX201::VOdxElement& from) const;

private:
    VDatabase& m_database;
    VIdIndex::VEntry const& m_entry;
    VExpect m_expect;
};

NODX201::VReferencable* VSearch::Around(NODX201::VOdxElement& from) const {
    VScope const own = ScopeOf(from);
    if (auto* const found = In(own.layer)) {
        return found;
    }
    if (auto* const found = In(own.document)) {
        return found;
    }
    // Imports are not transitive: an IMPORT-REF itself is not searched further.
    if (own.layer == nullptr || from.GetOdxTag() == Tag::ImportRef) {
        return nullptr;
    }
    return m_database.GetPlaceIndex().FindInImports(m_entry, m_expect, *own.layer, m_database.GetGeneration());
}

} // namespace

VReference ReferenceOf(NODX201::ILink const& link) {
    if (auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link)) {
        return VReference::ByShortName(snref->GetShortName());
    }
    auto const& byId = dynamic_cast<NODX201::VOdxLink const&>(link);
    return VReference::ById(byId.GetIdRef(), byId.GetDocref(), byId.GetDoctype(), byId.GetRevision());
}

VReference StoredIn(VPart& part, VReference const& reference) {
    if (reference.IsByShortName()) {
        return VReference::ByShortName(part.Store(reference.m_shortName));
    }
    return {part.Store(reference.m_id), part.Store(reference.m_docref), part.Store(reference.m_doctype),
            part.Store(reference.m_revision), nullptr};
}

template <>
bool IsOfClass<NODX201::VDiagComm>(NODX201::VReferencable& element) {
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
    if (!entry->IsRepeated()) {
        return expect(*entry->first) ? entry->first : nullptr;
    }
    VSearch const search(database, *entry, expect);
    bool const isInNamed = *link.GetDocref() != L'\0';
    NODX201::VReferencable* const found = isInNamed ? search.InNamedDocument(link) : search.Around(from);
    return found != nullptr ? found : search.In({VPlaceKind::Anywhere});
}

VDoubt FindDoubt(VDatabase& database, NODX201::VOdxLink const& link, VExpect expect) {
    VIdIndex::VEntry const* const entry = database.GetIdIndex().Find(link.GetIdRef());
    if (entry == nullptr || !entry->IsRepeated() || *link.GetDocref() == L'\0') {
        return {nullptr, nullptr};
    }
    VSearch const search(database, *entry, expect);
    for (VSearchPlace const& place : PlacesNamedBy(link)) {
        if (NODX201::VReferencable* const target = search.In(place)) {
            return {target, search.OtherIn(place)};
        }
    }
    return {nullptr, nullptr};
}

bool IsInNamedDocument(VDatabase& database, NODX201::VOdxLink const& link) {
    VIdIndex::VEntry const* const entry = database.GetIdIndex().Find(link.GetIdRef());
    VExpect const anything = [](NODX201::VReferencable&) { return true; };
    return entry != nullptr && VSearch(database, *entry, anything).In(PlacesNamedBy(link).front()) != nullptr;
}

} // namespace NMemory
