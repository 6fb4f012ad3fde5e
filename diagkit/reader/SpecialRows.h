// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/reader/Facts.h>
#include <diagkit/reader/XsiType.h>

/// Elements that are read by special functions: those whose class is their xsi:type, or follows from their contents,
/// and those that are not allowed where they are.

namespace NReader {

template <class Made>
VOpened Opened(VLoader& loader, Made& made) {
    NoteElement(loader, made);
    return {&made, &TypeOf(&made)};
}

/// DIAG-CODED-TYPE. A second one would replace the first, to which references are already noted, so only the first
/// counts.
template <class T>
VOpened OpenCodedType(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    T& element = VFactsOf<T>::Owner(owner);
    std::string const type = XsiType(loader, attributes);
#define ODX_CHOICE_KIND(choice, name, xsiType)                                                                         \
    if (type == xsiType) {                                                                                             \
        return Opened(loader, element.Make##name());                                                                   \
    }
#include <diagkit/model/facts/Vocabulary.def>
    ODX_CODED_TYPE_KINDS
#include <diagkit/model/facts/Clear.def>
    ReportUnknownType(loader, type);
    return {nullptr, nullptr, true};
}

/// PARAM. NRC-CONST, of later versions, is a CODED-CONST of several values.
template <class T>
VOpened OpenParam(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    T& element = VFactsOf<T>::Owner(owner);
    std::string const type = XsiType(loader, attributes);
#define ODX_KIND(collection, name, xsiType)                                                                            \
    if (type == xsiType) {                                                                                             \
        return Opened(loader, element.Add##name(L""));                                                                 \
    }
#include <diagkit/model/facts/Vocabulary.def>
    ODX_PARAM_KINDS
#include <diagkit/model/facts/Clear.def>
    if (type == "NRC-CONST") {
        return Opened(loader, element.AddCodedConst(L""));
    }
    ReportUnknownType(loader, type);
    return {nullptr, nullptr, true};
}

/// A reference by short name in a list that accepts only IDs. The list is named after its items.
VOpened OpenShortNameNotAllowed(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes);

VOpened OpenParentRefsNotAllowed(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes);
VOpened OpenFlashdata(VLoader& loader, void* owner, VRow const& row, VAttributes const& attributes);

/// DATAFILE, a text with an attribute.
VElementType const& DatafileType();
constexpr VFact DatafileFact(char const* name, VOften often) {
    VFact fact =
        VFactsOf<NMemory::VMemFlashdata>::Special(name, often, &VFactsOf<NMemory::VMemFlashdata>::OpenOnOwner, true);
    fact.type = &DatafileType;
    return fact;
}

/// PARENT-REF of this layer.
template <class Layer>
VOpened OpenParentRef(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    using namespace NMemory;
    Layer& layer = VFactsOf<Layer>::Owner(owner);
    std::string const type = XsiType(loader, attributes);
    VReference const reference = IdReference(loader, attributes);
    auto const add = [&](VParentRefKind kind) -> IMemParentRef& { return layer.AddParentRef(kind, reference); };
#define ODX_PARENT_REF(name, target, value, xsiType)                                                                   \
    if (type == xsiType) {                                                                                             \
        auto& parentRef = dynamic_cast<VMem##name&>(add(VParentRefKind::target));                                      \
        NoteLink(loader, parentRef, parentRef, kQuestionsTo<VMem##name>);                                              \
        return Opened(loader, parentRef);                                                                              \
    }
#include <diagkit/model/facts/Vocabulary.def>

#include <diagkit/model/facts/ParentRefs.def>

#include <diagkit/model/facts/Clear.def>
    if (!type.empty()) {
        ReportUnknownType(loader, type);
    }
    IMemParentRef& untyped = add(VParentRefKind::Unknown);
    NoteUntypedParentRef(loader, untyped, [](IMemParentRef& parentRef, VParentRefKind kind) -> IMemParentRef& {
        return dynamic_cast<Layer&>(*parentRef.ParentRef().GetOwner()).ChangeParentRefKind(parentRef, kind);
    });
    return Opened(loader, dynamic_cast<VMemParentRef&>(untyped));
}

inline NMemory::VMemNode& ReferenceIn(NMemory::VMemNotInheritedDiagComm& excluded) {
    return excluded.GetDiagCommSnref();
}
inline NMemory::VMemNode& ReferenceIn(NMemory::VMemNotInheritedVariable& excluded) {
    return excluded.GetDiagVariableSnref();
}

// The exclusions are short-name references in ODX; an ID reference is kept too, as one that excludes nothing.
template <class T, class Item, Item& (NMemory::IMemParentRef::*Add)(NMemory::VReference const&), bool IsByShortName>
VOpened OpenExcluded(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    NMemory::IMemParentRef& parentRef = VFactsOf<T>::Owner(owner);
    Item& excluded =
        (parentRef.*Add)(IsByShortName ? ShortNameReference(loader, attributes) : IdReference(loader, attributes));
    NotePositionAround(loader, excluded);
    NotePosition(loader, ReferenceIn(excluded));
    return {&excluded, &LinkType()};
}

/// PARENT-REF: its kinds have the same children.
template <class T>
VElementType ParentRefTable() {
    using namespace NMemory;
    using F = VFactsOf<T>;
    constexpr auto addDiagComm = &IMemParentRef::AddNotInheritedDiagComm;
    constexpr auto addVariable = &IMemParentRef::AddNotInheritedVariable;
    static constexpr VFact facts[] = {
        F::template Wrapper<&T::MakeNotInheritedDiagCommCollection>("NOT-INHERITED-DIAG-COMMS", Optional),
        F::PlainWrapper("NOT-INHERITED-DIAG-COMM", Many),
        F::Special("DIAG-COMM-SNREF", OneOf(1), &OpenExcluded<T, VMemNotInheritedDiagComm, addDiagComm, true>),
        F::Special("DIAG-COMM-REF", OneOf(1), &OpenExcluded<T, VMemNotInheritedDiagComm, addDiagComm, false>),
        F::WrapperEnd(),
        F::WrapperEnd(),
        F::template Wrapper<&T::MakeNotInheritedVariableCollection>("NOT-INHERITED-VARIABLES", Optional),
        F::PlainWrapper("NOT-INHERITED-VARIABLE", Many),
        F::Special("DIAG-VARIABLE-SNREF", Required, &OpenExcluded<T, VMemNotInheritedVariable, addVariable, true>),
        F::WrapperEnd(),
        F::WrapperEnd(),
    };
    return TableOf(facts);
}

} // namespace NReader
