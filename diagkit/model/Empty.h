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

#include <diagkit/model/EmptyRows.def>

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

} // namespace NODX201
