// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>
#include <type_traits>
#include <utility>

#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Text.h>
#include <diagkit/model/Units.h>
#include <diagkit/model/VehicleInfo.h>
#include <diagkit/model/Visitors.h>

/// Classes that answer for a model of one's own, as an element does that has nothing: for each class of the contract
/// one, made of the facts in `facts/`.

namespace NODX201 {

/// What the getters of empty elements return.
struct VNothing {
    /// An empty collection, the same one each time. Of what is no collection there is nothing to return: throws
    /// std::logic_error. Its test said so.
    template <class Result>
    static Result Get() {
        if constexpr (!std::is_void_v<Result>) {
            using VPart = std::remove_reference_t<Result>;
            if constexpr (std::is_default_constructible_v<VPart> && !std::is_convertible_v<VPart*, VOdxObject*>) {
                static VPart nothing;
                return nothing;
            } else {
                throw std::logic_error("asked for what is absent");
            }
        }
    }
};

/// What the facts say that elements of a class have: none of it is there.
template <class Class>
class VEmptyRows;

/// An element of a class of the contract that has nothing: the tests say no, the collections are empty, `GetOdxTag` is
/// the tag of the class, and `Accept` calls back its kind. Derive from it and override what your data has:
///
///     class VMyUnit : public NODX201::VEmpty<NODX201::VUnit> {
///         wchar_t const* GetShortName() const override;
///         wchar_t const* GetId() const override;
///         VOdxObject* GetOwner() const override;
///     };
///
/// What no element goes without stays for the derived class to say: the owner; short name and ID, where the class has
/// them; the form of a reference (`GetLink`); the text of a `VText`; which of the two tags a `VLimit` has; the layers
/// of a container, since their collection has an owner; the MEM of an ECU-MEM; what a NOT-INHERITED element names. A
/// class that lacks one cannot be made.
///
/// Some classes have operations that the contract does not ask for, of parts that it does not have. Nobody calls them.
template <class Class>
class VEmpty : public VEmptyRows<Class> {};

// clang-format off
#define DIAGKIT_EMPTY_CLASS(name)                                                                                      \
    template <>                                                                                                        \
    class VEmptyRows<V##name> : public V##name {                                                                       \
        using VContract = V##name;                                                                                     \
                                                                                                                       \
    public:
#define DIAGKIT_EMPTY_TAG(tag) VOdxTagEnum GetOdxTag() const { return VOdxTagEnum::tag; }
#define DIAGKIT_EMPTY_NAME     wchar_t const* GetShortName() const { return L""; }
#define DIAGKIT_EMPTY_ID       wchar_t const* GetId() const { return L""; }

// A getter returns what that of the contract does, and nothing where the contract has none. No operation says `override`,
// because the facts know more than the contract.
#define DIAGKIT_EMPTY_GET(operation)                                                                                   \
    template <class Contract, class = void>                                                                            \
    struct VResultOf##operation {                                                                                      \
        using Type = void;                                                                                             \
    };                                                                                                                 \
    template <class Contract>                                                                                          \
    struct VResultOf##operation<Contract, std::void_t<decltype(std::declval<Contract&>().operation())>> {              \
        using Type = decltype(std::declval<Contract&>().operation());                                                  \
    };                                                                                                                 \
    typename VResultOf##operation<VContract>::Type operation() {                                                       \
        return VNothing::Get<typename VResultOf##operation<VContract>::Type>();                                        \
    }
#define DIAGKIT_EMPTY_CHILD(name)                                                                                      \
    bool Has##name() const { return false; }                                                                           \
    DIAGKIT_EMPTY_GET(Get##name)
#define DIAGKIT_EMPTY_OPTIONAL_LIST(name)                                                                              \
    bool Has##name() const { return false; }                                                                           \
    DIAGKIT_EMPTY_GET(name)

#define ODX_CLASS(name, tag, base, names, value, element, type)                                                        \
    DIAGKIT_EMPTY_CLASS(name)                                                                                          \
        DIAGKIT_EMPTY_NAMES_##names(tag)                                                                               \
        DIAGKIT_EMPTY_ACCEPT_##base(name)                                                                              \
        bool HasOid() const { return false; }                                                                          \
        wchar_t const* GetOid() const { return L""; }                                                                  \
        DIAGKIT_EMPTY_CHILD(LongName)
#define ODX_END };

#define DIAGKIT_EMPTY_NAMES_Plain(tag)         DIAGKIT_EMPTY_TAG(tag) DIAGKIT_EMPTY_NAME
#define DIAGKIT_EMPTY_NAMES_Tagged(tag)        DIAGKIT_EMPTY_NAME
#define DIAGKIT_EMPTY_NAMES_OptionalIdent(tag) DIAGKIT_EMPTY_TAG(tag) DIAGKIT_EMPTY_ID
#define DIAGKIT_EMPTY_NAMES_Named(tag)         DIAGKIT_EMPTY_TAG(tag)
#define DIAGKIT_EMPTY_NAMES_Ident(tag)         DIAGKIT_EMPTY_TAG(tag)
#define DIAGKIT_EMPTY_NAMES_ShortIdent(tag)    DIAGKIT_EMPTY_TAG(tag)
#define DIAGKIT_EMPTY_NAMES_TypedIdent(tag)    DIAGKIT_EMPTY_TAG(tag)

#define DIAGKIT_EMPTY_VISITED(visitorClass, name) void Accept(visitorClass& visitor) { visitor.Visit##name(*this); }
#define DIAGKIT_EMPTY_ACCEPT_OdxElement(name)
#define DIAGKIT_EMPTY_ACCEPT_Referencable(name)
#define DIAGKIT_EMPTY_ACCEPT_DiagCodedType(name)
#define DIAGKIT_EMPTY_ACCEPT_Response(name)
#define DIAGKIT_EMPTY_ACCEPT_DiagLayer(name)         DIAGKIT_EMPTY_VISITED(VDiagLayerVisitor, name)
#define DIAGKIT_EMPTY_ACCEPT_DiagComm(name)          DIAGKIT_EMPTY_VISITED(VDiagCommVisitor, name)
#define DIAGKIT_EMPTY_ACCEPT_UnvisitedDiagComm(name) void Accept(VDiagCommVisitor&) {}
#define DIAGKIT_EMPTY_ACCEPT_DopBase(name)           DIAGKIT_EMPTY_VISITED(VDopBaseVisitor, name)
#define DIAGKIT_EMPTY_ACCEPT_ComplexDop(name)        DIAGKIT_EMPTY_VISITED(VDopBaseVisitor, name)
#define DIAGKIT_EMPTY_ACCEPT_BasicStructure(name)    DIAGKIT_EMPTY_VISITED(VDopBaseVisitor, name)
#define DIAGKIT_EMPTY_ACCEPT_Field(name)             DIAGKIT_EMPTY_VISITED(VDopBaseVisitor, name)
#define DIAGKIT_EMPTY_ACCEPT_Param(name)             DIAGKIT_EMPTY_VISITED(VParamVisitor, name)

#define ODX_CHILD(name, element, often)                  DIAGKIT_EMPTY_CHILD(name)
#define ODX_NAMED_CHILD(name, element, often)            DIAGKIT_EMPTY_CHILD(name)
#define ODX_TEXT_CHILD(name, element, often)             DIAGKIT_EMPTY_CHILD(name)
#define ODX_MERGED_CHILD(name, element, often)           DIAGKIT_EMPTY_CHILD(name)
#define ODX_LIMIT(name, element, often)                  DIAGKIT_EMPTY_CHILD(name)
#define ODX_REF(name, link, element, often)              DIAGKIT_EMPTY_CHILD(name)
#define ODX_SNREF(name, link, element, often)            DIAGKIT_EMPTY_CHILD(name)
#define ODX_CHOICE(name, interface)                      DIAGKIT_EMPTY_CHILD(name)
#define ODX_COLLECTION(name)                             DIAGKIT_EMPTY_GET(name##Collection)
#define ODX_OPTIONAL_COLLECTION(name)                    DIAGKIT_EMPTY_OPTIONAL_LIST(name##Collection)
#define ODX_STRINGS(name, wrapper, element)              DIAGKIT_EMPTY_GET(name##Collection)
#define ODX_PROCESSING_INSTRUCTIONS                      DIAGKIT_EMPTY_GET(ProcessingInstructionCollection)
#define ODX_BY_HAND(rows)                                rows
#define ODX_NOT_READ(rows)                               rows

#define DIAGKIT_EMPTY_LINK(name, tag, target, parameters)                                                              \
    DIAGKIT_EMPTY_CLASS(name)                                                                                          \
        DIAGKIT_EMPTY_TAG(tag)                                                                                         \
        DIAGKIT_EMPTY_NAME                                                                                             \
        bool Has##target parameters { return false; }                                                                  \
        DIAGKIT_EMPTY_GET(Get##target)
#define ODX_LINK_WITH(name, tag, target)                             DIAGKIT_EMPTY_LINK(name, tag, target, () const)
#define ODX_LINK_IN_LAYER(name, tag, target, value, element)         DIAGKIT_EMPTY_LINK(name, tag, target, (VDiagLayer&)) ODX_END
#define ODX_LINK_IN_DIAG_COMM(name, tag, target, value, element)                                                       \
    DIAGKIT_EMPTY_LINK(name, tag, target, (VDiagComm&, VDiagLayer&, VSearchRange)) ODX_END
#define ODX_PARENT_REF(name, target, value, type)                                                                      \
    DIAGKIT_EMPTY_LINK(name, name, target, () const)                                                                   \
        DIAGKIT_EMPTY_OPTIONAL_LIST(NotInheritedDiagCommCollection)                                                    \
        DIAGKIT_EMPTY_OPTIONAL_LIST(NotInheritedVariableCollection)                                                    \
    ODX_END
#define ODX_UNTYPED_PARENT_REF(name, target, value)                  ODX_PARENT_REF(name, target, value, "")
#define ODX_EXCLUSION(name, reference, link, value, element)                                                           \
    DIAGKIT_EMPTY_CLASS(name)                                                                                          \
        DIAGKIT_EMPTY_TAG(name)                                                                                        \
        DIAGKIT_EMPTY_NAME                                                                                             \
    ODX_END

// Classes that the contract does not have make nothing, whatever their rows say.
#define ODX_EXTRA(name, contract, names, value, element, type)                                                         \
    template <>                                                                                                        \
    class VEmptyRows<struct VExtra##name> {                                                                            \
        using VContract = VExtra##name;
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) ODX_EXTRA(name, , , , , )

#include <diagkit/model/Facts.def>
// clang-format on

/// The root, which has no owner.
template <>
class VEmptyRows<VOdx> : public VOdx {
public:
    VOdxTagEnum GetOdxTag() const override { return VOdxTagEnum::Odx; }
    wchar_t const* GetShortName() const override { return L""; }
    VOdxObject* GetOwner() const override { return nullptr; }
    VDiagLayerContainerCollection& DiagLayerContainerCollection() override {
        return VNothing::Get<VDiagLayerContainerCollection&>();
    }
    VComparamSpecCollection& ComparamSpecCollection() override { return VNothing::Get<VComparamSpecCollection&>(); }
    VProcessingInstructionCollection& ProcessingInstructionCollection() override {
        return VNothing::Get<VProcessingInstructionCollection&>();
    }
};

/// LONG-NAME
template <>
class VEmptyRows<VText> : public VText {
public:
    VOdxTagEnum GetOdxTag() const override { return VOdxTagEnum::LongName; }
    wchar_t const* GetShortName() const override { return L""; }
};

/// Without COMPU-SCALES and PROG-CODE, which are no row of their own.
template <>
class VEmpty<VCompuInternalToPhys> : public VEmptyRows<VCompuInternalToPhys> {
public:
    bool HasCompuScalesProgCodeChoice() const override { return false; }
    ICompuScalesProgCodeChoice& GetCompuScalesProgCodeChoice() override {
        return VNothing::Get<ICompuScalesProgCodeChoice&>();
    }
};

/// A container says which layers it has, because their collection has an owner.
template <>
class VEmpty<VDiagLayerContainer> : public VEmptyRows<VDiagLayerContainer> {
public:
    VDiagLayerCollection& DiagLayerCollection() override = 0;
};

#undef DIAGKIT_EMPTY_CLASS
#undef DIAGKIT_EMPTY_TAG
#undef DIAGKIT_EMPTY_NAME
#undef DIAGKIT_EMPTY_ID
#undef DIAGKIT_EMPTY_GET
#undef DIAGKIT_EMPTY_CHILD
#undef DIAGKIT_EMPTY_OPTIONAL_LIST
#undef DIAGKIT_EMPTY_NAMES_Plain
#undef DIAGKIT_EMPTY_NAMES_Tagged
#undef DIAGKIT_EMPTY_NAMES_OptionalIdent
#undef DIAGKIT_EMPTY_NAMES_Named
#undef DIAGKIT_EMPTY_NAMES_Ident
#undef DIAGKIT_EMPTY_NAMES_ShortIdent
#undef DIAGKIT_EMPTY_NAMES_TypedIdent
#undef DIAGKIT_EMPTY_VISITED
#undef DIAGKIT_EMPTY_ACCEPT_OdxElement
#undef DIAGKIT_EMPTY_ACCEPT_Referencable
#undef DIAGKIT_EMPTY_ACCEPT_DiagCodedType
#undef DIAGKIT_EMPTY_ACCEPT_Response
#undef DIAGKIT_EMPTY_ACCEPT_DiagLayer
#undef DIAGKIT_EMPTY_ACCEPT_DiagComm
#undef DIAGKIT_EMPTY_ACCEPT_UnvisitedDiagComm
#undef DIAGKIT_EMPTY_ACCEPT_DopBase
#undef DIAGKIT_EMPTY_ACCEPT_ComplexDop
#undef DIAGKIT_EMPTY_ACCEPT_BasicStructure
#undef DIAGKIT_EMPTY_ACCEPT_Field
#undef DIAGKIT_EMPTY_ACCEPT_Param
#undef DIAGKIT_EMPTY_LINK

} // namespace NODX201
