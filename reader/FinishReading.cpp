// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/FinishReading.h>

#include <string>
#include <unordered_map>

#include <diagkit/reader/Cycles.h>
#include <diagkit/reader/ParentTargets.h>
#include <diagkit/reader/ReferenceKinds.h>
#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

using NMemory::Tag;
using NMemory::VParentRefKind;

std::string Quoted(wchar_t const* text) { return "'" + ToUtf8(text) + "'"; }

std::string Quoted(NODX201::VOdxElement const& element) { return Quoted(element.GetShortName()); }

std::string TagOf(NODX201::VOdxElement const& element) { return ToUtf8(NODX201::OdxTagText(element.GetOdxTag())); }

/// The kinds of parent that ODX allows, a row a kind of layer.
bool IsParentAllowed(Tag layer, Tag parent) {
    static constexpr struct {
        Tag layer;
        Tag parent;
    } kAllowed[] = {
        {Tag::Protocol, Tag::EcuSharedData},        {Tag::FunctionalGroup, Tag::Protocol},
        {Tag::FunctionalGroup, Tag::EcuSharedData}, {Tag::BaseVariant, Tag::Protocol},
        {Tag::BaseVariant, Tag::FunctionalGroup},   {Tag::BaseVariant, Tag::EcuSharedData},
        {Tag::EcuVariant, Tag::BaseVariant},        {Tag::EcuVariant, Tag::EcuSharedData},
    };
    for (auto const& row : kAllowed) {
        if (row.layer == layer && row.parent == parent) {
            return true;
        }
    }
    return false;
}

std::string Named(NODX201::VOdxLink const& link) {
    std::string text = "the ID " + Quoted(link.GetIdRef());
    if (*link.GetDocref() != L'\0') {
        text += " in " + Quoted(link.GetDocref());
    }
    return text;
}

/// A reference by ID, which stands at `node`, has no target.
void ReportUnresolved(VReading& reading, NMemory::VMemNode const& node, NODX201::VLink& reference) {
    auto const& link = dynamic_cast<NODX201::VOdxLink const&>(reference.GetLink());
    if (*link.GetIdRef() == L'\0') {
        return; // reported as an attribute that is missing
    }
    std::string const what = TagOf(reference) + " names " + Named(link);
    if (auto const leftOut = reading.idsLeftOut.find(ToUtf8(link.GetIdRef())); leftOut != reading.idsLeftOut.end()) {
        reading.findings.Add(node.GetPosition(), VSeverity::Warning, "target-left-out",
                             what + ", a " + leftOut->second + ", for which the model has no place");
        return;
    }
    auto const* const others = reading.database->GetIdIndex().Find(link.GetIdRef());
    if (others == nullptr) {
        reading.findings.Add(node.GetPosition(), VSeverity::Error, "unresolved-reference",
                             what + ", which no loaded element has; load the document that holds it too");
        return;
    }
    reading.findings.Add(node.GetPosition(), VSeverity::Error, "reference-kind",
                         what + ", which is the " + TagOf(*others->first) + ' ' + Quoted(*others->first) + " and no " +
                             KindWantedBy(reference));
}

using VReplaced = std::unordered_map<NODX201::VOdxElement*, NODX201::VOdxElement*>;

/// Puts the elements that took the place of others into the list of all.
void Replace(std::vector<NODX201::VOdxElement*>& elements, VReplaced const& replaced) {
    for (NODX201::VOdxElement*& element : elements) {
        if (auto const found = replaced.find(element); found != replaced.end()) {
            element = found->second;
        }
    }
}

void GiveParentRefsTheirKinds(VReading& reading) {
    VReplaced replaced;
    for (VPendingParentRef const& pending : reading.parentRefs) {
        auto& untyped = dynamic_cast<NMemory::VMemParentRef&>(pending.parentRef->ParentRef());
        VParentRefKind const kind =
            untyped.HasDiagLayer() ? NMemory::ParentRefKindOf(untyped.GetDiagLayer()) : VParentRefKind::Unknown;
        if (kind != VParentRefKind::Unknown) {
            replaced[&untyped] = &pending.changeKind(*pending.parentRef, kind).ParentRef();
            continue;
        }
        if (untyped.HasDiagLayer() && &untyped.GetDiagLayer() == untyped.GetOwner()) {
            reading.findings.Add(untyped.GetPosition(), VSeverity::Error, "parent-itself",
                                 TagOf(untyped.GetDiagLayer()) + ' ' + Quoted(untyped.GetDiagLayer()) +
                                     " names itself as a parent");
        } else if (untyped.HasDiagLayer()) {
            reading.findings.Add(untyped.GetPosition(), VSeverity::Error, "parent-kind",
                                 "PARENT-REF names the " + TagOf(untyped.GetDiagLayer()) + ' ' +
                                     Quoted(untyped.GetDiagLayer()) + ", from which nothing can be inherited");
        } else {
            ReportUnresolved(reading, untyped, untyped);
        }
    }
    if (!replaced.empty()) {
        Replace(reading.elements, replaced);
    }
}

void ReportUnresolvedReferences(VReading& reading) {
    for (VPendingLink const& pending : reading.links) {
        if (!pending.resolves(*pending.link)) {
            ReportUnresolved(reading, *pending.node, *pending.link);
        }
    }
}

NMemory::VPosition const& PositionOf(NODX201::VReferencable const& element) {
    return dynamic_cast<NMemory::VMemNode const&>(element).GetPosition();
}

void ReportRepeatedIds(VReading& reading) {
    reading.database->GetIdIndex().ForEachRepeated([&reading](NMemory::VIdIndex::VEntry const& entry) {
        std::vector<NODX201::VReferencable*> elements{entry.first};
        elements.insert(elements.end(), entry.others.begin(), entry.others.end());
        std::unordered_map<std::uint32_t, NODX201::VReferencable*> firstOf; // by document
        for (NODX201::VReferencable* const element : elements) {
            NMemory::VPosition const& position = PositionOf(*element);
            NODX201::VReferencable& first = *firstOf.emplace(position.document, element).first->second;
            if (&first == element) {
                continue;
            }
            reading.findings.Add(position, VSeverity::Error, "duplicate-id",
                                 TagOf(*element) + ' ' + Quoted(*element) + " has the ID " + Quoted(element->GetId()) +
                                     " of the " + TagOf(first) + ' ' + Quoted(first) + " at line " +
                                     std::to_string(PositionOf(first).line) + "; IDs must differ in a document");
        }
    });
}

void CheckParents(VReading& reading, NODX201::VDiagLayer& layer, NODX201::VParentRefCollection& parentRefs) {
    for (NODX201::VParentRef& parentRef : parentRefs) {
        NODX201::VDiagLayer* const parent = TargetOf(parentRef);
        if (parent == nullptr) {
            continue; // reported as unresolved
        }
        NMemory::VPosition const& position = dynamic_cast<NMemory::VMemNode const&>(parentRef).GetPosition();
        if (parent == &layer) {
            reading.findings.Add(position, VSeverity::Error, "parent-itself",
                                 TagOf(layer) + ' ' + Quoted(layer) + " names itself as a parent");
        } else if (!IsParentAllowed(layer.GetOdxTag(), parent->GetOdxTag())) {
            reading.findings.Add(position, VSeverity::Error, "parent-kind",
                                 TagOf(layer) + ' ' + Quoted(layer) + " has the " + TagOf(*parent) + ' ' +
                                     Quoted(*parent) + " as a parent, which ODX does not allow; nothing is inherited");
        }
    }
}

void CheckParents(VReading& reading) {
    for (NODX201::VDiagLayerContainer& container : reading.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            if (auto* const protocol = dynamic_cast<NODX201::VProtocol*>(&layer)) {
                CheckParents(reading, layer, protocol->ParentRefCollection());
            } else if (auto* const group = dynamic_cast<NODX201::VFunctionalGroup*>(&layer)) {
                CheckParents(reading, layer, group->ParentRefCollection());
            } else if (auto* const base = dynamic_cast<NODX201::VBaseVariant*>(&layer)) {
                CheckParents(reading, layer, base->ParentRefCollection());
            } else if (auto* const variant = dynamic_cast<NODX201::VEcuVariant*>(&layer)) {
                CheckParents(reading, layer, variant->ParentRefCollection());
            }
        }
    }
}

} // namespace

void FinishReading(VReading& reading) {
    GiveParentRefsTheirKinds(reading);
    ReportUnresolvedReferences(reading);
    ReportRepeatedIds(reading);
    CheckParents(reading);
    SeverContainmentCycles(reading);
}

} // namespace NReader
