// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/FinishReading.h>

#include <map>
#include <string>
#include <unordered_map>
#include <utility>

#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Cycles.h>
#include <diagkit/reader/MissingDocuments.h>
#include <diagkit/reader/Naming.h>
#include <diagkit/reader/ReferenceKinds.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/Inheritance.h>

namespace NReader {
namespace {

using NMemory::Tag;
using NMemory::VParentRefKind;

std::string Named(NODX201::VOdxLink const& link) {
    std::string text = "the ID " + Quoted(link.GetIdRef());
    if (*link.GetDocref() != L'\0') {
        text += " in " + Quoted(link.GetDocref());
    }
    return text;
}

/// A reference by ID, which stands at `node`, has no target. Those into a missing document are counted, where somebody
/// counts them.
void ReportUnresolved(VReading& reading, NMemory::VMemNode const& node, NODX201::VLink& reference,
                      VMissingDocuments* missing) {
    auto const& link = dynamic_cast<NODX201::VOdxLink const&>(reference.GetLink());
    if (*link.GetIdRef() == L'\0') {
        return; // reported as an attribute that is missing
    }
    std::string const what = TagOf(reference) + " names " + Named(link);
    if (auto const leftOut = reading.idsLeftOut.find(ToUtf8(link.GetIdRef())); leftOut != reading.idsLeftOut.end()) {
        reading.findings.Add(node.GetPosition(), NCode::TargetLeftOut,
                             what + ", a " + leftOut->second + ", which is not supported");
        return;
    }
    auto const* const others = reading.database->GetIdIndex().Find(link.GetIdRef());
    if (others == nullptr && missing != nullptr && missing->Take(link, node.GetPosition())) {
        return;
    }
    if (others == nullptr) {
        reading.findings.Add(node.GetPosition(), NCode::UnresolvedReference,
                             what + ", which no loaded element has; load the document that contains it as well");
        return;
    }
    reading.findings.Add(node.GetPosition(), NCode::ReferenceKind,
                         what + ", which is the " + TagOf(*others->first) + ' ' + Quoted(*others->first) + " and no " +
                             KindWantedBy(reference));
}

std::string PlaceOf(VReading const& reading, NODX201::VReferencable const& element) {
    NMemory::VPosition const position = PositionOf(element);
    return reading.database->GetDocumentName(position) + ':' + std::to_string(position.line);
}

/// Several documents or layers have the name in the DOCREF of a reference, and more than one has a matching target.
void ReportDoubt(VReading& reading, NMemory::VMemNode const& node, NODX201::VLink& reference,
                 NMemory::VDoubt const& doubt) {
    if (doubt.other == nullptr) {
        return;
    }
    auto const& link = dynamic_cast<NODX201::VOdxLink const&>(reference.GetLink());
    reading.findings.Add(node.GetPosition(), NCode::AmbiguousDocument,
                         TagOf(reference) + " names " + Named(link) + ", but there are several of that name; the " +
                             TagOf(*doubt.target) + " at " + PlaceOf(reading, *doubt.target) +
                             " is taken, and not the " + TagOf(*doubt.other) + " at " + PlaceOf(reading, *doubt.other));
}

using VReplaced = std::unordered_map<NODX201::VOdxElement*, NODX201::VOdxElement*>;

/// Replaces elements in the list of all by those that took their place.
void Replace(std::vector<NODX201::VOdxElement*>& elements, VReplaced const& replaced) {
    for (NODX201::VOdxElement*& element : elements) {
        if (auto const found = replaced.find(element); found != replaced.end()) {
            element = found->second;
        }
    }
}

void GiveParentRefsTheirKinds(VReading& reading, VMissingDocuments* missing) {
    VReplaced replaced;
    for (VPendingParentRef const& pending : reading.parentRefs) {
        auto& untyped = dynamic_cast<NMemory::VMemParentRef&>(pending.parentRef->ParentRef());
        VParentRefKind const kind =
            untyped.HasDiagLayer() ? NMemory::ParentRefKindOf(untyped.GetDiagLayer()) : VParentRefKind::Unknown;
        if (kind != VParentRefKind::Unknown) {
            ReportDoubt(reading, untyped, untyped, untyped.FindDoubt());
            replaced[&untyped] = &pending.changeKind(*pending.parentRef, kind).ParentRef();
            continue;
        }
        if (untyped.HasDiagLayer() && &untyped.GetDiagLayer() == untyped.GetOwner()) {
            reading.findings.Add(untyped.GetPosition(), NCode::ParentItself,
                                 Titled(untyped.GetDiagLayer()) + " names itself as a parent");
        } else if (untyped.HasDiagLayer()) {
            reading.findings.Add(untyped.GetPosition(), NCode::ParentKind,
                                 "PARENT-REF names the " + TagOf(untyped.GetDiagLayer()) + ' ' +
                                     Quoted(untyped.GetDiagLayer()) + ", from which nothing can be inherited");
        } else {
            ReportUnresolved(reading, untyped, untyped, missing);
        }
    }
    if (!replaced.empty()) {
        Replace(reading.elements, replaced);
    }
}

void ReportReferences(VReading& reading, VMissingDocuments* missing) {
    for (VPendingLink const& pending : reading.links) {
        if (!pending.questions->resolves(*pending.link)) {
            ReportUnresolved(reading, *pending.node, *pending.link, missing);
        } else {
            ReportDoubt(reading, *pending.node, *pending.link, pending.questions->doubt(*pending.link));
        }
    }
}

/// Repeated names are reported because references name documents by their short names.
void ReportRepeatedDocuments(VReading& reading) {
    std::map<std::pair<NMemory::Tag, std::wstring_view>, NODX201::VReferencable*> firsts;
    auto const see = [&](auto& documents) {
        for (NODX201::VReferencable& document : documents) {
            auto const [first, isFirst] =
                firsts.try_emplace({document.GetOdxTag(), document.GetShortName()}, &document);
            if (!isFirst && *document.GetShortName() != L'\0') {
                reading.findings.Add(PositionOf(document), NCode::RepeatedDocument,
                                     Titled(document) + " has the short name of the one at " +
                                         PlaceOf(reading, *first->second) +
                                         "; a reference that names the document means what is found in that one first");
            }
        }
    };
    NMemory::VMemOdx& odx = reading.database->GetMemOdx();
    see(odx.DiagLayerContainerCollection());
    see(odx.ComparamSpecCollection());
    see(odx.FlashCollection());
    see(odx.MultipleEcuJobSpecCollection());
    see(odx.VehicleInfoSpecCollection());
}

void ReportRepeatedIds(VReading& reading) {
    reading.database->GetIdIndex().ForEachRepeated([&reading](NMemory::VIdIndex::VEntry const& entry) {
        std::unordered_map<std::uint32_t, NODX201::VReferencable*> firstOf; // by document
        entry.ForEach([&](NODX201::VReferencable& element) {
            NMemory::VPosition const position = PositionOf(element);
            NODX201::VReferencable& first = *firstOf.emplace(position.document, &element).first->second;
            if (&first != &element) {
                reading.findings.Add(position, NCode::DuplicateId,
                                     Titled(element) + " has the ID " + Quoted(element.GetId()) + " of the " +
                                         Titled(first) + " at line " + std::to_string(PositionOf(first).line) +
                                         "; IDs must differ in a document");
            }
        });
    });
}

void CheckParent(VReading& reading, NDIAGKIT::VLayerOfKind const& layer, NODX201::VParentRef& parentRef) {
    auto const parent = NDIAGKIT::ParentBy(parentRef);
    if (!parent.has_value()) {
        return; // reported as unresolved
    }
    NMemory::VPosition const position = PositionOf(parentRef);
    if (parent->layer == layer.layer) {
        reading.findings.Add(position, NCode::ParentItself, Titled(*layer.layer) + " names itself as a parent");
    } else if (!NDIAGKIT::InheritsFrom(layer.kind, parent->kind)) {
        reading.findings.Add(position, NCode::ParentKind,
                             Titled(*layer.layer) + " has the " + Titled(*parent->layer) +
                                 " as a parent, which ODX does not allow; nothing is inherited");
    }
}

void CheckParents(VReading& reading) {
    ForEachLayer(*reading.database, [&reading](NDIAGKIT::VLayerOfKind const& layer) {
        if (NODX201::VParentRefCollection* const parentRefs = NDIAGKIT::ParentRefsOf(layer)) {
            for (NODX201::VParentRef& parentRef : *parentRefs) {
                CheckParent(reading, layer, parentRef);
            }
        }
    });
}

} // namespace

void FinishReading(VReading& reading, bool tellsEachReference) {
    VMissingDocuments documents(*reading.database);
    VMissingDocuments* const missing = tellsEachReference ? nullptr : &documents;
    GiveParentRefsTheirKinds(reading, missing);
    ReportReferences(reading, missing);
    documents.Report(reading.findings);
    ReportRepeatedDocuments(reading);
    ReportRepeatedIds(reading);
    CheckParents(reading);
    SeverContainmentCycles(reading);
}

} // namespace NReader
