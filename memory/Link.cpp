// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Link.h>

#include <array>
#include <string_view>

#include <diagkit/memory/Importing.h>
#include <diagkit/model/DiagComms.h>

namespace NMemory {
namespace {

bool IsLayer(Tag tag) {
    return tag == Tag::Protocol || tag == Tag::FunctionalGroup || tag == Tag::BaseVariant || tag == Tag::EcuVariant ||
           tag == Tag::EcuSharedData;
}

bool IsDocument(Tag tag) {
    return tag == Tag::DiagLayerContainer || tag == Tag::ComparamSpec || tag == Tag::Flash ||
           tag == Tag::MultipleEcuJobSpec;
}

/// The layer and the category document that an element stands in; a layer stands in itself.
struct VScope {
    NODX201::VOdxElement* layer = nullptr;
    NODX201::VOdxElement* document = nullptr;
};

VScope ScopeOf(NODX201::VOdxElement& element) {
    VScope scope;
    for (NODX201::VOdxObject* object = &element; object != nullptr; object = object->GetOwner()) {
        auto* const candidate = dynamic_cast<NODX201::VOdxElement*>(object);
        if (candidate == nullptr) {
            continue; // the collection of a container's layers
        }
        if (IsLayer(candidate->GetOdxTag())) {
            scope.layer = candidate;
        } else if (IsDocument(candidate->GetOdxTag())) {
            scope.document = candidate;
        }
    }
    return scope;
}

bool IsNamed(NODX201::VOdxElement const* element, std::wstring_view shortName) {
    return element != nullptr && shortName == element->GetShortName();
}

/// The first candidate of the expected class for which the test on its scope holds.
template <class Test>
NODX201::VReferencable* FirstIn(VIdIndex::VEntry const& entry, VExpect expect, Test test) {
    if (expect(*entry.first) && test(ScopeOf(*entry.first))) {
        return entry.first;
    }
    for (NODX201::VReferencable* const other : entry.others) {
        if (expect(*other) && test(ScopeOf(*other))) {
            return other;
        }
    }
    return nullptr;
}

bool IsOfDoctype(NODX201::VOdxElement const& document, std::wstring_view doctype) {
    static constexpr std::array<std::pair<std::wstring_view, Tag>, 4> kDoctypes{{
        {L"FLASH", Tag::Flash},
        {L"CONTAINER", Tag::DiagLayerContainer},
        {L"MULTIPLE-ECU-JOB-SPEC", Tag::MultipleEcuJobSpec},
        {L"COMPARAM-SPEC", Tag::ComparamSpec},
    }};
    for (auto const& [literal, tag] : kDoctypes) {
        if (literal == doctype) {
            return document.GetOdxTag() == tag;
        }
    }
    return false;
}

NODX201::VReferencable* FindInNamedDocument(VIdIndex::VEntry const& entry, VExpect expect, std::wstring_view docref,
                                            std::wstring_view doctype) {
    NODX201::VReferencable* found = nullptr;
    if (doctype == L"LAYER") {
        found = FirstIn(entry, expect, [&](VScope const& scope) { return IsNamed(scope.layer, docref); });
    } else if (!doctype.empty()) {
        found = FirstIn(entry, expect, [&](VScope const& scope) {
            return IsNamed(scope.document, docref) && IsOfDoctype(*scope.document, doctype);
        });
    }
    if (found != nullptr) {
        return found;
    }
    return FirstIn(entry, expect, [&](VScope const& scope) {
        return IsNamed(scope.layer, docref) || IsNamed(scope.document, docref);
    });
}

NODX201::VReferencable* FindInImports(VIdIndex::VEntry const& entry, VExpect expect, NODX201::VOdxElement& layer) {
    auto* const importing = dynamic_cast<IImporting*>(&layer);
    if (importing == nullptr) {
        return nullptr;
    }
    for (VMemImportRef& import : importing->ImportRefCollection()) {
        if (!import.HasDiagLayer()) {
            continue;
        }
        NODX201::VOdxElement const* const imported = &import.GetDiagLayer();
        if (auto* const found = FirstIn(entry, expect, [&](VScope const& scope) { return scope.layer == imported; })) {
            return found;
        }
    }
    return nullptr;
}

NODX201::VReferencable* FindAround(VIdIndex::VEntry const& entry, VExpect expect, NODX201::VOdxElement& from) {
    VScope const own = ScopeOf(from);
    if (own.layer != nullptr) {
        if (auto* const found = FirstIn(entry, expect, [&](VScope const& scope) { return scope.layer == own.layer; })) {
            return found;
        }
    }
    if (own.document != nullptr) {
        if (auto* const found =
                FirstIn(entry, expect, [&](VScope const& scope) { return scope.document == own.document; })) {
            return found;
        }
    }
    // Imports do not chain: an IMPORT-REF itself looks no further.
    if (own.layer == nullptr || from.GetOdxTag() == Tag::ImportRef) {
        return nullptr;
    }
    return FindInImports(entry, expect, *own.layer);
}

} // namespace

VReference ReferenceOf(NODX201::ILink const& link) {
    if (auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link)) {
        return VReference::ByShortName(snref->GetShortName());
    }
    auto const& byId = dynamic_cast<NODX201::VOdxLink const&>(link);
    return VReference::ById(byId.GetIdRef(), byId.GetDocref(), byId.GetDoctype(), byId.GetRevision());
}

VMemOdxLink::VMemOdxLink(VDatabase& database, VReference const& reference)
    : m_id(database.Store(reference.m_id)), m_docref(database.Store(reference.m_docref)),
      m_doctype(database.Store(reference.m_doctype)), m_revision(database.Store(reference.m_revision)) {}

VMemSnref::VMemSnref(VDatabase& database, VReference const& reference)
    : m_shortName(database.Store(reference.m_shortName)) {}

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
    std::wstring_view const docref = link.GetDocref();
    NODX201::VReferencable* const found = docref.empty()
                                              ? FindAround(*entry, expect, from)
                                              : FindInNamedDocument(*entry, expect, docref, link.GetDoctype());
    return found != nullptr ? found : FirstIn(*entry, expect, [](VScope const&) { return true; });
}

} // namespace NMemory
