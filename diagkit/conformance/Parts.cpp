// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Walk.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>

namespace NConformance {
namespace {

/// Walks the parts of an element of the class.
template <class Class, class WalkPartsOf>
void If(NODX201::VOdxElement& odxElement, WalkPartsOf walkParts) {
    if (auto* const x = dynamic_cast<Class*>(&odxElement); x != nullptr) {
        walkParts(*x);
    }
}

/// The contract does not have this class.
template <class WalkPartsOf>
void Never(WalkPartsOf) {}

// In places the rows of a class go beyond the contract. Only what is in the contract can be called.

template <class X, class Has, class Get>
void WalkChild(VWalk& walk, wchar_t const* operation, X& x, Has has, Get get) {
    if constexpr (std::is_invocable_v<Has, X&>) {
        walk.Child(
            operation, [&x, has] { return has(x); }, [&x, get] { return ChildOf(get(x)); });
    }
}

template <class X, class Get>
void WalkPart(VWalk& walk, wchar_t const* operation, X& x, Get get) {
    walk.Child(operation, {}, [&x, get] { return ChildOf(get(x)); });
}

template <class X, class Has, class Get>
void WalkText(VWalk& walk, wchar_t const* operation, X& x, Has has, Get get) {
    if constexpr (std::is_invocable_v<Has, X&>) {
        walk.Text(
            operation, [&x, has] { return has(x); }, [&x, get] { return get(x); });
    } else if constexpr (std::is_invocable_v<Get, X&>) {
        walk.Text(operation, {}, [&x, get] { return get(x); });
    }
}

template <class X, class Get>
void WalkList(VWalk& walk, wchar_t const* operation, X& x, Get get) {
    if constexpr (std::is_invocable_v<Get, X&>) {
        walk.List(operation, {}, [&x, get] { return ListOf(get(x)); });
    }
}

template <class X, class Has, class Get>
void WalkOptionalList(VWalk& walk, wchar_t const* operation, X& x, Has has, Get get) {
    if constexpr (std::is_invocable_v<Has, X&>) {
        walk.List(
            operation, [&x, has] { return has(x); }, [&x, get] { return ListOf(get(x)); });
    }
}

/// Calls an operation of any class that has it.
#define CALL(operation) [](auto& asked) -> decltype(asked.operation()) { return asked.operation(); }

#define CHILD(name) WalkChild(walk, L"Get" L## #name, x, CALL(Has##name), CALL(Get##name));
#define PART(name) WalkPart(walk, L"Get" L## #name, x, CALL(Get##name));
#define TEXT(name) WalkText(walk, L"Get" L## #name, x, CALL(Has##name), CALL(Get##name));
#define LIST(name) WalkList(walk, L## #name, x, CALL(name));
#define OPTIONAL_LIST(name) WalkOptionalList(walk, L## #name, x, CALL(Has##name), CALL(name));

/// COMPU-SCALES are a collection, which need not be an element; a PROG-CODE is one.
void WalkScalesOrProgCode(VWalk& walk, NODX201::VCompuInternalToPhys& x) {
    wchar_t const* const operation = L"GetCompuScalesProgCodeChoice";
    auto const has = [&x] { return x.HasCompuScalesProgCodeChoice(); };
    NODX201::VCompuScaleCollection* scales = nullptr;
    walk.Ask(operation, [&] {
        scales = has() ? dynamic_cast<NODX201::VCompuScaleCollection*>(&x.GetCompuScalesProgCodeChoice()) : nullptr;
    });
    if (scales == nullptr) {
        walk.Child(operation, has, [&x] { return ChildOf(x.GetCompuScalesProgCodeChoice()); });
        return;
    }
    walk.List(operation, has,
              [&x] { return ListOf(dynamic_cast<NODX201::VCompuScaleCollection&>(x.GetCompuScalesProgCodeChoice())); });
}

/// Parts that are not in any row.
void WalkOtherParts(VWalk& walk, NODX201::VOdxElement& odxElement) {
    walk.Name(L"GetShortName", [&odxElement] { return odxElement.GetShortName(); });
    If<NODX201::VReferencable>(odxElement, [&walk](auto& x) { TEXT(Id) });
    If<NODX201::VText>(odxElement, [&walk](auto& x) { TEXT(BaseMember) });
    If<NODX201::VLink>(odxElement, [&walk](auto& x) { walk.Link(x); });
    If<NODX201::VOdx>(odxElement, [&walk](auto& x) {
        LIST(DiagLayerContainerCollection)
        LIST(ComparamSpecCollection)
        LIST(ProcessingInstructionCollection)
    });
    If<NODX201::VParentRef>(odxElement, [&walk](auto& x) {
        OPTIONAL_LIST(NotInheritedDiagCommCollection)
        OPTIONAL_LIST(NotInheritedVariableCollection)
    });
    If<NODX201::VCompuInternalToPhys>(odxElement, [&walk](auto& x) { WalkScalesOrProgCode(walk, x); });
}

} // namespace

void WalkParts(VWalk& walk, NODX201::VOdxElement& odxElement) {
    WalkOtherParts(walk, odxElement);

    // clang-format off
    // A class may have no parts to walk.
#define PARTS [&walk]([[maybe_unused]] auto& x) { static_cast<void>(walk);
#define ODX_CLASS(name, tag, base, names, value, element, type)                                                        \
    If<NODX201::V##name>(odxElement, PARTS                                                                             \
        TEXT(Oid)                                                                                                      \
        CHILD(LongName)
#define ODX_LINK_WITH(name, tag, target) If<NODX201::V##name>(odxElement, PARTS
#define ODX_EXTRA(name, contract, names, value, element, type) Never(PARTS
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) Never(PARTS
#define ODX_END                                                                                                        \
    });
#define ODX_EXCLUSION(name, reference, link, value, element)                                                           \
    If<NODX201::V##name>(odxElement, [&walk](auto& x) { PART(reference) });

#define ODX_CHILD(name, element, often) CHILD(name)
#define ODX_NAMED_CHILD(name, element, often) CHILD(name)
#define ODX_TEXT_CHILD(name, element, often) CHILD(name)
#define ODX_MERGED_CHILD(name, element, often) CHILD(name)
#define ODX_LIMIT(name, element, often) CHILD(name)
#define ODX_REF(name, link, element, often) CHILD(name)
#define ODX_SNREF(name, link, element, often) CHILD(name)
#define ODX_CHOICE(name, interface) CHILD(name)
#define ODX_PART(name, element) PART(name)
#define ODX_COLLECTION(name) LIST(name##Collection)
#define ODX_OPTIONAL_COLLECTION(name) OPTIONAL_LIST(name##Collection)
#define ODX_STRINGS(name, wrapper, element) LIST(name##Collection)
#define ODX_PROCESSING_INSTRUCTIONS LIST(ProcessingInstructionCollection)
#define ODX_BY_HAND(rows) rows
#define ODX_NOT_READ(rows) rows
#include <diagkit/model/Facts.def>
    // clang-format on
}

} // namespace NConformance
