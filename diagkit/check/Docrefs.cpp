// SPDX-License-Identifier: Apache-2.0
#include <string>

#include <diagkit/check/Topics.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/Link.h>
#include <diagkit/model/Reference.h>

namespace NCheck {
namespace {

using NMemory::Tag;

/// The documents that contain an element, by the names used in references.
struct VPlaces {
    NODX201::VOdxElement const* layer = nullptr;
    NODX201::VOdxElement const* category = nullptr;
};

VPlaces PlacesOf(NODX201::VOdxElement& element) {
    VPlaces places{NDIAGKIT::LayerOf(element)};
    for (NODX201::VOdxObject* object = &element; object != nullptr; object = object->GetOwner()) {
        auto* const candidate = dynamic_cast<NODX201::VOdxElement*>(object);
        if (candidate != nullptr && candidate->GetOdxTag() != Tag::Odx) {
            places.category = candidate;
        }
    }
    return places;
}

std::string Shown(VPlaces const& places) {
    std::string const layer = places.layer != nullptr ? Titled(*places.layer) + " of the " : "";
    return layer + (places.category != nullptr ? Titled(*places.category) : "database");
}

} // namespace

void CheckDocrefs(VChecked const& checked, VFindings& findings) {
    for (NODX201::VOdxElement* const element : checked.elements) {
        auto* const reference = dynamic_cast<NODX201::VLink*>(element);
        auto const* const link =
            reference != nullptr ? dynamic_cast<NODX201::VOdxLink const*>(&reference->GetLink()) : nullptr;
        if (link == nullptr || *link->GetDocref() == L'\0') {
            continue;
        }
        auto const* const entry = checked.database.GetIdIndex().Find(link->GetIdRef());
        if (entry == nullptr || NMemory::IsInNamedDocument(checked.database, *link)) {
            continue; // one without a target is reported as unresolved
        }
        std::string const doctype = *link->GetDoctype() != L'\0' ? " and DOCTYPE " + Quoted(link->GetDoctype()) : "";
        findings.Add(PositionOf(*reference), NCode::WrongDocref,
                     TagOf(*reference) + " names the ID " + Quoted(link->GetIdRef()) + " with DOCREF " +
                         Quoted(link->GetDocref()) + doctype + ", but it stands in the " +
                         Shown(PlacesOf(*entry->first)) + "; other programs may not find it");
    }
}

} // namespace NCheck
